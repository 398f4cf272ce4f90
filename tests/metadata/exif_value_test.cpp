#include "metadata/exif_value.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "metadata/exif_parser.h"
#include "support/exif_builder.h"

namespace vorlane {
namespace {

using namespace std::string_view_literals;

constexpr int Byte = 1;
constexpr int Ascii = 2;
constexpr int Short = 3;
constexpr int Long = 4;
constexpr int Rational = 5;
constexpr int SignedByte = 6;
constexpr int Undefined = 7;
constexpr int SignedShort = 8;
constexpr int SignedLong = 9;
constexpr int SignedRational = 10;
constexpr int Float = 11;
constexpr int Double = 12;

constexpr int AnyTag = 0x1234;

// The only entry of a block that was read.
ExifTag OnlyEntry(const ExifBuilder& builder) {
  const auto contents = ParseExif(builder.Marked());
  if (!contents || contents->Tags.empty()) {
    ADD_FAILURE() << "no entry";
    return {};
  }
  // Behind it stands what the TIFF header gives as a directory.
  return contents->Tags.front();
}

ExifTag Read(int tag, int format, std::uint32_t count, std::string_view value,
             const std::string& byteOrder = "II") {
  return OnlyEntry(ExifBuilder(byteOrder).Add(tag, format, count, value));
}

// Of a rational, in both byte orders, which must give the same.
ExifTag ReadRational(int tag, int format, std::int64_t numerator, std::int64_t denominator) {
  const ExifBuilder little("II");
  const ExifBuilder big("MM");
  ExifTag entry = Read(tag, format, 1, little.Rational(numerator, denominator), "II");
  EXPECT_EQ(entry, Read(tag, format, 1, big.Rational(numerator, denominator), "MM"));
  return entry;
}

TEST(ExifValue, AsciiIsTheBytesWithoutNuls) {
  const struct {
    std::string_view Bytes;
    TextView Text;
  } rows[] = {
      {"Abc\0"sv, u"Abc"},
      {"Ab"sv, u"Ab"},
      {""sv, u""},
      {"\0\0\0\0"sv, u""},
      {"Long enough\0"sv, u"Long enough"},
      {"  blanks stay  \0"sv, u"  blanks stay  "},
      {"a\0b\0\0c, one after the other\0"sv, u"abc, one after the other"},
      {"line\r\nbreak\tand\x01\x7F\0"sv, u"line\r\nbreak\tand\x01\x7F"},
      {"Caf\xE9 \x80 \x93quoted\x94 \x81\0"sv, u"Café € “quoted” \x81"},
      {"\xFF\0"sv, u"ÿ"},
  };
  for (const auto& row : rows) {
    const auto count = static_cast<std::uint32_t>(row.Bytes.size());
    EXPECT_EQ(Read(AnyTag, Ascii, count, row.Bytes).Text, row.Text);
    EXPECT_EQ(Read(AnyTag, Ascii, count, row.Bytes, "MM").Text, row.Text);
  }
}

TEST(ExifValue, AsciiInsideTheEntryIsAlwaysAllFourBytes) {
  EXPECT_EQ(Read(AnyTag, Ascii, 1, "Abcd").Text, u"Abcd");
  EXPECT_EQ(Read(AnyTag, Ascii, 0, "Abcd").Text, u"Abcd");
}

TEST(ExifValue, WholeNumbersByFormat) {
  const struct {
    int Format;
    std::string_view BigEndian;  // one element
    TextView Text;
  } rows[] = {
      {0, ""sv, u"0"},
      {Byte, "\x07"sv, u"7"},
      {Byte, "\xFF"sv, u"255"},
      {Short, "\x01\x02"sv, u"258"},
      {Short, "\xFF\xFF"sv, u"65535"},
      {Long, "\x01\x02\x03\x04"sv, u"16909060"},
      {Long, "\xFF\xFF\xFF\xFF"sv, u"4294967295"},
      {Float, "\x3F\x80\0\0"sv, u"1065353216"},
      {Double, "\0\0\0\0\0\0\x01\0"sv, u"256"},
      {Double, "\x3F\xF0\0\0\0\0\0\0"sv, u"4607182418800017408"},
      {Double, "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"sv, u"18446744073709551616"},
      {SignedByte, "\x7F"sv, u"127"},
      {SignedByte, "\x80"sv, u"-1"},
      {SignedByte, "\xFF"sv, u"-128"},
      {SignedShort, "\x7F\xFF"sv, u"32767"},
      {SignedShort, "\xFF\xFE"sv, u"-32767"},
      {SignedLong, "\x7F\xFF\xFF\xFF"sv, u"2147483647"},
      {SignedLong, "\x80\0\0\0"sv, u"-1"},
      {SignedLong, "\xFF\xFF\xFF\xFF"sv, u"-2147483648"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Read(AnyTag, row.Format, 1, row.BigEndian, "MM").Text, row.Text) << row.Format;
    const std::string littleEndian(row.BigEndian.rbegin(), row.BigEndian.rend());
    EXPECT_EQ(Read(AnyTag, row.Format, 1, littleEndian, "II").Text, row.Text) << row.Format;
  }
}

TEST(ExifValue, OnlyTheFirstNumberOfAnArrayIsShown) {
  const ExifBuilder b;
  EXPECT_EQ(Read(AnyTag, Byte, 4, "\x01\x02\x03\x04").Text, u"1");
  EXPECT_EQ(Read(AnyTag, Byte, 6, "\x01\x02\x03\x04\x05\x06").Text, u"1");
  EXPECT_EQ(Read(AnyTag, Short, 2, b.Short(7) + b.Short(8)).Text, u"7");
  EXPECT_EQ(Read(AnyTag, Short, 3, b.Short(700) + b.Short(8) + b.Short(9)).Text, u"700");
  EXPECT_EQ(Read(AnyTag, Long, 2, b.Long(70000) + b.Long(8)).Text, u"70000");
  EXPECT_EQ(Read(AnyTag, SignedShort, 3, b.Short(5) + b.Short(8) + b.Short(9)).Text, u"5");
}

TEST(ExifValue, ACountOfZeroReadsTheEntrysOwnBytes) {
  const ExifBuilder b;
  EXPECT_EQ(Read(AnyTag, Short, 0, b.Short(7)).Text, u"7");
  EXPECT_EQ(Read(AnyTag, SignedLong, 0, b.Long(7)).Text, u"7");
  EXPECT_EQ(Read(AnyTag, Undefined, 0, "abcd").Text, u"abcd");
  // Four bytes don't hold eight.
  EXPECT_EQ(Read(AnyTag, Double, 0, "abcd").Text, u"");
  EXPECT_EQ(Read(AnyTag, Rational, 0, "abcd").Text, u"");
  EXPECT_EQ(Read(0x829D, Rational, 0, "abcd").Text, u"");
}

TEST(ExifValue, AFormatOfNothingHasTheSizeZero) {
  const ExifTag entry = Read(AnyTag, 0, 0x7FFFFFFF, "\x05\x06\x07\x08");
  EXPECT_EQ(entry.Text, u"0");
  EXPECT_EQ(entry.Value, 0x08070605);
}

TEST(ExifValue, UnknownFormatsKeepTheEntryWithoutText) {
  for (const int format : {13, 14, 129, 65535}) {
    const ExifTag entry = Read(271, format, 1, "Abc");
    EXPECT_EQ(entry.Text, u"");
    EXPECT_EQ(entry.Name, u"Make");
    EXPECT_EQ(entry.Format, format);
    EXPECT_EQ(entry.Count, 1);
    EXPECT_EQ(entry.Value, 0x636241);
  }
}

TEST(ExifValue, ExposureTimeIsTheWholeReciprocal) {
  const struct {
    std::int64_t Numerator;
    std::int64_t Denominator;
    TextView Text;
    double Value;
  } rows[] = {
      {10, 2500, u"250", 0.004},
      {1, 250, u"250", 0.004},
      {1, 1, u"1", 1},
      {2, 1, u"1", 2},
      {3, 1, u"0", 3},
      {2, 3, u"2", 2.0 / 3},
      {2, 5, u"3", 0.4},
      {2, 2501, u"1251", 2.0 / 2501},
      {1, 4294967295, u"4294967295", 1 / 4294967295.0},
      {4294967295, 1, u"0", 4294967295.0},
      {0, 250, u"", 0},
  };
  for (const auto& row : rows) {
    const ExifTag entry = ReadRational(0x829A, Rational, row.Numerator, row.Denominator);
    EXPECT_EQ(entry.Text, row.Text) << row.Numerator << "/" << row.Denominator;
    EXPECT_EQ(entry.Value, row.Value);
  }
}

TEST(ExifValue, ApertureIsShownAsFNumber) {
  const struct {
    std::int64_t Numerator;
    std::int64_t Denominator;
    TextView Text;
  } rows[] = {
      {3, 1, u"2.8"},       {0, 1, u"1.0"}, {2, 1, u"2.0"},
      {4970, 1000, u"5.6"}, {1024, 1, u""}, {4294967295, 1, u""},
  };
  for (const int tag : {0x9202, 0x9205}) {
    for (const auto& row : rows) {
      const ExifTag entry = ReadRational(tag, Rational, row.Numerator, row.Denominator);
      EXPECT_EQ(entry.Text, row.Text) << row.Numerator;
      EXPECT_EQ(entry.Value,
                static_cast<double>(row.Numerator) / static_cast<double>(row.Denominator));
    }
  }
}

TEST(ExifValue, TheLargestPowersAreShown) {
  const Text aperture = ReadRational(0x9202, Rational, 1023, 1).Text;
  EXPECT_EQ(aperture.size(), 156U);  // 154 digits, a point and a decimal
  EXPECT_TRUE(aperture.starts_with(u"94807519081091"));
  const Text speed = ReadRational(0x9201, SignedRational, 1023, 1).Text;
  EXPECT_EQ(speed.size(), 308U);
  EXPECT_TRUE(speed.starts_with(u"89884656743115"));
}

TEST(ExifValue, SevenTagsAreShownAsAQuotient) {
  for (const int tag : {0x829D, 0x011A, 0x011B, 0x9206, 0x920A, 0xA20E, 0xA20F}) {
    const ExifTag entry = ReadRational(tag, Rational, 28, 10);
    EXPECT_EQ(entry.Text, u"2.8") << tag;
    EXPECT_EQ(entry.Value, 2.8) << tag;
  }
  EXPECT_EQ(ReadRational(0x829D, Rational, 0, 10).Text, u"0.0");
  EXPECT_EQ(ReadRational(0x829D, Rational, 35, 100).Text, u"0.4");
  EXPECT_EQ(ReadRational(0x829D, Rational, 235, 100).Text, u"2.4");
  EXPECT_EQ(ReadRational(0x9206, Rational, 4294967295, 1).Text, u"4294967295.0");
}

TEST(ExifValue, SignedQuotientsAndPowers) {
  const struct {
    int Tag;
    std::int64_t Numerator;  // in two's complement, which isn't how they are read
    std::int64_t Denominator;
    TextView Text;
  } rows[] = {
      {0x9201, 8, 1, u"256"},
      {0x9201, 0, 1, u"1"},
      {0x9201, 1, 2, u"1"},
      {0x9201, 60, 1, u"1152921504606846976"},
      {0x9201, 1024, 1, u""},
      {0x9201, -1, 1, u"0"},
      {0x9204, 1, 3, u"0.3"},
      {0x9204, 0, 3, u"0.0"},
      {0x9204, 2, 4, u"0.5"},
      {0x9204, 1, 4, u"0.3"},
      {0x9204, -1, 3, u"-715827882.7"},
      {0x9204, -2147483648, 4, u"-0.3"},
      {0x9204, 1, -2147483648, u"-1.0"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ReadRational(row.Tag, SignedRational, row.Numerator, row.Denominator).Text, row.Text)
        << row.Tag << " " << row.Numerator << "/" << row.Denominator;
  }
}

TEST(ExifValue, OtherRationalsAreShownAsAFraction) {
  const struct {
    int Tag;
    int Format;
    std::int64_t Numerator;
    std::int64_t Denominator;
    TextView Text;
    double Value;
  } rows[] = {
      {0x9102, Rational, 4, 2, u"4/2", 2},
      {0x9203, Rational, 4294967295, 4294967295, u"4294967295/4294967295", 1},
      {AnyTag, Rational, 0, 5, u"0/5", 0},
      {0x9203, SignedRational, 7, 2, u"7/2", 3.5},
      {0x9203, SignedRational, -1, 2, u"-2147483648/2", -1073741824},
      {AnyTag, SignedRational, 2147483647, -2147483648, u"2147483647/-1", -2147483647},
      // Tags with a form of their own in the other format only.
      {0x829A, SignedRational, 10, 2500, u"10/2500", 0.004},
      {0x829D, SignedRational, 28, 10, u"28/10", 2.8},
      {0x9202, SignedRational, 3, 1, u"3/1", 3},
      {0x9201, Rational, 8, 1, u"8/1", 8},
      {0x9204, Rational, 1, 3, u"1/3", 1.0 / 3},
  };
  for (const auto& row : rows) {
    const ExifTag entry = ReadRational(row.Tag, row.Format, row.Numerator, row.Denominator);
    EXPECT_EQ(entry.Text, row.Text);
    EXPECT_EQ(entry.Value, row.Value);
  }
}

TEST(ExifValue, ADenominatorOfZeroLeavesTheOffsetAsValue) {
  // The value stands behind the directory of one entry: 8 + 2 + 12 + 4.
  for (const int tag : {0x829A, 0x829D, 0x9202, 0x9102}) {
    EXPECT_EQ(ReadRational(tag, Rational, 5, 0).Value, 26);
  }
  EXPECT_EQ(ReadRational(0x829A, Rational, 5, 0).Text, u"0");
  EXPECT_EQ(ReadRational(0x829D, Rational, 5, 0).Text, u"26.0");
  EXPECT_EQ(ReadRational(0x9202, Rational, 5, 0).Text, u"8192.0");
  EXPECT_EQ(ReadRational(0x9102, Rational, 5, 0).Text, u"5/0");
  EXPECT_EQ(ReadRational(0x9201, SignedRational, 5, 0).Text, u"67108864");
  EXPECT_EQ(ReadRational(0x9204, SignedRational, 5, 0).Text, u"26.0");
  EXPECT_EQ(ReadRational(0x9203, SignedRational, -1, 0).Text, u"-2147483648/0");
}

TEST(ExifValue, ArraysOfRationalsHaveNoText) {
  const ExifBuilder b;
  const std::string six = b.Rational(1, 2) + b.Rational(3, 4) + b.Rational(5, 6) +
                          b.Rational(7, 8) + b.Rational(9, 10) + b.Rational(11, 12);
  const struct {
    int Tag;
    int Format;
    std::uint32_t Count;
  } rows[] = {{0x013E, Rational, 2}, {0x0214, Rational, 6},       {0x013F, Rational, 6},
              {AnyTag, Rational, 3}, {AnyTag, SignedRational, 2}, {0x0211, SignedRational, 3}};
  for (const auto& row : rows) {
    const ExifTag entry = Read(row.Tag, row.Format, row.Count, six);
    EXPECT_EQ(entry.Text, u"") << row.Tag;
    EXPECT_EQ(entry.Tag, row.Tag);
    EXPECT_EQ(entry.Count, row.Count);
    EXPECT_EQ(entry.Value, 26);
  }
}

TEST(ExifValue, TagsWithAFormOfTheirOwnTakeTheFirstRationalOfAnArray) {
  const ExifBuilder b;
  const std::string two = b.Rational(10, 4) + b.Rational(1, 1);
  EXPECT_EQ(Read(0x829D, Rational, 2, two).Text, u"2.5");
  EXPECT_EQ(Read(0x829A, Rational, 2, two).Text, u"0");
  EXPECT_EQ(Read(0x9202, Rational, 2, two).Text, u"2.4");
  EXPECT_EQ(Read(0x9204, SignedRational, 2, two).Text, u"2.5");
  EXPECT_EQ(Read(0x9201, SignedRational, 2, two).Text, u"6");
}

TEST(ExifValue, UndefinedByTag) {
  const struct {
    int Tag;
    std::string_view Bytes;
    TextView Text;
  } rows[] = {
      // Only what can be printed, and byte 127.
      {0x927C, "Ab\0\x1F\x20\x7E\x7F\x80\xFFz"sv, u"Ab \x7E\x7Fz"},
      {0x927C, "\r\n\t\0"sv, u""},
      {0x927C, "ABC"sv, u"ABC"},
      {0x9000, "0220"sv, u"2.20"},
      {0x9000, "0100"sv, u"1.00"},
      {0x9000, "1234"sv, u"12.34"},
      {0x9000, "00ab"sv, u"0.ab"},
      {0x9000, "x220"sv, u"0.20"},
      {0x9000, ".520"sv, u"0.5.20"},
      {0x9000, "-220"sv, u"-2.20"},
      {0x9000, "-020"sv, u"0.20"},
      {0x9000, "02\0\0"sv, u"2."},
      {0x9000, "\0\0\0\0"sv, u"0."},
      {0x9000,
       "\0002"
       "20"sv,
       u"0.20"},
      {0x9000, "02"sv, u"2."},
      {0x9000, "022099"sv, u"2.99"},
      {0xA000, "0100"sv, u"1.00"},
      {0x9101, "\1\2\3\0"sv, u"YCbCr"},
      {0x9101, "\4\5\6\0"sv, u"RGB"},
      {0x9101, "\0\0\0\0"sv, u""},
      {0x9101, "\6\0\5\1"sv, u"BGY"},
      {0x9101, "\1\2\3\7"sv, u""},
      {0x9101, "\1\2\3\xFF"sv, u""},
      {0x9101, "\1\2\3\0\4\5\6"sv, u"YCbCr"},
      {0xA300, "\3"sv, u"3"},
      {0xA300, "\xFF"sv, u"255"},
      {0xA300, "\0\0\0\0"sv, u"0"},
      {0xA301, "\1\2\3\4\5\6"sv, u"1"},
      // The code in front of a comment stays, but for its NULs.
      {0x9286, "ASCII\0\0\0Seen from above\0"sv, u"ASCIISeen from above"},
      {0x9286, "UNICODE\0A\0b\0"sv, u"UNICODEAb"},
      {AnyTag, "R98\0"sv, u"R98"},
      {AnyTag, "a\xE4\x01 b\0c"sv, u"aä\x01 bc"},
  };
  for (const auto& row : rows) {
    for (const std::string order : {"II", "MM"}) {
      const auto count = static_cast<std::uint32_t>(row.Bytes.size());
      EXPECT_EQ(Read(row.Tag, Undefined, count, row.Bytes, order).Text, row.Text) << row.Bytes;
    }
  }
}

TEST(ExifValue, TagsWithAFormOfTheirOwnAreUndefinedBytesOnly) {
  EXPECT_EQ(Read(0x9000, Ascii, 4, "0220").Text, u"0220");
  EXPECT_EQ(Read(0x9101, Byte, 4, "\1\2\3\0").Text, u"1");
  EXPECT_EQ(Read(0x927C, Ascii, 6, "A\x01\x02z\r\n").Text, u"A\x01\x02z\r\n");
}

TEST(ExifValue, OffsetsCountFromTheTiffHeader) {
  ExifBuilder b;
  b.AddOffset(271, Ascii, 5, 26).AddOffset(272, Ascii, 5, 0);
  const auto contents = ParseExif("in front: " + b.Marked());
  ASSERT_TRUE(contents);
  EXPECT_EQ(contents->Tags[0].Text, u"\x05");  // in the second entry: the count of 5
  EXPECT_EQ(contents->Tags[1].Text, u"II*\x08");
}

}  // namespace
}  // namespace vorlane
