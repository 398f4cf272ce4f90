// An operation as a program: the steps of its code text, one after another.
#pragma once

#include <cstddef>
#include <optional>

#include "platform/text.h"

namespace vorlane {

// The next step of an operation's code text, or nothing if there are no more. `position` is where
// the search begins, counted from 0: 0 for the first step; each call moves it behind the step that
// it returns. The step is a view into `code`.
//
// A step starts behind any "Step:", at the beginning of a line or not, and runs to the end of that
// line; without a CR LF behind it, to the last character of the code, leaving that one out. Spaces
// at both ends are trimmed. A "Step:" within the step's own line belongs to the step.
//
// Throws RunError 6 if the code has more than 32,767 characters, and 5 if it ends right behind
// "Step:", so that there is no last character to leave out.
std::optional<TextView> NextStep(TextView code, std::size_t& position);

}  // namespace vorlane
