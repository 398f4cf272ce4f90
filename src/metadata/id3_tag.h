// One tag of an MP3 file, of either version, as a record.
#pragma once

#include <cstdint>

#include "platform/text.h"

namespace vorlane {

// The empty record stands for "no tag of this version".
struct ID3Tag {
  bool Present = false;  // a tag of this version was found
  Text Artist;
  Text Title;
  Text Album;
  Text Track;  // at least two characters when Present: "00" for none, "07", "12", "123"
  Text Comment;
  Text Year;
  std::int16_t Genre = 0;  // numeric genre, 0 when unknown
  bool Unicode = false;    // a byte-order mark was seen in an ID3v2 tag

  bool operator==(const ID3Tag&) const = default;
};

}  // namespace vorlane
