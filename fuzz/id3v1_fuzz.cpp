// Any 128 bytes as an ID3v1 tag, and any record as one to write.
// Seeds: tests/data/id3.
#include "fuzz/input.h"
#include "fuzz/require.h"
#include "metadata/bit_rate.h"
#include "metadata/id3v1.h"
#include "platform/failure.h"
#include "support/literal_tags.h"

using namespace vorlane;

namespace {

void Read(const std::string& bytes) {
  const std::string last =
      bytes.size() > ID3v1Length ? bytes.substr(bytes.size() - ID3v1Length) : bytes;
  const ID3Tag tag = ParseID3v1(last);
  Require(tag == literal::ReadV1(bytes));
  Require(tag.Present == (last.size() == ID3v1Length && last.starts_with("TAG")));
  Require(tag.Title.size() <= 30 && tag.Comment.size() <= 29 && tag.Genre <= 255);
  if (tag.Present) {
    Require(tag.Track.size() >= 2);
    // What was read can be written, and reads as the same but for year and genre.
    ID3Tag again = ParseID3v1(BuildID3v1(tag));
    again.Year = tag.Year;
    again.Genre = tag.Genre;
    Require(again == tag);
  }
}

void Write(FuzzInput input) {
  ID3Tag tag;
  tag.Present = true;
  tag.Artist = input.NextText();
  tag.Title = input.NextText();
  tag.Album = input.NextText();
  tag.Track = input.NextText();
  tag.Comment = input.NextText();
  std::string bytes;
  std::string file;
  const bool isBuilt = Attempt([&] { bytes = BuildID3v1(tag); });
  Require(isBuilt == Attempt([&] { literal::WriteV1(file, tag); }) && bytes == file);
  if (isBuilt) {
    Require(bytes.size() == ID3v1Length && bytes.starts_with("TAG"));
    Require(ParseID3v1(bytes).Present);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  Read(input.Rest());
  Write(input);
  return 0;
}
