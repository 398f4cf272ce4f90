// The whole numbers among the arguments.
#pragma once

#include <CLI/CLI.hpp>

namespace vorlane {

// For Option::transform. Only decimal digits with or without "-" in front, up to 32 bits: "010" is
// ten, "0x1", " 1" and "1.0" are no numbers.
CLI::Validator WholeNumber();

}  // namespace vorlane
