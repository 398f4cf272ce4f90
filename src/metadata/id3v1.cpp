#include "metadata/id3v1.h"

#include <cstdint>

#include "metadata/byte_text.h"
#include "metadata/number_field.h"
#include "platform/code_page.h"
#include "platform/failure.h"

namespace vorlane {

namespace {

constexpr std::string_view Mark = "TAG";
constexpr std::size_t TextLength = 30;
constexpr std::size_t YearLength = 4;
constexpr std::size_t CommentLength = 29;
constexpr std::size_t TrackPlace = 126;
constexpr std::size_t GenrePlace = 127;

Text CleanField(std::string_view tag, std::size_t place, std::size_t length) {
  std::string_view field = TrimSpaces(tag.substr(place, length));
  const auto nul = field.find('\0');
  if (nul != std::string_view::npos) {
    field = TrimSpaces(field.substr(0, nul));
  }
  return TextFromCodePage(field);
}

// The limit of a comment is that of the other texts, one above the room that it has, so that a
// comment of 29 is the longest that can be written.
std::string CommentField(TextView comment) {
  const std::string bytes = CodePageBytes(comment.substr(0, TextLength));
  if (bytes.size() > CommentLength) {
    throw RunError(ErrorNumber::InvalidArgument);
  }
  return PaddedWithNuls(bytes, CommentLength);
}

char TrackByte(const Text& track) {
  const std::int16_t number = Int16Of(track.empty() ? Text(u"0") : track);
  if (number < 0 || number > 255) {
    throw RunError(ErrorNumber::InvalidArgument);
  }
  return static_cast<char>(number);
}

}  // namespace

ID3Tag ParseID3v1(std::string_view last128) {
  ID3Tag tag;
  if (last128.size() < ID3v1Length || !last128.starts_with(Mark)) {
    return tag;
  }
  tag.Title = CleanField(last128, 3, TextLength);
  tag.Artist = CleanField(last128, 33, TextLength);
  tag.Album = CleanField(last128, 63, TextLength);
  tag.Year = CleanField(last128, 93, YearLength);
  tag.Comment = CleanField(last128, 97, CommentLength);
  // The byte is the track in every tag: of one in the older layout it is the end of the comment.
  tag.Track = DecimalText(static_cast<std::uint8_t>(last128[TrackPlace]));
  tag.Genre = static_cast<std::uint8_t>(last128[GenrePlace]);
  if (tag.Track.size() == 1) {
    tag.Track.insert(0, u"0");
  }
  tag.Present = true;
  return tag;
}

std::string BuildID3v1(const ID3Tag& tag) {
  std::string bytes(Mark);
  for (const Text* field : {&tag.Title, &tag.Artist, &tag.Album}) {
    bytes += PaddedWithNuls(CodePageBytes(*field), TextLength);
  }
  bytes += std::string(YearLength, '\0');
  bytes += CommentField(tag.Comment);
  bytes += TrackByte(tag.Track);
  bytes += '\0';
  return bytes;
}

}  // namespace vorlane
