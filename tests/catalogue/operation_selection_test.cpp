#include "catalogue/operation_selection.h"

#include <gtest/gtest.h>

#include "support/form_world.h"
#include "support/memory_box_memory.h"

namespace vorlane {
namespace {

struct OperationSelectionTest : testing::Test {
  MemoryWorld Memory;
  FormWorld& World = Memory.World;
  Form& State = World.State;
  MemoryBoxMemory Kept;
  WildcardBox Wildcard{State};
  OperationSelection Selection{State, World.Outside, World.List, Wildcard, Kept};

  void SetUp() override {
    Wildcard.LoadItems(u"");
    Wildcard.FormVisible = true;
    World.SelectSteps({u"<FILENAME>"});
    Memory.ListFiles({u"a.mp3", u"b.txt"});
  }

  // Clicks a node with this code, its lines given without their ends.
  void Click(const std::vector<Text>& lines) {
    Text code;
    for (const Text& line : lines) {
      code += line + u"\r\n";
    }
    State.OperationCodes = {Text(), code, Text()};
    State.SelectedOperation = 1;
    World.View.Notes.clear();
    World.View.Statuses.clear();
    Selection.lstRenamingOperations_NodeClick();
  }
  const OptionBox& Box(int number) const {
    return State.Boxes[static_cast<std::size_t>(number) - 1];
  }
  bool WasListed() const { return World.View.Has(u"rows cleared"); }
  bool StatusWas(TextView text) const {
    return std::find(World.View.Statuses.begin(), World.View.Statuses.end(), text) !=
           World.View.Statuses.end();
  }
};

const std::vector<Text> TwoBoxes = {u"Step:<BOX1><BOX2>",
                                    u"Help Message: Puts two texts together ",
                                    u"Wildcard:*.*",
                                    u"Available Boxes:2",
                                    u"Box Name: First ",
                                    u"Box Name:Second",
                                    u"Box Display: Registry(FirstText|one) ",
                                    u"Box Display:<NAMEONLY>",
                                    u"Box ToolTip: Type here ",
                                    u"Box ToolTip:Leave it",
                                    u"Box Check:",
                                    u"Box Check: Own text "};

TEST_F(OperationSelectionTest, ShowsHelpAndBoxes) {
  Click(TwoBoxes);
  EXPECT_TRUE(StatusWas(u"Puts two texts together"));
  EXPECT_EQ(State.HelpToolTip, u"Puts two texts together");
  EXPECT_TRUE(Box(1).Visible && Box(2).Visible);
  EXPECT_FALSE(Box(3).Visible);
  EXPECT_EQ(Box(1).Caption, u"First");
  EXPECT_EQ(Box(1).Content, u"one");
  EXPECT_EQ(Box(1).ToolTip, u"Type here");
  EXPECT_TRUE(Box(1).Enabled);
  EXPECT_FALSE(Box(1).CheckVisible);
  EXPECT_EQ(Box(2).Content, u"a");  // for the selected row
  EXPECT_EQ(Box(2).CheckCaption, u"Own text");
  EXPECT_TRUE(Box(2).CheckVisible);
  EXPECT_FALSE(Box(2).Enabled);
  EXPECT_FALSE(Box(2).Checked);
  EXPECT_EQ(World.Proposed(), (std::vector<Text>{u"onea", u"oneb"}));
  EXPECT_FALSE(State.SuppressBoxEvents());
  EXPECT_EQ(State.Pointer, MousePointer::Default);
}

TEST_F(OperationSelectionTest, ARememberedTextComesBeforeTheDefault) {
  Kept.Texts[u"FirstText"] = u"kept";
  Click(TwoBoxes);
  EXPECT_EQ(Box(1).Content, u"kept");
  Kept.Texts[u"FirstText"] = u"";
  Click(TwoBoxes);
  EXPECT_EQ(Box(1).Content, u"");
}

TEST_F(OperationSelectionTest, AHeadingHidesTheBoxesAndLeavesStatusAndWildcard) {
  Click(TwoBoxes);
  State.BoxEdited = true;
  State.WildCard = u"*.mp3";
  State.OperationCodes = {Text(), Text(), Text()};
  World.View.Notes.clear();
  World.View.Statuses.clear();
  Selection.lstRenamingOperations_NodeClick();
  EXPECT_EQ(State.Boxes[0].Visible, false);
  EXPECT_EQ(Box(2).BoxCode, u"");
  EXPECT_EQ(Box(2).ToolTip, u"");
  EXPECT_TRUE(Box(2).Enabled);
  EXPECT_EQ(State.HelpToolTip, u"Help");
  EXPECT_EQ(State.WildCard, u"*.mp3");
  EXPECT_FALSE(StatusWas(u"Puts two texts together"));
  EXPECT_FALSE(WasListed());
  EXPECT_FALSE(State.BoxEdited);  // the row was clicked
}

TEST_F(OperationSelectionTest, WithoutHelpTheRestIsNotRead) {
  Click({u"Wildcard:*.mp3", u"Available Boxes:1", u"Box Name:x"});
  EXPECT_EQ(State.HelpToolTip, u"Help");
  EXPECT_EQ(State.WildCard, u"*.*");
  EXPECT_FALSE(Box(1).Visible);
}

TEST_F(OperationSelectionTest, AnotherWildcardListsAtOnce) {
  Click({u"Help Message:h", u"Wildcard:*.mp3", u"Available Boxes:0"});
  EXPECT_EQ(State.WildCard, u"*.mp3");
  EXPECT_TRUE(WasListed());
  EXPECT_EQ(World.Names(), (std::vector<Text>{u"a.mp3"}));
  EXPECT_FALSE(State.IsTimerRunning(FormTimer::UpdateList));
}

TEST_F(OperationSelectionTest, WithoutAWildcardAllNamesAreListedAgain) {
  Click({u"Help Message:h", u"Wildcard:*.mp3", u"Available Boxes:0"});
  Click({u"Help Message:h", u"Available Boxes:0"});
  EXPECT_EQ(State.WildCard, u"*.*");
  EXPECT_TRUE(WasListed());
  EXPECT_EQ(State.Rows.Count(), 2);
}

TEST_F(OperationSelectionTest, TheSameWildcardListsNothing) {
  Click({u"Help Message:h", u"Wildcard:*.*", u"Available Boxes:0"});
  EXPECT_FALSE(WasListed());
}

TEST_F(OperationSelectionTest, AWildcardThatWasTypedJustBeforeIsListedAtOnce) {
  Wildcard.cboWildCard_Change(u"*.mp3");
  Click({u"Help Message:h", u"Wildcard:*.mp3", u"Available Boxes:0"});
  EXPECT_EQ(World.Names(), (std::vector<Text>{u"a.mp3"}));
  EXPECT_FALSE(State.IsTimerRunning(FormTimer::UpdateList));
}

TEST_F(OperationSelectionTest, AListingThatIsDueIsNeverDropped) {
  Wildcard.cboWildCard_Change(u"*.mp3");
  Click({u"Help Message:h", u"Wildcard:*.mp3"});
  EXPECT_TRUE(State.IsTimerRunning(FormTimer::UpdateList));
}

TEST_F(OperationSelectionTest, InTheMiddleOfAListingNoOtherOneBegins) {
  State.Jobs.ListingState = JobState::Running;
  Click({u"Help Message:h", u"Wildcard:*.mp3", u"Available Boxes:0"});
  EXPECT_FALSE(WasListed());
}

TEST_F(OperationSelectionTest, ATickIsTakenAway) {
  Click(TwoBoxes);
  State.Boxes[1].Checked = true;
  State.Boxes[1].Enabled = true;
  Click(TwoBoxes);
  EXPECT_FALSE(Box(2).Checked);
  EXPECT_FALSE(Box(2).Enabled);
}

TEST_F(OperationSelectionTest, ANewExtensionJoinsTheWildcards) {
  Click({u"Help Message:h", u"Wildcard:*.jpg", u"Available Boxes:0"});
  EXPECT_EQ(State.WildCardItems.back(), u"*.jpg");
}

TEST_F(OperationSelectionTest, ABoxCountThatIsNoNumberIsReported) {
  Click({u"Help Message:h", u"Wildcard:*.*", u"Available Boxes:many", u"Box Name:x"});
  ASSERT_EQ(World.Report.Reports.size(), 1U);
  EXPECT_EQ(World.Report.Reports[0],
            (RecordingReport::Report{u"frmMain", u"lstRenamingOperations_NodeClick", u"", 13}));
  EXPECT_FALSE(State.SuppressBoxEvents());
  EXPECT_EQ(World.Proposed()[0], u"a.mp3");  // the row was clicked all the same
}

TEST_F(OperationSelectionTest, AWildcardOnTheVeryLastLineIsReported) {
  State.OperationCodes = {Text(), u"Help Message:h\r\nWildcard:*.mp3", Text()};
  Selection.lstRenamingOperations_NodeClick();
  ASSERT_EQ(World.Report.Reports.size(), 1U);
  EXPECT_EQ(World.Report.Reports[0].Number, 5);
}

TEST_F(OperationSelectionTest, AMissingBoxNameShowsTheBoxWithoutAnythingOfItsOwn) {
  Click({u"Help Message:h", u"Wildcard:*.*", u"Available Boxes:2", u"Box Name:one",
         u"Box Display:Registry(k|v)"});
  EXPECT_TRUE(Box(1).Visible && Box(2).Visible);
  EXPECT_EQ(Box(1).Caption, u"one");
  EXPECT_EQ(Box(2).Caption, u"");
  EXPECT_EQ(Box(1).BoxCode, u"");
}

TEST_F(OperationSelectionTest, TheFirstRowIsSelectedIfNoneIs) {
  State.DeselectRow();
  Click({u"Help Message:h", u"Available Boxes:0"});
  EXPECT_EQ(State.Rows.Selected(), 1);
}

TEST_F(OperationSelectionTest, WithoutRowsThePointerStays) {
  State.CurrentPath = u"/nowhere/";
  World.List.PathChangedEvent();
  Click({u"Help Message:h", u"Available Boxes:0"});
  EXPECT_EQ(State.Pointer, MousePointer::ArrowHourglass);
}

TEST_F(OperationSelectionTest, TheProgramsOwnChangesOfBoxesStayQuiet) {
  bool quietThroughout = true;
  World.Loop.OnYield = [&] { quietThroughout = quietThroughout && State.SuppressBoxEvents(); };
  auto lines = TwoBoxes;
  lines[2] = u"Wildcard:*.mp3";  // lists in the middle
  Click(lines);
  EXPECT_TRUE(quietThroughout);
}

TEST_F(OperationSelectionTest, APreviewAtWorkIsAskedToStop) {
  State.Jobs.PreviewState = JobState::Running;
  World.Loop.OnYield = [&] {
    if (State.Jobs.PreviewState == JobState::StopRequested) {
      State.Jobs.PreviewState = JobState::Idle;
    }
  };
  Click(TwoBoxes);
  EXPECT_EQ(World.Proposed()[0], u"onea");
}

}  // namespace
}  // namespace vorlane
