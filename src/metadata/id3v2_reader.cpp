#include "metadata/id3v2_reader.h"

#include <algorithm>
#include <string>

#include "metadata/byte_text.h"
#include "metadata/id3v2_frame.h"
#include "metadata/number_field.h"
#include "platform/code_page.h"
#include "platform/numbers.h"

namespace vorlane {

namespace {

constexpr std::string_view ByteOrderMark = "\xFF\xFE";

// No frame that begins in the file reaches further behind its end than this.
constexpr std::size_t ReachBehindEnd = 1024;

// Language code and an empty description, in front of the text of a comment.
constexpr int CommentPrefixLength = 4;

struct Frame {
  bool Found = false;
  std::size_t TextPlace = 0;
  int TextLength = 0;
};

Frame LocateFrame(std::string_view tag, std::string_view id) {
  const auto place = FindFrame(tag, id);
  if (place) {
    return {true, *place + FrameTextOffset, TextLengthAt(tag, *place + FrameSizeOffset)};
  }
  // The length of a frame that isn't there is that of one at place -1: it comes from the header.
  return {false, 0, TextLengthAt(tag, FrameSizeOffset - 1)};
}

std::string CutText(std::string_view tag, const Frame& frame, int skipped = 0) {
  const std::size_t place = frame.TextPlace + static_cast<std::size_t>(skipped);
  const int length = frame.TextLength - skipped;
  if (!frame.Found || length < 1 || place >= tag.size()) {
    return {};
  }
  return std::string(TrimSpaces(tag.substr(place, static_cast<std::size_t>(length))));
}

std::string CutAtFirstNul(const std::string& field) {
  const auto nul = field.find('\0');
  if (nul == std::string::npos) {
    return field;
  }
  return std::string(TrimSpaces(std::string_view(field).substr(0, nul)));
}

// The number in "(17)"; what stands in front of it isn't looked at.
std::int16_t GenreNumber(std::string_view text) {
  const auto bracket = text.find(')', 1);
  if (bracket == std::string_view::npos) {
    return 0;
  }
  const Text number = TextFromCodePage(text.substr(1, bracket - 1));
  return IsNumeric(number) ? Int16Of(number) : std::int16_t{0};
}

// UTF-16, low byte first, if that is what it looks like: an even number of bytes with a NUL among
// them. Any other text is of the code page.
Text DecodeText(std::string_view bytes) {
  if (bytes.find('\0') == std::string_view::npos || bytes.size() % 2 != 0) {
    return TextFromCodePage(bytes);
  }
  Text text;
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    const auto low = static_cast<std::uint8_t>(bytes[i]);
    const auto high = static_cast<std::uint8_t>(bytes[i + 1]);
    text += static_cast<char16_t>(low | high << 8);
  }
  return text;
}

Text DecodeTrack(std::string_view bytes) {
  Text track = TextFromCodePage(WithoutAll(bytes, std::string_view("\0", 1)));
  if (!IsNumeric(track)) {
    track = u"0";
  }
  if (track.size() == 1) {
    track.insert(0, u"0");
  }
  return track;
}

}  // namespace

std::size_t ID3v2ReadLength(std::string_view fileStart) {
  if (!HasID3v2Header(fileStart)) {
    return 0;
  }
  return static_cast<std::size_t>(std::max(DeclaredTagSize(fileStart), MinimumTagSize)) + 1;
}

ID3Tag ParseID3v2(std::string_view fileStart) {
  const std::size_t length = ID3v2ReadLength(fileStart);
  if (length == 0) {
    return {};
  }
  const std::string tag =
      PaddedWithNuls(fileStart, std::min(length, fileStart.size() + ReachBehindEnd));

  const Frame artist = LocateFrame(tag, "TPE1");
  const Frame title = LocateFrame(tag, "TIT2");
  const Frame album = LocateFrame(tag, "TALB");
  const Frame track = LocateFrame(tag, "TRCK");
  const Frame year = LocateFrame(tag, "TYER");
  const Frame comment = LocateFrame(tag, "COMM");
  Frame genre = LocateFrame(tag, "TCON");
  genre.TextLength = comment.TextLength;  // not its own: files are read this way everywhere

  const auto field = [](std::string_view bytes) { return WithoutAll(bytes, ByteOrderMark); };
  ID3Tag result;
  result.Unicode = tag.find(ByteOrderMark) != std::string::npos;
  result.Genre = GenreNumber(CutText(tag, genre));
  result.Artist = DecodeText(field(CutText(tag, artist)));
  result.Title = DecodeText(field(CutText(tag, title)));
  result.Album = DecodeText(field(CutAtFirstNul(CutText(tag, album))));
  result.Comment = DecodeText(field(CutText(tag, comment, CommentPrefixLength)));
  result.Track = DecodeTrack(field(CutText(tag, track)));
  result.Year = TextFromCodePage(WithoutAll(field(CutText(tag, year)), std::string_view("\0", 1)));
  result.Present = true;
  return result;
}

}  // namespace vorlane
