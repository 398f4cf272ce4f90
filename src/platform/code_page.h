// Windows-1252, the 8-bit code page of the journal, the tags, EXIF texts and "<ASCII>".
// The five bytes without a character there (81 8D 8F 90 9D) map one to one to U+0081 and so on.
// Mapping: https://www.unicode.org/Public/MAPPINGS/VENDORS/MICSFT/WINDOWS/CP1252.TXT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/text.h"

namespace vorlane {

char16_t CharacterOfByte(std::uint8_t byte);

// Nothing if the code page has no byte for that UTF-16 unit.
std::optional<std::uint8_t> ByteOfCharacter(char16_t character);

Text TextFromCodePage(std::string_view bytes);

// One byte for each UTF-16 unit, "?" for a unit that has none.
std::string CodePageBytes(TextView text);

// The same, but a unit that has no byte stands as "//" and its four upper-case hex digits.
std::string EscapedCodePageBytes(TextView text);
void AppendUnitEscape(std::string& bytes, char16_t unit);

}  // namespace vorlane
