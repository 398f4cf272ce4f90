// What an ID3v2 tag becomes when a record is written, as bytes. A character without a byte in the
// code page becomes "?".
#pragma once

#include <string>
#include <string_view>

#include "metadata/id3_tag.h"

namespace vorlane {

// The tag of a file that had none: seven frames, 257 bytes long whatever it holds. Throws RunError
// 5 if the fields don't fit.
std::string NewID3v2(const ID3Tag& tag);

// The tag that takes the place of `oldTag`, which is as long as its header says. It keeps its
// length, but one under 257 becomes 257 long, with a header of version 2.3 and no flags. What
// doesn't fit is cut off at the end, without a warning. Throws RunError 5 for a text of 255
// characters or more, 251 for the comment. Linear in the tag.
std::string UpdatedID3v2(std::string_view oldTag, const ID3Tag& tag);

}  // namespace vorlane
