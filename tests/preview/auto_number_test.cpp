// The automatic number of a preview: found by trying names until one is free.
#include <gtest/gtest.h>

#include "preview/preview.h"
#include "support/form_world.h"

namespace vorlane {
namespace {

using Names = std::vector<Text>;

TEST(PreviewNumbers, RowsGetRisingNumbersAsWideAsTheListIsLong) {
  MemoryWorld on;
  Names names;
  for (int i = 0; i < 120; ++i) {
    names.push_back(u"f" + DecimalText(1000 + i) + u".txt");
  }
  on.ListFiles(names);
  on.World.SelectSteps({u"<BOX1><EXTONLY>"});
  on.World.ShowBox(1, u"<AUTONUMBER>");
  on.World.PreviewAll();
  const auto proposed = on.World.Proposed();
  EXPECT_EQ(proposed[0], u"001.txt");
  EXPECT_EQ(proposed[1], u"002.txt");
  EXPECT_EQ(proposed[119], u"120.txt");
}

TEST(PreviewNumbers, ANumberInTheStepAloneStaysOne) {
  MemoryWorld on;
  on.ListFiles({u"a.txt", u"b.txt", u"c.txt"});
  on.World.SelectSteps({u"n<AUTONUMBER><EXTONLY>"});
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"n1.txt", u"(1)n1.txt", u"(2)n1.txt"}));
}

TEST(PreviewNumbers, AHiddenBoxDoesNotCount) {
  MemoryWorld on;
  on.ListFiles({u"a.txt"});
  on.World.SelectSteps({u"n<AUTONUMBER><EXTONLY>"});
  on.World.ShowBox(1, u"<AUTONUMBER>").Visible = false;
  EXPECT_FALSE(on.World.Previews.BoxesUseAutoNumber());
  on.World.ShowBox(2, u"x<AUTONUMBER>y");
  EXPECT_TRUE(on.World.Previews.BoxesUseAutoNumber());
}

TEST(PreviewNumbers, NumbersStartAfreshInEachFolder) {
  MemoryWorld on;
  for (const Text name : {u"a", u"b", u"x/c", u"x/d"}) {
    on.Disk.Write(u"/R/" + name);
  }
  on.World.State.IncludeSubFolders = true;
  on.World.ListAll(u"/R/");
  on.World.SelectSteps({u"<BOX1>"});
  on.World.ShowBox(1, u"<AUTONUMBER>");
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"1", u"2", u"1", u"2"}));
}

TEST(PreviewNumbers, ANumberWhoseNameIsTakenIsPassedOver) {
  MemoryWorld on;
  on.ListFiles({u"2", u"a", u"b"});
  on.World.SelectSteps({u"<BOX1>"});
  on.World.ShowBox(1, u"<AUTONUMBER>");
  on.World.PreviewAll();
  // Row 1 moves from "2" to "1", so "2" is free for the row below it.
  EXPECT_EQ(on.World.Proposed(), (Names{u"1", u"2", u"3"}));
  on.ListFiles({u"0", u"3"});
  on.World.PreviewAll();  // rows 0, 2, 3, a, b
  EXPECT_EQ(on.World.Proposed(), (Names{u"1", u"2", u"3", u"4", u"5"}));
}

// The numbers reach as far as the entries that were found, listed or not; in a further folder as
// far as the rows.
TEST(PreviewNumbers, ReachAsFarAsTheEntriesFoundAndThenAsTheRows) {
  MemoryWorld on;
  on.World.State.WildCard = u"*.t";
  on.ListFiles({u"1", u"2", u"3", u"a.t"});
  on.World.SelectSteps({u"<BOX1>"});
  on.World.ShowBox(1, u"<AUTONUMBER>");
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"4"}));
  MemoryWorld below;
  for (const Text name : {u"z.t", u"x/1", u"x/2", u"x/3", u"x/a.t", u"x/b.t"}) {
    below.Disk.Write(u"/R/" + name);
  }
  below.World.State.WildCard = u"*.t";
  below.World.State.IncludeSubFolders = true;
  below.World.State.Rows.SetSort(Column::Path, SortOrder::Ascending);
  below.World.ListAll(u"/R/");
  below.World.SelectSteps({u"<BOX1>"});
  below.World.ShowBox(1, u"<AUTONUMBER>");
  below.World.PreviewAll();
  // Three rows: the numbers end at 3, and all of them are taken on disk.
  EXPECT_EQ(below.World.Proposed(), (Names{u"1", u"(1)3", u"(2)3"}));
}

TEST(PreviewNumbers, ANameThatDoesNotShowTheNumberFallsToTheFrontNumber) {
  MemoryWorld on;
  on.ListFiles({u"a.txt", u"b.txt", u"c.txt"});
  on.World.SelectSteps({u"same<EXTONLY>"});
  on.World.ShowBox(1, u"<AUTONUMBER>");
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"same.txt", u"(1)same.txt", u"(2)same.txt"}));
}

TEST(PreviewNumbers, ANumberCutAwayTriesAllFreeNumbersFirst) {
  MemoryWorld on;
  on.ListFiles({u"a.txt", u"b.txt"});
  on.World.SelectSteps({u"<LEFTTRIM><BOX1>x|x||</LEFTTRIM>"});
  on.World.ShowBox(1, u"<AUTONUMBER>");
  on.World.PreviewAll();
  EXPECT_EQ(on.World.Proposed(), (Names{u"x", u"(1)x"}));
}

// With the number at 1 the row's other steps are left out; a tag step in front hides the rename.
TEST(PreviewNumbers, NumberOneEndsTheRow) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"<BOX1>", u"y<BOX1>"});
  on.World.ShowBox(1, u"<AUTONUMBER>");
  on.World.PreviewAll();
  // Row 2: its first step takes number 2, so the second step runs and decides.
  EXPECT_EQ(on.World.Proposed(), (Names{u"1", u"y1"}));
}

}  // namespace
}  // namespace vorlane
