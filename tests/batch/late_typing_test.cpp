// What the user typed or picked just before Go counts in a run over one row, though the preview
// that was to follow hasn't come, or hasn't come to its end.
#include <gtest/gtest.h>

#include "catalogue/option_boxes.h"
#include "support/form_world.h"
#include "support/memory_box_memory.h"

namespace vorlane {
namespace {

struct LateTypingTest : testing::Test {
  MemoryWorld Memory;
  FormWorld& World = Memory.World;
  Form& State = World.State;
  MemoryBoxMemory Kept;
  OptionBoxes Boxes{State, World.Outside, Kept};

  void SetUp() override {
    World.SelectSteps({u"<BOX1><FILENAME>"});
    World.ShowBox(1, u"old ");
    Memory.ListFiles({u"a", u"b"});
    State.DoAll = false;
  }
  void Type(TextView text) {
    State.Boxes[0].Content = text;
    Boxes.txtRenameOption_Change(0);
  }
};

TEST_F(LateTypingTest, TypingThatWaitsForItsPreview) {
  Type(u"new ");
  World.Batch.cmdGo_Click();
  EXPECT_EQ(World.Names(), (std::vector<Text>{u"b", u"new a"}));  // one row, and sorted anew
  EXPECT_FALSE(State.IsTimerRunning(FormTimer::AutoPreview));
}

TEST_F(LateTypingTest, TypingWhoseTimerWasServedInTheMiddleOfAJob) {
  Type(u"new ");
  State.StopTimer(FormTimer::AutoPreview);
  World.Batch.cmdGo_Click();
  EXPECT_EQ(World.Names()[1], u"new a");
}

TEST_F(LateTypingTest, TypingInTheMiddleOfAPreviewThatKeepsTheBoxesQuiet) {
  bool typed = false;
  World.Loop.OnYield = [&] {
    if (State.Jobs.PreviewState == JobState::Running && !std::exchange(typed, true)) {
      Type(u"new ");
    }
  };
  World.List.lstFileListItemClick();
  World.Loop.OnYield = nullptr;
  ASSERT_TRUE(typed);
  World.Batch.cmdGo_Click();
  EXPECT_EQ(World.Names()[1], u"new a");
}

TEST_F(LateTypingTest, AnOperationWhosePreviewWasStopped) {
  World.SelectSteps({u"other <FILENAME>"});
  World.Loop.OnYield = [&] { State.Jobs.RequestStop(); };
  World.Previews.UpdateFilePreviewAll(false, 0);
  World.Loop.OnYield = nullptr;
  EXPECT_EQ(World.Proposed()[0], u"old a");
  World.Batch.cmdGo_Click();
  EXPECT_EQ(World.Names()[1], u"other a");
}

TEST_F(LateTypingTest, AProposalThatIsUpToDateIsTakenAsItStands) {
  State.SetProposedName(1, u"by hand");
  World.Batch.cmdGo_Click();
  EXPECT_EQ(World.Names()[1], u"by hand");
}

}  // namespace
}  // namespace vorlane
