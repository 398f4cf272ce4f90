#include "support/song_generator.h"

#include <algorithm>
#include <vector>

#include "support/id3_bytes.h"

namespace vorlane {

using id3::Byte;
using id3::Header;
using id3::Nuls;
using id3::RawFrame;

namespace {

const std::string Mark = "\xFF\xFE";

std::string Utf16(const std::string& text) {
  std::string wide;
  for (const char letter : text) {
    wide += letter;
    wide += '\0';
  }
  return wide;
}

std::string Cut(const std::string& bytes, std::size_t length) {
  return bytes.substr(0, length);
}

}  // namespace

std::string SongGenerator::Song() {
  constexpr unsigned lengths[] = {0, 1, 50, 100, 127, 128, 129, 400, 3000};
  if (Below(5) == 0) {
    return TidyTagV2() + id3::Audio(OneOf(lengths)) +
           id3::V1("Title", "Artist", "Album", "", "Note", Below(256), 0);
  }
  std::string song = Below(4) == 0 ? std::string() : TagV2();
  song += id3::Audio(OneOf(lengths));
  song += Below(2) == 0 ? TagV1() : std::string();
  return Below(20) == 0 ? Cut(song, Below(400)) : song;
}

std::string SongGenerator::TidyTagV2() {
  const auto letters = [this] { return std::string(Below(20), 't'); };
  const std::string frames = id3::Frame("TIT2", letters()) + id3::Frame("TPE1", letters()) +
                             id3::Frame("APIC", letters()) + id3::Frame("TALB", letters()) +
                             id3::Frame("TRCK", "0" + std::to_string(Below(10))) +
                             id3::Frame("TYER", "1999") + id3::Comment(letters()) +
                             id3::Frame("TCON", "(17)");
  return id3::Tag(500 + Below(500), frames);
}

std::string SongGenerator::TagV2() {
  constexpr unsigned sizes[] = {0,   1,   9,   10,  11,  100,  200, 255,
                                256, 257, 258, 300, 600, 1000, 2000};
  constexpr unsigned excess = 3U << 20;
  const unsigned size = OneOf(sizes);
  const std::string frames = Frames();
  const std::string tag = Header(size) + frames;
  switch (Below(8)) {
    case 0:  // exactly as long as its frames
      return Header(static_cast<unsigned>(frames.size()) + 10) + frames;
    case 1:  // the header not counted in its size
      return Header(static_cast<unsigned>(frames.size())) + frames;
    case 2:  // its end missing
      return Cut(tag, size / 2);
    case 3:  // far larger than the file
      return Header(Below(2) == 0 ? excess : 5000) + frames;
    case 4:  // with one of the size bytes out of its range
      return "ID3\x03" + Nuls(2) + Nuls(2) + Byte(2 + Below(2) * 0x80) + Byte(44) + frames;
    case 5:  // frames behind its end
      return tag;
    default:
      return Cut(tag + Nuls(size), size);
  }
}

std::string SongGenerator::Frames() {
  std::vector<std::string> ids = {"TPE1", "TIT2", "TALB", "TRCK", "TYER",
                                  "COMM", "TCON", "TPE1", "APIC", "XXXX"};
  for (std::size_t i = ids.size(); i > 1; --i) {
    std::swap(ids[i - 1], ids[Below(static_cast<unsigned>(i))]);
  }
  std::string frames;
  for (const std::string& id : ids) {
    if (Below(5) > 0) {
      frames += OneFrame(id);
    }
    if (Below(8) == 0) {
      frames += Nuls(Below(100));
    }
  }
  return frames;
}

std::string SongGenerator::OneFrame(const std::string& id) {
  const std::string text = FrameText(id);
  const auto size = static_cast<unsigned>(text.size()) + 1;
  const std::string flags = Below(6) == 0 ? "\x40\x02\x01" : Nuls(3);
  switch (Below(30)) {
    case 0:
      return RawFrame(id, 0, text, flags);
    case 1:
      return RawFrame(id, Below(256), text, flags);
    case 2:  // a size of two bytes
      return id + Nuls(2) + Byte(1) + Byte(size) + flags + std::string(256, 'w') + text;
    case 3:  // its start alone
      return id + Nuls(3);
    default:
      return RawFrame(id, size & 0xFF, text, flags);
  }
}

std::string SongGenerator::FrameText(const std::string& id) {
  const std::string genres[] = {"(17)", "(5)",     "(123)",           "(0)", "()", "Rock",
                                "x9)",  "(99999)", "(" + Mark + "17)"};
  const std::string tracks[] = {"7", "07", "12", "123", "3/12", "-5", "1e2", "none", "", " 4 "};
  const std::string years[] = {"1999", "2004", "", "19|9", "//000D", "a\r\nb", "  20  "};
  if (id == "TCON") {
    return OneOf(genres);
  }
  if (id == "TRCK" || id == "TYER") {
    const std::string& text = id == "TRCK" ? OneOf(tracks) : OneOf(years);
    return Below(5) == 0 ? Mark + Utf16(text) : text;
  }
  if (id == "COMM") {
    constexpr const char* starts[] = {"eng", "XXX", "en", "engtold"};
    return OneOf(starts) + Nuls(1) + PlainText();
  }
  return PlainText();
}

std::string SongGenerator::PlainText() {
  std::string text;
  for (unsigned letters = Below(14); letters > 0; --letters) {
    constexpr char alphabet[] = "abcdeGHIJK 0123.|'&()\xE4\xF6\x80\x81?-";
    text += alphabet[Below(sizeof alphabet - 1)];
  }
  switch (Below(12)) {
    case 0:
      return Mark + Utf16(text);
    case 1:
      return Utf16(text);
    case 2:
      return text + Nuls(1);
    case 3:
      return "  " + text + " ";
    case 4:
      return text + Mark + text;
    case 5:
      return text + std::string(254 - text.size(), 'l');
    case 6:  // letters that no byte stands for
      return Mark + std::string("\xE5\x65\x2C\x67", 4) + Utf16(text);
    case 7:  // a frame inside of a frame
      return text + id3::Frame("TIT2", "within");
    default:
      return text;
  }
}

std::string SongGenerator::TagV1() {
  const std::string comments[] = {"", "Note", "12345678901234567890123456789", "  spaced  ",
                                  "cut\x01here"};
  const std::string years[] = {"1999", "", "19|9", "\r\n", " 04 "};
  const std::string tag = id3::V1(Cut(PlainText(), 30), Cut(PlainText(), 30), Cut(PlainText(), 30),
                                  OneOf(years), OneOf(comments), Below(256), Below(256));
  switch (Below(10)) {
    case 0:  // a byte too many behind it
      return tag + "x";
    case 1:  // its first byte missing
      return tag.substr(1);
    case 2:  // two of them
      return tag + tag;
    default:
      return tag;
  }
}

ID3Tag SongGenerator::Record() {
  ID3Tag tag;
  tag.Present = Below(4) > 0;
  tag.Artist = RecordText();
  tag.Title = RecordText();
  tag.Album = RecordText();
  tag.Comment = RecordText();
  tag.Year = RecordText();
  tag.Track = Below(20) == 0 ? RecordText() : DecimalText(Below(300));
  tag.Genre = static_cast<std::int16_t>(static_cast<int>(Below(210)) - 5);
  return tag;
}

Text SongGenerator::RecordText() {
  constexpr unsigned lengths[] = {0, 1, 3, 10, 29, 30, 31, 250, 251, 254, 255};
  const unsigned length = Below(4) == 0 ? OneOf(lengths) : Below(12);
  Text text(length, u'x');
  if (length > 2 && Below(8) == 0) {
    constexpr char16_t odd[] = {u'\0', u'\u00E4', u'\u65E5', u' ', u')', u'\xD800'};
    text[Below(length)] = OneOf(odd);
  }
  return text;
}

}  // namespace vorlane
