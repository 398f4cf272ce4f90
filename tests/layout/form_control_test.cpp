// The design of the main window: the one table that all places come from, told a second time.
#include "layout/form_control.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace vorlane {
namespace {

struct Row {
  const char* Name;
  TwipsRect Place;
  Anchor KeepsTo;
  bool Visible;
};

constexpr Row Rows[] = {
    {"picBrowse", {360, 720, 3255, 4575}, Anchor::None, true},
    {"lstRenamingOperations", {360, 5640, 3255, 1575}, Anchor::Bottom, true},
    {"lstFileList", {3960, 720, 10215, 4150}, Anchor::None, true},
    {"cboKeywords", {3960, 4980, 7695, 315}, Anchor::Bottom, true},
    {"cboWildCard", {10440, 270, 1215, 315}, Anchor::Right, true},
    {"cmdListFiles", {3960, 240, 915, 420}, Anchor::Right, true},
    {"cmdListFolders", {3960, 240, 915, 420}, Anchor::Right, false},
    {"cmdThisFolderOnly", {5520, 240, 915, 420}, Anchor::Right, true},
    {"cmdIncludeSubFolders", {5520, 240, 915, 420}, Anchor::Right, false},
    {"cmdDoOne", {7080, 240, 915, 420}, Anchor::Right, true},
    {"cmdDoAll", {7080, 240, 915, 420}, Anchor::Right, false},
    {"objProgressBar", {11760, 240, 2415, 375}, Anchor::Right, true},
    {"cmdExit", {14400, 720, 660, 660}, Anchor::Right, true},
    {"cmdHelp", {14400, 1680, 750, 750}, Anchor::Right, true},
    {"cmdUndo", {14400, 2760, 750, 750}, Anchor::Right, true},
    {"cmdGo", {13320, 5880, 825, 1185}, Anchor::Bottom, true},
    {"cmdStop", {13320, 5880, 825, 1185}, Anchor::Bottom, false},
    {"imgTopBar", {3820, 200, 10755, 735}, Anchor::Right, true},
    {"imgBottomBar", {180, 5450, 14235, 1950}, Anchor::Bottom, true},
    {"lblTitle", {795, 210, 2460, 300}, Anchor::None, true},
    {"lblStatus", {240, 7560, 510, 240}, Anchor::Bottom, true},
    {"lblFileStatus", {13560, 5040, 615, 240}, Anchor::Bottom, true},
};

FormControlPlace Find(std::string_view name, int index) {
  for (const FormControlPlace& control : DesignedControls()) {
    if (control.Name == name && control.Index == index) {
      return control;
    }
  }
  throw std::out_of_range("no such control");
}

TEST(DesignedControls, StandAndAreKeptAsInThisTable) {
  for (const Row& row : Rows) {
    const FormControlPlace found = Find(row.Name, -1);
    EXPECT_EQ(found.Place, row.Place) << row.Name;
    EXPECT_EQ(found.KeepsTo, row.KeepsTo) << row.Name;
    EXPECT_EQ(found.VisibleAtFirst, row.Visible) << row.Name;
  }
}

TEST(DesignedControls, TheSixBoxesStandInThreeColumns) {
  constexpr Twips Left[] = {3720, 6876, 10032};
  constexpr Twips CheckLeft[] = {6588, 9744, 12900};
  for (int i = 0; i < 6; ++i) {
    const auto column = static_cast<std::size_t>(i / 2);
    const Twips down = i % 2 == 1 ? 720 : 0;
    EXPECT_EQ(Find("lblRenameOption", i).Place, (TwipsRect{Left[column], 5760 + down, 930, 240}));
    EXPECT_EQ(Find("txtRenameOption", i).Place, (TwipsRect{Left[column], 6000 + down, 2800, 300}));
    EXPECT_EQ(Find("chkRenameOption", i).Place,
              (TwipsRect{CheckLeft[column], 6053 + down, 195, 195}));
    for (const char* name : {"lblRenameOption", "txtRenameOption", "chkRenameOption"}) {
      EXPECT_EQ(Find(name, i).KeepsTo, Anchor::Bottom) << name << i;
      EXPECT_FALSE(Find(name, i).VisibleAtFirst) << name << i;
    }
  }
}

TEST(DesignedControls, TheLabelsOfTheHelpStandByTheirControlsAndKeepToThem) {
  constexpr TwipsRect Places[] = {
      {5985, 5760, 510, 195},  {5985, 6480, 510, 195},  {9141, 5760, 510, 195},
      {9141, 6480, 510, 195},  {12297, 5760, 510, 195}, {12297, 6480, 510, 195},
      {13320, 5640, 615, 195}, {3960, 0, 900, 195},     {5520, 0, 870, 195},
      {7080, 0, 1095, 195},    {10440, 0, 630, 195},    {14400, 480, 255, 195},
      {14400, 1440, 330, 195}, {14400, 2520, 390, 195}, {360, 5400, 1305, 195},
      {360, 480, 1245, 195}};
  for (int i = 0; i < 16; ++i) {
    EXPECT_EQ(Find("lblToolTip", i).Place, Places[i]) << i;
    const bool low = i < 7 || i == 14;
    const Anchor anchor = low ? Anchor::Bottom : Anchor::Right;
    EXPECT_EQ(Find("lblToolTip", i).KeepsTo, i == 15 ? Anchor::None : anchor) << i;
    EXPECT_FALSE(Find("lblToolTip", i).VisibleAtFirst) << i;
  }
}

}  // namespace
}  // namespace vorlane
