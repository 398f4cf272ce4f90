// Any bytes as the beginning of an MP3 file: read as the rules read when they are followed
// literally. Seeds: tests/data/id3.
#include "fuzz/input.h"
#include "fuzz/require.h"
#include "metadata/bit_rate.h"
#include "metadata/id3v2_reader.h"
#include "platform/failure.h"
#include "support/literal_tags.h"

using namespace vorlane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes = FuzzInput(data, size).Rest();
  const std::string start = bytes.substr(0, ID3v2ReadLength(bytes));
  ID3Tag tag;
  ID3Tag literalTag;
  const bool isRead = Attempt([&] { tag = ParseID3v2(start); });
  Require(isRead == Attempt([&] { literalTag = literal::ReadV2(start); }) && tag == literalTag);
  if (isRead) {
    Require(tag.Present == start.starts_with("ID3") || start.size() < 10);
    Require(tag.Artist.size() <= 254 && tag.Title.size() <= 254 && tag.Album.size() <= 254);
    Require(!tag.Present || tag.Track.size() >= 2);
  }
  Attempt([&] {
    const std::int16_t kbit = BitRateOf(bytes);
    Require(kbit >= 0 && kbit <= 320);
  });
  return 0;
}
