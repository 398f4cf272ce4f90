// Numbers in an EXIF block: reading them from bytes, and the forms in which they are shown.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/text.h"

namespace vorlane {

enum class ByteOrder : std::uint8_t { LittleEndian, BigEndian };

// The whole number in the `size` bytes at `place`, which counts from 0. More than 2^53 comes with
// the precision of double. Nothing if one of the bytes lies outside; 0 for no bytes at all.
std::optional<double> GetUnsigned(std::string_view bytes, std::int64_t place, std::int64_t size,
                                  ByteOrder order);

// The same with the highest bit as a sign, for up to 4 bytes. Not two's complement: the bits below
// a set sign are counted downwards from -1, so that FF FF FF FF is -2147483648 and 80 00 00 00 is
// -1. Names made from these numbers exist, so they stay what they are.
std::optional<double> GetSigned(std::string_view bytes, std::int64_t place, std::int64_t size,
                                ByteOrder order);

// A finite number rounded to so many decimals, a half away from zero, with a point if there are
// decimals and no separator for thousands: "250", "2.8", "-0.3". No sign in front of zero.
//
// What counts is the half as people write it: 35/100 is 0.4 with one decimal, although the nearest
// double is a little less than 0.35.
Text FormatNumber(double number, int decimals);

// The number with which a text begins, behind any spaces: a sign, digits with a point, an exponent.
// 0 if there is none or if it is past the range of double.
double NumberAtStart(TextView text);

}  // namespace vorlane
