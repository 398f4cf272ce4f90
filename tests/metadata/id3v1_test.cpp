#include "metadata/id3v1.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "support/id3_bytes.h"

namespace vorlane {
namespace {

using id3::Byte;
using id3::Nuls;
using id3::Padded;
using id3::V1;

TEST(ParseID3v1, FieldsByPosition) {
  const ID3Tag tag = ParseID3v1(V1(std::string(30, 't'), std::string(30, 'a'), std::string(30, 'l'),
                                   "1999", std::string(29, 'c'), 7, 17));
  EXPECT_TRUE(tag.Present);
  EXPECT_EQ(tag.Title, Text(30, u't'));
  EXPECT_EQ(tag.Artist, Text(30, u'a'));
  EXPECT_EQ(tag.Album, Text(30, u'l'));
  EXPECT_EQ(tag.Year, u"1999");
  EXPECT_EQ(tag.Comment, Text(29, u'c'));
  EXPECT_EQ(tag.Track, u"07");
  EXPECT_EQ(tag.Genre, 17);
  EXPECT_FALSE(tag.Unicode);
}

TEST(ParseID3v1, NeedsTheMarkAndAllBytes) {
  const std::string tag = V1("t", "a", "l", "1999", "c", 7, 17);
  EXPECT_TRUE(ParseID3v1(tag).Present);
  EXPECT_EQ(ParseID3v1(tag.substr(0, 127)), ID3Tag{});
  EXPECT_EQ(ParseID3v1(""), ID3Tag{});
  for (const std::string mark : {"tAG", "TaG", "TAg", "TAC"}) {
    EXPECT_EQ(ParseID3v1(mark + tag.substr(3)), ID3Tag{}) << mark;
  }
}

TEST(ParseID3v1, EmptyTagIsPresent) {
  ID3Tag empty;
  empty.Present = true;
  empty.Track = u"00";
  EXPECT_EQ(ParseID3v1("TAG" + Nuls(125)), empty);
}

TEST(ParseID3v1, CleansEachField) {
  struct Case {
    std::string Field;
    Text Result;
  };
  const Case cases[] = {
      {"  ab  ", u"ab"},
      {Padded("ab", 30), u"ab"},
      {"ab  " + Nuls(1) + "cd", u"ab"},
      {"  ab" + Nuls(1) + "cd  ", u"ab"},
      {Nuls(1) + "ab", u""},
      {"  " + Nuls(1) + "ab", u""},
      {"a b", u"a b"},
      {"\tab\t", u"\tab\t"},
      {std::string(30, ' '), u""},
      {"\xE4\x80\x81", u"\u00E4\u20AC\u0081"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(ParseID3v1(V1(c.Field, "", "", "", "", 0, 0)).Title, c.Result);
    EXPECT_EQ(ParseID3v1(V1("", c.Field, "", "", "", 0, 0)).Artist, c.Result);
    EXPECT_EQ(ParseID3v1(V1("", "", c.Field, "", "", 0, 0)).Album, c.Result);
    EXPECT_EQ(ParseID3v1(V1("", "", "", "", c.Field.substr(0, 29), 0, 0)).Comment, c.Result);
  }
  EXPECT_EQ(ParseID3v1(V1("", "", "", " 99 ", "", 0, 0)).Year, u"99");
  EXPECT_EQ(ParseID3v1(V1("", "", "", "9" + Nuls(1) + "99", "", 0, 0)).Year, u"9");
}

TEST(ParseID3v1, TrackIsAlwaysTheSameByte) {
  EXPECT_EQ(ParseID3v1(V1("", "", "", "", "", 0, 0)).Track, u"00");
  EXPECT_EQ(ParseID3v1(V1("", "", "", "", "", 7, 0)).Track, u"07");
  EXPECT_EQ(ParseID3v1(V1("", "", "", "", "", 12, 0)).Track, u"12");
  EXPECT_EQ(ParseID3v1(V1("", "", "", "", "", 200, 0)).Track, u"200");
  // The older layout has a comment of 30: its last character reads as a track.
  const ID3Tag old = ParseID3v1(V1("", "", "", "", std::string(29, 'x'), 'y', 0));
  EXPECT_EQ(old.Comment, Text(29, u'x'));
  EXPECT_EQ(old.Track, u"121");
}

TEST(ParseID3v1, GenreIsAByte) {
  EXPECT_EQ(ParseID3v1(V1("", "", "", "", "", 0, 255)).Genre, 255);
}

ID3Tag Filled() {
  ID3Tag tag;
  tag.Present = true;
  tag.Artist = u"Artist";
  tag.Title = u"Title";
  tag.Album = u"Album";
  tag.Track = u"07";
  tag.Comment = u"Comment";
  tag.Year = u"1999";
  tag.Genre = 17;
  return tag;
}

int ErrorOf(const ID3Tag& tag) {
  try {
    BuildID3v1(tag);
    return 0;
  } catch (const RunError& error) {
    return error.Number();
  }
}

TEST(BuildID3v1, YearAndGenreAreNeverWritten) {
  EXPECT_EQ(BuildID3v1(Filled()), V1("Title", "Artist", "Album", "", "Comment", 7, 0));
}

TEST(BuildID3v1, ReadBackYearIsEmptyAndGenreZero) {
  ID3Tag expected = Filled();
  expected.Year = u"";
  expected.Genre = 0;
  EXPECT_EQ(ParseID3v1(BuildID3v1(Filled())), expected);
}

TEST(BuildID3v1, LongTextsAreCut) {
  ID3Tag tag = Filled();
  tag.Artist = Text(30, u'a') + u"b";
  tag.Title = Text(30, u't') + u"b";
  tag.Album = Text(30, u'l') + Text(1000, u'b');
  EXPECT_EQ(BuildID3v1(tag), V1(std::string(30, 't'), std::string(30, 'a'), std::string(30, 'l'),
                                "", "Comment", 7, 0));
}

TEST(BuildID3v1, CommentOf29IsTheLongest) {
  ID3Tag tag = Filled();
  tag.Comment = Text(29, u'c');
  EXPECT_EQ(BuildID3v1(tag), V1("Title", "Artist", "Album", "", std::string(29, 'c'), 7, 0));
  for (const std::size_t length : {30U, 31U, 1000U}) {
    tag.Comment = Text(length, u'c');
    EXPECT_EQ(ErrorOf(tag), 5) << length;
  }
}

TEST(BuildID3v1, TrackByte) {
  struct Case {
    Text Track;
    unsigned Byte;
  };
  const Case cases[] = {{u"", 0},      {u"0", 0},     {u"00", 0},    {u"7", 7},   {u"255", 255},
                        {u" 12 ", 12}, {u"1E2", 100}, {u"&H1F", 31}, {u"2.5", 2}, {u"3.5", 4}};
  for (const Case& c : cases) {
    ID3Tag tag = Filled();
    tag.Track = c.Track;
    EXPECT_EQ(BuildID3v1(tag), V1("Title", "Artist", "Album", "", "Comment", c.Byte, 0)) << c.Byte;
  }
}

TEST(BuildID3v1, TrackThatIsNoByte) {
  struct Case {
    Text Track;
    int Error;
  };
  const Case cases[] = {{u"a", 13}, {u"3/12", 13}, {u" ", 13},   {u"256", 5},
                        {u"-1", 5}, {u"32767", 5}, {u"99999", 6}};
  for (const Case& c : cases) {
    ID3Tag tag = Filled();
    tag.Track = c.Track;
    EXPECT_EQ(ErrorOf(tag), c.Error);
  }
}

TEST(BuildID3v1, OneByteACharacter) {
  ID3Tag tag = Filled();
  tag.Artist = u"\u00E4\u20AC\u0081";
  tag.Title = u"\u65E5\U0001F600x";
  tag.Album = Text(1, u'\0') + u"a";
  EXPECT_EQ(BuildID3v1(tag), V1("?\?\?x", "\xE4\x80\x81", Nuls(1) + "a", "", "Comment", 7, 0));
}

}  // namespace
}  // namespace vorlane
