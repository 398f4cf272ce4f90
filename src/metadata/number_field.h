// Numbers in the fields of tags and journal lines, where a bad one is a failure.
#pragma once

#include <cstdint>

#include "platform/text.h"

namespace vorlane {

// The text as a 16-bit number. Throws RunError: 13 if it is no number, 6 if it doesn't fit.
std::int16_t Int16Of(TextView text);

}  // namespace vorlane
