#include "metadata/exif_numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace vorlane {
namespace {

using namespace std::string_view_literals;

constexpr auto Little = ByteOrder::LittleEndian;
constexpr auto Big = ByteOrder::BigEndian;

TEST(GetUnsigned, SumsTheBytesByTheirSignificance) {
  const struct {
    std::string_view Bytes;
    std::int64_t Place;
    std::int64_t Size;
    ByteOrder Order;
    double Result;
  } rows[] = {
      {"\x12"sv, 0, 1, Little, 0x12},
      {"\x12"sv, 0, 1, Big, 0x12},
      {"\x12\x34"sv, 0, 2, Little, 0x3412},
      {"\x12\x34"sv, 0, 2, Big, 0x1234},
      {"\x01\x02\x03\x04"sv, 0, 4, Little, 0x04030201},
      {"\x01\x02\x03\x04"sv, 0, 4, Big, 0x01020304},
      {"\xFF\xFF\xFF\xFF"sv, 0, 4, Little, 4294967295.0},
      {"\x80\0\0\0"sv, 0, 4, Big, 2147483648.0},
      {"\xAA\xBB\x01\x02\xCC"sv, 2, 2, Big, 0x0102},
      {"\xAA\xBB\x01\x02\xCC"sv, 3, 2, Little, 0xCC02},
      {"\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"sv, 0, 8, Big, 18446744073709551616.0},
      {"\0\0\0\0\0\0\xF0\x3F"sv, 0, 8, Little, 4607182418800017408.0},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(GetUnsigned(row.Bytes, row.Place, row.Size, row.Order), row.Result);
  }
}

TEST(GetUnsigned, NeedsEveryByte) {
  for (const ByteOrder order : {Little, Big}) {
    EXPECT_EQ(GetUnsigned("abcd", 1, 4, order), std::nullopt);
    EXPECT_EQ(GetUnsigned("abcd", 4, 1, order), std::nullopt);
    EXPECT_EQ(GetUnsigned("abcd", -1, 2, order), std::nullopt);
    EXPECT_EQ(GetUnsigned("abcd", 1'000'000'000'000, 2, order), std::nullopt);
    EXPECT_EQ(GetUnsigned("", 0, 1, order), std::nullopt);
    EXPECT_EQ(GetUnsigned("abcd", 0, 8, order), std::nullopt);
  }
}

TEST(GetUnsigned, NoBytesAreZeroWhereverTheyStand) {
  EXPECT_EQ(GetUnsigned("", 0, 0, Little), 0);
  EXPECT_EQ(GetUnsigned("a", 9, 0, Big), 0);
}

TEST(GetSigned, CountsDownwardsFromMinusOneBelowTheSign) {
  const struct {
    std::string_view BigEndian;
    double Result;
  } rows[] = {
      {"\x00"sv, 0},
      {"\x7F"sv, 127},
      {"\x80"sv, -1},
      {"\x81"sv, -2},
      {"\xFF"sv, -128},
      {"\x7F\xFF"sv, 32767},
      {"\x80\x00"sv, -1},
      {"\xFF\xFF"sv, -32768},
      {"\x7F\xFF\xFF\xFF"sv, 2147483647},
      {"\x80\x00\x00\x00"sv, -1},
      {"\x80\x00\x00\x01"sv, -2},
      {"\xFF\xFF\xFF\xFE"sv, -2147483647},
      {"\xFF\xFF\xFF\xFF"sv, -2147483648.0},
  };
  for (const auto& row : rows) {
    const auto size = static_cast<std::int64_t>(row.BigEndian.size());
    EXPECT_EQ(GetSigned(row.BigEndian, 0, size, Big), row.Result);
    const std::string littleEndian(row.BigEndian.rbegin(), row.BigEndian.rend());
    EXPECT_EQ(GetSigned(littleEndian, 0, size, Little), row.Result);
  }
}

TEST(GetSigned, NeedsEveryByte) {
  EXPECT_EQ(GetSigned("\xFF\xFF\xFF", 0, 4, Big), std::nullopt);
  EXPECT_EQ(GetSigned("", 0, 1, Little), std::nullopt);
}

TEST(FormatNumber, RoundsAHalfAwayFromZero) {
  const struct {
    double Number;
    int Decimals;
    TextView Result;
  } rows[] = {
      {0, 0, u"0"},         {0, 1, u"0.0"},           {250, 0, u"250"},
      {2.8, 1, u"2.8"},     {1234567, 0, u"1234567"}, {1234567, 1, u"1234567.0"},
      {0.5, 0, u"1"},       {1.5, 0, u"2"},           {2.5, 0, u"3"},
      {-0.5, 0, u"-1"},     {-2.5, 0, u"-3"},         {0.49999, 0, u"0"},
      {0.25, 1, u"0.3"},    {0.35, 1, u"0.4"},        {1.15, 1, u"1.2"},
      {2.25, 1, u"2.3"},    {-0.25, 1, u"-0.3"},      {-0.35, 1, u"-0.4"},
      {0.05, 1, u"0.1"},    {0.04999, 1, u"0.0"},     {9.95, 1, u"10.0"},
      {99.95, 1, u"100.0"}, {999.5, 0, u"1000"},      {-99.95, 1, u"-100.0"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(FormatNumber(row.Number, row.Decimals), row.Result) << row.Number;
  }
}

TEST(FormatNumber, ZeroHasNoSign) {
  EXPECT_EQ(FormatNumber(-0.0, 0), u"0");
  EXPECT_EQ(FormatNumber(-0.4, 0), u"0");
  EXPECT_EQ(FormatNumber(-0.04, 1), u"0.0");
}

// 2/2501 seconds are a half exactly; the two divisions give a little less.
TEST(FormatNumber, ADivisionsNoiseDoesntTurnAHalf) {
  int noisy = 0;
  for (int denominator = 1; denominator < 20001; denominator += 2) {
    const double reciprocal = 1 / (2.0 / denominator);
    noisy += reciprocal < denominator / 2.0 ? 1 : 0;
    ASSERT_EQ(FormatNumber(reciprocal, 0), DecimalText((denominator + 1) / 2)) << denominator;
  }
  EXPECT_GT(noisy, 0);
}

TEST(FormatNumber, EveryHalfOfATenthIsRoundedUp) {
  for (int hundredths = 5; hundredths < 100000; hundredths += 10) {
    const int tenths = hundredths / 10 + 1;
    ASSERT_EQ(FormatNumber(hundredths / 100.0, 1),
              DecimalText(tenths / 10) + u"." + DecimalText(tenths % 10))
        << hundredths;
  }
}

TEST(FormatNumber, LargeNumbersKeepAllTheirDigits) {
  EXPECT_EQ(FormatNumber(4294967295.0, 1), u"4294967295.0");
  EXPECT_EQ(FormatNumber(4294967296.5, 0), u"4294967297");
  EXPECT_EQ(FormatNumber(4294967297.25, 1), u"4294967297.3");
  EXPECT_EQ(FormatNumber(4294967296.25 - 0.000001, 1), u"4294967296.2");
  EXPECT_EQ(FormatNumber(4503599627370495.5, 0), u"4503599627370496");
  EXPECT_EQ(FormatNumber(1152921504606846976.0, 0), u"1152921504606846976");
  EXPECT_EQ(FormatNumber(-715827882.66666663, 1), u"-715827882.7");
  EXPECT_EQ(FormatNumber(std::exp2(200), 0),
            u"1606938044258990275541962092341162602522202993782792835301376");
  EXPECT_EQ(FormatNumber(std::numeric_limits<double>::max(), 1).size(), 311U);
}

TEST(FormatNumber, SmallNumbersAreZero) {
  EXPECT_EQ(FormatNumber(1e-9, 1), u"0.0");
  EXPECT_EQ(FormatNumber(std::numeric_limits<double>::denorm_min(), 0), u"0");
}

TEST(NumberAtStart, ReadsAsFarAsThereIsANumber) {
  const struct {
    TextView Text;
    double Result;
  } rows[] = {
      {u"", 0},        {u"  ", 0},    {u"02", 2},
      {u"2.", 2},      {u".5", 0.5},  {u"  26 and more", 26},
      {u"26/1", 26},   {u"-26", -26}, {u"+26", 26},
      {u"--26", 0},    {u"+-26", 0},  {u"-+26", 0},
      {u"1.5.5", 1.5}, {u"1E2", 100}, {u"1e", 1},
      {u"1e+2x", 100}, {u"e2", 0},    {u".", 0},
      {u"x1", 0},      {u"inf", 0},   {u"nan", 0},
      {u"-inf", 0},    {u"1e999", 0}, {u"4294967295", 4294967295.0},
      {u"١", 0},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(NumberAtStart(row.Text), row.Result) << std::string(row.Text.begin(), row.Text.end());
  }
}

}  // namespace
}  // namespace vorlane
