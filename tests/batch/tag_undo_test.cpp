// Undo of the tag steps: what comes back, and what by design doesn't.
#include <gtest/gtest.h>

#include "support/id3_bytes.h"
#include "support/song_world.h"

namespace vorlane {
namespace {

using Reports = std::vector<RecordingReport::Report>;
using id3::Audio;
using id3::V1;

TEST(UndoTags, RestoresTheTagUnderTheOldName) {
  const std::vector<std::vector<Text>> operations{
      {u"<RemoveID3v1>"},
      {u"<RemoveID3v1>", u"new<EXTONLY>"},
      {u"<WriteID3v1>A|B|C|D|5</WriteID3v1>", u"new<EXTONLY>"},
  };
  for (const auto& steps : operations) {
    // Neither year nor genre is written to such a tag, so they can't come back.
    SongWorld on(Audio(500) + V1("Title", "Artist", "Album", "", "Note", 7, 0));
    on.Run(steps);
    EXPECT_NE(on.Disk.Contents(u"/R/"),
              (std::map<std::string, std::string>{{"song.mp3", on.Before}}));
    on.World.Undo.cmdUndo_Click();
    EXPECT_EQ(on.Disk.Contents(u"/R/"),
              (std::map<std::string, std::string>{{"song.mp3", on.Before}}));
  }
}

TEST(UndoTags, AFileWithoutID3v1LosesTheOneTheRunGaveIt) {
  SongWorld on(Audio(500));
  on.Run({u"<WriteID3v1>A|B|C|D|5</WriteID3v1>"});
  on.World.Undo.cmdUndo_Click();
  EXPECT_EQ(on.Disk.Read(Song), Audio(500));
}

TEST(UndoTags, AnAbsentID3v2TagComesBackAsEmptyFields) {
  SongWorld on(Audio(500));
  on.Run({u"<WriteID3v2>A|B|C|D|5|0</WriteID3v2>"});
  on.World.Undo.cmdUndo_Click();
  const ID3Tag tag = on.TagV2();
  EXPECT_TRUE(tag.Present);
  EXPECT_EQ(tag.Artist, u"");
  EXPECT_EQ(tag.Title, u"");
  EXPECT_TRUE(on.Disk.Read(Song).ends_with(Audio(500)));
}

TEST(UndoTags, AnID3v2TagComesBackToTheByte) {
  const std::string frames = id3::Frame("TPE1", "Old") + id3::Frame("TIT2", "Name") +
                             id3::Frame("TALB", "Disc") + id3::Comment("Said") +
                             id3::Frame("TYER", "2001") + id3::Frame("TRCK", "03") +
                             id3::Frame("TCON", "(17)");
  SongWorld on(id3::Tag(400, frames) + Audio(500));
  on.Run({u"<WriteID3v2>New|Other|One|More|9|0</WriteID3v2>"});
  EXPECT_NE(on.Disk.Read(Song), on.Before);
  on.World.Undo.cmdUndo_Click();
  EXPECT_EQ(on.Disk.Read(Song), on.Before);
}

TEST(UndoTags, ABarredRenameKeepsTheTagFromAnotherFile) {
  SongWorld on(TaggedV1());
  on.Run({u"<RemoveID3v1>", u"new<EXTONLY>"});
  on.Disk.Write(Song, Audio(300));  // another file has the old name now
  on.World.Undo.cmdUndo_Click();
  EXPECT_EQ(on.Disk.Read(Song), Audio(300));
  EXPECT_EQ(on.Disk.Read(u"/R/new.mp3"), Audio(500));
}

TEST(UndoTags, NeverMakeAFile) {
  SongWorld on(TaggedV1());
  on.Run({u"<RemoveID3v1>"});
  on.Disk.Remove(Song);
  on.World.Undo.cmdUndo_Click();
  EXPECT_EQ(on.Disk.Contents(u"/R/"), (std::map<std::string, std::string>{}));
  EXPECT_TRUE(on.World.Report.Reports.empty());
}

TEST(UndoTags, AnID3v1TagThatWentWithAWriteOfTheOtherStaysAway) {
  const std::string frames = id3::Frame("TPE1", "Old") + id3::Frame("TIT2", "Name") +
                             id3::Frame("TALB", "Disc") + id3::Comment("Said") +
                             id3::Frame("TYER", "2001") + id3::Frame("TRCK", "03") +
                             id3::Frame("TCON", "(17)");
  const std::string tag = id3::Tag(400, frames);
  SongWorld on(tag + TaggedV1());
  on.Run({u"<WriteID3v2>New|Other|One|More|9|1</WriteID3v2>"});
  EXPECT_FALSE(on.TagV1().Present);
  on.Undo();
  EXPECT_EQ(on.Disk.Read(Song), tag + Audio(500));
  EXPECT_EQ(on.Row().ID3v1, YesNo::No);
}

TEST(UndoTags, AnyYearAndTrackComeBack) {
  const std::string years[] = {"//000D", "\r\n", "/\r//000A", "//002F", "1/2", " 19 "};
  for (const std::string& year : years) {
    const std::string frames = id3::Frame("TPE1", "Old") + id3::Frame("TIT2", "Name") +
                               id3::Frame("TALB", "Disc") + id3::Comment("Said") +
                               id3::Frame("TYER", year) + id3::Frame("TRCK", "0" + year) +
                               id3::Frame("TCON", "(17)");
    SongWorld on(id3::Tag(400, frames) + Audio(500));
    const ID3Tag before = on.TagV2();
    on.Run({u"<WriteID3v2>New|Other|One|More|9|0</WriteID3v2>"});
    EXPECT_NE(on.TagV2(), before) << year;
    on.Undo();
    EXPECT_EQ(on.TagV2(), before) << year;
  }
}

// The journal loses its last two characters, which are those of the name.
TEST(UndoTags, ALastLineThatIsOpenIsPassedOver) {
  SongWorld on(TaggedV1());
  on.Disk.MakeFolder(u"/R/new.mp3");
  on.Disk.Write(u"/R/song.m", TaggedV1());
  on.World.ListAll(u"/R/");
  on.Run({u"<RemoveID3v1>", u"new<EXTONLY>"});
  EXPECT_TRUE(on.Body().ends_with("|/R/|song.mp3"));
  on.Undo();
  EXPECT_EQ(on.Disk.Contents(u"/R/"),
            (std::map<std::string, std::string>{
                {"new.mp3/", ""}, {"song.m", TaggedV1()}, {"song.mp3", Audio(500)}}));
  EXPECT_TRUE(on.World.Report.Reports.empty());
}

// A folder with a file "b" that a run has renamed from "a", and an undo of these records.
struct RecordsWorld : MemoryWorld {
  explicit RecordsWorld(const std::string& records) {
    Disk.Write(u"/R/b", "bytes");
    Disk.Write(u"/R/x/moved", "more");
    Disk.Write(u"/R/song.mp3", TaggedV1());
    Disk.Write(u"/R/z.mp3", TaggedV1());
    Before = Disk.Contents(u"/R/");
    Disk.Write(u"/R/UNDORENAME.TXT", JournalHeader() + records);
    World.State.CurrentPath = u"/R/";
    World.Undo.cmdUndo_Click();
  }

  std::map<std::string, std::string> Before;
};

const std::string Renamed = "<VORL>|/R/|a|b\r\n";
const std::string OpenTag = "<MP3TAG>|1|0|||||||0|/R/|song.mp3";

TEST(UndoTags, ARecordGluedToAnOpenLineIsPassedOverWithIt) {
  const std::string glued[] = {
      Renamed,
      "<CREATEFOLDER>|1|/R/x/\r\n",
      "<MOVE>|/R/|moved|/R/x/|moved\r\n",
      "<MP3TAG>|1|0|||||||0|/R/|z.mp3\r\n",
      "<MP3TAG>|1|0|||||||0|/R/|z.mp3|zz.mp3\r\n",
      "<MP3TAG>|1|0|||||||0|/R/|z.mp3<VORL>|/R/|a|b\r\n",
      OpenTag + "\r\n",
  };
  for (const std::string& record : glued) {
    const RecordsWorld alone(OpenTag + record);
    EXPECT_EQ(alone.Disk.Contents(u"/R/"), alone.Before) << record;
    // What stands around that line is undone all the same.
    for (const std::string& records : {Renamed + OpenTag + record, OpenTag + record + Renamed}) {
      const RecordsWorld among(records);
      auto after = among.Before;
      after["a"] = after["b"];
      after.erase("b");
      EXPECT_EQ(among.Disk.Contents(u"/R/"), after) << records;
      EXPECT_TRUE(among.World.Report.Reports.empty());
    }
  }
}

TEST(UndoTags, AFolderStepBehindATagStepOfTheRowIsGluedToo) {
  SongWorld on(TaggedV1());
  on.Run({u"<RemoveID3v1>", u"<CREATEFOLDER>x</CREATEFOLDER>", u"new<EXTONLY>"});
  EXPECT_TRUE(on.Body().ends_with("|/R/|song.mp3<CREATEFOLDER>|1|/R/x/\r\n|new.mp3\r\n"));
  on.Undo();
  EXPECT_EQ(on.Disk.Contents(u"/R/"),
            (std::map<std::string, std::string>{{"x/", ""}, {"new.mp3", Audio(500)}}));
}

TEST(UndoTags, ABrokenFieldEndsTheUndo) {
  const std::pair<std::string, int> cases[] = {
      {"x|-1|||||||0", 13},    {"|-1|||||||0", 13},      {"99999|-1|||||||0", 6},
      {"1|x|||||||0", 13},     {"1||||||||0", 13},       {"1|-1|4G||||||0", 13},
      {"1|-1||x|||||0", 13},   {"1|-1|||4 ||||0", 13},   {"1|-1|||||//000D||0", 13},
      {"1|-1|||||||x", 13},    {"1|-1|||||||", 13},      {"1|-1|||||||99999", 6},
      {"1|-1|||||||32768", 6}, {"2|-1|||||||-32769", 6},
  };
  for (const auto& [fields, number] : cases) {
    const RecordsWorld on(Renamed + "<MP3TAG>|" + fields + "|/R/|song.mp3\r\n" +
                          "<MOVE>|/R/|moved|/R/x/|moved\r\n");
    EXPECT_EQ(on.World.Report.Reports, (Reports{{u"frmMain", u"cmdUndo_Click", u"", number}}))
        << fields;
    // The record behind it is undone, the one in front of it isn't, and the journal has gone.
    auto after = on.Before;
    after["moved"] = after["x/moved"];
    after.erase("x/moved");
    EXPECT_EQ(on.Disk.Contents(u"/R/"), after) << fields;
  }
}

// The bar that a year holds isn't told from those between the fields.
TEST(UndoTags, ABarInTheYearShiftsTheFields) {
  struct Case {
    std::string Year;
    bool Renames;
    int Failure;
  };
  const Case cases[] = {
      {"1|99", true, 0},
      {"1|99", false, 0},  // a new name that no file has, and a genre of 99
      {"19|", true, 0},
      {"19|", false, 13},  // a genre that is none
  };
  for (const Case& c : cases) {
    SongWorld on(Audio(500) + V1("Title", "Artist", "Album", c.Year, "Note", 7, 17));
    on.Run(c.Renames ? std::vector<Text>{u"<RemoveID3v1>", u"new<EXTONLY>"}
                     : std::vector<Text>{u"<RemoveID3v1>"});
    on.Undo();
    EXPECT_EQ(
        on.Disk.Contents(u"/R/"),
        (std::map<std::string, std::string>{{c.Renames ? "new.mp3" : "song.mp3", Audio(500)}}));
    EXPECT_EQ(on.World.Report.Reports,
              c.Failure == 0 ? Reports{} : (Reports{{u"frmMain", u"cmdUndo_Click", u"", 13}}));
  }
}

TEST(UndoTags, OddFieldsThatCanBeReadDoNotEndIt) {
  const std::pair<std::string, std::string> cases[] = {
      {"1|1|41||||||0", "A"},        // any number but zero is true
      {"1|-1|4||||||0", "\x04"},     // half a character
      {"1|-1|6162||||||1.5", "ab"},  // a genre of 2, which such a tag doesn't take anyway
      {"&H1|-1|61||||||0", "a"},
  };
  for (const auto& [fields, artist] : cases) {
    const RecordsWorld on("<MP3TAG>|" + fields + "|/R/|song.mp3\r\n");
    EXPECT_EQ(on.Disk.Read(u"/R/song.mp3"), Audio(500) + V1("", artist, "", "", "", 0, 0))
        << fields;
    EXPECT_TRUE(on.World.Report.Reports.empty());
  }
}

}  // namespace
}  // namespace vorlane
