// Tags are searched and cut as byte strings, before they become text. The few operations that this
// needs beyond those of the standard library.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vorlane {

// Without the spaces (20) at both ends.
std::string_view TrimSpaces(std::string_view bytes);

// Without any occurrence of `part`, which isn't empty; one pass from left to right, so that a part
// that only comes together by a removal stays. Linear.
std::string WithoutAll(std::string_view bytes, std::string_view part);

// The first `length` bytes, with NULs behind the end of a shorter string.
std::string PaddedWithNuls(std::string_view bytes, std::size_t length);

}  // namespace vorlane
