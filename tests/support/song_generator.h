// MP3 files in many states of their tags, the same ones from the same seed.
#pragma once

#include <cstdint>
#include <random>
#include <string>

#include "metadata/id3_tag.h"

namespace vorlane {

class SongGenerator {
 public:
  explicit SongGenerator(unsigned seed) : random_(seed) {}

  unsigned Below(unsigned limit) { return static_cast<unsigned>(random_()) % limit; }

  // With none, one or both tags: whole, small, without padding, cut off, of a wrong size, with odd
  // frames and texts, or not quite a tag. The audio is between nothing and some thousand bytes. One
  // in five has both tags in such good order that a write of either can be taken back to the byte.
  std::string Song();

  // A record to write, now and then one that can't be written.
  ID3Tag Record();

 private:
  template <typename Value, std::size_t Count>
  const Value& OneOf(const Value (&values)[Count]) {
    return values[Below(Count)];
  }

  std::string TidyTagV2();
  std::string TagV2();
  std::string Frames();
  std::string OneFrame(const std::string& id);
  std::string FrameText(const std::string& id);
  std::string PlainText();
  std::string TagV1();
  Text RecordText();

  std::mt19937 random_;
};

}  // namespace vorlane
