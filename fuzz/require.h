// What a target promises of its results: a broken promise ends the program, as a crash would.
#pragma once

#include <cstdlib>

namespace vorlane {

inline void Require(bool promise) {
  if (!promise) {
    std::abort();
  }
}

}  // namespace vorlane
