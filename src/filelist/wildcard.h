// Wildcards: the list's own rule, and the system's older one that only counts files.
#pragma once

#include "platform/text.h"

namespace vorlane {

// The list's rule, for a whole name and without regard to case: "?" any one character, "*" any run
// of characters, "#" one decimal digit, "[...]" one of the listed characters or ranges, "[!...]"
// one that isn't listed. "[]" stands for no character at all. A bracket that is never closed or
// holds a range that runs backwards matches nothing. "*.*" matches every name, one without a point
// too. Cost: length of the name times length of the pattern at worst.
bool MatchesWildcard(TextView name, TextView pattern);

// The rule of the system's own file search: "*" and "?" only, "*.*" for all names, without regard
// to case.
bool MatchesSystemWildcard(TextView name, TextView pattern);

}  // namespace vorlane
