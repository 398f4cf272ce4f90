#include "shell/registry_escapes.h"

#include <algorithm>

namespace vorlane {

namespace {

constexpr TextView HexDigits = u"0123456789abcdef";
constexpr std::size_t UnitDigits = 4;
constexpr char16_t ByteOrderMark = 0xFEFF;

std::optional<std::uint32_t> DigitValue(char16_t digit) {
  if (digit >= u'0' && digit <= u'9') {
    return digit - u'0';
  }
  const auto lower = static_cast<char16_t>(digit | 0x20);
  if (lower >= u'a' && lower <= u'f') {
    return lower - u'a' + 10;
  }
  return std::nullopt;
}

bool IsSurrogate(char16_t unit) {
  return (unit & 0xF800) == 0xD800;
}

bool IsPair(TextView text) {
  return text.size() >= 2 && (text[0] & 0xFC00) == 0xD800 && (text[1] & 0xFC00) == 0xDC00;
}

}  // namespace

std::optional<std::uint32_t> ReadHex(TextView digits) {
  std::uint32_t number = 0;
  for (const char16_t digit : digits) {
    const auto value = DigitValue(digit);
    if (!value) {
      return std::nullopt;
    }
    number = number << 4 | *value;
  }
  return number;
}

void AppendHex(Text& text, std::uint32_t number, int digits) {
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
    text.push_back(HexDigits[number >> shift & 0xF]);
  }
}

Text Escape(TextView text) {
  Text escaped;
  escaped.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (unit == u'\\') {
      escaped += u"\\\\";
    } else if (unit == u'\n') {
      escaped += u"\\n";
    } else if (unit == u'\r') {
      escaped += u"\\r";
    } else if (IsPair(text.substr(i))) {
      escaped.append(text, i, 2);
      ++i;
    } else if (unit == 0 || unit == ByteOrderMark || IsSurrogate(unit)) {
      escaped += u"\\u";
      AppendHex(escaped, unit, static_cast<int>(UnitDigits));
    } else {
      escaped += unit;
    }
  }
  return escaped;
}

Text EscapeName(TextView name) {
  Text escaped = Escape(name);
  ReplaceAll(escaped, u"=", u"\\=");
  if (escaped.starts_with(u'[') || escaped.starts_with(u'#')) {
    escaped.insert(0, 1, u'\\');
  }
  return escaped;
}

Text Unescape(TextView escaped) {
  Text text;
  text.reserve(escaped.size());
  for (std::size_t i = 0; i < escaped.size(); ++i) {
    const char16_t next = escaped[i] == u'\\' && i + 1 < escaped.size() ? escaped[i + 1] : u'\0';
    const TextView digits = escaped.substr(std::min(i + 2, escaped.size()), UnitDigits);
    const auto unit = next == u'u' && digits.size() == UnitDigits ? ReadHex(digits) : std::nullopt;
    if (unit) {
      text += static_cast<char16_t>(*unit);
      i += 1 + UnitDigits;
    } else if (next == u'n' || next == u'r') {
      text += next == u'n' ? u'\n' : u'\r';
      ++i;
    } else if (next != 0 && TextView(u"\\=[#").find(next) != TextView::npos) {
      text += next;
      ++i;
    } else {
      text += escaped[i];
    }
  }
  return text;
}

std::size_t EndOfName(TextView line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == u'=') {
      return i;
    }
    i += line[i] == u'\\' ? 1 : 0;
  }
  return TextView::npos;
}

}  // namespace vorlane
