#include "layout/menu_sums.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

constexpr Twips P = 15;
constexpr MenuColumns Plain{};
constexpr MenuColumns Icons{.UseIcons = true};
constexpr MenuColumns Picture{.UseLeftImage = true};
constexpr MenuColumns Both{.UseIcons = true, .UseLeftImage = true};

TEST(MenuSums, ColumnsMoveTheTextToTheRight) {
  EXPECT_EQ(MenuTextLeft(Plain), 4 * P);
  EXPECT_EQ(MenuTextLeft(Picture), 22 * P);
  EXPECT_EQ(MenuTextLeft(Icons), 22 * P);
  EXPECT_EQ(MenuTextLeft(Both), 40 * P);
  EXPECT_EQ(MenuIconLeft(Icons), 4 * P);
  EXPECT_EQ(MenuIconLeft(Both), 20 * P);
  EXPECT_EQ(MenuSeparatorLeft(Icons), 4 * P);
  EXPECT_EQ(MenuSeparatorLeft(Picture), 20 * P);
}

TEST(MenuSums, TheWidthLeavesRoomForTheColumns) {
  for (const MenuStart start : {MenuStart::AtOnce, MenuStart::StepByStep}) {
    EXPECT_EQ(MenuWidth(1000, Plain, start), 1000 + 8 * P);
    EXPECT_EQ(MenuWidth(1000, Picture, start), 1000 + 28 * P);
    EXPECT_EQ(MenuWidth(1000, Icons, start), 1000 + 28 * P);
  }
  EXPECT_EQ(MenuWidth(1000, Both, MenuStart::AtOnce), 1000 + 48 * P);
  EXPECT_EQ(MenuWidth(1000, Both, MenuStart::StepByStep), 1000 + 64 * P);
}

TEST(MenuSums, TheHeightHasAllRowsAndBothEdges) {
  EXPECT_EQ(MenuHeight(5, 195), 5 * 195 + 8 * P);
}

TEST(MenuSums, ARowReachesFromALittleAboveItsPlace) {
  // Rows of 195 twips stand from 60; the first one is hot from 37.5.
  EXPECT_EQ(MenuRowAt(0, 195), 0);
  EXPECT_EQ(MenuRowAt(37, 195), 0);
  EXPECT_EQ(MenuRowAt(38, 195), 1);
  EXPECT_EQ(MenuRowAt(232, 195), 1);
  EXPECT_EQ(MenuRowAt(233, 195), 2);
}

TEST(MenuSums, HalfWayBetweenTwoRowsIsTheEvenOne) {
  EXPECT_EQ(MenuRowAt(37.5, 195), 0);
  EXPECT_EQ(MenuRowAt(232.5, 195), 2);
  EXPECT_EQ(MenuRowAt(427.5, 195), 2);
}

TEST(MenuSums, TheRowMayLieBehindTheLastOne) {
  EXPECT_EQ(MenuRowAt(MenuHeight(1, 195), 195), 2);  // 375 / 195
  EXPECT_EQ(MenuRowAt(MenuHeight(2, 120), 120), 4);  // 420 / 120 = 3.5
}

TEST(MenuSums, AMenuEndsAtTheScreensEnd) {
  EXPECT_EQ(KeptBeforeEnd(100, 50, 150), 100);
  EXPECT_EQ(KeptBeforeEnd(101, 50, 150), 100);
  EXPECT_EQ(KeptBeforeEnd(20, 400, 150), -250);
}

MenuGrowth GrowthTo(Twips height, Twips width) {
  return {
      .Height = height, .Width = width, .Step = 500, .ScreenWidth = 21000, .ScreenHeight = 15750};
}

TEST(MenuSums, AMenuGrowsByStepsUntilItsHeightIsComplete) {
  const MenuGrowth growth = GrowthTo(1700, 900);
  TwipsRect menu{0, 0, 10, 10};
  ASSERT_TRUE(GrowMenu(menu, growth));
  EXPECT_EQ(menu, (TwipsRect{0, 0, 510, 510}));  // 900 - 500 was above 10
  ASSERT_TRUE(GrowMenu(menu, growth));
  EXPECT_EQ(menu, (TwipsRect{0, 0, 900, 1010}));
  ASSERT_FALSE(GrowMenu(menu, growth));  // 1700 - 500 is below 1510
  EXPECT_EQ(menu, (TwipsRect{0, 0, 900, 1700}));
}

TEST(MenuSums, TheWidthStaysWhereTheHeightLeavesIt) {
  const MenuGrowth growth = GrowthTo(1100, 5000);
  TwipsRect menu{0, 0, 10, 10};
  ASSERT_TRUE(GrowMenu(menu, growth));
  ASSERT_FALSE(GrowMenu(menu, growth));
  EXPECT_EQ(menu, (TwipsRect{0, 0, 510, 1100}));
}

TEST(MenuSums, AMenuLowerThanOneStepStaysNarrow) {
  for (const Twips height : {300.0, 509.0, 1009.0}) {
    TwipsRect menu{0, 0, 10, 10};
    ASSERT_FALSE(GrowMenu(menu, GrowthTo(height, 5000)));
    EXPECT_EQ(menu, (TwipsRect{0, 0, 10, height}));
  }
}

TEST(MenuSums, AGrowingMenuMovesAwayFromTheEdges) {
  TwipsRect menu{20900, 15600, 10, 10};
  ASSERT_TRUE(GrowMenu(menu, GrowthTo(3000, 900)));
  EXPECT_EQ(menu, (TwipsRect{21000 - 510, 15750 - 510, 510, 510}));
}

}  // namespace
}  // namespace vorlane
