#include "metadata/id3v2_writer.h"

#include <cstddef>

#include "metadata/byte_text.h"
#include "metadata/id3_bits.h"
#include "metadata/id3v2_frame.h"
#include "metadata/replace_frame.h"
#include "platform/code_page.h"
#include "platform/failure.h"

namespace vorlane {

namespace {

constexpr auto MinimumLength = static_cast<std::size_t>(MinimumTagSize);

std::string NewHeader() {
  return std::string("ID3\x03\0\0", 6) + LongToBytes(MinimumTagSize, 7);
}

std::string CommentText(const ID3Tag& tag) {
  return std::string("eng\0", 4) + CodePageBytes(tag.Comment);
}

std::string GenreText(const ID3Tag& tag) {
  return "(" + CodePageBytes(DecimalText(tag.Genre)) + ")";
}

// A size past 255 is of no consequence: the tag is too long then.
std::string NewFrame(std::string_view id, std::string_view text) {
  return FrameBytes(id, text, static_cast<std::uint8_t>(text.size() + 1));
}

}  // namespace

std::string NewID3v2(const ID3Tag& tag) {
  // The size of a genre of two digits; files with another one are out there with this size too.
  constexpr std::uint8_t genreSize = 5;
  std::string bytes = NewHeader();
  bytes += NewFrame("TPE1", CodePageBytes(tag.Artist));
  bytes += NewFrame("TIT2", CodePageBytes(tag.Title));
  bytes += NewFrame("TALB", CodePageBytes(tag.Album));
  bytes += NewFrame("COMM", CommentText(tag));
  bytes += NewFrame("TYER", CodePageBytes(tag.Year));
  bytes += NewFrame("TRCK", CodePageBytes(tag.Track));
  bytes += FrameBytes("TCON", GenreText(tag), genreSize);
  if (bytes.size() > MinimumLength) {
    throw RunError(ErrorNumber::InvalidArgument);
  }
  return PaddedWithNuls(bytes, MinimumLength);
}

std::string UpdatedID3v2(std::string_view oldTag, const ID3Tag& tag) {
  std::string bytes(oldTag);
  if (oldTag.size() < MinimumLength) {
    bytes = NewHeader();
    if (oldTag.size() > TagHeaderLength) {
      bytes += oldTag.substr(TagHeaderLength);
    }
    bytes.resize(MinimumLength);
  }
  const std::size_t newSize = bytes.size();
  ReplaceFrame(bytes, "TPE1", CodePageBytes(tag.Artist));
  ReplaceFrame(bytes, "TIT2", CodePageBytes(tag.Title));
  ReplaceFrame(bytes, "TALB", CodePageBytes(tag.Album));
  ReplaceFrame(bytes, "COMM", CommentText(tag));
  ReplaceFrame(bytes, "TYER", CodePageBytes(tag.Year));
  ReplaceFrame(bytes, "TRCK", CodePageBytes(tag.Track));
  ReplaceFrame(bytes, "TCON", GenreText(tag));
  bytes.resize(newSize);
  return bytes;
}

}  // namespace vorlane
