// A tag as one line of the undo journal: nine fields joined by "|".
//
//   version | Present (-1 or 0) | Artist | Title | Album | Track | Comment | Year | Genre
//
// Artist, title, album and comment are hexadecimal; track and year stand as they are, so that a "|"
// in one of them splits the line in the wrong place. `Unicode` isn't kept.
#pragma once

#include <cstdint>

#include "metadata/id3_tag.h"

namespace vorlane {

Text TagToString(const ID3Tag& tag, int version);

struct VersionedTag {
  ID3Tag Tag;
  std::int16_t Version = 0;
};

// Fields behind the ninth are not looked at. Throws RunError: 9 for fewer than nine, 13 for a
// number or hexadecimal digit that is none, 6 for a number that doesn't fit 16 bits.
VersionedTag StringToTag(TextView line);

// Two upper-case digits for each character: its byte in the code page, that of "?" (3F) if it has
// none.
Text StringToHex(TextView text);

// The other way; digits of either case. A last digit that stands alone is a character code by
// itself. Throws RunError 13 for anything but a digit.
Text HexToString(TextView digits);

}  // namespace vorlane
