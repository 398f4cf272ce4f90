// Case by one-to-one simple mapping of each UTF-16 unit, the same whatever the locale: the length
// never changes ("ß" stays "ß") and "i" and "I" are a pair in Turkey too. Units that are half of a
// surrogate pair map to themselves.
// Source of the table: Simple_Uppercase_Mapping and Simple_Lowercase_Mapping of UnicodeData.txt.
#pragma once

#include <cstdint>

#include "platform/text.h"

namespace vorlane {

char16_t UpperCase(char16_t character);
char16_t LowerCase(char16_t character);

Text UpperCase(TextView text);
Text LowerCase(TextView text);

// The key by which names are compared without regard to case, and by which columns are sorted.
Text FoldCase(TextView text);

bool EqualIgnoringCase(TextView a, TextView b);

// Texts that are equal without regard to case have the same. For tables in memory only.
std::uint64_t HashIgnoringCase(TextView text);

// Below 0, 0 or above 0: compares the folded texts code unit by code unit.
int CompareIgnoringCase(TextView a, TextView b);

}  // namespace vorlane
