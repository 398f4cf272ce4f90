#include "metadata/bit_rate.h"

#include <algorithm>
#include <array>
#include <optional>

#include "metadata/id3_bits.h"
#include "platform/failure.h"

namespace vorlane {

namespace {

constexpr std::size_t LastFrameStart = 10000;

constexpr std::array<std::int16_t, 15> RateOfIndex = {0,   32,  40,  48,  56,  64,  80, 96,
                                                      112, 128, 160, 192, 224, 256, 320};

std::uint8_t ByteAt(std::string_view bytes, std::size_t place) {
  return place < bytes.size() ? static_cast<std::uint8_t>(bytes[place]) : std::uint8_t{0};
}

// Only these two second bytes: with or without a checksum.
std::optional<std::size_t> FrameStart(std::string_view bytes) {
  const std::size_t end = std::min(bytes.size(), LastFrameStart);
  for (std::size_t place = 0; place < end; ++place) {
    const std::uint8_t second = ByteAt(bytes, place + 1);
    if (ByteAt(bytes, place) == 0xFF && (second == 0xFA || second == 0xFB)) {
      return place;
    }
  }
  return std::nullopt;
}

}  // namespace

std::int16_t BitRateOf(std::string_view fileStart) {
  const auto place = FrameStart(fileStart);
  if (!place) {
    return 0;
  }
  const std::array<std::uint8_t, 4> header = {
      0, ByteAt(fileStart, *place), ByteAt(fileStart, *place + 1), ByteAt(fileStart, *place + 2)};
  // The zero in front gives no digits: 16 of the first two bytes are followed by the index.
  const std::int32_t index = BitsToLong(BytesToBits(header, 7).substr(16, 4));
  if (index >= static_cast<std::int32_t>(RateOfIndex.size())) {
    throw RunError(ErrorNumber::SubscriptOutOfRange);
  }
  return RateOfIndex.at(static_cast<std::size_t>(index));
}

}  // namespace vorlane
