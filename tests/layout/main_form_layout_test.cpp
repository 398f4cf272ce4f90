#include "layout/main_form_layout.h"

#include <gtest/gtest.h>

#include <random>

namespace vorlane {
namespace {

MainFormLayout Measured() {
  MainFormLayout layout;
  layout.InitResizeTags({DesignWidth, DesignHeight});
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

// What was kept is kept from the first place, not from the last one: the way to a size doesn't
// count.
void ExpectSamePlaces(const MainFormLayout& layout, const MainFormLayout& direct) {
  for (const FormControlPlace& control : layout.Controls()) {
    const TwipsRect& expected = direct.PlaceOf(control.Name, control.Index);
    EXPECT_NEAR(control.Place.Left, expected.Left, 1e-6) << control.Name << control.Index;
    EXPECT_NEAR(control.Place.Top, expected.Top, 1e-6) << control.Name << control.Index;
    EXPECT_NEAR(control.Place.Width, expected.Width, 1e-6) << control.Name << control.Index;
    EXPECT_NEAR(control.Place.Height, expected.Height, 1e-6) << control.Name << control.Index;
  }
}

TEST(MainFormLayout, AnySequenceOfSizesGivesWhatItsLastSizeGivesAtOnce) {
  for (unsigned seed = 0; seed < 40; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    MainFormLayout layout;
    MainFormLayout direct;
    if (seed % 2 == 1) {
      const ScaleFactors factors = FactorsFor(static_cast<int>(500 + random() % 900),
                                              static_cast<int>(400 + random() % 600));
      for (MainFormLayout* scaled : {&layout, &direct}) {
        scaled->ScaleAllControls(factors);
      }
    }
    for (MainFormLayout* measured : {&layout, &direct}) {
      measured->InitResizeTags({measured->Width(), measured->Height()});
    }
    int width = 0;
    int height = 0;
    for (unsigned i = 0; i < 100; ++i) {
      width = static_cast<int>(100 + random() % 4000);
      height = static_cast<int>(100 + random() % 3000);
      layout.ResizeIfChanged(TwipsOf(width), TwipsOf(height));
    }
    direct.ResizeIfChanged(TwipsOf(width), TwipsOf(height));
    ExpectSamePlaces(layout, direct);
  }
}

// Where a number of 16 bits holds no distance the control stays.
TEST(MainFormLayout, ADistanceOfMoreThan16BitsIsNotKept) {
  MainFormLayout layout;
  layout.InitResizeTags({50000, DesignHeight});
  const TwipsRect list = layout.PlaceOf("lstFileList");
  layout.ResizeIfChanged(60000, DesignHeight + 150);
  EXPECT_EQ(layout.PlaceOf("imgTopBar").Left, 3820);           // 46180 from the edge
  EXPECT_EQ(layout.PlaceOf("cmdExit").Left, 14400);            // 35600
  EXPECT_EQ(layout.PlaceOf("lstFileList").Width, list.Width);  // 35825
  EXPECT_EQ(layout.PlaceOf("lstFileList").Height, list.Height + 150);
  EXPECT_EQ(layout.PlaceOf("cmdGo").Top, 5880 + 150);
}

TEST(MainFormLayout, ADistanceIsRoundedToTheEvenTwip) {
  MainFormLayout layout;
  layout.SetControlSize("lstFileList", {10214.5, 4150.5});  // margins of 1185.5 and 2959.5
  layout.InitResizeTags({DesignWidth, DesignHeight});
  layout.ResizeIfChanged(DesignWidth + 1500, DesignHeight + 600);
  const TwipsRect& list = layout.PlaceOf("lstFileList");
  EXPECT_NEAR(DesignWidth + 1500 - (list.Left + list.Width), 1186, 1e-6);
  EXPECT_NEAR(DesignHeight + 600 - (list.Top + list.Height), 2960, 1e-6);
}

// A form that has been nothing wide has no ratio to grow by.
TEST(MainFormLayout, AFormOfNoWidthGrowsBackWithoutItsTree) {
  MainFormLayout layout = Measured();
  layout.ResizeIfChanged(0, 0);
  layout.ResizeIfChanged(DesignWidth, DesignHeight);
  EXPECT_EQ(layout.PlaceOf("picBrowse").Width, 0);
  EXPECT_EQ(layout.PlaceOf("lstFileList").Left, 360 + 345);
  EXPECT_EQ(layout.PlaceOf("cmdExit").Left, 14400);
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
