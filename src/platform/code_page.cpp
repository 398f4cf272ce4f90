#include "platform/code_page.h"

#include <algorithm>

namespace vorlane {
namespace {

// Bytes 80 to 9F; all others are the character of the same number.
constexpr std::uint8_t FirstOdd = 0x80;
constexpr char16_t OddCharacters[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98
};

bool IsOdd(char16_t code) {
  return code >= FirstOdd && code < FirstOdd + std::size(OddCharacters);
}

}  // namespace

char16_t CharacterOfByte(std::uint8_t byte) {
  return IsOdd(byte) ? OddCharacters[byte - FirstOdd] : byte;
}

std::optional<std::uint8_t> ByteOfCharacter(char16_t character) {
  if (character < 0x100 && !IsOdd(character)) {
    return static_cast<std::uint8_t>(character);
  }
  const auto* const hit = std::find(std::begin(OddCharacters), std::end(OddCharacters), character);
  if (hit == std::end(OddCharacters)) {
    return std::nullopt;
  }
  return static_cast<std::uint8_t>(FirstOdd + (hit - std::begin(OddCharacters)));
}

Text TextFromCodePage(std::string_view bytes) {
  Text text;
  text.reserve(bytes.size());
  for (const char byte : bytes) {
    text.push_back(CharacterOfByte(static_cast<std::uint8_t>(byte)));
  }
  return text;
}

std::string CodePageBytes(TextView text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (const char16_t character : text) {
    bytes.push_back(static_cast<char>(ByteOfCharacter(character).value_or('?')));
  }
  return bytes;
}

std::string EscapedCodePageBytes(TextView text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (const char16_t unit : text) {
    if (const auto byte = ByteOfCharacter(unit)) {
      bytes.push_back(static_cast<char>(*byte));
    } else {
      AppendUnitEscape(bytes, unit);
    }
  }
  return bytes;
}

void AppendUnitEscape(std::string& bytes, char16_t unit) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  bytes.append("//");
  for (int shift = 12; shift >= 0; shift -= 4) {
    bytes.push_back(digits[static_cast<std::size_t>((unit >> shift) & 0xF)]);
  }
}

}  // namespace vorlane
