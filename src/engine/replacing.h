// Replacing in texts that come from files of any origin. Values may bring in keywords and function
// tags of their own, so that a few short texts could name a result larger than any memory; the step
// that would make it fails instead.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/text.h"

namespace vorlane {

// In characters: 1 MiB of memory. Well beyond what positions reach.
inline constexpr std::size_t LongestText = (std::size_t{1} << 20) / sizeof(char16_t);

// Replaces the first `most` occurrences of `from`, all of them if `most` is -1, left to right
// without overlap. An empty `from` changes nothing. True if anything was replaced. Throws RunError
// OutOfMemory, with the text unchanged, if it would grow beyond LongestText.
bool ReplaceUpTo(Text& text, TextView from, TextView to, std::int32_t most);

inline bool ReplaceEvery(Text& text, TextView from, TextView to) {
  return ReplaceUpTo(text, from, to, -1);
}

}  // namespace vorlane
