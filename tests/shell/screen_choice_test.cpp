#include "shell/screen_choice.h"

#include <gtest/gtest.h>

#include "shell/stored_values.h"
#include "support/settings_world.h"

namespace vorlane {
namespace {

constexpr ScreenSize Measured{1400, 1050};

TEST(Resolution, ReplacesTheMeasuredSize) {
  const std::pair<TextView, ScreenSize> sizes[] = {
      {u"", Measured},
      {u"800x600", {800, 600}},
      {u"1024x768", {1024, 768}},
      {u"800X600", Measured},
      {u"800", Measured},
      {u"800x", {800, 1050}},
      {u"1280x9", {1280, 1050}},  // a height needs two characters
      {u"1280x09", {1280, 9}},
      {u"1280x99", {1280, 99}},
      {u"x768", Measured},  // the first character is no "x"
      {u"xx768", {1400, 768}},
      {u"widex768", {1400, 768}},
      {u"800xhigh", {800, 1050}},
      {u"800x600x400", {800, 1050}},
      {u" 800 x 600 ", {800, 600}},
      {u"800.4x600.6", {800, 601}},
      {u"99999x600", {1400, 600}},
      {u"800x99999", {800, 1050}},
      {u"-1x-2", {-1, -2}},
  };
  for (const auto& [resolution, size] : sizes) {
    const ScreenSize result = WithResolution(Measured, resolution);
    EXPECT_EQ(result.Width, size.Width);
    EXPECT_EQ(result.Height, size.Height);
  }
}

TEST(LayoutChoice, IsCompactBelow1024By768) {
  SettingsWorld store;
  const auto choose = [&](ScreenSize size) { return ChooseLayout(size, store.Settings); };
  EXPECT_EQ(choose({1024, 768}), (LayoutChoice{false, {1024, 768}}));
  EXPECT_EQ(choose({1920, 1080}), (LayoutChoice{false, {1920, 1080}}));
  EXPECT_EQ(choose({1023, 768}), (LayoutChoice{true, {1023, 768}}));
  EXPECT_EQ(choose({1024, 767}), (LayoutChoice{true, {1024, 767}}));
  EXPECT_EQ(choose({800, 600}), (LayoutChoice{true, {990, 990}}));
  EXPECT_EQ(choose({800, 601}), (LayoutChoice{true, {800, 601}}));
  EXPECT_EQ(choose({801, 600}), (LayoutChoice{true, {801, 600}}));
}

TEST(LayoutChoice, TheSettingResolutionCounts) {
  SettingsWorld store;
  store.Set(SettingKey::Resolution, u"1024x768");
  EXPECT_EQ(ChooseLayout({640, 480}, store.Settings), (LayoutChoice{false, {1024, 768}}));
  store.Set(SettingKey::Resolution, u"800x600");
  EXPECT_EQ(ChooseLayout(Measured, store.Settings), (LayoutChoice{true, {990, 990}}));
  store.Set(SettingKey::Resolution, u"x768");
  EXPECT_EQ(ChooseLayout(Measured, store.Settings), (LayoutChoice{false, Measured}));
}

}  // namespace
}  // namespace vorlane
