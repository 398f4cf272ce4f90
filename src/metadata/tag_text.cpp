#include "metadata/tag_text.h"

#include "metadata/number_field.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/numbers.h"

namespace vorlane {

namespace {

constexpr TextView Separator = u"|";
constexpr std::size_t FieldCount = 9;

bool BooleanOf(TextView field) {
  const auto number = ReadNumber(field);
  if (!number) {
    throw RunError(ErrorNumber::TypeMismatch);
  }
  return *number != 0;
}

std::uint8_t HexDigit(char16_t digit) {
  if (digit >= u'0' && digit <= u'9') {
    return static_cast<std::uint8_t>(digit - u'0');
  }
  if (digit >= u'A' && digit <= u'F') {
    return static_cast<std::uint8_t>(digit - u'A' + 10);
  }
  if (digit >= u'a' && digit <= u'f') {
    return static_cast<std::uint8_t>(digit - u'a' + 10);
  }
  throw RunError(ErrorNumber::TypeMismatch);
}

}  // namespace

Text TagToString(const ID3Tag& tag, int version) {
  Text line = DecimalText(version);
  for (const Text& field : {Text(tag.Present ? u"-1" : u"0"), StringToHex(tag.Artist),
                            StringToHex(tag.Title), StringToHex(tag.Album), tag.Track,
                            StringToHex(tag.Comment), tag.Year, DecimalText(tag.Genre)}) {
    line += Separator;
    line += field;
  }
  return line;
}

VersionedTag StringToTag(TextView line) {
  const std::vector<Text> fields = Split(line, Separator);
  if (fields.size() < FieldCount) {
    throw RunError(ErrorNumber::SubscriptOutOfRange);
  }
  VersionedTag result;
  result.Version = Int16Of(fields[0]);
  result.Tag.Present = BooleanOf(fields[1]);
  result.Tag.Artist = HexToString(fields[2]);
  result.Tag.Title = HexToString(fields[3]);
  result.Tag.Album = HexToString(fields[4]);
  result.Tag.Track = fields[5];
  result.Tag.Comment = HexToString(fields[6]);
  result.Tag.Year = fields[7];
  result.Tag.Genre = Int16Of(fields[8]);
  return result;
}

Text StringToHex(TextView text) {
  constexpr TextView digits = u"0123456789ABCDEF";
  Text hex;
  for (const char character : CodePageBytes(text)) {
    const auto byte = static_cast<std::uint8_t>(character);
    hex += digits[byte >> 4];
    hex += digits[byte & 0xF];
  }
  return hex;
}

Text HexToString(TextView digits) {
  Text text;
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    unsigned code = HexDigit(digits[i]);
    if (i + 1 < digits.size()) {
      code = code << 4 | HexDigit(digits[i + 1]);
    }
    text += CharacterOfByte(static_cast<std::uint8_t>(code));
  }
  return text;
}

}  // namespace vorlane
