// UpdateFilePreviewAll: which rows are previewed, what each row shows, and how the job behaves.
#include "preview/preview.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/form_world.h"
#include "support/id3_bytes.h"

namespace vorlane {
namespace {

using Names = std::vector<Text>;

TEST(Preview, FillsTheProposedNameOfEveryRow) {
  MemoryWorld on;
  on.ListFiles({u"b.txt", u"a.txt"});
  on.World.SelectSteps({u"<UPPERCASE><NAMEONLY></UPPERCASE><EXTONLY>"});
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"A.txt", u"B.txt"}));
  EXPECT_EQ(on.World.State.ProposedNames[1], u"B.txt");
}

TEST(Preview, StepsDoNotChainAndTheLastOneDecides) {
  MemoryWorld on;
  on.ListFiles({u"a.txt"});
  on.World.SelectSteps({u"x<FILENAME>", u"y<FILENAME>"});
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"ya.txt"}));
}

TEST(Preview, AStepWithoutAResultProposesTheCurrentName) {
  for (const Text step : {u"plain words", u"<CREATEFOLDER>x</CREATEFOLDER>", u"<MOVE>x</MOVE>",
                          u"<RemoveID3v1>", u"<MID> | </MID>"}) {
    MemoryWorld on;
    on.ListFiles({u"a.txt"});
    on.World.SelectSteps({u"x<FILENAME>", step});
    on.World.PreviewAll();
    EXPECT_EQ(on.World.Proposed(), (Names{u"a.txt"})) << testing::PrintToString(step);
  }
}

TEST(Preview, WithoutAStepColumnOneStaysButBoxesAreEvaluated) {
  MemoryWorld on;
  on.ListFiles({u"a.txt"});
  on.World.SelectSteps({});
  on.World.ShowBox(1, u"", u"<NAMEONLY>");
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u""}));
  EXPECT_EQ(on.World.State.BoxValues.Values[0], u"a");
}

TEST(Preview, AKeywordThatStaysShowsWithUnderscores) {
  MemoryWorld on;
  on.ListFiles({u"a.txt"});
  on.World.SelectSteps({u"<ARTIST>-<NAMEONLY>"});
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"_ARTIST_-a"}));
}

TEST(Preview, CollidingNamesGetNumbersInFront) {
  MemoryWorld on;
  on.ListFiles({u"1.txt", u"2.txt", u"3.txt"});
  on.World.SelectSteps({u"a<EXTONLY>"});
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"a.txt", u"(1)a.txt", u"(2)a.txt"}));
}

TEST(Preview, AChangeOfCaseAloneIsNoCollision) {
  MemoryWorld on;
  on.ListFiles({u"A.mp3", u"a.MP3"});
  on.World.SelectSteps({u"<LOWERCASE><FILENAME></LOWERCASE>"});
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"a.mp3", u"a.mp3"}));
}

TEST(Preview, EqualNamesInDifferentFoldersDoNotCollide) {
  MemoryWorld on;
  on.Disk.Write(u"/R/1.txt");
  on.Disk.Write(u"/R/x/2.txt");
  on.World.State.IncludeSubFolders = true;
  on.World.ListAll(u"/R/");
  on.World.SelectSteps({u"a<EXTONLY>"});
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"a.txt", u"a.txt"}));
}

TEST(Preview, ReadOnlyAndUsedFilesShowMarkersAndAreNotCounted) {
  MemoryWorld on;
  on.ListFiles({u"1", u"2", u"3"});
  on.Disk.SetReadOnly(u"/R/2");
  on.Disk.SetInUse(u"/R/2");  // read-only comes first
  on.Disk.SetInUse(u"/R/3");
  on.World.SelectSteps({u"<MID>a|||</MID>"});
  on.World.ShowBox(1, u"", u"<NAMEONLY>");
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"a", u"<Read Only>", u"<File in Use>"}));
  EXPECT_EQ(on.World.State.ProposedNames[1], u"");
  EXPECT_EQ(on.World.State.ProposedNames[2], u"");
  EXPECT_EQ(on.World.State.BoxValues.Values[0], u"1");  // the others ran no formula
}

TEST(Preview, AReadOnlyFolderShowsItsMarker) {
  MemoryWorld on;
  on.Disk.MakeFolder(u"/R/x");
  on.Disk.SetReadOnly(u"/R/x");
  on.World.State.ListFolders = true;
  on.World.ListAll(u"/R/");
  on.World.SelectSteps({u"y<FILENAME>"});
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"<Read Only>"}));
}

TEST(Preview, OpensAnMp3FileOnce) {
  MemoryWorld on;
  on.Disk.Write(u"/R/1.mp3", id3::Audio(300) + id3::V1("t", "a", "", "", "", 0, 0));
  on.World.ListAll(u"/R/");
  on.World.SelectSteps({u"<ARTIST><EXTONLY>"});
  on.Disk.ForgetCalls();
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"a.mp3"}));
  EXPECT_EQ(on.Disk.Calls,
            (Names{u"UseOf /R/1.mp3", u"Size /R/1.mp3", u"ReadAt /R/1.mp3", u"ReadAt /R/1.mp3"}));
}

TEST(Preview, ShowsWhatTheTagsOfAnMp3FileSay) {
  const std::string v1 = id3::V1("Old title", "Old artist", "", "", "", 0, 0);
  const std::string v2 =
      id3::Tag(300, id3::Frame("TPE1", "New artist") + id3::Frame("TIT2", "New"));
  MemoryWorld on;
  on.Disk.Write(u"/R/1.mp3", id3::Audio(300) + v1);
  on.Disk.Write(u"/R/2.MP3", v2 + id3::Audio(300) + v1);
  on.Disk.Write(u"/R/3.txt", id3::Audio(300) + v1);
  on.World.ListAll(u"/R/");
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.PreviewAll();
  const FileRows& rows = on.World.State.Rows;
  const Column columns[] = {Column::Artist, Column::Title, Column::ID3v1, Column::ID3v2};
  const Names expected[] = {{u"Old artist", u"Old title", u"Yes", u"No"},
                            {u"New artist", u"New", u"Yes", u"Yes"},
                            {u"", u"", u"", u""}};
  for (std::int32_t row = 1; row <= 3; ++row) {
    for (std::size_t i = 0; i < 4; ++i) {
      EXPECT_EQ(rows.CellText(row, columns[i]), expected[row - 1][i]) << row;
    }
  }
}

TEST(Preview, ReadsNoTagsInFolderMode) {
  MemoryWorld on;
  on.Disk.MakeFolder(u"/R/x.mp3");
  on.World.State.ListFolders = true;
  on.World.ListAll(u"/R/");
  on.World.SelectSteps({u"y<FILENAME>"});
  on.Disk.ForgetCalls();
  on.World.PreviewAll();
  EXPECT_EQ(on.Disk.Calls, (Names{u"StatusOf /R/x.mp3"}));
}

TEST(Preview, AnEqualProposalIsNotWrittenAgain) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.State.SetProposedCell(1, u"xa");
  on.World.View.Notes.clear();
  on.World.PreviewAll();
  EXPECT_EQ(on.World.State.ProposedNames[0], u"");
  EXPECT_FALSE(on.World.View.Has(u"cell 1,1"));
}

TEST(Preview, AStopBetweenTwoStepsKeepsTheFirst) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"x<FILENAME>", u"y<FILENAME>"});
  on.World.Loop.OnYield = [&] {
    if (on.World.State.Status == u"Previewing, please wait..." &&
        on.World.State.Jobs.PreviewState == JobState::Running && on.World.Loop.Yields > 1) {
      on.World.State.Jobs.RequestStop();
    }
  };
  on.World.Loop.Yields = 0;
  on.World.PreviewAll();  // the first name test yields
  EXPECT_EQ(on.World.Proposed(), (Names{u"xa"}));
}

// From any yield of a preview another operation can be chosen, or another folder. Whenever that
// comes, nothing of the older preview is written behind it.
TEST(Preview, ANewerPreviewStandsWheneverItComes) {
  for (const bool otherFolder : {false, true}) {
    bool reachedEnd = false;
    for (std::size_t at = 1; !reachedEnd; ++at) {
      SCOPED_TRACE("yield " + std::to_string(at));
      MemoryWorld on;
      on.Disk.Write(u"/N/only");
      on.ListFiles({u"a", u"b", u"c"});
      on.World.SelectSteps({u"<MID>same|||</MID>", u"<MID>other<FILENAME>|||</MID>"});
      std::size_t yields = 0;
      bool nested = false;
      on.World.Loop.OnYield = [&] {
        if (++yields == at) {
          nested = true;
          on.World.SelectSteps({u"y<FILENAME>"});
          if (otherFolder) {
            on.World.ListAll(u"/N/");
          } else {
            on.World.PreviewAll();
          }
        }
      };
      on.World.PreviewAll();
      reachedEnd = !nested;
      if (nested) {
        ASSERT_EQ(on.World.Proposed(),
                  otherFolder ? (Names{u"yonly"}) : (Names{u"ya", u"yb", u"yc"}));
      }
      ASSERT_TRUE(on.World.Report.Reports.empty());
      ASSERT_EQ(on.World.State.Jobs.PreviewState, JobState::Idle);
      ASSERT_LT(at, 1000U);
    }
  }
}

TEST(Preview, FoldersAreNotAskedWhetherTheyAreInUse) {
  MemoryWorld on;
  on.Disk.MakeFolder(u"/R/x");
  on.World.State.ListFolders = true;
  on.World.ListAll(u"/R/");
  on.World.SelectSteps({u"y<FILENAME>"});
  on.Disk.ForgetCalls();
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"yx"}));
  EXPECT_EQ(on.Disk.Calls, (Names{u"StatusOf /R/x"}));
}

TEST(Preview, AnEntryThatVanishedIsLeftAsItIs) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.State.SetProposedName(1, u"old");
  on.Disk.Remove(u"/R/a");
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"old", u"xb"}));
  EXPECT_TRUE(on.World.Report.Reports.empty());
}

TEST(Preview, WithoutAnOperationOrRowsOnlyBoxEditedIsCleared) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.State.SelectedOperation = 0;
  on.World.State.BoxEdited = true;
  on.World.PreviewAll();
  EXPECT_FALSE(on.World.State.BoxEdited);
  EXPECT_EQ(on.World.State.Pointer, MousePointer::ArrowHourglass);  // until something sets it
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.State.BoxEdited = true;
  on.World.PreviewAll();
  EXPECT_TRUE(on.World.State.BoxEdited);
  EXPECT_EQ(on.World.State.Pointer, MousePointer::Default);
}

// Which rows a preview of the visible part does: always from the top to the last visible one.
TEST(Preview, TheVisibleRowsAreThoseDownToTheLastOnThePage) {
  const struct {
    std::int32_t rows, perPage, first, done;
  } cases[] = {
      {10, 3, 1, 4},   {10, 3, 5, 8}, {10, 3, 9, 10},
      {10, 20, 1, 10}, {6, 4, 1, 6},  // one row less than a page and three: all of them
      {7, 4, 1, 5},    {1, 0, 1, 1},  {3, 0, 1, 1},
  };
  for (const auto& c : cases) {
    MemoryWorld on;
    Names names;
    for (std::int32_t i = 0; i < c.rows; ++i) {
      names.push_back(Text(1, static_cast<char16_t>(u'a' + i)));
    }
    on.ListFiles(names);
    on.World.SelectSteps({u"x<FILENAME>"});
    on.World.View.CountPerPage = c.perPage;
    on.World.View.FirstVisible = c.first;
    on.World.Previews.UpdateFilePreviewAll(false, 0);
    const auto proposed = on.World.Proposed();
    const auto done = std::count_if(proposed.begin(), proposed.end(),
                                    [](const Text& name) { return !name.empty(); });
    EXPECT_EQ(done, c.done) << c.rows << " rows, " << c.perPage << " a page, from " << c.first;
  }
}

TEST(Preview, OneRowAloneCanBePreviewed) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b", u"c"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.Previews.UpdateFilePreviewAll(false, 2);
  EXPECT_EQ(on.World.Proposed(), (Names{u"", u"xb", u""}));
}

TEST(Preview, StopLeavesTheRowsBelowAsTheyWere) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b", u"c"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.Loop.OnYield = [&] {
    if (!on.World.State.Rows.At(2).Proposed.empty()) {
      on.World.State.Jobs.RequestStop();
    }
  };
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"xa", u"xb", u""}));
  EXPECT_EQ(on.World.State.Jobs.PreviewState, JobState::Idle);
  EXPECT_EQ(on.World.State.Status, u"Ready");
  EXPECT_EQ(on.World.State.Progress, 100);
}

TEST(Preview, AnUnfinishedPreviewLeavesOldProposalsBelow) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.PreviewAll();
  on.World.SelectSteps({u"y<FILENAME>"});
  on.World.Previews.UpdateFilePreviewAll(false, 1);
  EXPECT_EQ(on.World.Proposed(), (Names{u"ya", u"xb"}));
}

TEST(Preview, SetsControlsAndStatusAroundTheJob) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.View.Notes.clear();
  on.World.View.Statuses.clear();
  on.World.View.Percents.clear();
  on.World.PreviewAll();
  EXPECT_EQ(on.World.View.Notes,
            (Names{u"pointer", u"control 0 disabled", u"control 0 enabled", u"control 1 disabled",
                   u"cell 1,1", u"timer 0 stopped", u"control 1 enabled", u"pointer"}));
  EXPECT_EQ(on.World.View.Statuses, (Names{u"Previewing, please wait...", u"Ready"}));
  EXPECT_EQ(on.World.View.Percents, (std::vector<std::int32_t>{0, 100}));
}

TEST(Preview, APointerThatIsNeitherStaysAsItIs) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.Loop.OnYield = [&] { on.World.State.SetPointer(MousePointer::Hourglass); };
  on.World.PreviewAll();
  EXPECT_EQ(on.World.State.Pointer, MousePointer::Hourglass);
}

TEST(Preview, MoreThanFiftyRowsGetAnEstimateAndAPercentage) {
  MemoryWorld on;
  Names names;
  for (int i = 100; i < 151; ++i) {
    names.push_back(DecimalText(i));
  }
  on.ListFiles(names);
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.View.Percents.clear();
  // The clock is looked at twice a row: one second passes in each.
  on.World.Time.MsPerLook = 1000;
  on.World.PreviewAll();
  EXPECT_EQ(on.World.State.HeldStatus,
            u"Previewing, please wait... Estimated Time Remaining: 00:00");
  ASSERT_EQ(on.World.View.Percents.size(), 53U);
  EXPECT_EQ(on.World.View.Percents[1], 1);  // 1 of 51, cut
  EXPECT_EQ(on.World.View.Percents[25], 49);
  EXPECT_TRUE(on.World.View.Has(u"timer 0 started"));
}

TEST(Preview, FiftyRowsGetNoEstimate) {
  MemoryWorld on;
  Names names;
  for (int i = 100; i < 150; ++i) {
    names.push_back(DecimalText(i));
  }
  on.ListFiles(names);
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.PreviewAll();
  EXPECT_EQ(on.World.State.HeldStatus, u"");
}

// A preview that is started from a yield inside another can't wait for that one to end: it lies
// above it on the stack.
TEST(Preview, ASecondPreviewWaitsThreeSecondsRunsAndEndsTheFirst) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b", u"c"});
  on.World.SelectSteps({u"x<FILENAME>"});
  bool nested = false;
  std::uint64_t waited = 0;
  on.World.Loop.OnYield = [&] {
    if (!nested && !on.World.State.Rows.At(1).Proposed.empty()) {
      nested = true;
      on.World.SelectSteps({u"y<FILENAME>"});
      const auto start = on.World.Time.Ms;
      on.World.PreviewAll();
      waited = on.World.Time.Ms - start;
    }
  };
  on.World.PreviewAll();
  EXPECT_EQ(waited, 3000U);
  EXPECT_EQ(on.World.Proposed(), (Names{u"ya", u"yb", u"yc"}));
  EXPECT_EQ(on.World.State.Jobs.PreviewState, JobState::Idle);
}

TEST(Preview, AFailureIsReportedAndTidiedUp) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({Text(40000, u'x')});  // longer than positions reach
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Report.Reports,
            (std::vector<RecordingReport::Report>{{u"frmMain", u"UpdateFilePreviewAll", u"", 6}}));
  EXPECT_EQ(on.World.State.Jobs.PreviewState, JobState::Idle);
  EXPECT_EQ(on.World.State.Pointer, MousePointer::Default);
  EXPECT_EQ(on.World.State.Status, u"Ready");
  EXPECT_TRUE(on.World.View.Has(u"timer 0 stopped"));
  const Names last(on.World.View.Notes.end() - 2, on.World.View.Notes.end());
  EXPECT_EQ(last, (Names{u"control 1 enabled", u"pointer"}));
}

TEST(Preview, NeverChangesTheDisk) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b.mp3"});
  on.World.SelectSteps(
      {u"<CREATEFOLDER>x</CREATEFOLDER>", u"<MOVE>x</MOVE>", u"<RemoveID3v1>", u"x<FILENAME>"});
  on.Disk.ForgetCalls();
  on.World.PreviewAll();
  EXPECT_EQ(on.Disk.MutationCount, 0U);
}

}  // namespace
}  // namespace vorlane
