// The fields of a function tag, with a bar between them.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/text.h"

namespace vorlane {

// `count` + 1 texts; none at all if `count` is below 2. This is deliberately no plain split:
//  - what stands behind field `count` is dropped;
//  - the last field needs no bar behind it;
//  - the last but one does: without it, it loses its final character and the last one stays empty;
//  - an earlier field without a bar behind it is lost, and with it all that would follow.
// Throws RunError Overflow if a bar or the end of the text is too far behind for a position.
std::vector<Text> SplitFields(TextView text, std::int16_t count);

}  // namespace vorlane
