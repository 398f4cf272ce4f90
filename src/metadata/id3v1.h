// The ID3v1 tag: the last 128 bytes of a file.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "metadata/id3_tag.h"

namespace vorlane {

inline constexpr std::size_t ID3v1Length = 128;

// The tag in the last 128 bytes of a file; the empty record if they are fewer, or don't begin with
// "TAG".
ID3Tag ParseID3v1(std::string_view last128);

// The 128 bytes for a record. Year and genre are never written. Artist, title and album are cut to
// 30 characters. A character without a byte in the code page becomes "?". An empty track is 0.
// Throws RunError: 5 for a comment of 30 characters or more or a track outside 0 to 255, 13 for a
// track that is no number, 6 for one that is far too big.
std::string BuildID3v1(const ID3Tag& tag);

}  // namespace vorlane
