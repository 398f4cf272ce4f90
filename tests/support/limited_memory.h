// For EXPECT_EXIT: steps that have to do with little memory.
#pragma once

#include <functional>

namespace vorlane {

// Runs the steps with room for so many bytes beyond what the process has, and ends the process:
// with 0 if they returned true, 1 if they returned false, 2 if the room didn't suffice.
[[noreturn]] void RunWithLimitedMemory(std::size_t room, const std::function<bool()>& steps);

}  // namespace vorlane
