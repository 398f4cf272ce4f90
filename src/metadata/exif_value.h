// The value of an EXIF entry as text.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "metadata/exif_numbers.h"
#include "metadata/exif_tag.h"
#include "platform/text.h"

namespace vorlane {

// The EXIF block of a file: TIFF inside whatever surrounds it. Places count from 0.
struct ExifBlock {
  std::string_view Head;  // the bytes that can be reached
  std::int64_t Base = 0;  // place of the TIFF header in Head; offsets count from there
  ByteOrder Order = ByteOrder::BigEndian;
};

// The text of the entry whose twelve bytes stand at `place`, from its number, format, count and
// value. Of an array of numbers only the first element is shown, of an array of rationals nothing
// but for the tags that are shown as a quotient. A rational with a denominator replaces the entry's
// Value by the quotient, also where no text comes of it.
//
// Nothing for what can't be shown: an unknown format, elements behind the head's end or in a number
// past 32 bits, a division by zero, a power past the range of double, an unknown component.
std::optional<Text> FormatValue(const ExifBlock& block, std::int64_t place, ExifTag& entry);

}  // namespace vorlane
