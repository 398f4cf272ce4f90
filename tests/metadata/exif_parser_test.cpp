#include "metadata/exif_parser.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "support/exif_builder.h"

namespace vorlane {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

constexpr int Ascii = 2;
constexpr int Short = 3;
constexpr int Long = 4;
constexpr int Rational = 5;
constexpr int Undefined = 7;

constexpr int Make = 271;
constexpr int Model = 272;
constexpr int ExifOffset = 0x8769;
constexpr int InteroperabilityOffset = 0xA005;

constexpr std::size_t EntriesOfIntelHeader = 0x4949;
constexpr std::size_t EntriesOfMotorolaHeader = 0x4D4D;

const std::string Marker("Exif\0\0", 6);

ExifContents Parse(const std::string& file) {
  auto contents = ParseExif(file);
  EXPECT_TRUE(contents) << "no EXIF block";
  if (!contents) {
    return {};
  }
  contents->Tags = SingleEntries(contents->Tags);
  return *contents;
}

// Of the first entry with that number.
Text TextOf(const ExifContents& contents, std::int32_t tag) {
  for (const ExifTag& entry : contents.Tags) {
    if (entry.Tag == tag) {
      return entry.Text;
    }
  }
  return u"(no such entry)";
}

ExifTag UnreadEntry() {
  ExifTag entry;
  entry.Name = u"Tag #0";
  entry.Text = u"0";
  return entry;
}

TEST(ExifParser, ListsBothDirectoriesInOrder) {
  for (const std::string order : {"II", "MM"}) {
    const ExifBuilder numbers(order);
    const ExifContents contents = Parse(ExifBuilder(order)
                                            .Add(Make, Ascii, 4, "Abc")
                                            .Add(0x0112, Short, 1, numbers.Short(6))
                                            .AddExif(0x829D, Rational, 1, numbers.Rational(28, 10))
                                            .AddExif(254, Long, 1, numbers.Long(70000))
                                            .Jpeg());
    EXPECT_EQ(contents.IntelByteAlignment, order == "II");
    ASSERT_EQ(contents.Tags.size(), 5U);
    EXPECT_EQ(contents.Tags[0].Tag, Make);
    EXPECT_EQ(contents.Tags[0].Name, u"Make");
    EXPECT_EQ(contents.Tags[0].Format, Ascii);
    EXPECT_EQ(contents.Tags[0].Count, 4);
    EXPECT_EQ(contents.Tags[0].Value, order == "II" ? 0x00636241 : 0x41626300);
    EXPECT_EQ(contents.Tags[0].Text, u"Abc");
    EXPECT_EQ(contents.Tags[1].Name, u"Orientation");
    EXPECT_EQ(contents.Tags[1].Value, order == "II" ? 6 : 0x00060000);
    EXPECT_EQ(contents.Tags[1].Text, u"6");
    EXPECT_EQ(contents.Tags[2].Name, u"ExifOffset");
    EXPECT_EQ(contents.Tags[2].Text, u"50");
    EXPECT_EQ(contents.Tags[3].Name, u"FNumber");
    EXPECT_EQ(contents.Tags[3].Value, 2.8);
    EXPECT_EQ(contents.Tags[3].Text, u"2.8");
    EXPECT_EQ(contents.Tags[4].Name, u"Tag #254");
    EXPECT_EQ(contents.Tags[4].Value, 70000);
    EXPECT_EQ(contents.Tags[4].Text, u"70000");
  }
}

TEST(ExifParser, OnlyTheMarkerWithANulStartsABlock) {
  const std::string tiff = ExifBuilder().Add(Make, Ascii, 4, "Abc").Tiff();
  EXPECT_FALSE(ParseExif("a file of another kind"));
  EXPECT_FALSE(ParseExif(tiff));
  EXPECT_FALSE(ParseExif("exif\0\0"s + tiff));
  EXPECT_FALSE(ParseExif("EXIF\0\0"s + tiff));
  EXPECT_FALSE(ParseExif("Exif\x01"s + tiff));
  EXPECT_FALSE(ParseExif(std::string(4096, ' ')));
  EXPECT_FALSE(ParseExif(std::string(5000, '\0')));
  EXPECT_EQ(TextOf(Parse("Exif Exif\1 Exi" + Marker + tiff), Make), u"Abc");
}

TEST(ExifParser, TheByteBehindTheMarkersNulIsntLookedAt) {
  const std::string tiff = ExifBuilder().Add(Make, Ascii, 4, "Abc").Tiff();
  EXPECT_EQ(TextOf(Parse("Exif\0x"s + tiff), Make), u"Abc");
}

TEST(ExifParser, TheFirstMarkerCounts) {
  const std::string first = ExifBuilder("MM").Add(Make, Ascii, 4, "One").Marked();
  const std::string second = ExifBuilder("II").Add(Make, Ascii, 4, "Two").Marked();
  const ExifContents contents = Parse(first + second);
  EXPECT_FALSE(contents.IntelByteAlignment);
  EXPECT_EQ(TextOf(contents, Make), u"One");
}

TEST(ExifParser, SurroundingsDontMatter) {
  const std::string block = ExifBuilder().Add(Make, Ascii, 4, "Abc").Marked();
  for (const std::string& front :
       {""s, "\x89PNG\r\n"s, "text "s, "\xFF\xD8\xFF\xDB"s, std::string(3000, '\0')}) {
    EXPECT_EQ(TextOf(Parse(front + block), Make), u"Abc");
  }
}

TEST(ExifParser, AnyOrderButIntelIsBigEndianAndNothingElseOfTheHeaderIsTested) {
  for (const std::string& order : {"MM"s, "ii"s, "IM"s, "\0\0"s}) {
    const ExifContents contents = Parse(ExifBuilder(order).Add(Make, Ascii, 4, "Abc").Marked());
    EXPECT_FALSE(contents.IntelByteAlignment);
    EXPECT_EQ(TextOf(contents, Make), u"Abc");
  }
  std::string other = ExifBuilder().Add(Make, Ascii, 4, "Abc").Marked();
  other.replace(8, 2, "??");
  EXPECT_EQ(TextOf(Parse(other), Make), u"Abc");
}

TEST(ExifParser, WithoutALinkTheHeaderIsTakenForADirectory) {
  const ExifContents intel = Parse(ExifBuilder("II").Add(Make, Ascii, 4, "Abc").Marked());
  ASSERT_EQ(intel.Tags.size(), 1 + EntriesOfIntelHeader);
  // From the header's third byte on: 2A 00, 08 00, 00 00 01 00, 0F 01 02 00.
  EXPECT_EQ(intel.Tags[1].Name, u"Tag #42");
  EXPECT_EQ(intel.Tags[1].Format, 8);
  EXPECT_EQ(intel.Tags[1].Count, 0x00010000);
  EXPECT_EQ(intel.Tags[1].Value, 0x0002010F);
  EXPECT_EQ(intel.Tags[1].Text, u"");
  EXPECT_EQ(intel.Tags.back(), UnreadEntry());

  const ExifContents motorola = Parse(ExifBuilder("MM").Add(Make, Ascii, 4, "Abc").Marked());
  ASSERT_EQ(motorola.Tags.size(), 1 + EntriesOfMotorolaHeader);
  EXPECT_EQ(motorola.Tags[1].Name, u"Tag #42");
  EXPECT_EQ(motorola.Tags[1].Format, 0);
  EXPECT_EQ(motorola.Tags[1].Count, 0x00080001);
  EXPECT_EQ(motorola.Tags[1].Text, u"0");
  EXPECT_EQ(motorola.Tags.back(), UnreadEntry());
}

TEST(ExifParser, EqualEntriesBehindTheHeadAreKeptAsOne) {
  const auto contents = ParseExif(ExifBuilder().Marked());
  ASSERT_TRUE(contents);
  ASSERT_LT(contents->Tags.size(), 400U);
  std::size_t entries = 0;
  for (const ExifTag& entry : contents->Tags) {
    entries += static_cast<std::size_t>(entry.Times);
  }
  EXPECT_EQ(entries, EntriesOfIntelHeader);
}

TEST(ExifParser, SingleEntriesStandInTheirOrder) {
  const auto entry = [](std::int32_t tag, std::int32_t times) {
    ExifTag result;
    result.Tag = tag;
    result.Times = times;
    return result;
  };
  EXPECT_EQ(
      SingleEntries({entry(1, 1), entry(2, 3), entry(3, 1)}),
      (std::vector<ExifTag>{entry(1, 1), entry(2, 1), entry(2, 1), entry(2, 1), entry(3, 1)}));
  EXPECT_TRUE(SingleEntries({}).empty());
}

TEST(ExifParser, AnEntryOfTheHeaderAsADirectoryCanMeanSomething) {
  // The header's entries stand at 2, 14, 26 and so on; the value of the directory's at 26.
  const ExifBuilder b;
  const std::string hidden = b.Short(Make) + b.Short(Ascii) + b.Long(4) + "Abc\0"s;
  const ExifContents contents =
      Parse(ExifBuilder().Add(Model, Ascii, 16, "\0\0\0\0"s + hidden).Marked());
  EXPECT_EQ(TextOf(contents, Make), u"(no such entry)");
  const ExifContents aligned =
      Parse(ExifBuilder().Add(Model, Ascii, 24, std::string(12, '\0') + hidden).Marked());
  EXPECT_EQ(TextOf(aligned, Make), u"Abc");
}

TEST(ExifParser, TheLastLinkOfADirectoryCounts) {
  const ExifBuilder b;
  const std::string one = b.Short(1) + b.Short(Model) + b.Short(Ascii) + b.Long(4) + "One\0"s;
  const std::string two = b.Short(1) + b.Short(Model) + b.Short(Ascii) + b.Long(4) + "Two\0"s;
  // Three entries end at 8 + 2 + 36 + 4.
  const auto withLinks = [&](int first, int second) {
    return ExifBuilder()
        .AddOffset(ExifOffset, Long, 1, static_cast<std::uint32_t>(first))
        .AddOffset(ExifOffset, Long, 1, static_cast<std::uint32_t>(second))
        .Add(Make, Ascii, 28, one + two)
        .Marked();
  };
  EXPECT_EQ(TextOf(Parse(withLinks(50, 64)), Model), u"Two");
  EXPECT_EQ(TextOf(Parse(withLinks(64, 50)), Model), u"One");
}

TEST(ExifParser, EntriesBehindALinkAreStillRead) {
  const ExifBuilder b;
  const ExifContents contents =
      Parse(ExifBuilder().AddOffset(ExifOffset, Long, 1, 8).Add(Make, Ascii, 4, "Abc").Marked());
  // The link leads back to its own directory: once more, and no further.
  ASSERT_EQ(contents.Tags.size(), 4U);
  EXPECT_EQ(contents.Tags[1].Text, u"Abc");
  EXPECT_EQ(contents.Tags[3], contents.Tags[1]);
}

TEST(ExifParser, ALinkIsTheNumberAtTheStartOfItsText) {
  const ExifBuilder b;
  const std::string directory = b.Short(1) + b.Short(Model) + b.Short(Ascii) + b.Long(4) + "Abc\0"s;
  // Behind a directory of two: 8 + 2 + 24 + 4.
  const auto withLink = [&](int format, std::uint32_t count, const std::string& value) {
    return Parse(ExifBuilder()
                     .Add(Make, Undefined, 14, directory)
                     .Add(ExifOffset, format, count, value)
                     .Marked());
  };
  EXPECT_EQ(TextOf(withLink(Long, 1, b.Long(38)), Model), u"Abc");
  EXPECT_EQ(TextOf(withLink(Short, 1, b.Short(38)), Model), u"Abc");
  EXPECT_EQ(TextOf(withLink(Long, 2, b.Long(38) + b.Long(0)), Model), u"Abc");
  EXPECT_EQ(TextOf(withLink(Ascii, 3, "38"), Model), u"Abc");
  EXPECT_EQ(TextOf(withLink(Ascii, 10, " 38.2 & so"), Model), u"Abc");
  EXPECT_EQ(TextOf(withLink(Ascii, 4, "37.5"), Model), u"Abc");
  EXPECT_EQ(TextOf(withLink(Rational, 1, b.Rational(38, 7)), Model), u"Abc");
  // No text, or one that is no number, is 0 and so the header.
  EXPECT_EQ(withLink(99, 1, b.Long(38)).Tags.size(), 2 + EntriesOfIntelHeader);
  EXPECT_EQ(withLink(Ascii, 4, "x38").Tags.size(), 2 + EntriesOfIntelHeader);
}

TEST(ExifParser, ALinkMayLeadInFrontOfTheHeader) {
  const ExifBuilder b;
  const std::string directory = b.Short(1) + b.Short(Model) + b.Short(Ascii) + b.Long(4) + "Abc\0"s;
  const auto withLink = [&](const std::string& text) {
    const auto count = static_cast<std::uint32_t>(text.size());
    return Parse(directory + ExifBuilder().Add(ExifOffset, Ascii, count, text).Marked());
  };
  EXPECT_EQ(TextOf(withLink("-20"), Model), u"Abc");
  EXPECT_EQ(withLink("-21").Tags.size(), 1U);
  EXPECT_EQ(withLink("-9999").Tags.size(), 1U);
  EXPECT_EQ(withLink("-1e300").Tags.size(), 1U);
}

TEST(ExifParser, TheInteroperabilityDirectoryIsntRead) {
  const ExifBuilder b;
  ExifBuilder block;
  block.Add(Make, Ascii, 4, "Abc").AddExif(InteroperabilityOffset, Long, 1, b.Long(8));
  const ExifContents contents = Parse(block.Marked());
  ASSERT_EQ(contents.Tags.size(), 3U);
  EXPECT_EQ(contents.Tags[2].Name, u"ExifInteroperabilityOffset");
  EXPECT_EQ(contents.Tags[2].Text, u"8");
}

TEST(ExifParser, TheDirectoryOfTheThumbnailIsntRead) {
  const ExifBuilder b;
  std::string block = ExifBuilder().AddExif(Make, Ascii, 4, "Abc").Marked();
  const std::string thumbnail = b.Short(1) + b.Short(Model) + b.Short(Ascii) + b.Long(4) + "Abc\0"s;
  block.replace(6 + 8 + 2 + 12, 4, b.Long(static_cast<std::int64_t>(block.size()) - 6));
  EXPECT_EQ(Parse(block + thumbnail).Tags.size(), 2U);
}

TEST(ExifParser, DatesHaveSlashesInTheirFirstTwoPlaces) {
  const std::string_view date = "2004:05:06 12:34:56\0"sv;
  for (const int tag : {0x9003, 0x9004, 0x0132}) {
    const auto textOf = [&](std::string_view value) {
      const auto count = static_cast<std::uint32_t>(value.size());
      return Parse(ExifBuilder().Add(tag, Ascii, count, value).Marked()).Tags.front().Text;
    };
    EXPECT_EQ(textOf(date), u"2004/05/06 12:34:56");
    EXPECT_EQ(textOf("0000:00:00 00:00:00\0"sv), u"0000/00/00 00:00:00");
    EXPECT_EQ(textOf("2004-05-06 12:34:56\0"sv), u"2004-05-06 12/34/56");
    EXPECT_EQ(textOf("a:b"), u"a/b");
    EXPECT_EQ(textOf(":::"), u"//:");
    EXPECT_EQ(textOf(""), u"");
  }
  EXPECT_EQ(TextOf(Parse(ExifBuilder().Add(Make, Ascii, 20, date).Marked()), Make),
            u"2004:05:06 12:34:56");
}

TEST(ExifParser, DatesInBothDirectoriesAreChanged) {
  const ExifContents contents = Parse(ExifBuilder()
                                          .Add(0x0132, Ascii, 20, "2001:02:03 04:05:06\0"sv)
                                          .AddExif(0x9003, Ascii, 20, "2004:05:06 12:34:56\0"sv)
                                          .Jpeg());
  EXPECT_EQ(TextOf(contents, 0x0132), u"2001/02/03 04:05:06");
  EXPECT_EQ(TextOf(contents, 0x9003), u"2004/05/06 12:34:56");
}

TEST(ExifParser, TheSameEntryTwiceIsKeptTwice) {
  const ExifContents contents =
      Parse(ExifBuilder().Add(Make, Ascii, 4, "One").AddExif(Make, Ascii, 4, "Two").Marked());
  ASSERT_EQ(contents.Tags.size(), 3U);
  EXPECT_EQ(contents.Tags[0].Text, u"One");
  EXPECT_EQ(contents.Tags[2].Text, u"Two");
}

}  // namespace
}  // namespace vorlane
