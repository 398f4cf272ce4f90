#include "engine/file_size.h"

#include <cmath>

namespace vorlane {

double FileSizeKB(std::int32_t bytes) {
  return std::floor(bytes / 1024.0 * 100 + 0.5) / 100;
}

}  // namespace vorlane
