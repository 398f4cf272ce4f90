// Reading and writing numbers by one stated locale, United States English, whatever the system's
// settings say.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/text.h"

namespace vorlane {

// A number as a person or a field may write it: optional spaces around it, one sign (in front or
// behind), digits with "." and thousands separators ",", an exponent ("1E2"), "&H1F", "&O17", a
// currency sign "$". Parentheses are not accepted. Nothing for any other text, the empty one too.
std::optional<double> ReadNumber(TextView text);

inline bool IsNumeric(TextView text) {
  return ReadNumber(text).has_value();
}

// The number rounded to the nearest whole one, ties to the even one ("2.5" gives 2, "3.5" gives
// 4). Nothing if the text is no number or the result doesn't fit.
std::optional<std::int16_t> ReadInt16(TextView text);
std::optional<std::int32_t> ReadInt32(TextView text);

// Shortest decimal text: "1234.57", "0.5", "2". No thousands separators.
Text ShortestDecimal(double number);

}  // namespace vorlane
