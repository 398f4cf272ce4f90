// Any record into any old tag, and read back.
// Seeds: tests/data/id3.
#include "fuzz/input.h"
#include "fuzz/require.h"
#include "metadata/id3v2_reader.h"
#include "metadata/id3v2_writer.h"
#include "platform/failure.h"

using namespace vorlane;

namespace {

constexpr std::size_t SmallestTag = 257;

ID3Tag TakeTag(FuzzInput& input) {
  ID3Tag tag;
  tag.Present = true;
  tag.Genre = static_cast<std::int16_t>(input.NextNumber());
  tag.Artist = input.NextText();
  tag.Title = input.NextText();
  tag.Album = input.NextText();
  tag.Track = input.NextText();
  tag.Comment = input.NextText();
  tag.Year = input.NextText();
  return tag;
}

void CheckNew(const ID3Tag& tag) {
  std::string bytes;
  if (!Attempt([&] { bytes = NewID3v2(tag); })) {
    return;
  }
  Require(bytes.size() == SmallestTag);
  Attempt([&] { Require(ParseID3v2(bytes + '\0').Present); });
  // Frames of a new tag stand in the room that they need: writing the same values again moves none
  // of the texts.
  Attempt([&] { Require(UpdatedID3v2(bytes, tag).size() == SmallestTag); });
}

void CheckUpdate(const std::string& oldTag, const ID3Tag& tag) {
  std::string bytes;
  if (Attempt([&] { bytes = UpdatedID3v2(oldTag, tag); })) {
    Require(bytes.size() == std::max(oldTag.size(), SmallestTag));
    Attempt([&] { ParseID3v2(bytes + '\0'); });
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  const ID3Tag tag = TakeTag(input);
  CheckNew(tag);
  const std::string oldTag = input.Rest();
  if (oldTag.size() >= 10 && oldTag.starts_with("ID3")) {
    CheckUpdate(oldTag, tag);
  }
  return 0;
}
