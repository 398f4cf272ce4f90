#include "cli/json_text.h"

#include <charconv>

#include "platform/file_name_bytes.h"

namespace vorlane {

namespace {

// In front of four hex digits it stands for one UTF-16 unit: a lone surrogate, U+0000, or itself.
constexpr char16_t Mark = 0xE000;
constexpr std::string_view MarkBytes = "\xEE\x80\x80";
constexpr std::size_t HexDigits = 4;

bool IsHigh(char16_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLow(char16_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

std::string HexOf(char16_t unit) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string hex;
  for (int shift = 12; shift >= 0; shift -= 4) {
    hex.push_back(digits[static_cast<std::size_t>((unit >> shift) & 0xF)]);
  }
  return hex;
}

// The number of the four hex digits at `at`; -1 if there aren't four.
int UnitOfHex(std::string_view text, std::size_t at) {
  if (at + HexDigits > text.size()) {
    return -1;
  }
  unsigned unit = 0;
  const char* end = text.data() + at + HexDigits;
  const auto read = std::from_chars(text.data() + at, end, unit, 16);
  return read.ec == std::errc() && read.ptr == end ? static_cast<int>(unit) : -1;
}

bool IsSurrogateEscape(std::string_view text, std::size_t at, int& unit) {
  if (at + 2 > text.size() || text[at] != '\\' || text[at + 1] != 'u') {
    return false;
  }
  unit = UnitOfHex(text, at + 2);
  return unit >= 0xD800 && unit <= 0xDFFF;
}

// Escapes that aren't half of a pair become marked units, as does the mark itself.
std::string MarkLoneEscapes(std::string_view document) {
  constexpr std::size_t escapeLength = 2 + HexDigits;
  std::string marked;
  for (std::size_t i = 0; i < document.size();) {
    int unit = 0;
    int next = 0;
    if (document.substr(i).starts_with(MarkBytes)) {
      marked.append(MarkBytes).append(HexOf(Mark));
      i += MarkBytes.size();
    } else if (document[i] == '\\' && UnitOfHex(document, i + 2) == Mark &&
               document[i + 1] == 'u') {
      marked.append(MarkBytes).append(HexOf(Mark));
      i += escapeLength;
    } else if (!IsSurrogateEscape(document, i, unit)) {
      const std::size_t length = document[i] == '\\' && i + 1 < document.size() ? 2 : 1;
      marked.append(document.substr(i, length));
      i += length;
    } else if (IsHigh(static_cast<char16_t>(unit)) &&
               IsSurrogateEscape(document, i + escapeLength, next) &&
               IsLow(static_cast<char16_t>(next))) {
      marked.append(document.substr(i, 2 * escapeLength));
      i += 2 * escapeLength;
    } else {
      marked.append(MarkBytes).append(HexOf(static_cast<char16_t>(unit)));
      i += escapeLength;
    }
  }
  return marked;
}

}  // namespace

std::string JsonString(TextView text) {
  Text marked;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (IsHigh(unit) && i + 1 < text.size() && IsLow(text[i + 1])) {
      marked.append(text.substr(i++, 2));
    } else if (IsHigh(unit) || IsLow(unit) || unit == Mark || unit == 0) {
      marked.append(1, Mark).append(AsciiText(HexOf(unit)));
    } else {
      marked.push_back(unit);
    }
  }
  return DisplayUtf8(marked);
}

Text TextOfJson(const std::string& string) {
  const Text marked = TextFromBytes(string);
  Text text;
  for (std::size_t i = 0; i < marked.size(); ++i) {
    if (marked[i] != Mark) {
      text.push_back(marked[i]);
      continue;
    }
    std::string hex;
    for (const char16_t digit : TextView(marked).substr(i + 1, HexDigits)) {
      hex.push_back(static_cast<char>(digit));
    }
    text.push_back(static_cast<char16_t>(UnitOfHex(hex, 0)));
    i += HexDigits;
  }
  return text;
}

std::string WriteJson(const Json& document) {
  const std::string marked = document.dump();
  std::string written;
  for (std::size_t i = 0; i < marked.size();) {
    if (!std::string_view(marked).substr(i).starts_with(MarkBytes)) {
      written.push_back(marked[i++]);
      continue;
    }
    const std::string hex = marked.substr(i + MarkBytes.size(), HexDigits);
    written.append(UnitOfHex(hex, 0) == Mark ? std::string(MarkBytes) : "\\u" + hex);
    i += MarkBytes.size() + HexDigits;
  }
  return written;
}

Json ReadJson(std::string_view document) {
  return Json::parse(MarkLoneEscapes(document));
}

}  // namespace vorlane
