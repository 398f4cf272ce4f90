#include "platform/wave_sound.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace vorlane {

namespace {

constexpr std::size_t ChunkHeadLength = 8;
constexpr std::size_t FileHeadLength = 12;

constexpr unsigned Pcm = 1;
constexpr unsigned Extensible = 0xFFFE;

// Little-endian, unsigned; the caller knows that the bytes are there.
std::uint32_t NumberAt(std::string_view bytes, std::size_t position, std::size_t length) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < length; ++i) {
    const auto byte = static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[position + i]));
    number |= byte << (8 * i);
  }
  return number;
}

struct Format {
  std::size_t Channels = 0;
  std::uint32_t Rate = 0;
  std::size_t SampleLength = 0;  // bytes

  std::size_t FrameLength() const { return Channels * SampleLength; }
};

std::optional<Format> ReadFormat(std::string_view chunk) {
  constexpr std::size_t ShortestFormat = 16;
  constexpr std::size_t ExtensibleFormat = 40;
  constexpr std::size_t SubFormat = 24;
  if (chunk.size() < ShortestFormat) {
    return std::nullopt;
  }
  unsigned coding = NumberAt(chunk, 0, 2);
  if (coding == Extensible && chunk.size() >= ExtensibleFormat) {
    coding = NumberAt(chunk, SubFormat, 2);
  }
  const std::uint32_t bits = NumberAt(chunk, 14, 2);
  const Format format{
      .Channels = NumberAt(chunk, 2, 2), .Rate = NumberAt(chunk, 4, 4), .SampleLength = bits / 8};
  const bool isKnown = coding == Pcm && format.Channels >= 1 && format.Channels <= 8 &&
                       format.Rate >= 1000 && format.Rate <= 384'000 && bits % 8 == 0 &&
                       bits >= 8 && bits <= 32 && NumberAt(chunk, 12, 2) == format.FrameLength();
  return isKnown ? std::optional(format) : std::nullopt;
}

// The two upper bytes of a sample count. Eight bits are a number from 0 to 255, more are signed.
std::int16_t SampleAt(std::string_view data, std::size_t position, std::size_t length) {
  if (length == 1) {
    return static_cast<std::int16_t>(
        (static_cast<int>(static_cast<unsigned char>(data[position])) - 128) * 256);
  }
  return static_cast<std::int16_t>(
      static_cast<std::uint16_t>(NumberAt(data, position + length - 2, 2)));
}

// The frames at the new rate, each on the line between its two neighbours.
std::vector<std::int16_t> Convert(const Format& format, std::string_view data) {
  const std::uint64_t frames = data.size() / format.FrameLength();
  if (frames == 0) {
    return {};
  }
  constexpr std::uint64_t most = std::uint64_t{LongestSoundSeconds} * PlayedRate;
  const std::uint64_t played =
      std::clamp<std::uint64_t>(frames * PlayedRate / format.Rate, 1, most);
  std::vector<std::int16_t> samples;
  samples.reserve(played * PlayedChannels);
  for (std::uint64_t i = 0; i < played; ++i) {
    const std::uint64_t at = i * format.Rate;
    const std::uint64_t first = std::min(at / PlayedRate, frames - 1);
    const std::uint64_t second = std::min(first + 1, frames - 1);
    const auto part = static_cast<int>(at % PlayedRate);
    for (std::size_t side = 0; side < PlayedChannels; ++side) {
      const std::size_t offset = std::min(side, format.Channels - 1) * format.SampleLength;
      const auto sample = [&](std::uint64_t frame) -> std::int64_t {
        return SampleAt(data, frame * format.FrameLength() + offset, format.SampleLength);
      };
      const std::int64_t mixed =
          (sample(first) * (PlayedRate - part) + sample(second) * part) / PlayedRate;
      samples.push_back(static_cast<std::int16_t>(mixed));
    }
  }
  return samples;
}

}  // namespace

std::vector<std::int16_t> SamplesOfWave(std::string_view wave) {
  if (wave.size() < FileHeadLength || !wave.starts_with("RIFF") || wave.substr(8, 4) != "WAVE") {
    return {};
  }
  std::optional<Format> format;
  std::size_t position = FileHeadLength;
  while (wave.size() - position >= ChunkHeadLength) {
    const std::string_view name = wave.substr(position, 4);
    const std::size_t stated = NumberAt(wave, position + 4, 4);
    position += ChunkHeadLength;
    const std::size_t length = std::min(stated, wave.size() - position);
    const std::string_view content = wave.substr(position, length);
    if (name == "data") {
      return format ? Convert(*format, content) : std::vector<std::int16_t>();
    }
    if (name == "fmt " && !format) {
      format = ReadFormat(content);
    }
    // A chunk of odd length has a byte behind it.
    position = std::min(position + length + length % 2, wave.size());
  }
  return {};
}

std::string BuiltInClick() {
  constexpr std::size_t length = 170;
  using namespace std::string_view_literals;
  std::string click(
      "RIFF\x1A\x07\0\0WAVE"
      "fmt \x12\0\0\0\x01\0\x02\0\x40\x1F\0\0\x80\x3E\0\0\x02\0\x08\0\0\0"
      "fact\x04\0\0\0\x0A\0\0\0"
      "data\x14\0\0\0"
      "\x83\x83\xA9\xA9\x5A\x5A\0\0\0\0\x51\x51\xCE\xCE\x7D\x7D\x6E\x6E\x5A\x5A"
      "DISP\xCC\x06\0\0\x08\0\0\0\x28\0\0\0\x1F\0\0\0\x15\0\0\0\x01\0\x08\0"sv);
  click.resize(length, '\0');
  return click;
}

}  // namespace vorlane
