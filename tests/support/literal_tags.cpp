#include "support/literal_tags.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/numbers.h"

namespace vorlane::literal {

namespace {

const std::string Nul(1, '\0');
const std::string Nuls3(3, '\0');

std::size_t Len(const std::string& text) {
  return text.size();
}

// From a position that counts from 1.
std::string Mid(const std::string& text, std::size_t position, std::size_t length = ~0ULL) {
  return position > text.size() ? std::string() : text.substr(position - 1, length);
}

// The position of the first occurrence, from 1; 0 if there is none.
std::size_t InStr(std::size_t from, const std::string& text, const std::string& part) {
  const auto place = text.find(part, from - 1);
  return place == std::string::npos ? 0 : place + 1;
}

std::string TrimBoth(std::string text) {
  while (!text.empty() && text.front() == ' ') {
    text.erase(0, 1);
  }
  while (!text.empty() && text.back() == ' ') {
    text.pop_back();
  }
  return text;
}

std::string BeforeNul(const std::string& text) {
  const std::size_t nul = InStr(1, text, Nul);
  return nul == 0 ? text : TrimBoth(Mid(text, 1, nul - 1));
}

std::string Without(std::string text, const std::string& part) {
  std::string kept;
  for (std::size_t i = 1; i <= Len(text);) {
    if (Mid(text, i, Len(part)) == part) {
      i += Len(part);
    } else {
      kept += Mid(text, i, 1);
      ++i;
    }
  }
  return kept;
}

[[noreturn]] void Fail(ErrorNumber number) {
  throw RunError(number);
}

int Asc(const std::string& text) {
  if (text.empty()) {
    Fail(ErrorNumber::InvalidArgument);
  }
  return static_cast<std::uint8_t>(text[0]);
}

std::string Chr(std::size_t code) {
  if (code > 255) {
    Fail(ErrorNumber::InvalidArgument);
  }
  return std::string(1, static_cast<char>(code));
}

std::string String(std::ptrdiff_t count, const std::string& character) {
  if (count < 0) {
    Fail(ErrorNumber::InvalidArgument);
  }
  return std::string(static_cast<std::size_t>(count), character[0]);
}

std::int16_t ToInt16(const Text& text) {
  if (!IsNumeric(text)) {
    Fail(ErrorNumber::TypeMismatch);
  }
  const auto number = ReadInt16(text);
  return number ? *number : (Fail(ErrorNumber::Overflow), std::int16_t{0});
}

Text PaddedTrack(Text track) {
  return track.size() == 1 ? u"0" + track : track;
}

Text Utf16Tested(const std::string& field) {
  if (InStr(1, field, Nul) == 0 || Len(field) % 2 == 1) {
    return TextFromCodePage(field);
  }
  Text text;
  for (std::size_t i = 1; i < Len(field); i += 2) {
    text += static_cast<char16_t>(Asc(Mid(field, i, 1)) + 256 * Asc(Mid(field, i + 1, 1)));
  }
  return text;
}

// Each size byte counts seven bits, one with its upper bit set none.
std::size_t DeclaredSize(const std::string& file) {
  std::size_t size = 0;
  for (std::size_t i = 7; i <= 10; ++i) {
    const std::string byte = Mid(file, i, 1);
    const int value = byte.empty() ? 0 : Asc(byte);
    size = size * 128 + static_cast<std::size_t>(value > 127 ? 0 : value);
  }
  return size;
}

std::string LongToBytes(std::size_t number) {
  std::string bytes;
  for (const std::size_t power : {2097152, 16384, 128, 1}) {
    bytes += Chr(number / power);
    number %= power;
  }
  return bytes;
}

std::string NewHeader() {
  return "ID3\x03" + Nul + Nul + LongToBytes(257);
}

std::string GenreText(const ID3Tag& tag) {
  return "(" + std::to_string(tag.Genre) + ")";
}

bool HasV1(const std::string& file) {
  return Len(file) >= 128 && Mid(file, Len(file) - 127, 3) == "TAG";
}

// Writing at a position, which lengthens the file where it must.
void Put(std::string& file, std::size_t position, const std::string& bytes) {
  file.resize(std::max(Len(file), position - 1 + Len(bytes)));
  file.replace(position - 1, Len(bytes), bytes);
}

std::string Read(const std::string& file, std::size_t position, std::ptrdiff_t length) {
  if (length < 0) {
    Fail(ErrorNumber::InvalidArgument);
  }
  return Mid(file, position, static_cast<std::size_t>(length));
}

std::ptrdiff_t Signed(std::size_t length) {
  return static_cast<std::ptrdiff_t>(length);
}

void WriteIntoTag(std::string& file, const ID3Tag& tag, bool removeV1) {
  constexpr std::size_t mebibyte = 1048576;
  const std::size_t oldSize = DeclaredSize(file);
  if (oldSize == 0) {
    Fail(ErrorNumber::SubscriptOutOfRange);
  }
  if (oldSize > Len(file) + mebibyte) {
    Fail(ErrorNumber::PastEndOfFile);
  }
  std::string oldText = Mid(file, 1, oldSize);
  oldText.resize(oldSize);
  const std::string tagText = UpdatedV2(oldText, tag);
  const bool grown = oldSize < 257;
  if (removeV1 && HasV1(file)) {
    if (!grown && tagText != oldText) {
      Put(file, 1, tagText);
    }
    const std::size_t from = grown ? oldSize + 1 : 1;
    const std::string rest = Read(file, from, Signed(Len(file)) - Signed(from) + 1 - 128);
    file.clear();
    file += grown ? tagText : "";
    file += rest;
  } else if (grown) {
    const std::string rest = Mid(file, oldSize + 1);
    Put(file, 1, tagText);
    Put(file, 258, rest);
  } else if (tagText != oldText) {
    Put(file, 1, tagText);
  }
}

}  // namespace

ID3Tag ReadV1(const std::string& file) {
  ID3Tag tag;
  if (!HasV1(file)) {
    return tag;
  }
  const std::string bytes = Mid(file, Len(file) - 127);
  const auto field = [&](std::size_t position, std::size_t length) {
    return TextFromCodePage(BeforeNul(TrimBoth(Mid(bytes, position, length))));
  };
  tag.Title = field(4, 30);
  tag.Artist = field(34, 30);
  tag.Album = field(64, 30);
  tag.Year = field(94, 4);
  tag.Comment = field(98, 29);
  tag.Genre = static_cast<std::int16_t>(Asc(Mid(bytes, 128, 1)));
  tag.Track = PaddedTrack(DecimalText(Asc(Mid(bytes, 127, 1))));
  tag.Present = true;
  return tag;
}

ID3Tag ReadV2(const std::string& file) {
  if (Mid(file, 1, 3) != "ID3") {
    return {};
  }
  const std::string mark = "\xFF\xFE";
  // No frame that begins in the file reaches further behind its end than a thousand bytes.
  std::string text = Mid(file, 1, std::max<std::size_t>(DeclaredSize(file), 257) + 1);
  text.resize(
      std::min(std::max<std::size_t>(DeclaredSize(file), 257) + 1, Len(file) + std::size_t{1000}));
  const auto place = [&](const char* id) { return InStr(11, text, id + Nuls3); };
  const auto length = [&](const char* id) { return Asc(Mid(text, place(id) + 7, 1)) - 1; };
  const auto cut = [&](const char* id, int count, std::size_t skipped) {
    const int rest = count - static_cast<int>(skipped);
    return place(id) >= 1 && rest >= 1
               ? TrimBoth(Mid(text, place(id) + 11 + skipped, static_cast<std::size_t>(rest)))
               : std::string();
  };
  const int commentLength = length("COMM");
  const std::string artist = cut("TPE1", length("TPE1"), 0);
  const std::string title = cut("TIT2", length("TIT2"), 0);
  const std::string album = BeforeNul(cut("TALB", length("TALB"), 0));
  const std::string track = cut("TRCK", length("TRCK"), 0);
  const std::string year = cut("TYER", length("TYER"), 0);
  const std::string comment = cut("COMM", commentLength, 4);
  const std::string genre = cut("TCON", commentLength, 0);

  ID3Tag tag;
  const std::size_t bracket = Len(genre) < 2 ? 0 : InStr(2, genre, ")");
  if (bracket >= 3) {
    const Text number = TextFromCodePage(Mid(genre, 2, bracket - 2));
    tag.Genre = IsNumeric(number) ? ToInt16(number) : std::int16_t{0};
  }
  tag.Unicode = InStr(1, text, mark) > 0;
  tag.Artist = Utf16Tested(Without(artist, mark));
  tag.Title = Utf16Tested(Without(title, mark));
  tag.Album = Utf16Tested(Without(album, mark));
  tag.Comment = Utf16Tested(Without(comment, mark));
  tag.Track = TextFromCodePage(Without(Without(track, mark), Nul));
  tag.Track = PaddedTrack(IsNumeric(tag.Track) ? tag.Track : u"0");
  tag.Year = TextFromCodePage(Without(Without(year, mark), Nul));
  tag.Present = true;
  return tag;
}

std::string ReplaceFrame(const std::string& tag, const std::string& id, const std::string& value) {
  const auto frame = [&] { return id + Nuls3 + Chr(Len(value) + 1) + Nuls3 + value; };
  const std::size_t p = InStr(11, tag, id + Nuls3);
  if (p > 0) {
    const int oldLength = Asc(Mid(tag, p + 7, 1)) - 1;
    const std::size_t behind = p + 11 + static_cast<std::size_t>(oldLength + 1) - 1;
    return Mid(tag, 1, p - 1) + frame() + Mid(tag, behind);
  }
  const std::size_t q = InStr(11, tag, std::string(Len(value) + 11, '\0'));
  return q == 0 ? tag : Mid(tag, 1, q - 1) + frame() + Mid(tag, q + Len(value) + 11);
}

std::string NewV2(const ID3Tag& tag) {
  std::string text = NewHeader();
  const auto add = [&](const std::string& id, std::size_t size, const std::string& value) {
    text += id + Nuls3 + Chr(std::min<std::size_t>(size, 255)) + Nuls3 + value;
  };
  const std::string artist = CodePageBytes(tag.Artist);
  const std::string title = CodePageBytes(tag.Title);
  const std::string album = CodePageBytes(tag.Album);
  const std::string comment = CodePageBytes(tag.Comment);
  const std::string year = CodePageBytes(tag.Year);
  const std::string track = CodePageBytes(tag.Track);
  add("TPE1", Len(artist) + 1, artist);
  add("TIT2", Len(title) + 1, title);
  add("TALB", Len(album) + 1, album);
  add("COMM", Len(comment) + 5, "eng" + Nul + comment);
  add("TYER", Len(year) + 1, year);
  add("TRCK", Len(track) + 1, track);
  add("TCON", 5, GenreText(tag));
  return text + String(257 - Signed(Len(text)), Nul);
}

std::string UpdatedV2(const std::string& oldTag, const ID3Tag& tag) {
  std::string text = oldTag;
  std::size_t newSize = Len(oldTag);
  if (newSize < 257) {
    newSize = 257;
    text = NewHeader() + Mid(oldTag, 11);
    text += String(257 - Signed(Len(text)), Nul);
  }
  text = ReplaceFrame(text, "TPE1", CodePageBytes(tag.Artist));
  text = ReplaceFrame(text, "TIT2", CodePageBytes(tag.Title));
  text = ReplaceFrame(text, "TALB", CodePageBytes(tag.Album));
  text = ReplaceFrame(text, "COMM", "eng" + Nul + CodePageBytes(tag.Comment));
  text = ReplaceFrame(text, "TYER", CodePageBytes(tag.Year));
  text = ReplaceFrame(text, "TRCK", CodePageBytes(tag.Track));
  text = ReplaceFrame(text, "TCON", GenreText(tag));
  text.resize(newSize);
  return text;
}

void RemoveV1(std::string& file) {
  if (!HasV1(file)) {
    return;
  }
  if (Len(file) == 128) {
    Fail(ErrorNumber::SubscriptOutOfRange);
  }
  file = Mid(file, 1, Len(file) - 128);
}

void WriteV1(std::string& file, const ID3Tag& tag) {
  if (!tag.Present) {
    return RemoveV1(file);
  }
  const auto padded = [](const Text& field, std::ptrdiff_t length) {
    const std::string value = Mid(CodePageBytes(field), 1, 30);
    return value + String(length - Signed(Len(value)), Nul);
  };
  std::string bytes = "TAG" + padded(tag.Title, 30) + padded(tag.Artist, 30) +
                      padded(tag.Album, 30) + String(4, Nul) + padded(tag.Comment, 29);
  const std::int16_t track = ToInt16(tag.Track.empty() ? Text(u"0") : tag.Track);
  if (track < 0) {
    Fail(ErrorNumber::InvalidArgument);
  }
  bytes += Chr(static_cast<std::size_t>(track)) + Nul;
  if (HasV1(file)) {
    Put(file, Len(file) - 127, bytes);
  } else {
    Put(file, Len(file) < 128 ? 1 : Len(file) + 1, bytes);
  }
}

void WriteV2(std::string& file, const ID3Tag& tag, bool removeV1) {
  if (Mid(file, 1, 3) == "ID3") {
    std::string written = file;
    WriteIntoTag(written, tag, removeV1);
    file = written;
    return;
  }
  const std::string tagText = NewV2(tag);
  file = tagText + (removeV1 && HasV1(file) ? Mid(file, 1, Len(file) - 128) : file);
}

}  // namespace vorlane::literal
