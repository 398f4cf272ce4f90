// The two ways in which "<MID>" cuts a piece out of a text. The piece comes without the spaces at
// its ends. Each throws RunError if there is no such piece, or a position is above 32,767.
#pragma once

#include <cstdint>

#include "engine/positions.h"
#include "platform/text.h"

namespace vorlane {

// From position `start` up to the first `endMark` behind that character, or to the end of the text.
// There is no piece if `start` is below 1 or more than one behind the end.
Text MidFromPosition(TextView text, Position start, TextView endMark);

// From behind occurrence `count` of `mark` (not empty) up to the next `endMark`, or to the end of
// the text. The last occurrence there is serves if there are fewer, the beginning of the text if
// there is none. Occurrences that overlap or touch the one before are passed over, but are counted.
// There is no piece if `count` is below 1.
Text MidFromMarker(TextView text, TextView mark, std::int16_t count, TextView endMark);

}  // namespace vorlane
