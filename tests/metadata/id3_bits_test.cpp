#include "metadata/id3_bits.h"

#include <gtest/gtest.h>

#include <array>

#include "platform/failure.h"

namespace vorlane {
namespace {

using Bytes = std::array<std::uint8_t, 4>;

TEST(ID3Bits, DigitsOfFourBytesWithoutLeadingZeros) {
  struct Case {
    Bytes Value;
    int TopBit;
    std::string Bits;
  };
  const std::array cases = {
      Case{{0, 0, 0, 0}, 7, ""},
      Case{{0, 0, 0, 0}, 6, ""},
      Case{{0, 0, 0, 1}, 7, "1"},
      Case{{0, 0, 0, 1}, 6, "1"},
      Case{{0, 0, 1, 0}, 7, "100000000"},
      Case{{0, 0, 1, 0}, 6, "10000000"},
      Case{{0, 0xFF, 0xFB, 0x94}, 7, "111111111111101110010100"},
      Case{{0, 0, 2, 1}, 6, "100000001"},
      Case{{0x7F, 0x7F, 0x7F, 0x7F}, 6, std::string(28, '1')},
      Case{{0xFF, 0xFF, 0xFF, 0xFF}, 7, std::string(32, '1')},
      // Bit 7 is set and the top bit is 6: nothing of that byte counts.
      Case{{0, 0, 0, 0x80}, 6, ""},
      Case{{0, 0, 0, 0xFF}, 6, ""},
      Case{{0, 0, 1, 0xFF}, 6, "10000000"},
      Case{{0x81, 1, 0, 0}, 6, "100000000000000"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(BytesToBits(c.Value, c.TopBit), c.Bits) << c.Bits;
  }
}

TEST(ID3Bits, NumberOfDigits) {
  EXPECT_EQ(BitsToLong(""), 0);
  EXPECT_EQ(BitsToLong("1"), 1);
  EXPECT_EQ(BitsToLong("1001"), 9);
  EXPECT_EQ(BitsToLong("100000001"), 257);
  EXPECT_EQ(BitsToLong("1x2 1"), 17);
  EXPECT_EQ(BitsToLong(std::string(28, '1')), 268435455);
  EXPECT_EQ(BitsToLong(std::string(31, '1')), 2147483647);
}

TEST(ID3Bits, NumberPast31BitsOverflows) {
  for (const std::size_t length : {32U, 200U}) {
    try {
      BitsToLong(std::string(length, '1'));
      FAIL();
    } catch (const RunError& error) {
      EXPECT_EQ(error.Number(), 6);
    }
  }
}

TEST(ID3Bits, NumberInFourBytes) {
  EXPECT_EQ(LongToBytes(257, 7), std::string("\0\0\x02\x01", 4));
  EXPECT_EQ(LongToBytes(257, 8), std::string("\0\0\x01\x01", 4));
  EXPECT_EQ(LongToBytes(0, 7), std::string(4, '\0'));
  EXPECT_EQ(LongToBytes(268435455, 7), "\x7F\x7F\x7F\x7F");
  // The first byte takes what is left over, as far as it can.
  EXPECT_EQ(LongToBytes(268435456, 7), std::string("\x80\0\0\0", 4));
  EXPECT_EQ(LongToBytes(2147483647, 8), "\x7F\xFF\xFF\xFF");
}

TEST(ID3Bits, NumberThatHasNoFourBytes) {
  for (const auto& [number, bits] :
       {std::pair{-1, 7}, std::pair{536870912, 7}, std::pair{2048, 1}}) {
    try {
      LongToBytes(number, bits);
      FAIL() << number;
    } catch (const RunError& error) {
      EXPECT_EQ(error.Number(), 5) << number;
    }
  }
}

}  // namespace
}  // namespace vorlane
