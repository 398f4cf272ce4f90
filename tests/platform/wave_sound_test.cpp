// WAV images, whole and broken.
#include "platform/wave_sound.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vorlane {
namespace {

using Samples = std::vector<std::int16_t>;

std::string Number(std::uint32_t number, int length) {
  std::string bytes;
  for (int i = 0; i < length; ++i) {
    bytes += static_cast<char>(number >> (8 * i) & 0xFF);
  }
  return bytes;
}

std::string Chunk(const std::string& name, const std::string& content) {
  return name + Number(static_cast<std::uint32_t>(content.size()), 4) + content +
         (content.size() % 2 == 1 ? std::string(1, '\0') : "");
}

struct WaveFormat {
  std::uint32_t Coding = 1;
  std::uint32_t Channels = 1;
  std::uint32_t Rate = 44'100;
  std::uint32_t Bits = 16;
};

std::string FormatChunk(const WaveFormat& format, const std::string& more = {}) {
  const std::uint32_t frame = format.Channels * format.Bits / 8;
  return Chunk("fmt ", Number(format.Coding, 2) + Number(format.Channels, 2) +
                           Number(format.Rate, 4) + Number(format.Rate * frame, 4) +
                           Number(frame, 2) + Number(format.Bits, 2) + more);
}

std::string Wave(const std::string& chunks) {
  return "RIFF" + Number(static_cast<std::uint32_t>(chunks.size() + 4), 4) + "WAVE" + chunks;
}

std::string Wave(const WaveFormat& format, const std::string& data) {
  return Wave(FormatChunk(format) + Chunk("data", data));
}

TEST(WaveSound, TheBuiltInClickIsLaidOutAsEver) {
  const std::string click = BuiltInClick();
  ASSERT_EQ(click.size(), 170U);
  EXPECT_EQ(click.substr(0, 4), "RIFF");
  EXPECT_EQ(click.substr(4, 4), Number(1818, 4));
  EXPECT_EQ(click.substr(8, 8), "WAVEfmt ");
  EXPECT_EQ(click.substr(16, 22), Number(18, 4) + Number(1, 2) + Number(2, 2) + Number(8000, 4) +
                                      Number(16000, 4) + Number(2, 2) + Number(8, 2) +
                                      Number(0, 2));
  EXPECT_EQ(click.substr(38, 12), "fact" + Number(4, 4) + Number(10, 4));
  EXPECT_EQ(click.substr(50, 8), "data" + Number(20, 4));
  constexpr int frames[] = {0x83, 0xA9, 0x5A, 0x00, 0x00, 0x51, 0xCE, 0x7D, 0x6E, 0x5A};
  for (std::size_t i = 0; i < std::size(frames); ++i) {
    EXPECT_EQ(static_cast<unsigned char>(click[58 + 2 * i]), frames[i]);
    EXPECT_EQ(static_cast<unsigned char>(click[59 + 2 * i]), frames[i]);
  }
  EXPECT_EQ(click.substr(78, 8), "DISP" + Number(0x6CC, 4));
  EXPECT_EQ(click.substr(86, 20), Number(8, 4) + Number(40, 4) + Number(31, 4) + Number(21, 4) +
                                      Number(1, 2) + Number(8, 2));
}

TEST(WaveSound, TheBuiltInClickPlays) {
  const Samples samples = SamplesOfWave(BuiltInClick());
  ASSERT_EQ(samples.size(), 2U * (10U * 44'100U / 8'000U));
  EXPECT_EQ(samples[0], (0x83 - 128) * 256);
  EXPECT_EQ(samples[1], samples[0]);
  EXPECT_EQ(*std::min_element(samples.begin(), samples.end()), -32768);
  EXPECT_GT(*std::max_element(samples.begin(), samples.end()), 0x4000);
}

TEST(WaveSound, SixteenBitsAtTheSameRateStayAsTheyAre) {
  const std::string data = Number(1, 2) + Number(0xFFFF, 2) + Number(0x7FFF, 2) + Number(0x8000, 2);
  EXPECT_EQ(SamplesOfWave(Wave({.Channels = 2}, data)), (Samples{1, -1, 32767, -32768}));
  EXPECT_EQ(SamplesOfWave(Wave({.Channels = 1}, data)),
            (Samples{1, 1, -1, -1, 32767, 32767, -32768, -32768}));
}

TEST(WaveSound, OfMoreChannelsTheFirstTwoCount) {
  const std::string data = Number(1, 2) + Number(2, 2) + Number(3, 2);
  EXPECT_EQ(SamplesOfWave(Wave({.Channels = 3}, data)), (Samples{1, 2}));
}

TEST(WaveSound, EverySampleSize) {
  EXPECT_EQ(SamplesOfWave(Wave({.Bits = 8}, std::string("\x00\x80\xFF", 3))),
            (Samples{-32768, -32768, 0, 0, 127 * 256, 127 * 256}));
  EXPECT_EQ(SamplesOfWave(Wave({.Bits = 24}, std::string("\x99\x34\x12\x00\x00\x80", 6))),
            (Samples{0x1234, 0x1234, -32768, -32768}));
  EXPECT_EQ(SamplesOfWave(Wave({.Bits = 32}, std::string("\x99\x99\x34\x12", 4))),
            (Samples{0x1234, 0x1234}));
}

TEST(WaveSound, OtherRatesAreConvertedOnStraightLines) {
  const std::string data = Number(0, 2) + Number(100, 2) + Number(200, 2);
  EXPECT_EQ(SamplesOfWave(Wave({.Rate = 22'050}, data)),
            (Samples{0, 0, 50, 50, 100, 100, 150, 150, 200, 200, 200, 200}));
  EXPECT_EQ(SamplesOfWave(Wave({.Rate = 88'200}, data)), (Samples{0, 0}));
}

TEST(WaveSound, AVeryShortSoundIsHeardAtAll) {
  EXPECT_EQ(SamplesOfWave(Wave({.Rate = 384'000}, Number(7, 2))), (Samples{7, 7}));
}

TEST(WaveSound, ALongSoundIsCutOff) {
  const std::string data(100'000, '\x01');
  EXPECT_EQ(SamplesOfWave(Wave({.Rate = 1000, .Bits = 8}, data)).size(),
            std::size_t{LongestSoundSeconds} * PlayedRate * PlayedChannels);
}

TEST(WaveSound, TheStatedSizeOfTheWholeIsntLookedAt) {
  std::string wave = Wave({}, Number(5, 2));
  for (const std::uint32_t stated : {0U, 1U, 0xFFFFFFFFU}) {
    wave.replace(4, 4, Number(stated, 4));
    EXPECT_EQ(SamplesOfWave(wave), (Samples{5, 5}));
  }
}

TEST(WaveSound, OtherChunksArePassedOver) {
  const std::string odd = Chunk("LIST", "abc");  // of odd length, so a byte lies behind it
  EXPECT_EQ(SamplesOfWave(Wave(odd + FormatChunk({}) + odd + Chunk("fact", "1234") +
                               Chunk("data", Number(5, 2)) + odd)),
            (Samples{5, 5}));
}

TEST(WaveSound, TheExtendedFormatBlock) {
  const auto extended = [](std::uint32_t coding) {
    const std::string more =
        Number(22, 2) + Number(16, 2) + Number(4, 4) + Number(coding, 2) + std::string(14, '\x11');
    return Wave(FormatChunk({.Coding = 0xFFFE}, more) + Chunk("data", Number(5, 2)));
  };
  EXPECT_EQ(SamplesOfWave(extended(1)), (Samples{5, 5}));
  EXPECT_EQ(SamplesOfWave(extended(3)), Samples{});
  EXPECT_EQ(SamplesOfWave(Wave({.Coding = 0xFFFE}, Number(5, 2))), Samples{});
}

TEST(WaveSound, WhatIsCutOffIsPlayedAsFarAsItGoes) {
  const std::string wave = Wave({.Channels = 2}, Number(1, 2) + Number(2, 2) + Number(3, 2));
  EXPECT_EQ(SamplesOfWave(wave), (Samples{1, 2}));  // half a frame at the end
  std::string stated = Wave({}, Number(5, 2));
  stated.replace(stated.size() - 6, 4, Number(1'000'000, 4));
  EXPECT_EQ(SamplesOfWave(stated), (Samples{5, 5}));
}

TEST(WaveSound, EveryBeginningOfAnImageIsTakenInGoodOrder) {
  const std::string wave = Wave({}, Number(5, 2) + Number(6, 2));
  for (std::size_t length = 0; length < wave.size() - 2; ++length) {
    EXPECT_LE(SamplesOfWave(wave.substr(0, length)).size(), 2U) << length;
  }
}

TEST(WaveSound, WhatCantBePlayedIsNothing) {
  const std::string data = Number(5, 2) + Number(6, 2);
  const auto expectNothing = [](const std::string& wave, const char* why) {
    EXPECT_EQ(SamplesOfWave(wave), Samples{}) << why;
  };
  expectNothing("", "no bytes");
  expectNothing("RIFX" + Wave({}, data).substr(4), "not RIFF");
  expectNothing("RIFF0000WAVX" + Wave({}, data).substr(12), "not WAVE");
  expectNothing(Wave(FormatChunk({})), "no data");
  expectNothing(Wave(Chunk("data", data)), "no format");
  expectNothing(Wave(Chunk("data", data) + FormatChunk({})), "format behind the data");
  expectNothing(Wave(Chunk("fmt ", "short") + Chunk("data", data)), "short format");
  expectNothing(Wave({.Coding = 3, .Bits = 32}, data), "floating point");
  expectNothing(Wave({.Channels = 0}, data), "no channel");
  expectNothing(Wave({.Channels = 9}, std::string(18, 'x')), "nine channels");
  expectNothing(Wave({.Rate = 0}, data), "rate 0");
  expectNothing(Wave({.Rate = 999}, data), "rate too low");
  expectNothing(Wave({.Rate = 384'001}, data), "rate too high");
  expectNothing(Wave({.Bits = 0}, data), "no bits");
  expectNothing(Wave({.Bits = 12}, data), "12 bits");
  expectNothing(Wave({.Bits = 64}, std::string(8, 'x')), "64 bits");
  expectNothing(Wave({}, "x"), "half a sample");
  std::string wrongFrame = Wave({}, data);
  wrongFrame.replace(32, 2, Number(3, 2));
  expectNothing(wrongFrame, "frame length that doesn't fit");
}

}  // namespace
}  // namespace vorlane
