#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace vorlane {
namespace {

std::string Shown(TextView text) {
  return std::string(text.begin(), text.end());
}

TEST(Numbers, NumbersAreRead) {
  const struct {
    Text text;
    double number;
  } cases[] = {
      {u"0", 0},
      {u"007", 7},
      {u"  42  ", 42},
      {u"1.5", 1.5},
      {u".5", 0.5},
      {u"5.", 5},
      {u"0.1", 0.1},
      {u"123456789012345678901234567890", 123456789012345678901234567890.0},
      // Signs, in front or behind.
      {u"-5", -5},
      {u"+5", 5},
      {u"5-", -5},
      {u"5+", 5},
      {u"- 5", -5},
      {u"5 -", -5},
      {u"-.5", -0.5},
      // The currency sign, too.
      {u"$5", 5},
      {u"5$", 5},
      {u" $ 5 ", 5},
      {u"-$5", -5},
      {u"$-5", -5},
      {u"$5-", -5},
      {u"-5$", -5},
      {u"5-$", -5},
      // Thousands separators, not held to groups of three.
      {u"1,234,567.89", 1234567.89},
      {u"1,2", 12},
      {u"1,,2", 12},
      {u"1,", 1},
      {u"1,.5", 1.5},
      // Exponents.
      {u"1E2", 100},
      {u"1e2", 100},
      {u"1E+2", 100},
      {u"25E-1", 2.5},
      {u"1.5E1", 15},
      {u".5E1", 5},
      {u"5.E1", 50},
      {u"1D2", 100},
      {u"1d-2", 0.01},
      {u"-1E2", -100},
      {u"1E2-", -100},
      {u"1,000E1", 10000},
      {u"1E308", 1e308},
      {u"1E-400", 0},
      {u"-1e-400", 0},
      {u"1E0000000002", 100},
      // Hexadecimal and octal.
      {u"&H1F", 31},
      {u"&h1f", 31},
      {u" &HA ", 10},
      {u"&O17", 15},
      {u"&o17", 15},
      {u"&H0", 0},
      {u"&H7FFF", 32767},
      {u"&H8000", -32768},
      {u"&HFFFF", -1},
      {u"&H0000FFFF", -1},
      {u"&H10000", 65536},
      {u"&H7FFFFFFF", 2147483647},
      {u"&H80000000", -2147483648.0},
      {u"&HFFFFFFFF", -1},
      {u"&O177777", -1},
      {u"&O37777777777", -1},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ReadNumber(c.text), c.number) << Shown(c.text);
    EXPECT_TRUE(IsNumeric(c.text)) << Shown(c.text);
  }
}

TEST(Numbers, OtherTextIsNoNumber) {
  const Text cases[] = {
      u"",
      u" ",
      u"abc",
      u"5a",
      u"a5",
      u"-",
      u"+",
      u"$",
      u"-$",
      u".",
      u",",
      u",5",
      u".,5",
      u"1.2.3",
      u"1.2,3",
      u"1 2",
      u"1 .5",
      u"--5",
      u"-5-",
      u"+-5",
      u"5--",
      u"$5$",
      u"$$5",
      u"(5)",
      u"3/12",
      u"3-12",
      u"1:2",
      u"E",
      u"E2",
      u"1E",
      u"1E+",
      u"1E-",
      u"1 E2",
      u"1E 2",
      u"1E2.5",
      u"1E1,0",
      u"1E2E3",
      u"1F2",
      u"1E400",
      u"-1E400",
      u"&",
      u"&H",
      u"&O",
      u"&HG",
      u"&H1G",
      u"&H 1",
      u"&O8",
      u"&H-1",
      u"&H+1",
      u"&H1.5",
      u"&H1&",
      u"&17",
      u"&B1",
      u"-&H1F",
      u"&H1F-",
      u"$&H1F",
      u"&H100000000",
      u"0x1F",
      u"inf",
      u"nan",
      u"infinity",
      u"€5",
      u"5%",
      u"\t5",
      u"5\r\n",
      u"\u00A05",
      u"５",
      u"&H１",
      u"٣",
      u"½",
      u"\u2212"
      u"5",
      Text(u"5\0", 2),
  };
  for (const Text& text : cases) {
    EXPECT_EQ(ReadNumber(text), std::nullopt) << Shown(text);
    EXPECT_FALSE(IsNumeric(text)) << Shown(text);
    EXPECT_EQ(ReadInt16(text), std::nullopt) << Shown(text);
    EXPECT_EQ(ReadInt32(text), std::nullopt) << Shown(text);
  }
}

TEST(Numbers, FractionsAreRoundedWithTiesToEven) {
  const struct {
    Text text;
    int number;
  } cases[] = {
      {u"2.5", 2},   {u"3.5", 4},      {u"0.5", 0},     {u"1.5", 2},   {u"-0.5", 0},
      {u"-1.5", -2}, {u"-2.5", -2},    {u"2.4", 2},     {u"2.6", 3},   {u"2.51", 3},
      {u"25E-1", 2}, {u"1,234", 1234}, {u"&HFFFF", -1}, {u"1E2", 100},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ReadInt16(c.text), c.number) << Shown(c.text);
    EXPECT_EQ(ReadInt32(c.text), c.number) << Shown(c.text);
  }
}

TEST(Numbers, WhatDoesNotFitIsNoInteger) {
  EXPECT_EQ(ReadInt16(u"32767"), 32767);
  EXPECT_EQ(ReadInt16(u"32767.4"), 32767);
  EXPECT_EQ(ReadInt16(u"32767.5"), std::nullopt);
  EXPECT_EQ(ReadInt16(u"32768"), std::nullopt);
  EXPECT_EQ(ReadInt16(u"-32768"), -32768);
  EXPECT_EQ(ReadInt16(u"-32768.5"), -32768);
  EXPECT_EQ(ReadInt16(u"-32769"), std::nullopt);
  EXPECT_EQ(ReadInt16(u"99999"), std::nullopt);
  EXPECT_EQ(ReadInt16(u"&H10000"), std::nullopt);
  EXPECT_EQ(ReadInt32(u"2147483647"), 2147483647);
  EXPECT_EQ(ReadInt32(u"2147483647.5"), std::nullopt);
  EXPECT_EQ(ReadInt32(u"2147483648"), std::nullopt);
  EXPECT_EQ(ReadInt32(u"-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ReadInt32(u"-2147483649"), std::nullopt);
  EXPECT_EQ(ReadInt32(u"1E300"), std::nullopt);
}

TEST(Numbers, DecimalTextIsTheShortest) {
  const struct {
    double number;
    Text text;
  } cases[] = {
      {1234.57, u"1234.57"},
      {0.5, u"0.5"},
      {2, u"2"},
      {0, u"0"},
      {-0.0, u"0"},
      {-1.5, u"-1.5"},
      {0.01, u"0.01"},
      {0.1 + 0.2, u"0.30000000000000004"},
      {2097152, u"2097152"},
      {2097151.99, u"2097151.99"},
      {100000, u"100000"},
      {1e22, u"10000000000000000000000"},
      {0.0000001, u"0.0000001"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ShortestDecimal(c.number), c.text) << Shown(c.text);
  }
}

TEST(Numbers, DecimalTextIsReadBack) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 20000; ++i) {
    // Any pattern of bits but those of infinity and no number.
    double number = 0;
    const std::uint64_t bits = random();
    static_assert(sizeof number == sizeof bits);
    std::memcpy(&number, &bits, sizeof number);
    if (std::isfinite(number)) {
      ASSERT_EQ(ReadNumber(ShortestDecimal(number)), number) << number;
    }
  }
  EXPECT_EQ(ReadNumber(ShortestDecimal(-std::numeric_limits<double>::max())),
            -std::numeric_limits<double>::max());
}

}  // namespace
}  // namespace vorlane
