#include "layout/window_placement.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

constexpr SizeLimits Screen{.ScreenWidth = 21000, .ScreenHeight = 15750};

struct Case {
  std::int16_t Stored;
  Twips Applied;
};

TEST(WindowPlacement, APlaceOutsideTheScreenBecomesItsEdge) {
  for (const Case& c : {Case{-1, 0}, {0, 0}, {300, 300}, {20999, 20999}, {21000, 0}, {32000, 0}}) {
    EXPECT_EQ(RestoreWindowPlacement({.Left = c.Stored}, Screen).Left, c.Applied) << c.Stored;
  }
  for (const Case& c : {Case{-1, 0}, {0, 0}, {15749, 15749}, {15750, 0}}) {
    EXPECT_EQ(RestoreWindowPlacement({.Top = c.Stored}, Screen).Top, c.Applied) << c.Stored;
  }
}

TEST(WindowPlacement, ASizeIsKeptBetweenTheLeastOneAndTheScreen) {
  for (const Case& c : {Case{0, 14940},
                        {14939, 14940},
                        {14940, 14940},
                        {20000, 20000},
                        {21000, 21000},
                        {21001, 21000}}) {
    EXPECT_EQ(RestoreWindowPlacement({.Width = c.Stored}, Screen).Width, c.Applied) << c.Stored;
  }
  for (const Case& c : {Case{6794, 6795}, {6795, 6795}, {15750, 15750}, {15751, 15750}}) {
    EXPECT_EQ(RestoreWindowPlacement({.Height = c.Stored}, Screen).Height, c.Applied) << c.Stored;
  }
}

TEST(WindowPlacement, WhatIsNotStoredIsLeftAlone) {
  const auto applied = RestoreWindowPlacement({}, Screen);
  EXPECT_FALSE(applied.Left || applied.Top || applied.Width || applied.Height);
}

TEST(WindowPlacement, AScreenSmallerThanTheLeastSizeHasTheLastWord) {
  EXPECT_EQ(
      RestoreWindowPlacement({.Width = 100}, {.ScreenWidth = 12000, .ScreenHeight = 9000}).Width,
      12000);
}

}  // namespace
}  // namespace vorlane
