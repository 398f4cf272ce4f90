// Positions in text as the engine counts them: from 1, 0 for "nowhere", in 16 bits. Code and names
// aren't expected to pass 32,767 characters; a step that meets a position above that fails.
#pragma once

#include <cstdint>

#include "platform/text.h"

namespace vorlane {

using Position = std::int16_t;

// Throws RunError Overflow above 32,767.
Position ToPosition(std::int64_t position);

// Where `part` first occurs at or after `from`, 0 if it doesn't. Throws RunError InvalidArgument if
// `from` is below 1, Overflow if the place is above 32,767. `part` must not be empty.
Position PositionOf(TextView text, TextView part, Position from = 1);

// Where `part` last occurs, 0 if it doesn't. Throws as above.
Position LastPositionOf(TextView text, TextView part);

// Up to `length` characters from `start` on: fewer if the text ends before. Throws RunError
// InvalidArgument if `start` is below 1 or `length` is negative.
TextView Slice(TextView text, Position start, int length);

}  // namespace vorlane
