// cmdGo_Click: the run over the rows, its modes, its end and its failures. Tag steps have a file of
// their own.
#include "batch/batch_run.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/code_page.h"
#include "support/form_world.h"

namespace vorlane {
namespace {

using Names = std::vector<Text>;
using Reports = std::vector<RecordingReport::Report>;

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

// A list of "a", "b", "c" with proposals, in One mode, in which no row was ever selected.
struct UnmarkedWorld : MemoryWorld {
  UnmarkedWorld() {
    for (const Text name : {u"a", u"b", u"c"}) {
      Disk.Write(u"/R/" + name);
    }
    World.Loop.OnYield = [this] {
      if (World.State.Rows.Count() == 3) {
        World.State.Jobs.RequestStop();  // a stopped listing selects no row
      }
    };
    World.ListAll(u"/R/");
    World.Loop.OnYield = nullptr;
    World.SelectSteps({u"x<FILENAME>"});
    World.PreviewAll();
    World.State.DoAll = false;
  }
};

TEST(RunOne, WithoutAMarkTheRowsAreGoneThroughForASelectedOne) {
  UnmarkedWorld on;
  ASSERT_EQ(on.World.State.Rows.SelectionMark(), -1);
  const auto start = on.World.Time.Ms;
  std::size_t looks = 0;
  on.World.Loop.OnYield = [&] {
    if (on.World.State.Jobs.BatchState == JobState::Running && ++looks == 2) {
      on.World.State.SelectRow(3);
    }
  };
  on.World.Batch.cmdGo_Click();
  EXPECT_TRUE(on.Disk.Exists(u"/R/xc"));
  EXPECT_TRUE(on.Disk.Exists(u"/R/a"));
  EXPECT_EQ(on.World.Time.Ms, start);  // going through rows doesn't wait
}

TEST(RunOne, WithoutAMarkAndWithoutAVisibleRowNothingIsDone) {
  UnmarkedWorld on;
  on.World.View.CountPerPage = 0;
  on.World.Loop.OnYield = [&] {
    if (on.World.State.Jobs.BatchState == JobState::Running) {
      on.World.State.SelectRow(2);
    }
  };
  on.World.Batch.cmdGo_Click();
  EXPECT_TRUE(on.Disk.Exists(u"/R/b"));
}

// A row that is marked but not selected is tried again and again, without using the processor,
// until something changes.
TEST(RunOne, AMarkedRowThatIsNotSelectedIsWaitedFor) {
  for (const bool stop : {true, false}) {
    MemoryWorld on;
    on.ListFiles({u"a", u"b"});
    on.World.SelectSteps({u"x<FILENAME>"});
    on.World.PreviewAll();
    on.World.State.DoAll = false;
    on.World.State.DeselectRow();
    const auto start = on.World.Time.Ms;
    std::size_t yields = 0;
    on.World.Loop.OnYield = [&] {
      if (++yields == 200 && stop) {
        on.World.State.Jobs.RequestStop();
      } else if (yields == 200) {
        on.World.State.SelectRow(1);
      }
    };
    on.World.Batch.cmdGo_Click();
    EXPECT_EQ(on.Disk.Exists(u"/R/xa"), !stop);
    EXPECT_GE(on.World.Time.Ms - start, 1500U);
  }
}

TEST(RunOne, AMarkOnTheLastRowEndsTheWaitAtOnce) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.PreviewAll();
  on.World.State.DoAll = false;
  on.World.State.SelectRow(2);
  on.World.State.DeselectRow();
  on.World.Batch.cmdGo_Click();
  EXPECT_TRUE(on.Disk.Exists(u"/R/a"));
  EXPECT_TRUE(on.Disk.Exists(u"/R/b"));
  EXPECT_EQ(on.World.State.Rows.Selected(), 1);
}

TEST(RunOne, ReplacesTheJournalOfTheRowBefore) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.State.DoAll = false;
  on.World.PreviewAll();
  on.World.Batch.cmdGo_Click();
  on.World.Batch.cmdGo_Click();
  EXPECT_EQ(JournalBody(on), "<VORL>|/R/|b|xb\r\n");
}

TEST(RunOne, ARowThatIsReadOnlyNoMoreIsNotLookedAtAgain) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.Disk.SetReadOnly(u"/R/a");
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.PreviewAll();
  on.Disk.SetReadOnly(u"/R/a", false);
  on.World.State.DoAll = false;
  on.World.Batch.cmdGo_Click();
  EXPECT_TRUE(on.Disk.Exists(u"/R/a"));
}

// What the message loop may bring in the middle of a run.
TEST(RunGuards, GoInsideARunOrAListingDoesNothing) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.Loop.OnYield = [&] { on.World.Batch.cmdGo_Click(); };
  on.World.RunAll();
  EXPECT_EQ(JournalBody(on), "<VORL>|/R/|a|xa\r\n<VORL>|/R/|b|xb\r\n");
  on.World.List.PathChangedEvent();
  EXPECT_EQ(on.World.Names(), (Names{u"xa", u"xb"}));
}

TEST(RunGuards, ASecondGoDuringTheWaitForThePreviewDoesNothing) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.State.Jobs.PreviewState = JobState::Running;  // lies below and never answers
  on.World.Loop.OnYield = [&] { on.World.Batch.cmdGo_Click(); };
  const auto start = on.World.Time.Ms;
  on.World.RunAll();
  EXPECT_GE(on.World.Time.Ms - start, 3000U);
  EXPECT_EQ(JournalBody(on), "<VORL>|/R/|a|xa\r\n");
}

TEST(RunGuards, AnotherFolderListedInTheMiddleEndsTheRun) {
  bool reachedEnd = false;
  for (std::size_t at = 1; !reachedEnd; ++at) {
    SCOPED_TRACE("yield " + std::to_string(at));
    MemoryWorld on;
    for (const Text name : {u"/N/a", u"/N/b", u"/N/c", u"/R/a", u"/R/b", u"/R/c"}) {
      on.Disk.Write(name, CodePageBytes(name));
    }
    on.World.ListAll(u"/R/");
    on.World.SelectSteps({u"<MID>x<FILENAME>|||</MID>"});
    std::size_t yields = 0;
    bool nested = false;
    on.World.Loop.OnYield = [&] {
      if (++yields == at) {
        nested = true;
        on.World.ListAll(u"/N/");
      }
    };
    on.World.RunAll();
    reachedEnd = !nested;
    ASSERT_EQ(on.Disk.Contents(u"/N/"),
              (std::map<std::string, std::string>{{"a", "/N/a"}, {"b", "/N/b"}, {"c", "/N/c"}}));
    ASSERT_EQ(on.World.State.Jobs.BatchState, JobState::Idle);
    // What was renamed until then can be taken back.
    on.World.Loop.OnYield = nullptr;
    on.World.State.CurrentPath = u"/R/";
    on.World.Undo.cmdUndo_Click();
    ASSERT_EQ(on.Disk.Contents(u"/R/"),
              (std::map<std::string, std::string>{{"a", "/R/a"}, {"b", "/R/b"}, {"c", "/R/c"}}));
    ASSERT_LT(at, 1000U);
  }
}

TEST(RunGuards, TheFolderTreeStaysLockedBehindTheRunsOwnPreview) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"x<FILENAME>"});
  bool unlocked = false;
  on.World.Loop.OnYield = [&] {
    if (on.World.State.Jobs.BatchState == JobState::Running) {
      unlocked = unlocked || on.World.View.Notes.back() == u"control 1 enabled";
    }
  };
  on.World.View.Notes.clear();
  on.World.RunAll();
  EXPECT_FALSE(unlocked);
  EXPECT_TRUE(on.World.View.Has(u"control 1 enabled"));  // at the end
}

TEST(Run, AStopDuringItsPreviewRenamesNothingAndLeavesTheBareJournal) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.Loop.OnYield = [&] {
    if (on.World.State.Jobs.PreviewState == JobState::Running) {
      on.World.State.Jobs.RequestStop();
    }
  };
  on.World.RunAll();
  EXPECT_EQ(on.World.Names(), (Names{u"a", u"b"}));
  EXPECT_EQ(JournalBody(on), "");
  EXPECT_FALSE(on.World.State.UndoEnabled);
}

TEST(Run, WorksOutEachRowsBoxesTwice) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.View.Notes.clear();
  on.World.State.Jobs.BatchState = JobState::Idle;
  on.World.RunAll();
  const auto& notes = on.World.View.Notes;
  // Twice for each of two rows, and once for the click that ends the run.
  EXPECT_EQ(std::count(notes.begin(), notes.end(), u"box 0"), 5);
}

TEST(Run, WithoutASelectedOperationFails) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.PreviewAll();
  on.World.State.SelectedOperation = 0;
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"/R/a"));
  EXPECT_EQ(on.World.Report.Reports, (Reports{{u"frmMain", u"cmdGo_Click", u"", 9}}));
}

TEST(Run, UndoStaysEnabledThoughTheLastClickListsAnew) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"<CREATEFOLDER>x</CREATEFOLDER>", u"<MOVE>x</MOVE>"});
  on.World.RunAll();
  EXPECT_TRUE(on.World.Names().empty());
  EXPECT_TRUE(on.World.State.UndoEnabled);
}

}  // namespace
}  // namespace vorlane
