#pragma once

#include <cstdint>

namespace vorlane {

// Kilobytes with two decimals: 1.5 for 1536 bytes.
double FileSizeKB(std::int32_t bytes);

}  // namespace vorlane
