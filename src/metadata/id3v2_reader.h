// Reading the ID3v2 tag. The tag is searched as a byte string for seven fixed patterns; what a full
// reader of the format would do beyond that (versions, extended headers, unsynchronisation, frames
// of 256 bytes and more, comments with a description) is left out by design.
#pragma once

#include <cstdint>
#include <string_view>

#include "metadata/id3_tag.h"

namespace vorlane {

// The least that is looked at of a file with a tag, as a smaller one is taken to be of 257 bytes.
inline constexpr std::size_t MinimumID3v2ReadLength = 258;

// How many bytes from the start of a file ParseID3v2 looks at, for a file that begins with these
// (ten or more) bytes: one more than the tag's size and at least MinimumID3v2ReadLength; 0 if there
// is no tag.
std::size_t ID3v2ReadLength(std::string_view fileStart);

// The tag of a file that begins with these bytes, as many as ID3v2ReadLength tells; more are not
// looked at, missing ones count as NULs. The empty record if there is no tag. Throws RunError: 6
// for a genre that doesn't fit 16 bits, 5 for a frame other than the genre's whose size byte lies
// behind the last byte looked at. Cost: linear in the bytes that are given, which aren't copied.
ID3Tag ParseID3v2(std::string_view fileStart);

}  // namespace vorlane
