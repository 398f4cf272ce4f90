// UpdateBoxValues: what each option box stands for on a row.
#include <gtest/gtest.h>

#include "preview/preview.h"
#include "support/form_world.h"

namespace vorlane {
namespace {

// One row "a.txt" that is selected; box 1 as the case says.
struct BoxWorld : MemoryWorld {
  BoxWorld() {
    ListFiles({u"a.txt", u"b.txt"});
    World.SelectSteps({u"x<FILENAME>"});
  }
  Text ValueOnRow(std::int32_t row) {
    World.Previews.UpdateBoxValues(row, {}, {}, false, false);
    return World.State.BoxValues.Values[0];
  }
};

TEST(BoxValues, PlainAndRememberedBoxesStandForTheirText) {
  for (const Text code : {u"", u"Registry(key|default)"}) {
    BoxWorld on;
    on.World.ShowBox(1, u"typed <NAMEONLY>", code);
    EXPECT_EQ(on.ValueOnRow(1), u"typed <NAMEONLY>");
  }
}

TEST(BoxValues, AFormulaIsWorkedOutForEachRow) {
  BoxWorld on;
  on.World.ShowBox(1, u"typed", u"<NAMEONLY>");
  EXPECT_EQ(on.ValueOnRow(1), u"a");
  EXPECT_EQ(on.ValueOnRow(2), u"b");
}

TEST(BoxValues, AFormulaWithoutBracketsGivesNothing) {
  BoxWorld on;
  on.World.ShowBox(1, u"typed", u"plain");
  EXPECT_EQ(on.ValueOnRow(1), u"");
}

TEST(BoxValues, TheAutomaticNumberOfAFormulaIsTheRow) {
  BoxWorld on;
  on.World.ShowBox(1, u"", u"<AUTONUMBER>");
  EXPECT_EQ(on.ValueOnRow(2), u"2");
}

TEST(BoxValues, ATickMakesTheUsersTextCountForEveryRow) {
  BoxWorld on;
  OptionBox& box = on.World.ShowBox(1, u"typed", u"<NAMEONLY>");
  box.Checked = true;
  EXPECT_EQ(on.ValueOnRow(1), u"typed");
  box.Visible = false;  // a tick counts even so
  box.Content = u"other";
  EXPECT_EQ(on.ValueOnRow(2), u"other");
}

TEST(BoxValues, ABoxThatIsNeitherShownNorTickedKeepsItsOldValue) {
  BoxWorld on;
  on.World.State.BoxValues.Values[0] = u"old";
  on.World.ShowBox(1, u"typed", u"<NAMEONLY>").Visible = false;
  EXPECT_EQ(on.ValueOnRow(1), u"old");
}

TEST(BoxValues, TypedTextServesTheSelectedRowInOneMode) {
  BoxWorld on;
  on.World.State.DoAll = false;
  on.World.State.BoxEdited = true;
  on.World.ShowBox(1, u"typed", u"<NAMEONLY>");
  EXPECT_EQ(on.ValueOnRow(1), u"typed");
  EXPECT_EQ(on.ValueOnRow(2), u"b");  // not selected
  on.World.State.BoxEdited = false;
  EXPECT_EQ(on.ValueOnRow(1), u"a");
  on.World.State.BoxEdited = true;
  on.World.State.DoAll = true;
  EXPECT_EQ(on.ValueOnRow(1), u"a");
}

TEST(BoxValues, AnEmptyTextNeverWinsOverTheFormula) {
  BoxWorld on;
  on.World.State.DoAll = false;
  on.World.State.BoxEdited = true;
  on.World.ShowBox(1, u"", u"<NAMEONLY><PREFERBOX_SINGLE>");
  EXPECT_EQ(on.ValueOnRow(1), u"a");
}

TEST(BoxValues, TheTwoMarkersWidenWhereTypedTextWins) {
  const struct {
    Text code;
    bool doAll;
    Text value;
  } cases[] = {
      {u"<NAMEONLY><PREFERBOX_ALL>", true, u"typed"},
      {u"<NAMEONLY><PREFERBOX_ALL>", false, u"b"},
      {u"<NAMEONLY><PREFERBOX_SINGLE>", true, u"b"},
      {u"<NAMEONLY><PREFERBOX_SINGLE>", false, u"typed"},
      {u"<NAMEONLY>", true, u"b"},
      {u"<NAMEONLY>", false, u"b"},
  };
  for (const auto& c : cases) {
    BoxWorld on;
    on.World.State.DoAll = c.doAll;
    on.World.ShowBox(1, u"typed", c.code);
    EXPECT_EQ(on.ValueOnRow(2), c.value) << testing::PrintToString(c.code) << c.doAll;
  }
}

TEST(BoxValues, PreferAllStaysSetThroughABoxThatPrefersSingle) {
  BoxWorld on;
  on.World.ShowBox(1, u"one", u"<NAMEONLY><PREFERBOX_ALL>");
  on.World.ShowBox(2, u"two", u"<NAMEONLY><PREFERBOX_SINGLE>");
  on.World.ShowBox(3, u"three", u"<NAMEONLY>");
  on.ValueOnRow(1);
  EXPECT_EQ(on.World.State.BoxValues.Values[1], u"two");
  EXPECT_EQ(on.World.State.BoxValues.Values[2], u"a");
}

TEST(BoxValues, PreferAllStaysSetThroughABoxWithoutAFormula) {
  BoxWorld on;
  on.World.ShowBox(1, u"one", u"<NAMEONLY><PREFERBOX_ALL>");
  on.World.ShowBox(2, u"plain", u"Registry(key)");
  on.World.ShowBox(3, u"three", u"<NAMEONLY><PREFERBOX_SINGLE>");
  on.ValueOnRow(1);
  EXPECT_EQ(on.World.State.BoxValues.Values[2], u"three");
}

TEST(BoxValues, ShowingPutsThemIntoTheBoxes) {
  BoxWorld on;
  on.World.ShowBox(1, u"typed", u"<NAMEONLY>");
  on.World.Previews.UpdateBoxValues(2, {}, {}, false, false);
  EXPECT_EQ(on.World.State.Boxes[0].Content, u"typed");
  on.World.Previews.UpdateBoxValues(2, {}, {}, true, false);
  EXPECT_EQ(on.World.State.Boxes[0].Content, u"b");
}

TEST(BoxValues, BoxEventsStayQuietAlsoDuringThePreviewThatFollows) {
  BoxWorld on;
  bool quiet = true;
  std::size_t yields = 0;
  on.World.Loop.OnYield = [&] {
    ++yields;
    quiet = quiet && on.World.State.SuppressBoxEvents();
  };
  on.World.Previews.UpdateBoxValues(1, {}, {}, false, true);
  EXPECT_GT(yields, 0U);
  EXPECT_TRUE(quiet);
  EXPECT_FALSE(on.World.State.SuppressBoxEvents());
  EXPECT_EQ(on.World.Proposed(), (std::vector<Text>{u"xa.txt", u"xb.txt"}));
}

TEST(BoxValues, TagsArePassedAsCopies) {
  MemoryWorld on;
  on.ListFiles({u"a.mp3"});
  on.World.SelectSteps({u"<BOX1>"});
  on.World.ShowBox(1, u"", u"<ARTIST>");
  ID3Tag tagV1;
  tagV1.Present = true;
  tagV1.Artist = u"Someone";
  const ID3Tag absent;
  on.World.Previews.UpdateBoxValues(1, tagV1, absent, false, false);
  EXPECT_EQ(on.World.State.BoxValues.Values[0], u"Someone");
  EXPECT_FALSE(absent.Present);
}

}  // namespace
}  // namespace vorlane
