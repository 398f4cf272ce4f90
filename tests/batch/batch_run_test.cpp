// cmdGo_Click: the run over the rows, its modes, its end and its failures. Tag steps have a file of
// their own.
#include "batch/batch_run.h"

#include <gtest/gtest.h>

#include "support/form_world.h"

namespace vorlane {
namespace {

using Names = std::vector<Text>;
using Reports = std::vector<RecordingReport::Report>;

std::string JournalBody(MemoryWorld& on) {
  return on.Disk.Exists(u"/R/UNDORENAME.TXT")
             ? on.Disk.Read(u"/R/UNDORENAME.TXT").substr(JournalHeaderSize)
             : "no journal";
}

// Bytes of all files below "/R/", the journal left out.
std::map<std::string, std::string> FilesOf(const MemoryWorld& on) {
  auto contents = on.Disk.Contents(u"/R/");
  contents.erase("UNDORENAME.TXT");
  return contents;
}

TEST(Run, OnAnEmptyListDoesNothingAtAll) {
  MemoryWorld on;
  on.ListFiles({});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.Disk.ForgetCalls();
  on.World.View.Notes.clear();
  on.World.RunAll();
  EXPECT_EQ(on.Disk.CallCount, 0U);
  EXPECT_TRUE(on.World.View.Notes.empty());
}

TEST(Run, RenamesEveryRowAndJournalsIt) {
  MemoryWorld on;
  on.ListFiles({u"a.txt", u"b.txt"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.RunAll();
  EXPECT_EQ(FilesOf(on), (std::map<std::string, std::string>{{"xa.txt", ""}, {"xb.txt", ""}}));
  EXPECT_EQ(on.World.Names(), (Names{u"xa.txt", u"xb.txt"}));
  EXPECT_EQ(JournalBody(on), "<VORL>|/R/|a.txt|xa.txt\r\n<VORL>|/R/|b.txt|xb.txt\r\n");
  EXPECT_TRUE(on.World.State.UndoEnabled);
}

TEST(Run, PreviewsAllRowsFirst) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.PreviewAll();
  on.World.SelectSteps({u"y<FILENAME>"});
  on.World.RunAll();
  EXPECT_EQ(on.World.Names(), (Names{u"ya", u"yb"}));
}

TEST(Run, MarkersEmptyAndEqualProposalsAreNotRenamed) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b", u"c", u"d"});
  on.Disk.SetReadOnly(u"/R/a");
  on.Disk.SetInUse(u"/R/b");
  on.World.SelectSteps({u"<REPLACE><FILENAME>|d|new|</REPLACE>"});
  on.World.RunAll();
  EXPECT_EQ(on.World.Names(), (Names{u"a", u"b", u"c", u"new"}));
  EXPECT_EQ(JournalBody(on), "<VORL>|/R/|d|new\r\n");
}

TEST(Run, CaseAloneIsARename) {
  for (const LetterCase letterCase : {LetterCase::Matters, LetterCase::Ignored}) {
    MemoryWorld on(PathStyle::Posix, letterCase);
    on.ListFiles({u"A.txt"});
    on.World.SelectSteps({u"<LOWERCASE><FILENAME></LOWERCASE>"});
    on.World.RunAll();
    EXPECT_EQ(FilesOf(on), (std::map<std::string, std::string>{{"a.txt", ""}}));
  }
}

TEST(Run, WithNothingDoneLeavesNoJournalAndNoUndo) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"<FILENAME>"});
  on.World.State.UndoEnabled = true;
  on.World.RunAll();
  EXPECT_EQ(JournalBody(on), "no journal");
  EXPECT_FALSE(on.World.State.UndoEnabled);
}

TEST(Run, ReplacesTheJournalOfAnEarlierRun) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.RunAll();
  on.World.RunAll();
  EXPECT_EQ(JournalBody(on), "<VORL>|/R/|xa|xxa\r\n");
}

TEST(Run, CanGoOnWithTheJournalOfTheRunBefore) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.RunAll();
  on.World.Batch.cmdGo_Click(JournalStart::Continue);
  EXPECT_EQ(JournalBody(on), "<VORL>|/R/|a|xa\r\n<VORL>|/R/|xa|xxa\r\n");
}

TEST(Run, InAllModeEndsWithTheFirstRowSelectedAndInView) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b", u"c"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.State.SelectRow(3);
  on.World.RunAll();
  EXPECT_EQ(on.World.State.Rows.Selected(), 1);
  EXPECT_TRUE(on.World.View.Has(u"visible 1"));
  // The click that ends the run previews the new names.
  EXPECT_EQ(on.World.Proposed(), (Names{u"xxa", u"xxb", u"xxc"}));
}

TEST(Run, SelectsEachRowInTurn) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b", u"c"});
  on.World.SelectSteps({u"x<FILENAME>"});
  std::vector<std::int32_t> selected;
  on.World.Loop.OnYield = [&] {
    if (on.World.State.Jobs.BatchState == JobState::Running) {
      selected.push_back(on.World.State.Rows.Selected());
    }
  };
  on.World.RunAll();
  EXPECT_EQ(std::count(selected.begin(), selected.end(), 2), 2);
}

TEST(Run, ScrollsAheadOfTheRowInHand) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b", u"c", u"d", u"e", u"f"});
  on.World.SelectSteps({u"<FILENAME>"});
  on.World.View.CountPerPage = 2;  // rows per page is 3
  on.World.RunAll();
  // Row 4 is the first that lies three rows below the top: row 3 + 4, but no further than 6.
  EXPECT_TRUE(on.World.View.Has(u"visible 6"));
  EXPECT_FALSE(on.World.View.Has(u"visible 5"));
}

TEST(Run, ShowsTheTimeTakenAndThePercentage) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b", u"c"});
  on.World.SelectSteps({u"<FILENAME>"});
  on.World.View.Statuses.clear();
  on.World.View.Percents.clear();
  on.World.Loop.OnYield = [&] {
    on.World.Time.Ms += on.World.State.Status.starts_with(u"Time taken") ? 30999 : 0;
  };
  on.World.RunAll();
  const Names statuses = on.World.View.Statuses;
  EXPECT_NE(std::find(statuses.begin(), statuses.end(), u"Time taken: 00:00"), statuses.end());
  EXPECT_EQ(statuses.back().substr(0, 21), u"Ready - Time taken: 0");
  const auto& percents = on.World.View.Percents;
  EXPECT_NE(std::find(percents.begin(), percents.end(), 33), percents.end());
  EXPECT_NE(std::find(percents.begin(), percents.end(), 66), percents.end());
  EXPECT_EQ(percents.back(), 100);
}

TEST(Run, LocksControlsAndTurnsSortingOffAndOn) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"<REPLACE><FILENAME>|a|z|</REPLACE>"});
  bool locked = true;
  bool unsorted = true;
  on.World.Loop.OnYield = [&] {
    if (on.World.State.Jobs.BatchState == JobState::Running) {
      locked = locked && on.World.State.StopVisible;
      unsorted = unsorted && !on.World.State.Rows.Sorted();
    }
  };
  on.World.RunAll();
  EXPECT_TRUE(locked);
  EXPECT_TRUE(unsorted);
  EXPECT_FALSE(on.World.State.StopVisible);
  EXPECT_EQ(on.World.State.Pointer, MousePointer::Default);
  EXPECT_EQ(on.World.Names(), (Names{u"b", u"z"}));  // sorted again at the end
}

TEST(Run, StopFinishesTheRowInHandAndKeepsTheJournal) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b", u"c"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.Loop.OnYield = [&] {
    if (on.Disk.Exists(u"/R/xa")) {
      on.World.State.Jobs.RequestStop();
    }
  };
  on.World.RunAll();
  EXPECT_EQ(FilesOf(on), (std::map<std::string, std::string>{{"xa", ""}, {"b", ""}, {"c", ""}}));
  EXPECT_EQ(JournalBody(on), "<VORL>|/R/|a|xa\r\n");
  EXPECT_FALSE(on.World.State.UndoEnabled);
  EXPECT_EQ(on.World.State.Jobs.BatchState, JobState::Idle);
  EXPECT_EQ(on.World.State.Status, u"Ready - Time taken: 00:00");
}

TEST(Run, ARowWhoseTargetIsTakenStaysAsItIs) {
  MemoryWorld on;
  on.Disk.MakeFolder(u"/R/taken");
  on.Disk.MakeLink(u"/R/link", u"/gone");
  on.ListFiles({u"1", u"2", u"3"});
  on.World.SelectSteps(
      {u"<TRY><REPLACE><REPLACE><NAMEONLY>|1|taken|</REPLACE>|2|link|</REPLACE>|"
       u"</TRY>"});
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed()[0], u"taken");
  on.World.RunAll();
  EXPECT_EQ(on.World.Names(), (Names{u"1", u"2", u"3"}));
  EXPECT_EQ(JournalBody(on), "no journal");
  EXPECT_TRUE(on.World.Report.Reports.empty());
}

TEST(Run, ARefusalByTheSystemBehindTheChecksShowsAndJournalsTheNewName) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.Disk.Write(u"/R/.b", "hidden");
  on.World.SelectSteps({u"<REPLACE><FILENAME>|b|.b|</REPLACE>"});
  on.World.RunAll();
  EXPECT_EQ(on.World.Names(), (Names{u".b", u"a"}));
  EXPECT_EQ(JournalBody(on), "<VORL>|/R/|b|.b\r\n");
  EXPECT_EQ(FilesOf(on),
            (std::map<std::string, std::string>{{"a", ""}, {"b", ""}, {".b", "hidden"}}));
}

TEST(Run, FailuresAreReportedOnceAndLeaveTheJournal) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({Text(40000, u'x')});
  on.World.State.UndoEnabled = true;
  on.World.RunAll();
  EXPECT_EQ(on.World.Report.Reports, (Reports{{u"frmMain", u"UpdateFilePreviewAll", u"", 6},
                                              {u"frmMain", u"cmdGo_Click", u"", 6}}));
  EXPECT_EQ(JournalBody(on), "");  // left as it is
  EXPECT_FALSE(on.World.State.UndoEnabled);
  EXPECT_EQ(on.World.State.Jobs.BatchState, JobState::Idle);
  EXPECT_FALSE(on.World.State.StopVisible);
}

TEST(Run, WithoutAJournalTheRunGoesOn) {
  MemoryWorld on;
  on.Disk.MakeFolder(u"/R/UNDORENAME.TXT");
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"/R/xa"));
  EXPECT_EQ(on.World.Report.Reports, (Reports{{u"", u"CreateUndoFile", u"", 58}}));
}

TEST(Run, SomebodysOwnFileOfTheJournalsNameIsNeverTouched) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.Disk.Write(u"/R/UNDORENAME.TXT", "my own notes");
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.RunAll();
  EXPECT_EQ(on.Disk.Read(u"/R/UNDORENAME.TXT"), "my own notes");
  EXPECT_EQ(on.World.Report.Reports, (Reports{{u"", u"CreateUndoFile", u"", 58}}));
  EXPECT_FALSE(on.World.State.UndoEnabled);
  on.World.Undo.cmdUndo_Click();
  EXPECT_EQ(on.Disk.Read(u"/R/UNDORENAME.TXT"), "my own notes");
}

TEST(RunOne, DoesTheSelectedRowAndGoesToTheNext) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b", u"c"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.State.DoAll = false;
  on.World.State.SelectRow(2);
  on.World.PreviewAll();
  on.World.State.BoxEdited = true;
  on.World.Batch.cmdGo_Click();
  EXPECT_EQ(FilesOf(on), (std::map<std::string, std::string>{{"a", ""}, {"xb", ""}, {"c", ""}}));
  EXPECT_EQ(on.World.State.Rows.At(on.World.State.Rows.Selected()).Name, u"c");
  EXPECT_FALSE(on.World.State.BoxEdited);
  EXPECT_EQ(JournalBody(on), "<VORL>|/R/|b|xb\r\n");
  EXPECT_TRUE(on.World.State.UndoEnabled);
}

TEST(RunOne, TakesTheProposalAsItStandsWithoutAPreview) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.PreviewAll();
  on.World.SelectSteps({u"y<FILENAME>"});
  on.World.State.DoAll = false;
  on.World.Batch.cmdGo_Click();
  EXPECT_TRUE(on.Disk.Exists(u"/R/xa"));
}

TEST(RunOne, BehindTheLastRowComesTheFirst) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"<FILENAME>"});
  on.World.State.DoAll = false;
  on.World.State.SelectRow(2);
  on.World.Batch.cmdGo_Click();
  EXPECT_EQ(on.World.State.Rows.Selected(), 1);
  EXPECT_TRUE(on.World.View.Has(u"visible 1"));
}

TEST(RunOne, AFileThatWasInUseIsLookedAtAgain) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.Disk.SetInUse(u"/R/a");
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.State.DoAll = false;
  on.World.Previews.UpdateFilePreviewAll(false, 1);
  EXPECT_EQ(on.World.Proposed(), (Names{u"<File in Use>"}));
  on.Disk.SetInUse(u"/R/a", false);
  on.World.Batch.cmdGo_Click();
  EXPECT_TRUE(on.Disk.Exists(u"/R/xa"));
}

TEST(RunOne, WithoutAMarkTheSelectedRowIsLookedForIfTheListShowsRows) {
  for (const std::int32_t perPage : {0, 5}) {
    MemoryWorld on;
    on.ListFiles({u"a", u"b"});
    on.World.SelectSteps({u"x<FILENAME>"});
    on.World.PreviewAll();
    on.World.State.DoAll = false;
    on.World.State.DeselectRow();
    on.World.View.CountPerPage = perPage;
    std::size_t before = on.World.Loop.Yields;
    on.World.Batch.cmdGo_Click();
    // No row is selected, so none is done, and the loop ends by itself.
    EXPECT_EQ(FilesOf(on).count("a"), 1U);
    EXPECT_GT(on.World.Loop.Yields, before);
  }
}

TEST(FolderSteps, MakeAFolderMoveIntoItAndJournalBoth) {
  MemoryWorld on;
  on.ListFiles({u"a.txt"});
  on.World.SelectSteps(
      {u"<CREATEFOLDER>x\\<NAMEONLY></CREATEFOLDER>", u"<MOVE>x/<NAMEONLY></MOVE>"});
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"/R/x/a/a.txt"));
  EXPECT_EQ(JournalBody(on), "<CREATEFOLDER>|2|/R/x/a/\r\n<MOVE>|/R/|a.txt|/R/x/a/|a.txt\r\n");
}

TEST(FolderSteps, AFolderThatIsThereIsNotJournalled) {
  MemoryWorld on;
  on.Disk.MakeFolder(u"/R/x");
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"<CREATEFOLDER>x</CREATEFOLDER>"});
  on.World.RunAll();
  EXPECT_EQ(JournalBody(on), "no journal");
}

TEST(FolderSteps, AMoveIntoNoFolderDoesAndRecordsNothing) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"<MOVE>gone</MOVE>"});
  on.World.RunAll();
  EXPECT_EQ(JournalBody(on), "no journal");
  EXPECT_TRUE(on.Disk.Exists(u"/R/a"));
}

TEST(FolderSteps, ARenameBehindAMoveFindsNoSource) {
  MemoryWorld on;
  on.Disk.MakeFolder(u"/R/x");
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"<MOVE>x</MOVE>", u"new<FILENAME>"});
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"/R/x/a"));
  EXPECT_EQ(JournalBody(on), "<MOVE>|/R/|a|/R/x/|a\r\n<MOVE>|/R/|b|/R/x/|b\r\n");
}

TEST(FolderSteps, CreateFolderComesBeforeMoveInOneStep) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"<CREATEFOLDER><MOVE>x</MOVE></CREATEFOLDER>"});
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"/R/x"));
  EXPECT_TRUE(on.Disk.Exists(u"/R/a"));
}

TEST(FolderSteps, SeeTheSelectedRowsBoxesInBothModes) {
  for (const bool all : {true, false}) {
    MemoryWorld on;
    on.ListFiles({u"a", u"b"});
    on.World.SelectSteps({u"<CREATEFOLDER><BOX1></CREATEFOLDER>", u"<FILENAME>"});
    on.World.ShowBox(1, u"", u"<NAMEONLY>dir");
    on.World.State.DoAll = all;
    on.World.State.SelectRow(2);
    on.World.List.lstFileListItemClick();
    on.World.Batch.cmdGo_Click();
    EXPECT_TRUE(on.Disk.Exists(u"/R/bdir"));
    EXPECT_EQ(on.Disk.Exists(u"/R/adir"), all);
  }
}

TEST(FolderSteps, UseTheRowNumber) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"<CREATEFOLDER>n<AUTONUMBER></CREATEFOLDER>"});
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"/R/n1"));
  EXPECT_TRUE(on.Disk.Exists(u"/R/n2"));
}

TEST(FolderSteps, OnWindowsPathsToTheLetter) {
  MemoryWorld on(PathStyle::Windows);
  on.Disk.Write(u"C:\\Music\\a.mp3");
  on.World.ListAll(u"C:\\Music\\");
  on.World.SelectSteps({u"<CREATEFOLDER>C:\\A\\B</CREATEFOLDER>", u"<MOVE>C:\\A\\B</MOVE>"});
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"C:\\A\\B\\a.mp3"));
  EXPECT_EQ(on.Disk.Read(u"C:\\Music\\UNDORENAME.TXT").substr(JournalHeaderSize),
            "<CREATEFOLDER>|2|C:\\A\\B\\\r\n<MOVE>|C:\\Music\\|a.mp3|C:\\A\\B\\|a.mp3\r\n");
}

}  // namespace
}  // namespace vorlane
