// Reading and writing numbers by one stated locale, United States English, whatever the system's
// settings say.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/text.h"

namespace vorlane {

// A number as a person or a field may write it: optional spaces around it, one sign and one
// currency sign "$" (each in front or behind, with or without spaces between), digits with "." and
// thousands separators "," (anywhere between the first digit and the point), an exponent ("1E2",
// "1D2"). Or "&H1F" and "&O17" in spaces alone, up to 32 bits, where the highest bit of 16 or of 32
// is the sign: "&HFFFF" and "&HFFFFFFFF" are both -1. Parentheses are not accepted. Nothing for any
// other text, the empty one too, and for a number past the range of double.
std::optional<double> ReadNumber(TextView text);

inline bool IsNumeric(TextView text) {
  return ReadNumber(text).has_value();
}

// The number rounded to the nearest whole one, ties to the even one ("2.5" gives 2, "3.5" gives
// 4). Nothing if the text is no number or the result doesn't fit.
std::optional<std::int16_t> ReadInt16(TextView text);
std::optional<std::int32_t> ReadInt32(TextView text);

// The shortest decimal text that reads back as the same number: "1234.57", "0.5", "2". Never an
// exponent, no thousands separators.
Text ShortestDecimal(double number);

}  // namespace vorlane
