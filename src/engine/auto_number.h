#pragma once

#include <cstdint>

#include "platform/text.h"

namespace vorlane {

// The number with zeros in front until it has as many digits as the number of rows: 7 of 120 is
// "007". A sign counts as a digit.
Text FormatAutoNumber(std::int32_t number, std::int32_t rows);

}  // namespace vorlane
