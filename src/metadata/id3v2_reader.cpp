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

// Language code and an empty description, in front of the text of a comment.
constexpr std::size_t CommentPrefixLength = 4;

// What is looked at: bytes of the file, and NULs where it ends too early. These are never stored,
// since a header may promise 256 MiB of them.
class LookedAt {
 public:
  LookedAt(std::string_view fileStart, std::size_t length)
      : bytes_(fileStart.substr(0, length)), length_(length) {}

  std::string_view Bytes() const { return bytes_; }

  // FindFrame, in the NULs as well: the last of the frame's seven bytes may be among them.
  std::optional<std::size_t> Find(std::string_view id) const {
    const auto place = FindFrame(bytes_, id);
    if (place || bytes_.size() <= TagHeaderLength) {
      return place;
    }
    const std::size_t start = std::max(TagHeaderLength, bytes_.size() + 1 - FrameSizeOffset);
    const auto placeInEnd = FindFrame(Cut(start, 2 * FrameSizeOffset), id, 0);
    return placeInEnd ? std::optional(start + *placeInEnd) : std::nullopt;
  }

  // As many bytes, or fewer at the end.
  std::string Cut(std::size_t place, std::size_t length) const {
    if (place >= length_) {
      return {};
    }
    std::string cut(bytes_.substr(std::min(place, bytes_.size()), length));
    cut.resize(std::min(length, length_ - place));
    return cut;
  }

 private:
  std::string_view bytes_;
  std::size_t length_;
};

struct Frame {
  std::optional<std::size_t> Place;
  int TextLength = 0;
};

Frame LocateFrame(const LookedAt& tag, std::string_view id) {
  const auto place = tag.Find(id);
  // The length of a frame that isn't there is that of one at place -1: it comes from the header.
  const std::size_t sizePlace = place ? *place + FrameSizeOffset : FrameSizeOffset - 1;
  return {place, TextLengthAt(tag.Cut(sizePlace, 1), 0)};
}

std::string CutText(const LookedAt& tag, const Frame& frame, std::size_t skipped = 0) {
  const int length = frame.TextLength - static_cast<int>(skipped);
  if (!frame.Place || length < 1) {
    return {};
  }
  return std::string(TrimSpaces(
      tag.Cut(*frame.Place + FrameTextOffset + skipped, static_cast<std::size_t>(length))));
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
  return std::max(static_cast<std::size_t>(DeclaredTagSize(fileStart)) + 1, MinimumID3v2ReadLength);
}

ID3Tag ParseID3v2(std::string_view fileStart) {
  const std::size_t length = ID3v2ReadLength(fileStart);
  if (length == 0) {
    return {};
  }
  const LookedAt tag(fileStart, length);
  const Frame artist = LocateFrame(tag, "TPE1");
  const Frame title = LocateFrame(tag, "TIT2");
  const Frame album = LocateFrame(tag, "TALB");
  const Frame track = LocateFrame(tag, "TRCK");
  const Frame year = LocateFrame(tag, "TYER");
  const Frame comment = LocateFrame(tag, "COMM");
  // With the length of the comment, not its own: files are read this way everywhere.
  const Frame genre{tag.Find("TCON"), comment.TextLength};

  const auto field = [](std::string_view bytes) { return WithoutAll(bytes, ByteOrderMark); };
  ID3Tag result;
  result.Unicode = tag.Bytes().find(ByteOrderMark) != std::string_view::npos;
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
