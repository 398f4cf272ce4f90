// What the option boxes hold for one entry.
#pragma once

#include <array>
#include <cstddef>

#include "platform/text.h"

namespace vorlane {

inline constexpr std::size_t BoxCount = 6;

// Box 1 is at index 0.
struct BoxValues {
  std::array<Text, BoxCount + 1> Values;  // one more than there are boxes; the last one is spare
  std::array<bool, BoxCount> Visible = {};
};

// Puts the values of the visible boxes in the place of "<BOX1>" to "<BOX6>", in order and twice
// over: a value that brings in the keyword of a later box is resolved at once, one that brings in
// an earlier box in the second pass, and what is left after that stays. A replacement that would
// make the text longer than LongestText is left out.
Text SubstituteBoxes(Text work, const BoxValues& boxes);

}  // namespace vorlane
