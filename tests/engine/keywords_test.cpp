#include "engine/keywords.h"

#include <gtest/gtest.h>

#include "engine/replacing.h"
#include "platform/file_name_bytes.h"
#include "platform/letter_case.h"
#include "support/counting_loop.h"
#include "support/fake_facts.h"

namespace vorlane {
namespace {

using Call = FakeFacts::Call;

struct Entry {
  FakeFacts Facts = {};
  PathStyle Paths = PathStyle::Windows;
  Text Path = u"C:\\Music\\Rock\\";
  Text FileName = u"a b.mp3";
  std::int32_t AutoNumber = 7;
  std::int32_t RowCount = 120;
  bool WasNumbered = false;

  Text operator()(Text work) {
    CountingLoop loop;
    EvaluationContext context{Facts, loop, Paths};
    WasNumbered = ReplaceFileKeywords(work, {Path, FileName, AutoNumber, RowCount}, context);
    return work;
  }
};

TEST(FileKeywords, SayWhatTheEntrySays) {
  const struct {
    Text keyword, value;
  } cases[] = {
      {u"<FILECREATIONTIME>", u"3:45:12 PM"},
      {u"<FILECREATIONDATE>", u"11/15/2026"},
      {u"<FILELASTMODIFIEDTIME>", u"9:05:07 AM"},
      {u"<FILELASTMODIFIEDDATE>", u"1/2/2025"},
      {u"<FILESIZE>", u"1.5"},
      {u"<IMAGEMAKE>", u"Acme"},
      {u"<IMAGETIME>", u"12:34:56 PM"},
      {u"<IMAGEDATE>", u"5/6/2004"},
      {u"<LOCALTIME>", u"11:59:58 PM"},
      {u"<LOCALDATE>", u"6/30/2027"},
      {u"<FILENAME>", u"a b.mp3"},
      {u"<NAMEONLY>", u"a b"},
      {u"<EXTONLY>", u".mp3"},
      {u"<AUTONUMBER>", u"007"},
      {u"<FOLDERNAME>", u"Rock"},
      {u"<PARENTFOLDERNAME>", u"Music"},
      {u"<PARENTPARENTFOLDERNAME>", u"C:"},
  };
  Entry entry;
  Text all;
  Text allValues;
  for (const auto& c : cases) {
    EXPECT_EQ(entry(c.keyword), c.value) << DisplayUtf8(c.keyword);
    EXPECT_EQ(entry(c.keyword + u"," + c.keyword), c.value + u"," + c.value);
    EXPECT_EQ(entry(LowerCase(c.keyword)), LowerCase(c.keyword));
    all = c.keyword + u"," + all;
    allValues = c.value + u"," + allValues;
  }
  EXPECT_EQ(entry(all), allValues);
}

TEST(FileKeywords, OtherTextStays) {
  Entry entry;
  for (const TextView text : {u"", u"abc", u"<", u"<>", u"<FOO>", u"<NAMEONLY", u"NAMEONLY>",
                              u"<ARTIST>", u"<KBIT>", u"<BOX1>", u"<MID>a</MID>"}) {
    EXPECT_EQ(entry(Text(text)), text) << DisplayUtf8(text);
  }
  EXPECT_TRUE(entry.Facts.Calls.empty());
}

TEST(FileKeywords, AFactIsAskedForOnlyIfItsKeywordOccurs) {
  const Text path = u"C:\\Music\\Rock\\a b.mp3";
  const struct {
    Text work;
    std::vector<Call> calls;
  } cases[] = {
      {u"<FILENAME><NAMEONLY><EXTONLY><AUTONUMBER><FOLDERNAME><PARENTFOLDERNAME>", {}},
      {u"<FILESIZE>", {{u"FileLength", path}}},
      {u"<FILESIZE><FILESIZE>", {{u"FileLength", path}}},
      {u"<IMAGEMAKE>", {{u"ExifValue 271", path}}},
      {u"<LOCALTIME>", {{u"Now", u""}}},
      // A date of the file or picture once for both of its keywords.
      {u"<FILECREATIONDATE>", {{u"Created", path}}},
      {u"<FILECREATIONDATE><FILECREATIONTIME>", {{u"Created", path}}},
      {u"<FILELASTMODIFIEDTIME><FILELASTMODIFIEDDATE>", {{u"Written", path}}},
      {u"<FILELASTMODIFIEDTIME><FILECREATIONTIME>", {{u"Created", path}, {u"Written", path}}},
      {u"<IMAGEDATE><IMAGETIME>", {{u"ImageDateOf", path}}},
  };
  for (const auto& c : cases) {
    Entry entry;
    entry(c.work);
    EXPECT_EQ(entry.Facts.Calls, c.calls) << DisplayUtf8(c.work);
  }
}

TEST(FileKeywords, AFactThatFailsIsAskedForOnceToo) {
  Entry entry;
  entry.Facts.Created = std::nullopt;
  entry.Facts.ImageDate = std::nullopt;
  entry(u"<FILECREATIONDATE><FILECREATIONTIME><IMAGEDATE><IMAGETIME>");
  EXPECT_EQ(entry.Facts.Calls.size(), 2U);
}

TEST(FileKeywords, EachCallAsksAnew) {
  Entry entry;
  EXPECT_EQ(entry(u"<LOCALDATE>"), u"6/30/2027");
  entry.Facts.Time = *MakeDateTime(2027, 7, 1, 0, 0, 0);
  EXPECT_EQ(entry(u"<LOCALDATE>"), u"7/1/2027");
  EXPECT_EQ(entry(u"<LOCALTIME>"), u"12:00:00 AM");
  EXPECT_EQ(entry(u"<FILECREATIONDATE>"), u"11/15/2026");
  entry.Facts.Created = MakeDateTime(1999, 12, 31, 1, 2, 3);
  EXPECT_EQ(entry(u"<FILECREATIONDATE>"), u"12/31/1999");
}

TEST(FileKeywords, WhatCannotBeHadLeavesItsKeyword) {
  Entry entry;
  entry.Facts.Length = std::nullopt;
  entry.Facts.Created = std::nullopt;
  entry.Facts.Written = std::nullopt;
  entry.Facts.Make = std::nullopt;
  for (const TextView keyword :
       {u"<FILESIZE>", u"<FILECREATIONTIME>", u"<FILECREATIONDATE>", u"<FILELASTMODIFIEDTIME>",
        u"<FILELASTMODIFIEDDATE>", u"<IMAGEMAKE>"}) {
    EXPECT_EQ(entry(Text(keyword) + u",<NAMEONLY>"), Text(keyword) + u",a b");
  }
}

TEST(FileKeywords, AnImageWithoutMakeHasNone) {
  Entry entry;
  entry.Facts.Make = u"";
  EXPECT_EQ(entry(u"a<IMAGEMAKE>b"), u"ab");
}

TEST(FileKeywords, AnEntryThatCannotBeOpenedIsOfMidnight) {
  Entry entry;
  entry.Facts.Created = DateTime{};
  entry.Facts.Written = DateTime{};
  for (const TextView keyword : {u"<FILECREATIONTIME>", u"<FILECREATIONDATE>",
                                 u"<FILELASTMODIFIEDTIME>", u"<FILELASTMODIFIEDDATE>"}) {
    EXPECT_EQ(entry(Text(keyword)), u"12:00:00 AM");
  }
}

TEST(FileKeywords, ADateAtMidnightHasBothParts) {
  Entry entry;
  entry.Facts.Created = MakeDateTime(2026, 11, 15, 0, 0, 0);
  EXPECT_EQ(entry(u"<FILECREATIONTIME>"), u"12:00:00 AM");
  EXPECT_EQ(entry(u"<FILECREATIONDATE>"), u"11/15/2026");
}

TEST(FileKeywords, ImageDatesAreEmptyIfThereIsNone) {
  Entry entry;
  for (const auto& text :
       {std::optional<Text>(), std::optional<Text>(u""), std::optional<Text>(u"x"),
        std::optional<Text>(u"0000/00/00 00:00:00"), std::optional<Text>(u"2004")}) {
    entry.Facts.ImageDate = text;
    EXPECT_EQ(entry(u"a<IMAGETIME>b<IMAGEDATE>c"), u"abc");
  }
  entry.Facts.ImageDate = u"2004/05/06";
  EXPECT_EQ(entry(u"<IMAGETIME>,<IMAGEDATE>"), u"12:00:00 AM,5/6/2004");
  entry.Facts.ImageDate = u"1:02 PM";
  EXPECT_EQ(entry(u"<IMAGETIME>,<IMAGEDATE>"), u"1:02:00 PM,12:00:00 AM");
}

TEST(FileKeywords, NamesAndExtensions) {
  const struct {
    Text name, nameOnly, extOnly;
  } cases[] = {
      {u"readme", u"readme", u""},     {u"archive.tar.gz", u"archive.tar", u".gz"},
      {u".profile", u".profile", u""}, {u"a.", u"a", u""},
      {u"..a", u".", u".a"},           {u"song.MP3", u"song", u".MP3"},
      {u"a.b c", u"a", u".b c"},
  };
  for (const auto& c : cases) {
    Entry entry{.FileName = c.name};
    EXPECT_EQ(entry(u"<NAMEONLY>|<EXTONLY>|<FILENAME>"),
              c.nameOnly + u"|" + c.extOnly + u"|" + c.name);
  }
}

TEST(FileKeywords, FoldersInBothStyles) {
  const struct {
    PathStyle style;
    Text path, names;
  } cases[] = {
      {PathStyle::Windows, u"C:\\Music\\Rock\\", u"Rock|Music|C:"},
      {PathStyle::Windows, u"C:\\Rock\\", u"Rock|C:|"},
      {PathStyle::Windows, u"C:\\", u"C:||"},
      {PathStyle::Posix, u"/srv/Music/Rock/", u"Rock|Music|srv"},
      {PathStyle::Posix, u"/R/", u"R||"},
      {PathStyle::Posix, u"/", u"||"},
      {PathStyle::Posix, u"/a\\b/", u"a\\b||"},
  };
  for (const auto& c : cases) {
    Entry entry{.Paths = c.style, .Path = c.path};
    EXPECT_EQ(entry(u"<FOLDERNAME>|<PARENTFOLDERNAME>|<PARENTPARENTFOLDERNAME>"), c.names)
        << DisplayUtf8(c.path);
  }
}

TEST(FileKeywords, AValueThatHoldsALaterKeywordIsExpanded) {
  Entry entry{.FileName = u"<EXTONLY><FILENAME><LOCALDATE>.x"};
  // "<FILENAME>" is replaced before "<EXTONLY>", and behind "<LOCALDATE>".
  EXPECT_EQ(entry(u"<FILENAME>"), u".x<FILENAME><LOCALDATE>.x");
  EXPECT_EQ(entry(u"<NAMEONLY>"), u".x<FILENAME><LOCALDATE>");
  // A value can make a keyword together with the text around it.
  entry.Facts.Make = u"FILENAME";
  entry.FileName = u"a.b";
  EXPECT_EQ(entry(u"<<IMAGEMAKE>>"), u"a.b");
  entry.Facts.Make = u"FILESIZE";
  EXPECT_EQ(entry(u"<<IMAGEMAKE>>"), u"<FILESIZE>");
}

TEST(FileKeywords, TellWhetherTheNumberWasPutIn) {
  Entry entry;
  entry(u"<AUTONUMBER>");
  EXPECT_TRUE(entry.WasNumbered);
  entry(u"<NAMEONLY>");
  EXPECT_FALSE(entry.WasNumbered);
  entry(u"<autonumber>");
  EXPECT_FALSE(entry.WasNumbered);
  entry.FileName = u"<AUTONUMBER>";
  EXPECT_EQ(entry(u"<FILENAME>"), u"007");
  EXPECT_TRUE(entry.WasNumbered);
}

TEST(FileKeywords, AReplacementThatWouldGrowTooLongLeavesItsKeyword) {
  Entry entry;
  Text many;
  for (int i = 0; i < 1'000; ++i) {
    many += u"<FILENAME>";
  }
  entry.Facts.Make = many;
  entry.FileName.assign(1'000, u'a');
  EXPECT_EQ(entry(u"<IMAGEMAKE>"), many);
}

Text TagsOf(const ID3Tag& tag, Text work, FakeFacts& facts) {
  ReplaceTagKeywords(work, tag, u"C:\\a.mp3", facts);
  return work;
}

const ID3Tag SomeTag = {.Present = true,
                        .Artist = u"Someone",
                        .Title = u"Song",
                        .Album = u"Disc",
                        .Track = u"07",
                        .Comment = u"nice",
                        .Year = u"1999"};

TEST(TagKeywords, SayWhatTheTagSays) {
  FakeFacts facts;
  EXPECT_EQ(TagsOf(SomeTag, u"<ARTIST>|<TITLE>|<ALBUM>|<COMMENTS>|<TRACK>|<KBIT>", facts),
            u"Someone|Song|Disc|nice|07|128");
  EXPECT_EQ(TagsOf(SomeTag, u"<TITLE><TITLE><artist><YEAR><COMMENT>", facts),
            u"SongSong<artist><YEAR><COMMENT>");
}

TEST(TagKeywords, AreEmptyWithoutATag) {
  FakeFacts facts;
  ID3Tag absent = SomeTag;
  absent.Present = false;
  EXPECT_EQ(TagsOf(absent, u"<ARTIST>|<TITLE>|<ALBUM>|<COMMENTS>|<TRACK>|<KBIT>", facts),
            u"|||||128");
}

TEST(TagKeywords, GoInTheirOrder) {
  FakeFacts facts;
  ID3Tag tag = SomeTag;
  tag.Artist = u"<TITLE>";
  tag.Title = u"<ALBUM><ARTIST>";
  tag.Album = u"<COMMENTS>";
  tag.Comment = u"<TRACK><ALBUM>";
  tag.Track = u"<KBIT><COMMENTS>";
  EXPECT_EQ(TagsOf(tag, u"<ARTIST>", facts), u"128<COMMENTS><ALBUM><ARTIST>");
}

TEST(TagKeywords, TheBitRateIsAskedForOnlyIfItsKeywordOccurs) {
  FakeFacts facts;
  TagsOf(SomeTag, u"<ARTIST>", facts);
  EXPECT_TRUE(facts.Calls.empty());
  TagsOf(SomeTag, u"<KBIT><KBIT>", facts);
  EXPECT_EQ(facts.Calls, (std::vector<Call>{{u"GetKbit", u"C:\\a.mp3"}}));
}

TEST(TagKeywords, ABitRateThatCannotBeHadLeavesItsKeyword) {
  FakeFacts facts;
  facts.Kbit = std::nullopt;
  EXPECT_EQ(TagsOf(SomeTag, u"<KBIT><ARTIST>", facts), u"<KBIT>Someone");
  facts.Kbit = std::int16_t{0};
  EXPECT_EQ(TagsOf(SomeTag, u"<KBIT>", facts), u"0");
}

TEST(TagKeywords, FieldsOfHostileFilesDoNotGrowTheText) {
  FakeFacts facts;
  ID3Tag tag = SomeTag;
  for (int i = 0; i < 10'000; ++i) {
    tag.Artist += u"<TITLE>";
    tag.Title += u"<ALBUM>";
    tag.Album += u"<COMMENTS>";
  }
  EXPECT_LE(TagsOf(tag, u"<ARTIST>", facts).size(), LongestText);
}

}  // namespace
}  // namespace vorlane
