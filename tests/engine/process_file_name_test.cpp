#include "engine/process_file_name.h"

#include <gtest/gtest.h>

#include "platform/file_name_bytes.h"
#include "support/counting_loop.h"
#include "support/fake_facts.h"

namespace vorlane {
namespace {

// One entry and all that a caller passes for it.
struct Entry {
  FakeFacts Facts = {};
  PathStyle Paths = PathStyle::Windows;
  Text FileName = u"song.mp3";
  Text Path = u"C:\\Music\\";
  ID3Tag TagV1 = {};
  ID3Tag TagV2 = {};
  std::int32_t AutoNumber = 7;
  std::int32_t RowCount = 120;
  bool AllowTagSteps = false;
  bool AllowFolderSteps = false;
  BoxValues Boxes = {};
  bool WasNumbered = false;

  Text operator()(TextView code) {
    CountingLoop loop;
    EvaluationContext context{Facts, loop, Paths};
    return ProcessFileName({.Code = code,
                            .FileName = FileName,
                            .Path = Path,
                            .TagV1 = TagV1,
                            .TagV2 = TagV2,
                            .AutoNumber = AutoNumber,
                            .AllowTagSteps = AllowTagSteps,
                            .AllowFolderSteps = AllowFolderSteps,
                            .Boxes = Boxes,
                            .RowCount = RowCount},
                           context, &WasNumbered);
  }

  void ShowBox(std::size_t number, TextView value) {
    Boxes.Visible[number - 1] = true;
    Boxes.Values[number - 1] = value;
  }
};

ID3Tag TagOf(TextView artist) {
  ID3Tag tag;
  tag.Present = true;
  tag.Artist = artist;
  tag.Title = u"Song";
  tag.Year = u"1999";
  tag.Genre = 17;
  return tag;
}

TEST(ProcessFileName, ACodeWithoutBracketsGivesNothing) {
  Entry process;
  for (const TextView code : {u"", u"new name", u"a < b", u"a > b", u"<NAMEONLY", u"NAMEONLY>"}) {
    EXPECT_EQ(process(code), u"") << DisplayUtf8(code);
  }
  // The two brackets needn't make a tag.
  EXPECT_EQ(process(u"> a <"), u"> a <");
}

TEST(ProcessFileName, TrimsTheCodeAlone) {
  Entry process{.FileName = u"  a b  .txt"};
  EXPECT_EQ(process(u"  <NAMEONLY>  "), u"  a b  ");
  EXPECT_EQ(process(u" \t<EXTONLY> "), u"\t.txt");
}

TEST(ProcessFileName, BoxesComeFirst) {
  Entry process;
  process.ShowBox(1, u"plain text");
  EXPECT_EQ(process(u"<BOX1>"), u"plain text");
  process.ShowBox(1, u"  spaces stay ");
  EXPECT_EQ(process(u" <BOX1> "), u"  spaces stay ");
  process.ShowBox(1, u"");
  EXPECT_EQ(process(u"<BOX1>"), u"");
  process.ShowBox(1, u"<NAMEONLY>");
  EXPECT_EQ(process(u"<BOX1>"), u"song");
  process.ShowBox(1, u"<UPPERCASE><BOX2></UPPERCASE>");
  process.ShowBox(2, u"<NAMEONLY>");
  EXPECT_EQ(process(u"<BOX1>"), u"SONG");
  // The value goes in before the fields are split.
  process.ShowBox(1, u"a|b");
  EXPECT_EQ(process(u"<TRY><BOX1>|c</TRY>"), u"a");
  EXPECT_EQ(process(u"<TRY>|<BOX1></TRY>"), u"a");
}

TEST(ProcessFileName, ABoxThatIsNotShownStays) {
  Entry process;
  process.Boxes.Values[0] = u"hidden";
  EXPECT_EQ(process(u"<BOX1><NAMEONLY>"), u"<BOX1>song");
  EXPECT_EQ(process(u"<TRY><BOX1>|none</TRY>"), u"none");
}

TEST(ProcessFileName, TagStepsNeedTheirSwitch) {
  Entry process{.Path = u"C:\\a\\"};
  for (const Text& tag : {Text(u"<WriteID3v1>"), Text(u"<WriteID3v2>"), Text(u"<RemoveID3v1>")}) {
    const Text code = tag + u"<UPPERCASE>a|<NAMEONLY></UPPERCASE>";
    process.AllowTagSteps = false;
    EXPECT_EQ(process(code), u"");
    process.AllowTagSteps = true;
    EXPECT_EQ(process(code), tag + u"A|SONG");
    EXPECT_EQ(process(tag), tag);
  }
  process.AllowTagSteps = false;
  EXPECT_EQ(process(u"<writeid3v1>a"), u"<writeid3v1>a");
  // It is the code itself that counts, not what a box brings in.
  process.ShowBox(1, u"<WriteID3v1>");
  EXPECT_EQ(process(u"<BOX1><NAMEONLY>"), u"<WriteID3v1>song");
}

TEST(ProcessFileName, AFieldOfATagStepMayHoldABarOfCodeOne) {
  Entry process{.TagV2 = TagOf(u"A|B"), .AllowTagSteps = true};
  EXPECT_EQ(process(u"<WriteID3v1><ARTIST>\x01|\x01<TITLE>"), u"<WriteID3v1>A|B\x01|\x01Song");
}

TEST(ProcessFileName, FolderStepsNeedTheirSwitch) {
  Entry process;
  for (const Text& name : {Text(u"CREATEFOLDER"), Text(u"MOVE")}) {
    const Text code = u"<" + name + u"><UPPERCASE><NAMEONLY></UPPERCASE></" + name + u">";
    process.AllowFolderSteps = false;
    EXPECT_EQ(process(code), u"");
    process.AllowFolderSteps = true;
    EXPECT_EQ(process(code), u"C:\\Music\\SONG\\");
  }
  // Here it counts what a box brings in too.
  process.ShowBox(1, u"<MOVE>");
  process.AllowFolderSteps = false;
  EXPECT_EQ(process(u"<BOX1>a</MOVE>"), u"");
  EXPECT_EQ(process(u"a</MOVE><NAMEONLY>"), u"a</MOVE>song");
  // What a keyword brings in is too late for the switch.
  process.FileName = u"<MOVE>a</MOVE>.txt";
  EXPECT_EQ(process(u"<NAMEONLY>"), u"C:\\Music\\a\\");
}

TEST(ProcessFileName, KeywordsComeBeforeFunctionTags) {
  Entry process{.FileName = u"first - second.txt"};
  EXPECT_EQ(process(u"<MID><NAMEONLY>| - ||</MID><EXTONLY>"), u"second.txt");
  EXPECT_EQ(process(u"<MID>| - ||</MID>"), u"second");  // the default text is the name only
  EXPECT_EQ(process(u"<IMAGEEXIFTAG><NAMEONLY></IMAGEEXIFTAG>x"), u"x");
  EXPECT_EQ(process.Facts.Calls.back().Fact, u"ExifValueByName first - second");
  EXPECT_EQ(process.Facts.Calls.back().Path, u"C:\\Music\\first - second.txt");
}

TEST(ProcessFileName, ANameIsTextLikeAnyOther) {
  Entry process{.FileName = u"a|b <MID>.txt"};
  EXPECT_EQ(process(u"<TRY><NAMEONLY>|c</TRY>"), u"a");
  EXPECT_EQ(process(u"x<NAMEONLY>"), u"xa|b ");
}

TEST(ProcessFileName, AKeywordThatStaysKeepsItsBrackets) {
  Entry process;
  process.Facts.Length = std::nullopt;
  EXPECT_EQ(process(u"<FILESIZE> KB"), u"<FILESIZE> KB");
  EXPECT_EQ(process(u"<TRY><FILESIZE>|none</TRY>"), u"none");
}

TEST(TagKeywordsOfAnEntry, ArePutInOnMp3FilesOnly) {
  Entry process{.TagV2 = TagOf(u"Someone")};
  const struct {
    Text name, result;
  } cases[] = {
      {u"song.mp3", u"Someone"},  {u"song.MP3", u"Someone"}, {u"song.Mp3", u"Someone"},
      {u"song.mp3.bak", u"none"}, {u"song.mp4", u"none"},    {u"mp3", u"none"},
      {u".mp3", u"none"},
  };
  for (const auto& c : cases) {
    process.FileName = c.name;
    EXPECT_EQ(process(u"<TRY><ARTIST>|none</TRY>"), c.result) << DisplayUtf8(c.name);
  }
  process.FileName = u"song.txt";
  EXPECT_EQ(process(u"<ARTIST><TITLE><ALBUM><COMMENTS><TRACK><KBIT>"),
            u"<ARTIST><TITLE><ALBUM><COMMENTS><TRACK><KBIT>");
  EXPECT_TRUE(process.Facts.Calls.empty());
}

TEST(TagKeywordsOfAnEntry, ComeFromTheSecondVersionIfThereIsOne) {
  Entry process{.TagV1 = TagOf(u"One"), .TagV2 = TagOf(u"Two")};
  process.TagV2.Title = u"";
  EXPECT_EQ(process(u"<ARTIST>,<TITLE>,<KBIT>"), u"Two,,128");
  EXPECT_EQ(process.TagV2.Artist, u"Two");
}

TEST(TagKeywordsOfAnEntry, TheFirstVersionIsCopiedOtherwise) {
  Entry process{.TagV1 = TagOf(u"One")};
  EXPECT_EQ(process(u"<ARTIST>"), u"One");
  EXPECT_EQ(process.TagV2, process.TagV1);
}

TEST(TagKeywordsOfAnEntry, AreEmptyWithoutAnyTag) {
  Entry process;
  process.TagV2.Artist = u"stale";
  EXPECT_EQ(process(u"<ARTIST>|<KBIT>"), u"|128");
  EXPECT_EQ(process.TagV2, ID3Tag());
  EXPECT_EQ(process(u"<TRY><ARTIST>|none</TRY>"), u"none");
}

TEST(TagKeywordsOfAnEntry, TheCopyIsMadeOnlyWhereTagKeywordsAreLookedFor) {
  // Not on a file of another kind, not if no brackets are left by then, not for a step refused.
  Entry other{.FileName = u"song.txt", .TagV1 = TagOf(u"One")};
  other(u"<ARTIST>");
  EXPECT_FALSE(other.TagV2.Present);
  Entry done{.TagV1 = TagOf(u"One")};
  EXPECT_EQ(done(u"<NAMEONLY>"), u"song");
  EXPECT_FALSE(done.TagV2.Present);
  done(u"<MOVE><ARTIST></MOVE>");
  EXPECT_FALSE(done.TagV2.Present);
  // But with any tag left.
  done(u"<UPPERCASE>a</UPPERCASE>");
  EXPECT_TRUE(done.TagV2.Present);
}

TEST(TagKeywordsOfAnEntry, ComeAfterAllOthers) {
  Entry process{.TagV2 = TagOf(u"<NAMEONLY>")};
  EXPECT_EQ(process(u"<ARTIST>"), u"<NAMEONLY>");
  process.FileName = u"<TITLE>.mp3";
  EXPECT_EQ(process(u"<NAMEONLY>"), u"Song");
}

TEST(ProcessFileName, TellsWhetherTheNumberWasPutIn) {
  Entry process;
  EXPECT_EQ(process(u"<AUTONUMBER>"), u"007");
  EXPECT_TRUE(process.WasNumbered);
  process(u"plain");
  EXPECT_FALSE(process.WasNumbered);
  process(u"<AUTONUMBER><NAMEONLY>");
  EXPECT_TRUE(process.WasNumbered);
  process(u"<MOVE><AUTONUMBER></MOVE>");
  EXPECT_FALSE(process.WasNumbered);
  process.ShowBox(2, u"<AUTONUMBER>");
  EXPECT_EQ(process(u"<BOX2>"), u"007");
  EXPECT_TRUE(process.WasNumbered);
  process.ShowBox(2, u"plain");
  process(u"<BOX2>");
  EXPECT_FALSE(process.WasNumbered);
}

TEST(ProcessFileName, AFolderStepOnPosix) {
  Entry process{.Paths = PathStyle::Posix, .Path = u"/srv/Music/", .AllowFolderSteps = true};
  EXPECT_EQ(process(u"<MOVE><FOLDERNAME>\\<NAMEONLY></MOVE>"), u"/srv/Music/Music/song/");
  EXPECT_EQ(process(u"<CREATEFOLDER>/x/<PARENTFOLDERNAME></CREATEFOLDER>"), u"/x/srv/");
}

}  // namespace
}  // namespace vorlane
