#include "metadata/id3_bits.h"

#include <limits>

#include "platform/failure.h"

namespace vorlane {

std::string BytesToBits(std::span<const std::uint8_t, 4> bytes, int topBit) {
  std::string bits;
  for (unsigned value : bytes) {
    for (int bit = topBit; bit >= 0; --bit) {
      if (value >> bit == 1) {
        bits += '1';
        value -= 1U << bit;
      } else if (!bits.empty()) {
        bits += '0';
      }
    }
  }
  return bits;
}

std::int32_t BitsToLong(std::string_view bits) {
  std::int64_t number = 0;
  for (const char bit : bits) {
    number = number * 2 + (bit == '1' ? 1 : 0);
    if (number > std::numeric_limits<std::int32_t>::max()) {
      throw RunError(ErrorNumber::Overflow);
    }
  }
  return static_cast<std::int32_t>(number);
}

std::string LongToBytes(std::int32_t number, int bitsPerByte) {
  std::string bytes;
  for (int i = 3; i >= 0; --i) {
    const std::int32_t power = 1 << (bitsPerByte * i);
    const std::int32_t digit = number / power;
    if (digit < 0 || digit > 255) {
      throw RunError(ErrorNumber::InvalidArgument);
    }
    number -= digit * power;
    bytes += static_cast<char>(digit);
  }
  return bytes;
}

}  // namespace vorlane
