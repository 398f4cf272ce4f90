// The tag steps of a run, their records in the journal and their undo, on real bytes.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/id3_bytes.h"
#include "support/song_world.h"

namespace vorlane {
namespace {

using Names = std::vector<Text>;
using Reports = std::vector<RecordingReport::Report>;
using id3::Audio;
using id3::V1;

TEST(WriteID3v1Step, WritesItsFiveFields) {
  SongWorld on(Audio(500));
  on.Run({u"<WriteID3v1>An Artist|A Title|An Album|A Comment|12</WriteID3v1>"});
  EXPECT_EQ(on.Disk.Read(Song),
            Audio(500) + V1("A Title", "An Artist", "An Album", "", "A Comment", 12, 0));
  EXPECT_EQ(on.Row().Artist, u"An Artist");
  EXPECT_EQ(on.Row().Title, u"A Title");
  EXPECT_EQ(on.Row().ID3v1, YesNo::Yes);
  EXPECT_EQ(on.Row().Name, u"song.mp3");
}

TEST(WriteID3v1Step, JournalsTheTagAsItWasAndClosesTheLine) {
  SongWorld on(TaggedV1());
  on.Run({u"<WriteID3v1>X|Y|Z|C|1</WriteID3v1>"});
  EXPECT_EQ(
      on.Body(),
      "<MP3TAG>|1|-1|417274697374|5469746C65|416C62756D|07|4E6F7465|1999|17|/R/|song.mp3\r\n");
}

TEST(WriteID3v1Step, FieldsHoldKeywordsFunctionTagsAndBoxes) {
  SongWorld on(TaggedV1(), u"Someone - A Song.mp3");
  on.World.ShowBox(1, u"Typed");
  on.Run(
      {u"<WriteID3v1><BOX1>|<ALBUM>|<UPPERCASE><TITLE></UPPERCASE>|<NAMEONLY>|"
       u"<AUTONUMBER></WriteID3v1>"});
  const ID3Tag tag = on.TagV1();
  EXPECT_EQ(tag.Artist, u"Typed");
  EXPECT_EQ(tag.Title, u"Album");
  EXPECT_EQ(tag.Album, u"TITLE");
  EXPECT_EQ(tag.Comment, u"Someone - A Song");
  EXPECT_EQ(tag.Track, u"01");
}

TEST(WriteID3v1Step, ABarInAValueDoesNotBreakTheFieldsApart) {
  SongWorld on(Audio(500) + V1("One|Two", "Artist", "", "", "", 0, 0));
  on.Run({u"<WriteID3v1><TITLE>|<ARTIST>|||3</WriteID3v1>"});
  EXPECT_EQ(on.TagV1().Artist, u"One|Two");
  EXPECT_EQ(on.TagV1().Title, u"Artist");
}

TEST(WriteID3v1Step, TheTrackEndsAtTheFirstBracket) {
  SongWorld on(Audio(500));
  on.Run({u"<WriteID3v1>A|B|C|D|5</WriteID3v1> and <more>"});
  EXPECT_EQ(on.TagV1().Track, u"05");
}

TEST(WriteID3v1Step, ReadsTheBoxesAsTheyStand) {
  SongWorld on(Audio(500));
  on.World.ShowBox(1, u"", u"<NAMEONLY>");
  on.World.State.DoAll = false;
  on.World.SelectSteps({u"<WriteID3v1><BOX1>|B|C|D|5</WriteID3v1>"});
  on.World.State.SetBoxText(0, u"by hand");
  on.World.Batch.cmdGo_Click();
  EXPECT_EQ(on.TagV1().Artist, u"by hand");
}

TEST(WriteID3v1Step, AMissingFieldEndsTheRunWithAReport) {
  const std::pair<Text, int> cases[] = {{u"<WriteID3v1>A|B|C|D</WriteID3v1>", 9},
                                        {u"<WriteID3v1>A|B|C|D|5", 5}};
  for (const auto& [step, number] : cases) {
    SongWorld on(TaggedV1());
    on.Run({step});
    EXPECT_EQ(on.World.Report.Reports, (Reports{{u"frmMain", u"cmdGo_Click", u"", number}}));
    EXPECT_EQ(on.Disk.Read(Song), on.Before);
    EXPECT_EQ(on.Body(), "");  // the journal stays, with its header alone
    EXPECT_FALSE(on.World.State.UndoEnabled);
  }
}

TEST(WriteID3v1Step, AWriterThatFailsReportsByItselfAndTheRunGoesOn) {
  SongWorld on(TaggedV1());
  on.Disk.Write(u"/R/z.mp3", Audio(200));
  on.World.ListAll(u"/R/");
  on.Run({u"<WriteID3v1>A|B|C|a comment of more than thirty letters|5</WriteID3v1>"});
  ASSERT_EQ(on.World.Report.Reports.size(), 2U);
  EXPECT_EQ(on.World.Report.Reports[0].Procedure, u"WriteID3v1");
  EXPECT_EQ(on.World.Report.Reports[1].Extra, u"z.mp3");
  EXPECT_EQ(on.Disk.Read(Song), on.Before);
  EXPECT_EQ(on.CountInBody('\n'), 2);
}

TEST(WriteID3v2Step, WritesItsFieldsAndKeepsID3v1) {
  SongWorld on(TaggedV1());
  on.Run({u"<WriteID3v2>An Artist|A Title|An Album|A Comment|12|0</WriteID3v2>"});
  const ID3Tag tag = on.TagV2();
  EXPECT_EQ(tag.Artist, u"An Artist");
  EXPECT_EQ(tag.Title, u"A Title");
  EXPECT_EQ(tag.Album, u"An Album");
  EXPECT_EQ(tag.Comment, u"A Comment");
  EXPECT_EQ(tag.Track, u"12");
  EXPECT_TRUE(on.TagV1().Present);
  EXPECT_EQ(on.Row().ID3v2, YesNo::Yes);
  EXPECT_EQ(on.Row().ID3v1, YesNo::Yes);
}

TEST(WriteID3v2Step, JournalsTheAbsentTagButWritesID3v1sYearAndGenre) {
  SongWorld on(TaggedV1());
  on.Run({u"<WriteID3v2><ARTIST>|B|C|D|5|0</WriteID3v2>"});
  EXPECT_EQ(on.Body(), "<MP3TAG>|2|0|||||||0|/R/|song.mp3\r\n");
  EXPECT_EQ(on.TagV2().Artist, u"Artist");
  EXPECT_EQ(on.TagV2().Year, u"1999");
  EXPECT_EQ(on.TagV2().Genre, 17);
}

TEST(WriteID3v2Step, TheSixthFieldRemovesID3v1) {
  const std::pair<Text, bool> cases[] = {
      {u"1", true}, {u"10", true}, {u"0", false}, {u"", false}, {u"x1", false}};
  for (const auto& [flag, removed] : cases) {
    SongWorld on(TaggedV1());
    on.Run({u"<WriteID3v2>A|B|C|D|5|" + flag + u"</WriteID3v2>"});
    EXPECT_EQ(on.TagV1().Present, !removed) << testing::PrintToString(flag);
  }
}

TEST(WriteID3v2Step, TheRowShowsThatID3v1HasGone) {
  SongWorld on(TaggedV1());
  on.World.SelectSteps({u"<WriteID3v2>A|B|C|D|5|1</WriteID3v2>"});
  on.World.State.DoAll = false;
  on.World.List.lstFileListItemClick();
  EXPECT_EQ(on.Row().ID3v1, YesNo::Yes);
  on.World.Batch.cmdGo_Click();
  EXPECT_EQ(on.Row().ID3v1, YesNo::No);
}

TEST(WriteID3v2Step, ASixthFieldThatIsMissingEndsTheRun) {
  SongWorld on(TaggedV1());
  on.Run({u"<WriteID3v2>A|B|C|D|5</WriteID3v2>"});
  EXPECT_EQ(on.World.Report.Reports, (Reports{{u"frmMain", u"cmdGo_Click", u"", 9}}));
}

TEST(WriteID3v2Step, AFailureOfTheWriterShowsItsOwnBox) {
  SongWorld on(TaggedV1());
  on.Run({u"<WriteID3v2>" + Text(255, u'a') + u"|B|C|D|5|0</WriteID3v2>"});
  ASSERT_EQ(on.World.Boxes.Boxes.size(), 1U);
  EXPECT_EQ(on.World.Boxes.Boxes[0].Title, u"Error number: 5");
  EXPECT_EQ(on.Disk.Read(Song), on.Before);
}

TEST(RemoveID3v1Step, CutsTheTagAndJournalsIt) {
  SongWorld on(TaggedV1());
  on.Run({u"<RemoveID3v1>"});
  EXPECT_EQ(on.Disk.Read(Song), Audio(500));
  EXPECT_TRUE(on.Body().starts_with("<MP3TAG>|1|-1|417274697374|"));
  EXPECT_EQ(on.Row().ID3v1, YesNo::No);
}

TEST(RemoveID3v1Step, ComesBeforeTheOtherKinds) {
  SongWorld on(TaggedV1());
  on.Run({u"<RemoveID3v1><WriteID3v1>A|B|C|D|5</WriteID3v1><CREATEFOLDER>x</CREATEFOLDER>"});
  EXPECT_EQ(on.Disk.Read(Song), Audio(500));
  EXPECT_FALSE(on.Disk.Exists(u"/R/x"));
}

TEST(TagSteps, WriteID3v1ComesBeforeWriteID3v2) {
  SongWorld on(Audio(500));
  on.Run({u"<WriteID3v1>A|B|C|D|5</WriteID3v1><WriteID3v2>"});
  EXPECT_TRUE(on.TagV1().Present);
  EXPECT_FALSE(on.TagV2().Present);
}

TEST(TagSteps, HappenOnMp3NamesOfAnyCaseAndNoOthers) {
  const std::pair<Text, bool> cases[] = {
      {u"a.MP3", true}, {u"a.Mp3", true}, {u"a.mp3.bak", false}, {u"mp3", false}};
  for (const auto& [name, written] : cases) {
    SongWorld on(Audio(500), name);
    on.Run({u"<WriteID3v1>A|B|C|D|5</WriteID3v1>"});
    EXPECT_EQ(on.Disk.Read(u"/R/" + name).size() > 500, written);
  }
}

TEST(TagSteps, OnAnotherKindOfFileAreLookedAtAsFolderStepsAndSkipped) {
  SongWorld on("text", u"a.txt");
  on.Run({u"<RemoveID3v1><CREATEFOLDER>x</CREATEFOLDER>", u"<CREATEFOLDER>y</CREATEFOLDER>"});
  // With a tag keyword in it a folder step isn't evaluated; the one behind it is.
  EXPECT_FALSE(on.Disk.Exists(u"/R/x"));
  EXPECT_TRUE(on.Disk.Exists(u"/R/y"));
}

TEST(TagSteps, RunThoughAMarkerKeepsTheNameFromChanging) {
  SongWorld on(TaggedV1());
  on.World.SelectSteps({u"<RemoveID3v1>", u"new<EXTONLY>"});
  on.Disk.SetInUse(Song);
  on.World.RunAll();
  EXPECT_EQ(on.Disk.Read(Song), Audio(500));  // the tag step has run, the rename has not
  EXPECT_TRUE(on.Body().ends_with("|/R/|song.mp3\r\n"));
}

TEST(TagSteps, TagAndRenameGiveOneLine) {
  SongWorld on(TaggedV1());
  on.Run({u"<RemoveID3v1>", u"new<EXTONLY>"});
  EXPECT_EQ(on.Disk.Read(u"/R/new.mp3"), Audio(500));
  EXPECT_EQ(on.Body(),
            "<MP3TAG>|1|-1|417274697374|5469746C65|416C62756D|07|4E6F7465|1999|17|/R/|song.mp3|"
            "new.mp3\r\n");
}

TEST(TagSteps, TwoOfThemOnARowLeaveALineThatUndoPassesOver) {
  SongWorld on(TaggedV1());
  on.Run({u"<RemoveID3v1>", u"<WriteID3v1>A|B|C|D|5</WriteID3v1>", u"new<EXTONLY>"});
  EXPECT_EQ(on.CountInBody('\n'), 1);
  // Both fragments hold the record as it was read.
  EXPECT_EQ(on.CountInBody('|'), 23);
  const std::string after = on.Disk.Read(u"/R/new.mp3");
  on.World.Undo.cmdUndo_Click();
  EXPECT_EQ(on.Disk.Read(u"/R/new.mp3"), after);
}

TEST(TagSteps, ARefusedRenameGluesTheNextRecordToTheOpenLine) {
  SongWorld on(TaggedV1(), u"a.mp3");
  on.Disk.Write(u"/R/b.txt", "text");
  on.Disk.MakeFolder(u"/R/new.mp3");
  on.World.ListAll(u"/R/");
  on.Run({u"<RemoveID3v1>", u"new<EXTONLY>"});
  EXPECT_EQ(on.CountInBody('\n'), 1);
  EXPECT_TRUE(on.Body().ends_with("|/R/|a.mp3<VORL>|/R/|b.txt|new.txt\r\n"));
  on.World.Undo.cmdUndo_Click();  // passes over that line, and both changes stay
  EXPECT_TRUE(on.Disk.Exists(u"/R/new.txt"));
  EXPECT_EQ(on.Disk.Read(u"/R/a.mp3"), Audio(500));
}

TEST(TagSteps, ATagKeywordOnAnotherKindOfFileStays) {
  SongWorld on(TaggedV1(), u"a.mp3");
  on.Disk.Write(u"/R/b.txt", "text");
  on.World.ListAll(u"/R/");
  on.Run({u"<CREATEFOLDER><NAMEONLY> <ARTIST></CREATEFOLDER>"});
  EXPECT_TRUE(on.Disk.Exists(u"/R/a Artist"));
  EXPECT_TRUE(on.Disk.Exists(u"/R/b <ARTIST>"));
}

const std::vector<Text> EachTagStep = {
    u"<RemoveID3v1>",
    u"<WriteID3v1>A|B|C|D|5</WriteID3v1>",
    u"<WriteID3v2>A|B|C|D|5|0</WriteID3v2>",
    u"<WriteID3v2>A|B|C|D|5|1</WriteID3v2>",
};

TEST(TagSteps, TheRecordIsWrittenBeforeTheFileIsOpened) {
  for (const Text& step : EachTagStep) {
    SongWorld on(TaggedV1());
    std::size_t records = 0;
    std::size_t writes = 0;
    on.Disk.BeforeCall = [&](const CallInfo& call) {
      records += call.Method == u"AppendToFile" ? 1 : 0;
      if (call.Mutating && call.Path == Song) {
        ++writes;
        EXPECT_EQ(records, 1U) << testing::PrintToString(call.Method);
        EXPECT_TRUE(on.Body().ends_with("|/R/|song.mp3"));
      }
    };
    on.Run({step});
    EXPECT_GE(writes, 1U);
    EXPECT_EQ(records, 2U);
  }
}

TEST(TagSteps, WithoutTheirRecordAreNotCarriedOut) {
  for (const Text& step : EachTagStep) {
    SongWorld on(TaggedV1());
    const FileRow before = on.Row();
    on.FailRecord(1);
    on.Run({step});
    EXPECT_EQ(on.World.Report.Reports, (Reports{{u"", u"UpdateUndoFile", u"", 61}}));
    EXPECT_EQ(on.Disk.Contents(u"/R/"),
              (std::map<std::string, std::string>{{"song.mp3", on.Before}}));
    EXPECT_EQ(on.Row().Artist, before.Artist);
    EXPECT_EQ(on.Row().ID3v1, YesNo::Yes);
    EXPECT_EQ(on.Row().ID3v2, YesNo::No);
  }
}

TEST(TagSteps, WithoutTheirRecordLeaveTheRenameARecordOfItsOwn) {
  for (const Text& step : EachTagStep) {
    SongWorld on(TaggedV1());
    on.FailRecord(1);
    on.Run({step, u"new<EXTONLY>"});
    EXPECT_EQ(on.Body(), "<VORL>|/R/|song.mp3|new.mp3\r\n");
    on.Undo();
    EXPECT_EQ(on.Disk.Contents(u"/R/"),
              (std::map<std::string, std::string>{{"song.mp3", on.Before}}));
  }
}

TEST(TagSteps, OfTwoTheOneThatIsRecordedCanBeUndone) {
  SongWorld on(Audio(500) + V1("Title", "Artist", "Album", "", "Note", 7, 0));
  on.FailRecord(2);
  on.Run({u"<RemoveID3v1>", u"<WriteID3v2>A|B|C|D|5|0</WriteID3v2>", u"new<EXTONLY>"});
  EXPECT_EQ(on.Disk.Read(u"/R/new.mp3"), Audio(500));
  on.Undo();
  EXPECT_EQ(on.Disk.Contents(u"/R/"),
            (std::map<std::string, std::string>{{"song.mp3", on.Before}}));
}

TEST(TagSteps, WithoutAJournalAreNotCarriedOutThoughTheRunGoesOn) {
  for (const Text& step : EachTagStep) {
    SongWorld on(TaggedV1());
    on.Disk.Write(u"/R/UNDORENAME.TXT", "somebody's own");
    on.Run({step, u"new<EXTONLY>"});
    EXPECT_EQ(on.World.Report.Reports, (Reports{{u"", u"CreateUndoFile", u"", 58}}));
    EXPECT_EQ(on.Disk.Read(u"/R/new.mp3"), on.Before);
  }
}

TEST(TagSteps, ALineThatCannotBeClosedTakesTheNextRecordWithIt) {
  SongWorld on(TaggedV1(), u"a.mp3");
  on.Disk.Write(u"/R/b.txt", "text");
  on.World.ListAll(u"/R/");
  on.FailRecord(2);
  on.Run({u"<RemoveID3v1>", u"new<EXTONLY>"});
  EXPECT_EQ(on.Disk.Read(u"/R/new.mp3"), Audio(500));
  EXPECT_TRUE(on.Body().ends_with("|/R/|a.mp3<VORL>|/R/|b.txt|new.txt\r\n"));
}

}  // namespace
}  // namespace vorlane
