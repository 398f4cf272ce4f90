#include "layout/main_form_layout.h"

#include <gtest/gtest.h>

#include <random>

namespace vorlane {
namespace {

MainFormLayout Measured() {
  MainFormLayout layout;
  layout.InitResizeTags();
  return layout;
}

TEST(MainFormLayout, BeginsWithTheDesign) {
  const MainFormLayout layout;
  EXPECT_EQ(layout.PlaceOf("lstFileList"), (TwipsRect{3960, 720, 10215, 4150}));
  EXPECT_EQ(layout.PlaceOf("txtRenameOption", 3), (TwipsRect{6876, 6720, 2800, 300}));
  EXPECT_EQ(layout.PlaceOf("chkRenameOption", 4), (TwipsRect{12900, 6053, 195, 195}));
  EXPECT_EQ(layout.PlaceOf("lblToolTip", 15), (TwipsRect{360, 480, 1245, 195}));
  EXPECT_EQ(layout.Controls().size(), 22U + 18U + 16U);
}

TEST(MainFormLayout, NothingIsDoneForTheSameSize) {
  MainFormLayout layout = Measured();
  EXPECT_FALSE(layout.ResizeIfChanged(DesignWidth, DesignHeight));
  EXPECT_TRUE(layout.ResizeIfChanged(DesignWidth, DesignHeight + 15));
}

TEST(MainFormLayout, ControlsKeepTheirDistanceFromTheirEdge) {
  MainFormLayout layout = Measured();
  layout.ResizeIfChanged(DesignWidth + 1500, DesignHeight + 600);
  const MainFormLayout design;
  for (const FormControlPlace& now : layout.Controls()) {
    const TwipsRect before = design.PlaceOf(now.Name, now.Index);
    if (now.Name == "cboKeywords" || now.Name == "lblFileStatus") {
      EXPECT_EQ(now.Place.Top, before.Top + 600) << now.Name;
      continue;
    }
    if (now.Name == "picBrowse" || now.Name == "lstFileList") {
      continue;
    }
    EXPECT_EQ(now.Place.Left, before.Left + (now.KeepsTo == Anchor::Right ? 1500 : 0)) << now.Name;
    EXPECT_EQ(now.Place.Top, before.Top + (now.KeepsTo == Anchor::Bottom ? 600 : 0)) << now.Name;
    EXPECT_EQ(now.Place.Width, before.Width) << now.Name;
    EXPECT_EQ(now.Place.Height, before.Height) << now.Name;
  }
}

TEST(MainFormLayout, ATwiceAsWideFormHasATwiceAsWideTree) {
  MainFormLayout layout = Measured();
  layout.ResizeIfChanged(2 * DesignWidth, DesignHeight);
  const TwipsRect& browse = layout.PlaceOf("picBrowse");
  const TwipsRect& list = layout.PlaceOf("lstFileList");
  EXPECT_EQ(browse.Width, 2 * 3255);
  EXPECT_EQ(browse.Left, 360);
  EXPECT_EQ(list.Left - (browse.Left + browse.Width), 3960 - (360 + 3255));
  EXPECT_EQ(2 * DesignWidth - (list.Left + list.Width), DesignWidth - (3960 + 10215));
  EXPECT_EQ(layout.PlaceOf("cboKeywords").Left, list.Left);
  EXPECT_EQ(layout.PlaceOf("cboKeywords").Width, 7695);
}

TEST(MainFormLayout, TreeAndListKeepTheirBottomMargins) {
  MainFormLayout layout = Measured();
  layout.ResizeIfChanged(DesignWidth, DesignHeight + 900);
  EXPECT_EQ(layout.PlaceOf("picBrowse").Height, 4575 + 900);
  EXPECT_EQ(layout.PlaceOf("lstFileList").Height, 4150 + 900);
  EXPECT_EQ(layout.PlaceOf("lstRenamingOperations").Height, 1575);
}

TEST(MainFormLayout, TheRowCountEndsWhereTheListEnds) {
  MainFormLayout layout = Measured();
  layout.SetFileStatusWidth(900);
  EXPECT_EQ(layout.PlaceOf("lblFileStatus").Left, 3960 + 10215 - 900);
  layout.ResizeIfChanged(DesignWidth + 150, DesignHeight);
  const TwipsRect& list = layout.PlaceOf("lstFileList");
  EXPECT_EQ(layout.PlaceOf("lblFileStatus").Left + 900, list.Left + list.Width);
}

TEST(MainFormLayout, AnySequenceOfSizesLeadsBackToTheDesign) {
  MainFormLayout layout = Measured();
  std::mt19937 random(7);
  for (int i = 0; i < 500; ++i) {
    const auto width = static_cast<int>(600 + random() % 3000);
    const auto height = static_cast<int>(453 + random() % 2000);
    layout.ResizeIfChanged(TwipsOf(width), TwipsOf(height));
  }
  layout.ResizeIfChanged(DesignWidth, DesignHeight);
  const MainFormLayout design;
  for (const FormControlPlace& control : layout.Controls()) {
    const TwipsRect& before = design.PlaceOf(control.Name, control.Index);
    EXPECT_EQ(PixelsOf(control.Place.Left), PixelsOf(before.Left)) << control.Name;
    EXPECT_EQ(PixelsOf(control.Place.Top), PixelsOf(before.Top)) << control.Name;
    EXPECT_EQ(PixelsOf(control.Place.Width), PixelsOf(before.Width)) << control.Name;
  }
}

TEST(MainFormLayout, AFormTooSmallForItsListLeavesNoNegativeSizes) {
  MainFormLayout layout = Measured();
  layout.ResizeIfChanged(1500, 1500);
  for (const FormControlPlace& control : layout.Controls()) {
    EXPECT_GE(control.Place.Width, 0) << control.Name;
    EXPECT_GE(control.Place.Height, 0) << control.Name;
  }
}

TEST(MainFormLayout, AMuchWiderScreenDoesNotOverflow) {
  MainFormLayout layout = Measured();
  layout.ResizeIfChanged(TwipsOf(7680), TwipsOf(4320));
  EXPECT_EQ(layout.PlaceOf("cmdExit").Left, TwipsOf(7680) - (DesignWidth - 14400));
}

}  // namespace
}  // namespace vorlane
