// Numbers in the headers of tags and audio frames, taken apart and put together bit by bit.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vorlane {

// The binary digits of four bytes, `topBit` + 1 of each (7 or 6 as top bit), without the leading
// zeros of the whole. A byte that is too big for the top bit gives zeros only.
std::string BytesToBits(std::span<const std::uint8_t, 4> bytes, int topBit);

// The number that binary digits stand for; any character but "1" counts as a zero. Throws RunError
// 6 past 2^31 - 1.
std::int32_t BitsToLong(std::string_view bits);

// The number in four bytes, high one first, of `bitsPerByte` bits each (1 to 8; 7 gives the size
// form of a tag header). Throws RunError 5 if a byte would not fit in 0 to 255.
std::string LongToBytes(std::int32_t number, int bitsPerByte);

}  // namespace vorlane
