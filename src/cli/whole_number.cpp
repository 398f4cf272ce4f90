#include "cli/whole_number.h"

#include <charconv>
#include <cstdint>
#include <string>

namespace vorlane {

CLI::Validator WholeNumber() {
  const auto normalise = [](std::string& argument) {
    std::int32_t number = 0;
    const char* end = argument.data() + argument.size();
    const auto read = std::from_chars(argument.data(), end, number);
    if (read.ec != std::errc() || read.ptr != end) {
      return "no whole number: " + argument;
    }
    argument = std::to_string(number);
    return std::string();
  };
  return {normalise, ""};
}

}  // namespace vorlane
