#include "metadata/tag_text.h"

#include <gtest/gtest.h>

#include "platform/failure.h"

namespace vorlane {
namespace {

template <typename Steps>
int ErrorOf(Steps&& steps) {
  try {
    steps();
    return 0;
  } catch (const RunError& error) {
    return error.Number();
  }
}

ID3Tag Example() {
  ID3Tag tag;
  tag.Present = true;
  tag.Artist = u"AB";
  tag.Title = u"CD";
  tag.Track = u"07";
  tag.Year = u"1999";
  return tag;
}

TEST(TagToString, NineFields) {
  EXPECT_EQ(TagToString(Example(), 1), u"1|-1|4142|4344||07||1999|0");
  ID3Tag tag = Example();
  tag.Album = u"\u00E4 |";
  tag.Comment = Text(1, u'\n') + Text(1, u'\0');
  tag.Genre = -5;
  tag.Unicode = true;
  EXPECT_EQ(TagToString(tag, 2), u"2|-1|4142|4344|E4207C|07|0A00|1999|-5");
  EXPECT_EQ(TagToString(ID3Tag{}, 2), u"2|0|||||||0");
}

TEST(TagToString, CharacterWithoutAByteIsAQuestionMark) {
  ID3Tag tag = Example();
  tag.Artist = u"\u65E5\u20AC";
  EXPECT_EQ(TagToString(tag, 2), u"2|-1|3F80|4344||07||1999|0");
}

TEST(TagToString, TrackAndYearStandAsTheyAre) {
  ID3Tag tag = Example();
  tag.Track = u" 7";
  tag.Year = u"19|99";
  EXPECT_EQ(TagToString(tag, 1), u"1|-1|4142|4344|| 7||19|99|0");
}

TEST(StringToTag, ReadsWhatTagToStringWrote) {
  ID3Tag tag = Example();
  tag.Album = u"|\u20AC\u0081\r\n";
  tag.Comment = Text(1, u'\0') + u"x";
  tag.Genre = 32767;
  for (const int version : {1, 2}) {
    const VersionedTag read = StringToTag(TagToString(tag, version));
    EXPECT_EQ(read.Tag, tag);
    EXPECT_EQ(read.Version, version);
  }
  EXPECT_EQ(StringToTag(TagToString(ID3Tag{}, 1)).Tag, ID3Tag{});
}

TEST(StringToTag, UnicodeIsNotKept) {
  ID3Tag tag = Example();
  tag.Unicode = true;
  EXPECT_FALSE(StringToTag(TagToString(tag, 2)).Tag.Unicode);
}

TEST(StringToTag, SeparatorInTheYearShiftsTheFields) {
  ID3Tag tag = Example();
  tag.Year = u"19|99";
  tag.Genre = 17;
  const ID3Tag read = StringToTag(TagToString(tag, 1)).Tag;
  EXPECT_EQ(read.Year, u"19");
  EXPECT_EQ(read.Genre, 99);
  tag.Year = u"19|xx";
  EXPECT_EQ(ErrorOf([&] { StringToTag(TagToString(tag, 1)); }), 13);
}

TEST(StringToTag, BrokenLines) {
  struct Case {
    Text Line;
    int Error;
  };
  const Case cases[] = {
      {u"", 9},
      {u"1|-1|4142|4344||07||1999", 9},
      {u"1|-1|4142|4344||07||1999|0", 0},
      {u"1|-1|4142|4344||07||1999|0|more|and more", 0},
      {u"x|-1|4142|4344||07||1999|0", 13},
      {u"|-1|4142|4344||07||1999|0", 13},
      {u"99999|-1|4142|4344||07||1999|0", 6},
      {u"1||4142|4344||07||1999|0", 13},
      {u"1|yes|4142|4344||07||1999|0", 13},
      {u"1|-1|414G|4344||07||1999|0", 13},
      {u"1|-1|4142|4344||07||1999|", 13},
      {u"1|-1|4142|4344||07||1999|x", 13},
      {u"1|-1|4142|4344||07||1999|40000", 6},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(ErrorOf([&] { StringToTag(c.Line); }), c.Error);
  }
}

TEST(StringToTag, AnyNumberButZeroIsTrue) {
  EXPECT_TRUE(StringToTag(u"1|1|||||||0").Tag.Present);
  EXPECT_FALSE(StringToTag(u"1|00|||||||0").Tag.Present);
}

TEST(Hex, BothWays) {
  EXPECT_EQ(StringToHex(u""), u"");
  EXPECT_EQ(StringToHex(Text(1, u'\0') + u"\nAz\u00FF\u20AC\u65E5"), u"000A417AFF803F");
  EXPECT_EQ(HexToString(u""), u"");
  EXPECT_EQ(HexToString(u"000A417AFF803F"), Text(1, u'\0') + u"\nAz\u00FF\u20AC?");
  EXPECT_EQ(HexToString(u"fFaB"), u"\u00FF\u00AB");
  EXPECT_EQ(HexToString(u"414"), u"A\u0004");
}

TEST(Hex, EveryByte) {
  Text digits;
  for (const char16_t high : TextView(u"0123456789ABCDEF")) {
    for (const char16_t low : TextView(u"0123456789ABCDEF")) {
      digits += high;
      digits += low;
    }
  }
  const Text text = HexToString(digits);
  EXPECT_EQ(text.size(), 256U);
  EXPECT_EQ(StringToHex(text), digits);
}

}  // namespace
}  // namespace vorlane
