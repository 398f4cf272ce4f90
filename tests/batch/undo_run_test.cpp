// cmdUndo_Click: the journal replayed from its last record to its first.
#include "batch/undo_run.h"

#include <gtest/gtest.h>

#include "support/form_world.h"
#include "support/id3_bytes.h"

namespace vorlane {
namespace {

using Reports = std::vector<RecordingReport::Report>;

class RecordingListener final : public UndoListener {
 public:
  void RecordReplayed(std::string_view line, UndoOutcome outcome, TextView reason) override {
    Lines.push_back((outcome == UndoOutcome::Done ? "done " : "skipped ") + std::string(line));
    EXPECT_EQ(reason.empty(), outcome == UndoOutcome::Done);
  }
  std::vector<std::string> Lines;
};

// "/R/" with files and a journal of these records; Undo is run on it.
struct UndoWorld : MemoryWorld {
  explicit UndoWorld(const std::string& records, bool header = true)
      : Listened(World.State, World.Outside, World.List, &Listener) {
    Disk.MakeFolder(u"/R/");
    Disk.Write(u"/R/UNDORENAME.TXT", (header ? JournalHeader() : "") + records);
    World.State.CurrentPath = u"/R/";
    World.State.UndoEnabled = true;
  }
  std::map<std::string, std::string> Undo() {
    Listened.cmdUndo_Click();
    return Disk.Contents(u"/R/");
  }
  RecordingListener Listener;
  UndoRun Listened;
};

using Files = std::map<std::string, std::string>;

TEST(Undo, WithoutAJournalDoesNothing) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.State.UndoEnabled = true;
  on.World.State.SetStatusText(u"as before");
  on.World.Undo.cmdUndo_Click();
  EXPECT_FALSE(on.World.State.UndoEnabled);
  EXPECT_EQ(on.World.State.Status, u"as before");
  EXPECT_TRUE(on.World.Boxes.Boxes.empty());
}

TEST(Undo, RenamesBackFromTheLastRecordToTheFirst) {
  UndoWorld on("<VORL>|/R/|a|b\r\n<VORL>|/R/|c|a\r\n");
  on.Disk.Write(u"/R/b", "first");
  on.Disk.Write(u"/R/a", "second");
  EXPECT_EQ(on.Undo(), (Files{{"a", "first"}, {"c", "second"}}));
  EXPECT_EQ(on.Listener.Lines,
            (std::vector<std::string>{"done <VORL>|/R/|c|a", "done <VORL>|/R/|a|b"}));
}

TEST(Undo, EndsWithTheFolderListedAnew) {
  UndoWorld on("<VORL>|/R/|a|b\r\n");
  on.Disk.Write(u"/R/b");
  on.Undo();
  EXPECT_EQ(on.World.Names(), (std::vector<Text>{u"a"}));
  EXPECT_EQ(on.World.State.Status, u"Undo complete");
  EXPECT_EQ(on.World.State.Pointer, MousePointer::Default);
  EXPECT_FALSE(on.World.State.UndoEnabled);
}

TEST(Undo, OfAnEmptyBodyOnlyRemovesTheJournal) {
  for (const bool header : {true, false}) {  // or one that was cut short
    UndoWorld on(header ? "" : JournalHeader().substr(0, 20), header);
    EXPECT_EQ(on.Undo(), Files{});
    EXPECT_EQ(on.World.State.Status, u"Undo complete");
    EXPECT_TRUE(on.Listener.Lines.empty());
  }
}

TEST(Undo, PassesOverWhatItDoesNotKnow) {
  const std::string odd[] = {
      "",
      "<VORL>",
      "<VORL>|/R/|a",
      "<vorl>|/R/|a|b",
      "<VORL>|/R/|a|b|c",
      "<MOVE>|/R/|a|b",
      "<CREATEFOLDER>|1|/R/x/|more",
      "<OTHER>|1|2",
      "<MP3TAG>|1|-1|41|||07|||/R/|b",  // a field too few
      "<MP3TAG>|1|0|||||||0|/R/|b<MP3TAG>|1|0|||||||0|/R/|b",
      "<MP3TAG>|1|0||||||||0|/R/|b|a|glued<VORL>|/R/|a|b",
  };
  for (const std::string& line : odd) {
    UndoWorld on(line + "\r\n");
    on.Disk.Write(u"/R/b", "bytes");
    on.Disk.MakeFolder(u"/R/x");
    EXPECT_EQ(on.Undo(), (Files{{"b", "bytes"}, {"x/", ""}})) << line;
    EXPECT_TRUE(on.World.Report.Reports.empty()) << line;
  }
}

TEST(Undo, ABarredWayBackIsSkippedInSilence) {
  UndoWorld on("<VORL>|/R/|a|b\r\n<VORL>|/R/|c|gone\r\n<MOVE>|/R/|d|/R/x/|d\r\n");
  on.Disk.Write(u"/R/a", "new");
  on.Disk.Write(u"/R/b", "old");
  on.Disk.Write(u"/R/d", "taken");
  on.Disk.Write(u"/R/x/d", "moved");
  EXPECT_EQ(on.Undo(),
            (Files{{"a", "new"}, {"b", "old"}, {"d", "taken"}, {"x/", ""}, {"x/d", "moved"}}));
  EXPECT_EQ(on.Listener.Lines.size(), 3U);
  EXPECT_TRUE(on.World.Report.Reports.empty());
}

TEST(Undo, SeesANameThatTheRunMadeHidden) {
  UndoWorld on("<VORL>|/R/|a|.a\r\n");
  on.Disk.Write(u"/R/.a", "bytes");
  EXPECT_EQ(on.Undo(), (Files{{"a", "bytes"}}));
}

TEST(Undo, NeverTakesTheJournalForARenamedFile) {
  UndoWorld on("<VORL>|/R/|a|UNDORENAME.TXT\r\n");
  EXPECT_EQ(on.Undo(), Files{});
  UndoWorld below("<VORL>|/R/x/|a|UNDORENAME.TXT\r\n");
  below.Disk.Write(u"/R/x/UNDORENAME.TXT", "renamed");
  EXPECT_EQ(below.Undo(), (Files{{"x/", ""}, {"x/a", "renamed"}}));
}

TEST(Undo, RemovesTheLevelsThatWereCreated) {
  UndoWorld on("<CREATEFOLDER>|2|/R/A/B/C/\r\n");
  on.Disk.MakeFolder(u"/R/A/B/C");
  EXPECT_EQ(on.Undo(), (Files{{"A/", ""}}));
}

TEST(Undo, AFolderThatIsNotEmptyStaysAndTheWalkGoesOn) {
  UndoWorld on("<CREATEFOLDER>|2|/R/A/B/\r\n");
  on.Disk.Write(u"/R/A/B/theirs", "bytes");
  EXPECT_EQ(on.Undo(), (Files{{"A/", ""}, {"A/B/", ""}, {"A/B/theirs", "bytes"}}));
  on.Disk.ForgetCalls();
  UndoWorld other("<CREATEFOLDER>|2|/R/A/B/\r\n");
  other.Disk.Write(u"/R/A/B/theirs");
  other.Disk.ForgetCalls();
  other.Undo();
  const auto& calls = other.Disk.Calls;
  EXPECT_NE(std::find(calls.begin(), calls.end(), u"RemoveFolder /R/A/"), calls.end());
}

TEST(Undo, MoreLevelsThanThePathHasEndAtTheRoot) {
  UndoWorld on("<CREATEFOLDER>|99|/R/A/\r\n");
  on.Disk.Write(u"/R/keep");
  on.Disk.MakeFolder(u"/R/A");
  EXPECT_EQ(on.Undo(), (Files{{"keep", ""}}));
}

TEST(Undo, ABadNumberOfLevelsEndsIt) {
  UndoWorld on("<VORL>|/R/|a|b\r\n<CREATEFOLDER>|many|/R/A/\r\n<VORL>|/R/|c|d\r\n");
  on.Disk.Write(u"/R/b", "1");
  on.Disk.Write(u"/R/d", "2");
  // The journal goes all the same, with a line left unreplayed.
  EXPECT_EQ(on.Undo(), (Files{{"b", "1"}, {"c", "2"}}));
  EXPECT_EQ(on.World.Report.Reports, (Reports{{u"frmMain", u"cmdUndo_Click", u"", 13}}));
  EXPECT_EQ(on.World.State.Status, u"Undo complete");
}

TEST(Undo, MovesBackBeforeItRemovesTheFolder) {
  MemoryWorld on;
  on.ListFiles({u"a.txt", u"b.txt"});
  const auto before = on.Disk.Contents(u"/");
  on.World.SelectSteps(
      {u"<CREATEFOLDER>x\\<NAMEONLY></CREATEFOLDER>", u"<MOVE>x/<NAMEONLY></MOVE>"});
  on.World.RunAll();
  EXPECT_NE(on.Disk.Contents(u"/"), before);
  on.World.Undo.cmdUndo_Click();
  EXPECT_EQ(on.Disk.Contents(u"/"), before);
}

TEST(Undo, OnWindowsPathsToTheLetter) {
  MemoryWorld on(PathStyle::Windows);
  on.Disk.MakeFolder(u"C:\\A\\B\\C");
  on.Disk.Write(u"C:\\A\\UNDORENAME.TXT", JournalHeader() + "<CREATEFOLDER>|2|C:\\A\\B\\C\\\r\n");
  on.World.State.CurrentPath = u"C:\\A\\";
  on.World.Undo.cmdUndo_Click();
  EXPECT_EQ(on.Disk.Contents(u"C:\\A\\"), Files{});
}

TEST(Undo, NamesThatALineCannotCarryComeBack) {
  MemoryWorld on;
  const std::vector<Text> names{u"a|b", u"line\r\nbreak", u"\u65E5\u672C", u"\U0001F600",
                                Text(u"odd") + static_cast<char16_t>(0xDCFF)};
  on.ListFiles(names);
  const auto before = on.Disk.Contents(u"/");
  on.World.SelectSteps({u"x<AUTONUMBER>"});
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"/R/x1"));
  EXPECT_TRUE(on.Disk.Exists(u"/R/(4)x1"));
  on.World.Undo.cmdUndo_Click();
  EXPECT_EQ(on.Disk.Contents(u"/"), before);
}

TEST(Undo, OfMoreThan32767LinesFailsAtOnce) {
  for (const int lines : {32767, 32768}) {
    std::string records = "<VORL>|/R/|a|b\r\n";
    for (int i = 1; i < lines; ++i) {
      records += "x\r\n";
    }
    UndoWorld on(records);
    on.Disk.Write(u"/R/b");
    const bool overflows = lines == 32768;
    EXPECT_EQ(on.Undo(), (Files{{overflows ? "b" : "a", ""}}));
    EXPECT_EQ(on.World.Report.Reports.size(), overflows ? 1U : 0U);
    if (overflows) {
      EXPECT_EQ(on.World.Report.Reports[0].Number, 6);
    }
  }
}

TEST(Undo, AFileThatIsNoJournalIsNotTakenForOne) {
  for (const std::string& bytes : {std::string(), std::string("<VORL>|/R/|a|b\r\n")}) {
    UndoWorld on(bytes, false);
    on.Disk.Write(u"/R/b");
    EXPECT_EQ(on.Undo(), (Files{{"UNDORENAME.TXT", bytes}, {"b", ""}}));
    EXPECT_EQ(on.World.State.Status, u"");
  }
}

TEST(Undo, DoesNothingWhileARunAListingOrAnotherUndoIsAtWork) {
  for (int busy = 0; busy < 3; ++busy) {
    UndoWorld on("<VORL>|/R/|a|b\r\n");
    on.Disk.Write(u"/R/b");
    on.World.State.Jobs.BatchState = busy == 0 ? JobState::Running : JobState::Idle;
    on.World.State.Jobs.ListingState = busy == 1 ? JobState::Running : JobState::Idle;
    on.World.State.JournalInUse = busy == 2;
    EXPECT_EQ(on.Undo().count("b"), 1U);
    EXPECT_TRUE(on.Listener.Lines.empty());
  }
}

TEST(Undo, GoesOnWithItsFolderWhenAnotherOneIsListedMeanwhile) {
  const std::string frames = id3::Frame("TPE1", "New");
  UndoWorld on("<VORL>|/R/|a|b\r\n<MP3TAG>|2|-1|4F6C64|||01|||0|/R/|s.mp3\r\n");
  on.Disk.Write(u"/R/b", "bytes");
  on.Disk.Write(u"/R/s.mp3", id3::Tag(400, frames));
  on.Disk.Write(u"/other/UNDORENAME.TXT", JournalHeader() + "theirs");
  bool changed = false;
  on.World.Loop.OnYield = [&] {
    if (!changed) {
      changed = true;
      on.World.State.CurrentPath = u"/other/";
    }
  };
  on.Undo();
  EXPECT_TRUE(changed);
  EXPECT_EQ(on.Disk.Read(u"/R/a"), "bytes");
  EXPECT_FALSE(on.Disk.Exists(u"/R/UNDORENAME.TXT"));
  EXPECT_TRUE(on.Disk.Exists(u"/other/UNDORENAME.TXT"));
}

TEST(Undo, TakesTheSameJournalTwiceWithoutHarm) {
  const std::string records =
      "<CREATEFOLDER>|1|/R/x/\r\n<MOVE>|/R/|a|/R/x/|a\r\n<VORL>|/R/|b|c\r\n";
  UndoWorld on(records);
  on.Disk.Write(u"/R/x/a", "1");
  on.Disk.Write(u"/R/c", "2");
  const Files once = on.Undo();
  EXPECT_EQ(once, (Files{{"a", "1"}, {"b", "2"}}));
  on.Disk.Write(u"/R/UNDORENAME.TXT", JournalHeader() + records);
  EXPECT_EQ(on.Undo(), once);
}

TEST(Undo, BringsALinkBackThatLeadsNowhereFromItsNewPlace) {
  MemoryWorld on;
  on.Disk.Write(u"/R/song");
  on.Disk.MakeLink(u"/R/link", u"song");
  on.Disk.MakeFolder(u"/R/x");
  on.World.ListAll(u"/R/");
  const auto before = on.Disk.Contents(u"/");
  on.World.SelectSteps({u"<MOVE>x</MOVE>"});
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"/R/x/link"));
  on.World.Undo.cmdUndo_Click();
  EXPECT_EQ(on.Disk.Contents(u"/"), before);
}

TEST(Undo, AJournalThatCannotBeReadIsAFailureAndStays) {
  UndoWorld on("<VORL>|/R/|a|b\r\n");
  on.Disk.SetUnreadable(u"/R/UNDORENAME.TXT");
  on.Disk.Write(u"/R/b");
  EXPECT_EQ(on.Undo(),
            (Files{{"UNDORENAME.TXT", JournalHeader() + "<VORL>|/R/|a|b\r\n"}, {"b", ""}}));
  EXPECT_EQ(on.World.Report.Reports.size(), 1U);
}

}  // namespace
}  // namespace vorlane
