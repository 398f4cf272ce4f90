#include "cli/message.h"

#include <algorithm>
#include <iostream>

#include "platform/file_name_bytes.h"

namespace vorlane {

std::string OnOneLine(std::string text) {
  constexpr unsigned char firstPrintable = 0x20;
  constexpr unsigned char deleted = 0x7F;
  std::replace_if(
      text.begin(), text.end(),
      [](unsigned char byte) { return byte < firstPrintable || byte == deleted; }, '?');
  return text;
}

void PrintMessage(const std::string& message) {
  std::cerr << "vorlane-cli: " << OnOneLine(message) << '\n';
}

void PrintMessage(TextView message) {
  PrintMessage(DisplayUtf8(message));
}

}  // namespace vorlane
