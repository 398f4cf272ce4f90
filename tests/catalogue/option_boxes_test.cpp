#include "catalogue/option_boxes.h"

#include <gtest/gtest.h>

#include "support/form_world.h"
#include "support/memory_box_memory.h"

namespace vorlane {
namespace {

struct OptionBoxesTest : testing::Test {
  MemoryWorld Memory;
  FormWorld& World = Memory.World;
  Form& State = World.State;
  MemoryBoxMemory Kept;
  OptionBoxes Boxes{State, World.Outside, Kept};

  void SetUp() override {
    World.SelectSteps({u"<BOX1><FILENAME>"});
    Memory.ListFiles({u"a"});
  }
  void Type(int box, TextView text) {
    State.Boxes[static_cast<std::size_t>(box)].Content = text;
    Boxes.txtRenameOption_Change(box);
  }
};

TEST_F(OptionBoxesTest, TypingReachesTheValuesAndThePreviewBehindAPause) {
  World.ShowBox(1, u"");
  Type(0, u"new ");
  EXPECT_EQ(State.BoxValues.Values[0], u"new ");
  EXPECT_TRUE(State.BoxEdited);
  EXPECT_TRUE(State.IsTimerRunning(FormTimer::AutoPreview));
}

TEST_F(OptionBoxesTest, EachKeyStartsThePauseAgain) {
  World.ShowBox(1, u"");
  Type(0, u"n");
  World.View.Notes.clear();
  Type(0, u"ne");
  EXPECT_TRUE(World.View.Has(u"timer 3 stopped"));
  EXPECT_TRUE(World.View.Has(u"timer 3 started"));
}

TEST_F(OptionBoxesTest, ABoxCannotReferToItself) {
  World.ShowBox(1, u"");
  World.ShowBox(2, u"");
  Type(1, u"x<BOX2>y<BOX2>");
  EXPECT_EQ(State.Boxes[1].Content, u"xy");
  EXPECT_EQ(State.BoxValues.Values[1], u"xy");
  Type(0, u"<BOX2>");
  EXPECT_EQ(State.Boxes[0].Content, u"<BOX2>");
}

TEST_F(OptionBoxesTest, ARememberedBoxIsKeptUnderItsKey) {
  struct Case {
    Text Code;
    Text Key;
  };
  for (const Case& c : {Case{u"Registry(Prefix|none)", u"Prefix"},
                        {u"Registry(Prefix)", u"Prefix"},
                        {u"Registry(|x)", u"|x"}}) {
    Kept.Texts.clear();
    World.ShowBox(1, u"", c.Code);
    Type(0, u"typed");
    EXPECT_EQ(Kept.Texts, (std::map<Text, Text>{{c.Key, u"typed"}}));
  }
}

TEST_F(OptionBoxesTest, WhatIsKeptIsFreeOfTheBoxesOwnKeyword) {
  World.ShowBox(1, u"", u"Registry(K)");
  Type(0, u"a<BOX1>b");
  EXPECT_EQ(Kept.Texts[u"K"], u"ab");
}

TEST_F(OptionBoxesTest, OtherBoxesAreNotKept) {
  World.ShowBox(1, u"");
  Type(0, u"typed");
  World.ShowBox(1, u"", u"<NAMEONLY>");
  Type(0, u"typed");
  EXPECT_TRUE(Kept.Texts.empty());
}

TEST_F(OptionBoxesTest, AFailureIsReported) {
  World.ShowBox(1, u"", u"Registry(");
  Type(0, u"typed");
  ASSERT_EQ(World.Report.Reports.size(), 1U);
  EXPECT_EQ(World.Report.Reports[0].Procedure, u"txtRenameOption_Change");
}

TEST_F(OptionBoxesTest, WithoutASelectedRowNothingHappens) {
  World.ShowBox(1, u"", u"Registry(K)");
  State.DeselectRow();
  Type(0, u"a<BOX1>");
  Boxes.txtRenameOption_LostFocus(0);
  EXPECT_EQ(State.Boxes[0].Content, u"a<BOX1>");
  EXPECT_TRUE(Kept.Texts.empty());
  EXPECT_FALSE(State.BoxEdited);
  EXPECT_FALSE(State.IsTimerRunning(FormTimer::AutoPreview));
}

TEST_F(OptionBoxesTest, WhileTheProgramChangesBoxesNothingHappens) {
  World.ShowBox(1, u"", u"Registry(K)");
  const QuietBoxes quiet(State);
  Type(0, u"typed");
  Boxes.txtRenameOption_LostFocus(0);
  EXPECT_TRUE(Kept.Texts.empty());
  EXPECT_FALSE(State.IsTimerRunning(FormTimer::AutoPreview));
}

TEST_F(OptionBoxesTest, LeavingAProperCasedBoxShowsProperCase) {
  struct Case {
    Text Code;
    Text Typed;
    Text Shown;
  };
  for (const Case& c :
       {Case{u"<PROPERCASE><NAMEONLY></PROPERCASE>", u" the jean genie", u"The Jean Genie"},
        {u"<PROPERCASE><NAMEONLY></PROPERCASE>", u"the <ARTIST>", u"the <ARTIST>"},
        {u"<PROPERCASE><NAMEONLY></PROPERCASE>", u"a > b", u"a > b"},
        {u"<NAMEONLY>", u"the jean genie", u"the jean genie"}}) {
    World.ShowBox(1, c.Typed, c.Code);
    State.StopTimer(FormTimer::AutoPreview);
    State.BoxEdited = false;
    Boxes.txtRenameOption_LostFocus(0);
    EXPECT_EQ(State.Boxes[0].Content, c.Shown);
    EXPECT_EQ(State.BoxValues.Values[0], c.Shown);
    EXPECT_TRUE(State.BoxEdited);
    EXPECT_TRUE(State.IsTimerRunning(FormTimer::AutoPreview));
    EXPECT_FALSE(State.SuppressBoxEvents());
  }
}

TEST_F(OptionBoxesTest, ATickOpensTheBox) {
  World.ShowBox(1, u"", u"<NAMEONLY>").Enabled = false;
  Boxes.chkRenameOption_Click(0, true);
  EXPECT_TRUE(State.Boxes[0].Checked && State.Boxes[0].Enabled);
  EXPECT_TRUE(World.View.Has(u"box shape 0"));
  Boxes.chkRenameOption_Click(0, false);
  EXPECT_FALSE(State.Boxes[0].Checked || State.Boxes[0].Enabled);
}

TEST_F(OptionBoxesTest, TabCyclesThroughTheShownBoxes) {
  EXPECT_EQ(Boxes.NextBox(), std::nullopt);
  World.ShowBox(2, u"");
  World.ShowBox(5, u"");
  EXPECT_EQ(Boxes.NextBox(), 1);
  Boxes.txtRenameOption_GotFocus(1);
  EXPECT_EQ(Boxes.NextBox(), 4);
  Boxes.txtRenameOption_GotFocus(4);
  EXPECT_EQ(Boxes.NextBox(), 1);
}

TEST_F(OptionBoxesTest, TabPassesOverABoxThatIsNotOpen) {
  World.ShowBox(2, u"").Enabled = false;
  World.ShowBox(3, u"");
  EXPECT_EQ(Boxes.NextBox(), 2);
}

TEST_F(OptionBoxesTest, WithOneBoxTabStaysThere) {
  World.ShowBox(3, u"");
  Boxes.txtRenameOption_GotFocus(2);
  EXPECT_EQ(Boxes.NextBox(), std::nullopt);
}

}  // namespace
}  // namespace vorlane
