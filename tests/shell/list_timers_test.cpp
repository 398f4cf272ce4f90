#include "shell/list_timers.h"

#include <gtest/gtest.h>

#include "support/form_world.h"

namespace vorlane {
namespace {

struct ListTimersTest : testing::Test {
  MemoryWorld Memory;
  FormWorld& World = Memory.World;
  Form& State = World.State;
  ListTimers Timers{State, World.Outside, World.List, World.Previews};

  void SetUp() override {
    World.SelectSteps({u"x<FILENAME>"});
    Memory.ListFiles({u"a", u"b"});
  }

  bool ListsAnew(const std::function<void()>& tick) {
    World.View.Notes.clear();
    tick();
    return World.View.Has(u"rows cleared");
  }
  bool ListsAtFileCounter() {
    return ListsAnew([&] { Timers.tmrFileCounter_Timer(); });
  }
  void EmptyProposals() {
    for (std::int32_t row = 1; row <= State.Rows.Count(); ++row) {
      State.SetProposedName(row, u"");
    }
  }
};

TEST_F(ListTimersTest, HeldTextsAreShownOnceAndTheirTimersStop) {
  State.SetListCounter(7);
  State.SetListCounter(8);
  EXPECT_TRUE(State.IsTimerRunning(FormTimer::FileStatus));
  Timers.tmrFileStatus_Timer();
  EXPECT_EQ(State.FileStatus, u"8 File(s)");
  EXPECT_FALSE(State.IsTimerRunning(FormTimer::FileStatus));

  State.HoldStatus(u"soon");
  EXPECT_TRUE(State.IsTimerRunning(FormTimer::ProgramStatus));
  Timers.tmrProgramStatus_Timer();
  EXPECT_EQ(State.Status, u"soon");
  EXPECT_FALSE(State.IsTimerRunning(FormTimer::ProgramStatus));
}

TEST_F(ListTimersTest, UpdateListListsAnew) {
  State.StartTimer(FormTimer::UpdateList);
  EXPECT_TRUE(ListsAnew([&] { Timers.tmrUpdateList_Timer(); }));
  EXPECT_FALSE(State.IsTimerRunning(FormTimer::UpdateList));
}

TEST_F(ListTimersTest, UpdateListWaitsForAnyJobToEnd) {
  for (JobState* job :
       {&State.Jobs.ListingState, &State.Jobs.PreviewState, &State.Jobs.BatchState}) {
    *job = JobState::Running;
    State.StartTimer(FormTimer::UpdateList);
    EXPECT_FALSE(ListsAnew([&] { Timers.tmrUpdateList_Timer(); }));
    EXPECT_TRUE(State.IsTimerRunning(FormTimer::UpdateList));
    *job = JobState::Idle;
  }
}

TEST_F(ListTimersTest, AutoPreviewPreviewsUnlessAJobIsAtWork) {
  EmptyProposals();
  Timers.tmrAutoPreview_Timer();
  EXPECT_EQ(World.Proposed(), (std::vector<Text>{u"xa", u"xb"}));
  for (JobState* job :
       {&State.Jobs.ListingState, &State.Jobs.PreviewState, &State.Jobs.BatchState}) {
    EmptyProposals();
    *job = JobState::Running;
    Timers.tmrAutoPreview_Timer();
    EXPECT_EQ(World.Proposed(), (std::vector<Text>{u"", u""}));
    *job = JobState::Idle;
  }
}

TEST_F(ListTimersTest, ScrollingPreviewsAndKeepsTheStatusLine) {
  EmptyProposals();
  State.SetStatusText(u"help");
  World.View.FirstVisible = 2;
  Timers.tmrListScroll_Timer(false);
  EXPECT_EQ(World.Proposed(), (std::vector<Text>{u"xa", u"xb"}));
  EXPECT_EQ(State.Status, u"help");
}

TEST_F(ListTimersTest, ScrollingActsOncePerTopRow) {
  World.View.FirstVisible = 2;
  Timers.tmrListScroll_Timer(false);
  EmptyProposals();
  Timers.tmrListScroll_Timer(false);
  EXPECT_EQ(World.Proposed()[0], u"");
}

TEST_F(ListTimersTest, ScrollingWaitsForTheMouseButton) {
  EmptyProposals();
  World.View.FirstVisible = 2;
  Timers.tmrListScroll_Timer(true);
  EXPECT_EQ(World.Proposed()[0], u"");
  Timers.tmrListScroll_Timer(false);
  EXPECT_EQ(World.Proposed()[0], u"xa");
}

TEST_F(ListTimersTest, ScrollingDuringARunPreviewsNothing) {
  EmptyProposals();
  State.Jobs.BatchState = JobState::Running;
  State.SetStatusText(u"Time taken: 00:01");
  World.View.FirstVisible = 2;
  Timers.tmrListScroll_Timer(false);
  EXPECT_EQ(World.Proposed()[0], u"");
  EXPECT_EQ(State.Status, u"Time taken: 00:01");
}

TEST_F(ListTimersTest, ScrollingAnEmptyListDoesNothing) {
  Memory.Disk.RemoveFile(u"/R/a");
  Memory.Disk.RemoveFile(u"/R/b");
  World.List.PathChangedEvent();
  World.View.FirstVisible = 2;
  World.View.Notes.clear();
  Timers.tmrListScroll_Timer(false);
  EXPECT_TRUE(World.View.Notes.empty());
}

TEST_F(ListTimersTest, AFileThatComesOrGoesIsNoticed) {
  Timers.FirstActivation();
  EXPECT_FALSE(ListsAtFileCounter());
  Memory.Disk.Write(u"/R/c");
  EXPECT_TRUE(ListsAtFileCounter());
  EXPECT_EQ(World.Names(), (std::vector<Text>{u"a", u"b", u"c"}));
  Memory.Disk.RemoveFile(u"/R/a");
  EXPECT_TRUE(ListsAtFileCounter());
  EXPECT_FALSE(ListsAtFileCounter());
}

TEST_F(ListTimersTest, OnlyFilesOfTheWildcardCount) {
  State.WildCard = u"*.x";
  World.List.PathChangedEvent();
  Timers.FirstActivation();
  Memory.Disk.Write(u"/R/c.y");
  EXPECT_FALSE(ListsAtFileCounter());
  Memory.Disk.Write(u"/R/c.x");
  EXPECT_TRUE(ListsAtFileCounter());
}

TEST_F(ListTimersTest, BeforeTheFirstActivationNothingIsCounted) {
  Memory.Disk.Write(u"/R/c");
  EXPECT_FALSE(ListsAtFileCounter());
}

TEST_F(ListTimersTest, TheFirstActivationTakesTheCountOnce) {
  Memory.Disk.Write(u"/R/c");
  Timers.FirstActivation();
  EXPECT_EQ(State.LastFileCount, 3);
  Memory.Disk.Write(u"/R/d");
  Timers.FirstActivation();
  EXPECT_EQ(State.LastFileCount, 3);
}

TEST_F(ListTimersTest, FolderModeListsAtEachTick) {
  State.ListFolders = true;
  World.List.PathChangedEvent();
  Timers.FirstActivation();
  State.LastFileCount = State.Rows.Count();
  EXPECT_TRUE(ListsAtFileCounter());
  EXPECT_TRUE(ListsAtFileCounter());
}

TEST_F(ListTimersTest, TheCounterHoldsBack) {
  Timers.FirstActivation();
  Memory.Disk.Write(u"/R/c");
  State.IncludeSubFolders = true;
  EXPECT_FALSE(ListsAtFileCounter());
  State.IncludeSubFolders = false;
  for (JobState* job :
       {&State.Jobs.ListingState, &State.Jobs.PreviewState, &State.Jobs.BatchState}) {
    *job = JobState::Running;
    EXPECT_FALSE(ListsAtFileCounter());
    *job = JobState::Idle;
  }
  UndoJournal journal(Memory.Disk, World.Report, State.Paths);
  journal.CreateUndoFile(u"/R/");
  EXPECT_FALSE(ListsAtFileCounter());
  Memory.Disk.RemoveFile(JournalPath(u"/R/"));
  EXPECT_TRUE(ListsAtFileCounter());
}

TEST_F(ListTimersTest, TwoHundredRowsAreCountedAndOneMoreIsNot) {
  Timers.FirstActivation();
  for (int i = 0; i < 198; ++i) {
    Memory.Disk.Write(u"/R/f" + DecimalText(i));
  }
  EXPECT_TRUE(ListsAtFileCounter());
  EXPECT_EQ(State.Rows.Count(), 200);
  Memory.Disk.Write(u"/R/more");
  EXPECT_TRUE(ListsAtFileCounter());
  Memory.Disk.Write(u"/R/even more");
  EXPECT_FALSE(ListsAtFileCounter());
}

TEST_F(ListTimersTest, ATickInsideTheListingDoesNothing) {
  Timers.FirstActivation();
  Memory.Disk.Write(u"/R/c");
  int ticks = 0;
  World.Loop.OnYield = [&] {
    ++ticks;
    Timers.tmrFileCounter_Timer();
  };
  Timers.tmrFileCounter_Timer();
  EXPECT_GT(ticks, 0);
  EXPECT_EQ(World.Names().size(), 3U);
}

}  // namespace
}  // namespace vorlane
