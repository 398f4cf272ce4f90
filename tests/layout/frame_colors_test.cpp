#include "layout/frame_colors.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

constexpr ColorNumber Ask = ColorToWorkOut;

struct Edges {
  ColorNumber Light;
  ColorNumber Dark;

  bool operator==(const Edges&) const = default;
};

Edges EdgesOf(ColorNumber surface, Edges edges = {Ask, Ask}) {
  CalcFrameColors(surface, edges.Light, edges.Dark);
  return edges;
}

TEST(FrameColors, AColorIsTakenApart) {
  EXPECT_EQ(ColorToRGB(0x000000), (ColorChannels{0, 0, 0}));
  EXPECT_EQ(ColorToRGB(0x030201), (ColorChannels{1, 2, 3}));
  EXPECT_EQ(ColorToRGB(0xFF0000), (ColorChannels{0, 0, 255}));
  EXPECT_EQ(ColorToRGB(0x0000FF), (ColorChannels{255, 0, 0}));
}

TEST(FrameColors, GreenComesOutUpToOneStepTooHigh) {
  EXPECT_EQ(ColorToRGB(0x00FF00).Green, 256);
  EXPECT_EQ(ColorToRGB(0x008000).Green, 129);  // 128.502
  EXPECT_EQ(ColorToRGB(0x007F00).Green, 127);  // 127.498
  EXPECT_EQ(ColorToRGB(0x006400).Green, 100);
}

TEST(FrameColors, AColorIsPutTogetherWithinTheLimits) {
  EXPECT_EQ(ColorOf(1, 2, 3), 0x030201U);
  EXPECT_EQ(ColorOf(256, 300, 255), 0xFFFFFFU);
  EXPECT_EQ(ColorOf(-1, -200, 0), 0U);
}

TEST(FrameColors, LightIsFiftyAboveTheSurface) {
  EXPECT_EQ(EdgesOf(ColorOf(0, 100, 199), {Ask, 7}), (Edges{ColorOf(50, 150, 249), 7}));
  EXPECT_EQ(EdgesOf(ColorOf(200, 206, 255), {Ask, 7}), (Edges{ColorOf(255, 255, 255), 7}));
}

TEST(FrameColors, DarkAloneIsAHundredAndFortyBelowTheSurface) {
  EXPECT_EQ(EdgesOf(ColorOf(140, 100, 255), {7, Ask}), (Edges{7, ColorOf(0, 0, 115)}));
  EXPECT_EQ(EdgesOf(ColorOf(141, 0, 0), {7, Ask}), (Edges{7, ColorOf(1, 0, 0)}));
}

TEST(FrameColors, DarkBesideLightIsWorkedOutFromLight) {
  EXPECT_EQ(EdgesOf(ColorOf(192, 192, 192)),
            (Edges{ColorOf(242, 243, 242), ColorOf(102, 103, 102)}));  // green: 193
  EXPECT_EQ(EdgesOf(ColorOf(240, 240, 240)),
            (Edges{ColorOf(255, 255, 255), ColorOf(115, 115, 115)}));
  EXPECT_EQ(EdgesOf(ColorOf(90, 91, 92)), (Edges{ColorOf(140, 141, 142), ColorOf(0, 1, 2)}));
}

TEST(FrameColors, GivenEdgesStayAsTheyAre) {
  EXPECT_EQ(EdgesOf(0x123456, {1, 2}), (Edges{1, 2}));
}

TEST(FrameColors, RingsGoFromFullContrastToTheSurface) {
  const ColorNumber surface = ColorOf(100, 100, 100);
  const RingColors edges{ColorOf(150, 150, 150), ColorOf(10, 10, 10)};
  const auto ring = [&](int index) { return LayerColors(surface, edges, index, 3); };
  EXPECT_EQ(ring(0).Light, ColorOf(150, 151, 150));  // green: one step too high
  EXPECT_EQ(ring(0).Dark, edges.Dark);
  EXPECT_EQ(ring(1).Light, ColorOf(125, 126, 125));  // green: half of 51 off
  EXPECT_EQ(ring(1).Dark, ColorOf(55, 55, 55));
  EXPECT_EQ(ring(2).Light, surface);
  EXPECT_EQ(ring(2).Dark, surface);
}

TEST(FrameColors, HalvesOfAStepGoToTheEvenOne) {
  const auto light = [](int red, int surface) {
    return LayerColors(ColorOf(surface, 0, 0), {ColorOf(red, 0, 0), 0}, 1, 3).Light;
  };
  EXPECT_EQ(light(101, 100), 100U);  // 100.5
  EXPECT_EQ(light(103, 100), 102U);  // 101.5
}

// A light edge below the surface, or a dark one above it, moves further away instead.
TEST(FrameColors, EdgesOnTheWrongSideGoAway) {
  const RingColors innermost =
      LayerColors(ColorOf(100, 0, 0), {ColorOf(60, 0, 0), ColorOf(250, 0, 0)}, 1, 2);
  EXPECT_EQ(innermost.Light, ColorOf(20, 0, 0));
  EXPECT_EQ(innermost.Dark, ColorOf(255, 0, 0));
}

}  // namespace
}  // namespace vorlane
