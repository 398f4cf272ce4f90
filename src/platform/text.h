// Text as the rules see it: UTF-16 code units, with the few operations that every room needs.
//
// A text may hold lone surrogates: a file name that isn't valid UTF-8 carries its odd bytes as
// U+DC80 to U+DCFF (see file_name_bytes.h), and a cut through a pair leaves half of it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

using Text = std::u16string;
using TextView = std::u16string_view;

// Between the lines of every text that is read or written.
inline constexpr TextView LineEnd = u"\r\n";

// Without the spaces at both ends. Only U+0020 counts: tabs and other blanks stay.
TextView Trim(TextView text);

bool Contains(TextView text, TextView part);

// Replaces every occurrence of `from`, left to right without overlap. An empty `from` changes
// nothing. Cost: linear in the text and the result.
void ReplaceAll(Text& text, TextView from, TextView to);

// The pieces between the separators; always at least one piece, possibly empty.
std::vector<Text> Split(TextView text, TextView separator);

// Decimal digits, with "-" in front of a negative number.
Text DecimalText(std::int64_t number);

// Text from ASCII characters; a byte above 127 becomes "?".
Text AsciiText(std::string_view ascii);

// "MM:SS": whole minutes and remaining seconds, each at least two digits, minutes not capped.
Text FormatElapsed(std::int32_t seconds);

}  // namespace vorlane
