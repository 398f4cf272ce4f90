#include "cli/message.h"

#include <algorithm>
#include <iostream>

#include "platform/console.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

std::string OnOneLine(std::string text) {
  constexpr unsigned char firstPrintable = 0x20;
  constexpr unsigned char deleted = 0x7F;
  std::replace_if(
      text.begin(), text.end(),
      [](unsigned char byte) { return byte < firstPrintable || byte == deleted; }, '?');
  // The control characters from U+0080 to U+009F, which terminals obey as well.
  for (auto at = text.find('\xC2'); at != std::string::npos; at = text.find('\xC2', at + 1)) {
    if (at + 1 < text.size() && (static_cast<unsigned char>(text[at + 1]) & 0xE0U) == 0x80U) {
      text.replace(at, 2, "?");
    }
  }
  return text;
}

std::string ForOutput(std::string text) {
  return StandardOutputIsTerminal() ? OnOneLine(std::move(text)) : text;
}

void PrintMessage(const std::string& message) {
  std::cerr << "vorlane-cli: " << OnOneLine(message) << '\n';
}

void PrintMessage(TextView message) {
  PrintMessage(DisplayUtf8(message));
}

}  // namespace vorlane
