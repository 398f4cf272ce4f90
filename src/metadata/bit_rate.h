// The bit rate of an MP3 file, as the header of its first audio frame tells it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vorlane {

// How many bytes from the start of a file BitRateOf looks at: a frame may begin at any of the first
// 10,000, and three more belong to its header.
inline constexpr std::size_t BitRateReadLength = 10003;

// In kbit/s; 0 if no frame begins there, or if the frame has no fixed rate. Only MPEG-1 Layer III
// counts. The search starts at the first byte, so that a pair of bytes in an ID3v2 tag that looks
// like a frame is taken for one. A file of variable bit rate gives the rate of its first frame.
// Bytes behind the end of a shorter file count as NULs. Throws RunError 9 for the rate index 15,
// which stands for nothing.
std::int16_t BitRateOf(std::string_view fileStart);

}  // namespace vorlane
