#include "catalogue/text_file.h"

#include "platform/code_page.h"
#include "platform/file_name_bytes.h"

namespace vorlane {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

Text DecodeBytes(std::string_view bytes) {
  if (bytes.starts_with(byteOrderMark)) {
    return TextFromBytes(bytes.substr(byteOrderMark.size()));
  }
  // Pure ASCII reads the same either way.
  return IsValidUtf8(bytes) ? TextFromBytes(bytes) : TextFromCodePage(bytes);
}

}  // namespace

Text DecodeTextFile(std::string_view bytes) {
  Text text = DecodeBytes(bytes);
  if (!Contains(text, u"\r\n")) {
    ReplaceAll(text, u"\n", u"\r\n");
  }
  return text;
}

}  // namespace vorlane
