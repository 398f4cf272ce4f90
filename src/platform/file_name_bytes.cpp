#include "platform/file_name_bytes.h"

#include <algorithm>
#include <cstdint>

namespace vorlane {
namespace {

// The escape of byte 80 is U+DC80, and so on: the byte stands in the low half.
constexpr char16_t EscapeBase = 0xDC00;
constexpr char32_t Replacement = 0xFFFD;

bool IsHighSurrogate(char16_t unit) {
  return (unit & 0xFC00) == 0xD800;
}

bool IsLowSurrogate(char16_t unit) {
  return (unit & 0xFC00) == 0xDC00;
}

bool IsEscapedByte(char16_t unit) {
  return unit >= 0xDC80 && unit <= 0xDCFF;
}

// The characters from U+0001 to U+007F at the front, which are the same in both forms. Most names
// are nothing else, so they are taken in one go.
template <typename View>
View LeadingAscii(View view) {
  const auto end =
      std::find_if(view.begin(), view.end(), [](auto c) { return c <= 0 || c > 0x7F; });
  return view.substr(0, static_cast<std::size_t>(end - view.begin()));
}

template <typename View, typename String>
void AppendAscii(String& string, View ascii) {
  const std::size_t start = string.size();
  string.resize(start + ascii.size());
  std::transform(ascii.begin(), ascii.end(), string.begin() + static_cast<std::ptrdiff_t>(start),
                 [](auto c) { return static_cast<typename String::value_type>(c); });
}

struct Decoded {
  char32_t Character = 0;
  std::size_t Length = 0;  // in bytes or units; 0 if there is no character
};

std::size_t SequenceLength(std::uint8_t lead) {
  if (lead < 0x80) {
    return 1;
  }
  if (lead < 0xC0 || lead > 0xF7) {
    return 0;
  }
  return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

// The character that `bytes` begins with; bytes isn't empty.
Decoded DecodeUtf8(std::string_view bytes) {
  const auto lead = static_cast<std::uint8_t>(bytes.front());
  const std::size_t length = SequenceLength(lead);
  if (length <= 1) {
    return {lead, length};
  }
  if (length > bytes.size()) {
    return {};
  }
  char32_t character = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<std::uint8_t>(bytes[i]);
    if ((byte & 0xC0) != 0x80) {
      return {};
    }
    character = character << 6 | (byte & 0x3FU);
  }
  constexpr char32_t shortest[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
  if (character < shortest[length] || isSurrogate || character > 0x10FFFF) {
    return {};
  }
  return {character, length};
}

// The character that `text` begins with; text isn't empty. No character: half of a pair.
Decoded DecodeUtf16(TextView text) {
  const char16_t first = text.front();
  if (IsHighSurrogate(first) && text.size() > 1 && IsLowSurrogate(text[1])) {
    return {0x10000 + ((first & 0x3FFU) << 10 | (text[1] & 0x3FFU)), 2};
  }
  if (IsHighSurrogate(first) || IsLowSurrogate(first)) {
    return {};
  }
  return {first, 1};
}

void AppendUtf16(Text& text, char32_t character) {
  if (character < 0x10000) {
    text.push_back(static_cast<char16_t>(character));
    return;
  }
  const char32_t offset = character - 0x10000;
  text.push_back(static_cast<char16_t>(0xD800 + (offset >> 10)));
  text.push_back(static_cast<char16_t>(0xDC00 + (offset & 0x3FF)));
}

void AppendUtf8(std::string& bytes, char32_t character) {
  const auto append = [&](char32_t byte) { bytes.push_back(static_cast<char>(byte)); };
  const auto appendRest = [&](int shift) { append(0x80 | (character >> shift & 0x3F)); };
  if (character < 0x80) {
    append(character);
  } else if (character < 0x800) {
    append(0xC0 | character >> 6);
    appendRest(0);
  } else if (character < 0x10000) {
    append(0xE0 | character >> 12);
    appendRest(6);
    appendRest(0);
  } else {
    append(0xF0 | character >> 18);
    appendRest(12);
    appendRest(6);
    appendRest(0);
  }
}

// Appends what a name's text stands for. `refuse` is called for each unit that no name can hold,
// and tells whether to go on. False if it ended the work.
template <typename Refuse>
bool AppendNameBytes(std::string& bytes, TextView text, Refuse&& refuse) {
  for (std::size_t i = 0; i < text.size();) {
    const TextView ascii = LeadingAscii(text.substr(i));
    if (!ascii.empty()) {
      AppendAscii(bytes, ascii);
      i += ascii.size();
      continue;
    }
    const Decoded decoded = DecodeUtf16(text.substr(i));
    if (decoded.Character != 0) {
      AppendUtf8(bytes, decoded.Character);
      i += decoded.Length;
      continue;
    }
    if (IsEscapedByte(text[i])) {
      bytes.push_back(static_cast<char>(text[i] - EscapeBase));
    } else if (!refuse()) {
      return false;
    }
    ++i;
  }
  return true;
}

}  // namespace

Text TextFromBytes(std::string_view bytes) {
  Text text;
  text.reserve(bytes.size());
  for (std::size_t i = 0; i < bytes.size();) {
    const std::string_view ascii = LeadingAscii(bytes.substr(i));
    if (!ascii.empty()) {
      AppendAscii(text, ascii);
      i += ascii.size();
      continue;
    }
    const Decoded decoded = DecodeUtf8(bytes.substr(i));
    if (decoded.Length == 0) {
      text.push_back(static_cast<char16_t>(EscapeBase + static_cast<std::uint8_t>(bytes[i])));
      ++i;
      continue;
    }
    AppendUtf16(text, decoded.Character);
    i += decoded.Length;
  }
  return text;
}

std::optional<std::string> BytesFromText(TextView text) {
  std::string bytes;
  bytes.reserve(text.size());
  if (!AppendNameBytes(bytes, text, [] { return false; })) {
    return std::nullopt;
  }
  return bytes;
}

std::string DisplayUtf8(TextView text) {
  std::string bytes;
  bytes.reserve(text.size());
  AppendNameBytes(bytes, text, [&] {
    AppendUtf8(bytes, Replacement);
    return true;
  });
  return bytes;
}

bool IsValidUtf8(std::string_view bytes) {
  for (std::size_t i = 0; i < bytes.size();) {
    const std::size_t length = DecodeUtf8(bytes.substr(i)).Length;
    if (length == 0) {
      return false;
    }
    i += length;
  }
  return true;
}

Text ReplaceUnpairedSurrogates(TextView text) {
  Text result(text);
  for (std::size_t i = 0; i < result.size();) {
    const std::size_t length = DecodeUtf16(TextView(result).substr(i)).Length;
    if (length == 0 && !IsEscapedByte(result[i])) {
      result[i] = u'_';
    }
    i += length == 0 ? 1 : length;
  }
  return result;
}

}  // namespace vorlane
