#include "metadata/bit_rate.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "support/id3_bytes.h"

namespace vorlane {
namespace {

using id3::Byte;
using id3::Nuls;

TEST(BitRateOf, EachIndexOfTheTable) {
  constexpr int rates[] = {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
  for (unsigned index = 0; index < 15; ++index) {
    for (const unsigned low : {0U, 4U, 15U}) {
      for (const std::string start : {"\xFF\xFB", "\xFF\xFA"}) {
        EXPECT_EQ(BitRateOf(start + Byte(index << 4 | low) + "\x64"), rates[index]) << index;
      }
    }
  }
}

TEST(BitRateOf, Index15IsASubscriptError) {
  for (const std::string header : {"\xFF\xFA\xF0", "\xFF\xFB\xFF"}) {
    try {
      BitRateOf(header);
      FAIL();
    } catch (const RunError& error) {
      EXPECT_EQ(error.Number(), 9);
    }
  }
}

TEST(BitRateOf, OnlyTwoSecondBytesStartAFrame) {
  for (unsigned second = 0; second < 256; ++second) {
    const bool starts = second == 0xFA || second == 0xFB;
    EXPECT_EQ(BitRateOf("\xFF" + Byte(second) + "\x94"), starts ? 128 : 0) << second;
  }
  EXPECT_EQ(BitRateOf("\xFE\xFB\x94"), 0);
  EXPECT_EQ(BitRateOf("\xFF\xFF\xFB\x94"), 128);
}

TEST(BitRateOf, FirstFrameCountsEvenInsideATag) {
  EXPECT_EQ(BitRateOf(id3::Tag(300, "TPE1\xFF\xFB\x50") + "\xFF\xFB\x94"), 64);
  EXPECT_EQ(BitRateOf("\xFF\xF3\x94" + Nuls(100) + "\xFF\xFB\x50\x64\xFF\xFB\x94"), 64);
}

TEST(BitRateOf, VariableRateGivesThatOfItsFirstFrame) {
  const std::string first = "\xFF\xFB\x94\x64" + Nuls(32);
  EXPECT_EQ(BitRateOf(first + "Xing" + Nuls(4) + "\x7F\xFF\xFF\xFF" + Nuls(100)), 128);
}

TEST(BitRateOf, LooksAtTheFirst10000Bytes) {
  EXPECT_EQ(BitRateOf(Nuls(9999) + "\xFF\xFB\x94"), 128);
  EXPECT_EQ(BitRateOf(Nuls(10000) + "\xFF\xFB\x94"), 0);
  EXPECT_EQ(BitRateOf(Nuls(12000) + "\xFF\xFB\x94"), 0);
  EXPECT_EQ(BitRateOf((Nuls(9999) + "\xFF\xFB\x94").substr(0, BitRateReadLength)), 128);
}

TEST(BitRateOf, MissingBytesAreNuls) {
  EXPECT_EQ(BitRateOf(""), 0);
  EXPECT_EQ(BitRateOf("\xFF"), 0);
  EXPECT_EQ(BitRateOf("\xFF\xFB"), 0);
  EXPECT_EQ(BitRateOf("\xFF\xFB\x94"), 128);
}

}  // namespace
}  // namespace vorlane
