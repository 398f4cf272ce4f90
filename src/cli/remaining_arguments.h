// A positional argument that may be given any number of times, but at least once.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace vorlane {

// Each argument counts as it stands. (Left to itself, the library would take a name such as "[a,b]"
// for a list of two.)
void AddRemainingArguments(CLI::App& command, const std::string& name,
                           std::vector<std::string>& values, const std::string& description);

}  // namespace vorlane
