// One entry of an image's EXIF block, as it was read.
#pragma once

#include <cstdint>

#include "platform/text.h"

namespace vorlane {

// A field that couldn't be read keeps the value that it has here.
struct ExifTag {
  std::int32_t Tag = 0;
  vorlane::Text Name;       // "Make", or "Tag #254" for a number that isn't in the table
  std::int32_t Format = 0;  // TIFF format number, 0 to 65535
  std::int32_t Count = 0;   // number of elements
  double Value = 0;         // the four value bytes as an unsigned number, or a rational's quotient
  vorlane::Text Text;       // the value as shown
  std::int32_t Times = 1;   // stands for so many equal entries in a row

  bool operator==(const ExifTag&) const = default;
};

}  // namespace vorlane
