#include "filelist/list_events.h"

#include <gtest/gtest.h>

#include "support/form_world.h"

namespace vorlane {
namespace {

struct ListEventsTest : testing::Test {
  MemoryWorld Memory;
  FormWorld& World = Memory.World;
  Form& State = World.State;
  ListEvents Events{State, World.Outside, World.List, World.Previews};

  void SetUp() override {
    World.SelectSteps({u"x<FILENAME>"});
    Memory.ListFiles({u"9", u"10", u"b"});
  }
};

TEST_F(ListEventsTest, EachClickTurnsTheOrderRound) {
  EXPECT_EQ(World.Names(), (std::vector<Text>{u"10", u"9", u"b"}));
  Events.lstFileList_ColumnClick(Column::CurrentName);
  EXPECT_EQ(World.Names(), (std::vector<Text>{u"b", u"9", u"10"}));
  Events.lstFileList_ColumnClick(Column::CurrentName);
  EXPECT_EQ(World.Names(), (std::vector<Text>{u"10", u"9", u"b"}));
}

TEST_F(ListEventsTest, TheFirstClickOnAnotherColumnTurnsTheOrderRoundToo) {
  Events.lstFileList_ColumnClick(Column::CurrentName);
  Events.lstFileList_ColumnClick(Column::Path);
  EXPECT_EQ(State.Rows.SortKey(), Column::Path);
  EXPECT_EQ(State.Rows.Order(), SortOrder::Ascending);
}

TEST_F(ListEventsTest, TheOrderOutlivesAListing) {
  Events.lstFileList_ColumnClick(Column::CurrentName);
  World.List.PathChangedEvent();
  EXPECT_EQ(World.Names(), (std::vector<Text>{u"b", u"9", u"10"}));
}

TEST_F(ListEventsTest, AClickOnARowShowsItsBoxValuesAndPreviews) {
  World.ShowBox(1, u"", u"<NAMEONLY>");
  State.SelectRow(2);
  State.BoxEdited = true;
  Events.lstFileList_ItemClick();
  EXPECT_EQ(State.Boxes[0].Content, u"9");
  EXPECT_FALSE(State.BoxEdited);
}

TEST_F(ListEventsTest, ADoubleClickOnTheCountPreviewsEveryRow) {
  World.View.CountPerPage = 0;
  World.View.FirstVisible = 1;
  for (std::int32_t row = 1; row <= 3; ++row) {
    State.SetProposedName(row, u"");
  }
  Events.lblFileStatus_DblClick();
  EXPECT_EQ(World.Proposed(), (std::vector<Text>{u"x10", u"x9", u"xb"}));
}

TEST_F(ListEventsTest, AModeButtonShowsItsPartnerAndPreviewsOrLists) {
  State.DoAll = false;
  State.SetProposedName(1, u"");
  Events.cmdDoAllOrOne_Click();
  EXPECT_TRUE(State.DoAll);
  EXPECT_EQ(World.Proposed()[0], u"x10");

  Memory.Disk.MakeFolder(u"/R/sub/");
  Memory.Disk.Write(u"/R/sub/deep");
  Events.cmdSubFoldersOrNot_Click();
  EXPECT_TRUE(State.IncludeSubFolders);
  EXPECT_EQ(State.Rows.Count(), 4);

  Events.cmdListFilesOrFolders_Click();
  EXPECT_TRUE(State.ListFolders);
  EXPECT_EQ(World.Names(), (std::vector<Text>{u"sub"}));
  EXPECT_TRUE(World.View.Has(u"modes"));
}

TEST_F(ListEventsTest, WhileAListingOrARunIsAtWorkNothingBegins) {
  const auto expectNothing = [&](const char* job) {
    World.View.Notes.clear();
    Events.lstFileList_ColumnClick(Column::Path);
    Events.lstFileList_ItemClick();
    Events.lblFileStatus_DblClick();
    Events.cmdDoAllOrOne_Click();
    Events.cmdSubFoldersOrNot_Click();
    Events.cmdListFilesOrFolders_Click();
    EXPECT_TRUE(World.View.Notes.empty()) << job;
    EXPECT_TRUE(State.DoAll) << job;
  };
  State.Jobs.ListingState = JobState::Running;
  expectNothing("listing");
  State.Jobs.ListingState = JobState::Idle;
  State.Jobs.BatchState = JobState::Running;
  expectNothing("run");
  State.Jobs.BatchState = JobState::Idle;
  const JournalInUse undo(State);
  expectNothing("undo");
}

TEST_F(ListEventsTest, ARowClickInTheMiddleOfAPreviewDoesNothing) {
  State.Jobs.PreviewState = JobState::Running;
  World.View.Notes.clear();
  Events.lstFileList_ItemClick();
  EXPECT_TRUE(World.View.Notes.empty());
}

}  // namespace
}  // namespace vorlane
