#include "layout/scaling.h"

#include <gtest/gtest.h>

#include <set>

#include "layout/main_form_layout.h"
#include "layout/skin_files.h"

namespace vorlane {
namespace {

constexpr ScaleFactors Compact = FactorsFor(990, 990);

TEST(Scaling, TheFactorsReferToAScreenOf1400By1050) {
  EXPECT_EQ(FactorsFor(1400, 1050), (ScaleFactors{1, 1}));
  EXPECT_EQ(Compact, (ScaleFactors{990.0 / 1400, 990.0 / 1050}));
  EXPECT_EQ(FactorsFor(640, 480), (ScaleFactors{640.0 / 1400, 480.0 / 1050}));
}

TEST(Scaling, PlaceAndSizeAreScaledByThemselves) {
  TwipsRect control{100, 200, 300, 400};
  ScaleControlPosition(control, {2, 3});
  EXPECT_EQ(control, (TwipsRect{200, 600, 300, 400}));
  ScaleControlSize(control, {0.5, 0.25});
  EXPECT_EQ(control, (TwipsRect{200, 600, 150, 100}));
}

TEST(Scaling, NoSizeBecomesNegative) {
  TwipsRect control{100, 200, 300, 400};
  ScaleControlSize(control, {-1, 0.5});
  EXPECT_EQ(control, (TwipsRect{100, 200, 300, 200}));
  ScaleControlSize(control, {0, -2});
  EXPECT_EQ(control, (TwipsRect{100, 200, 0, 200}));
}

TEST(Scaling, TheSweepLeavesImagesAndButtons) {
  MainFormLayout layout;
  layout.ScaleAllControls(Compact);
  const MainFormLayout design;
  for (const FormControlPlace& control : layout.Controls()) {
    TwipsRect expected = design.PlaceOf(control.Name, control.Index);
    const bool followsPicture = control.Name.starts_with("cmd") || control.Name.starts_with("img");
    if (!followsPicture) {
      expected = {expected.Left * Compact.X, expected.Top * Compact.Y, expected.Width * Compact.X,
                  expected.Height * Compact.Y};
    }
    EXPECT_EQ(control.Place, expected) << control.Name << control.Index;
  }
  EXPECT_EQ(layout.Width(), DesignWidth * Compact.X);
  EXPECT_EQ(layout.Height(), DesignHeight * Compact.Y);
}

TEST(Scaling, AControlWithItsFileMovesAlone) {
  MainFormLayout layout;
  layout.ScaleControlPosition("cmdGo", Compact);
  layout.ScaleControlPosition("imgTopBar", Compact);
  layout.ScaleControlSize("imgTopBar", Compact);
  EXPECT_EQ(layout.PlaceOf("cmdGo"), (TwipsRect{13320 * Compact.X, 5880 * Compact.Y, 825, 1185}));
  EXPECT_EQ(layout.PlaceOf("imgTopBar"),
            (TwipsRect{3820 * Compact.X, 200 * Compact.Y, 10755 * Compact.X, 735 * Compact.Y}));
  EXPECT_EQ(layout.PlaceOf("cmdStop"), (TwipsRect{13320, 5880, 825, 1185}));
}

TEST(Scaling, TheAnchorsAreMeasuredOnTheScaledLayout) {
  MainFormLayout layout;
  layout.ScaleControlPosition("cmdGo", Compact);
  layout.ScaleAllControls(Compact);
  const Twips width = layout.Width();
  const Twips height = layout.Height();
  layout.InitResizeTags({width, height});
  layout.ResizeIfChanged(2 * width, height + 750);
  // To the whole twip, as all distances are kept.
  EXPECT_NEAR(layout.PlaceOf("cmdGo").Top, 5880 * Compact.Y + 750, 0.5);
  EXPECT_NEAR(layout.PlaceOf("cmdStop").Top, 5880 + 750, 0.5);
  EXPECT_NEAR(layout.PlaceOf("cboWildCard").Left, 10440 * Compact.X + width, 0.5);
  EXPECT_NEAR(layout.PlaceOf("picBrowse").Width, 2 * 3255 * Compact.X, 1e-6);
  const TwipsRect& list = layout.PlaceOf("lstFileList");
  EXPECT_NEAR(2 * width - (list.Left + list.Width), (DesignWidth - 3960 - 10215) * Compact.X, 0.5);
}

// A button without a picture stays where it was designed, though the form has shrunk under it.
TEST(Scaling, ADesignedPlaceOutsideTheCompactFormIsKept) {
  MainFormLayout layout;
  layout.ScaleAllControls(FactorsFor(640, 480));
  layout.InitResizeTags({layout.Width(), layout.Height()});
  layout.ResizeIfChanged(layout.Width() + 150, layout.Height() + 150);
  EXPECT_NEAR(layout.PlaceOf("cmdStop").Top, 5880 + 150, 0.5);  // a negative distance
  EXPECT_NEAR(layout.PlaceOf("cmdExit").Left, 14400 + 150, 0.5);
}

TEST(SkinFiles, EachIsForOneControlOfItsKind) {
  const MainFormLayout layout;
  std::set<std::string_view> controls;
  for (const SkinFile& file : SkinFiles) {
    EXPECT_TRUE(controls.insert(file.Control).second) << file.Control;
    if (file.Target == SkinTarget::Form) {
      EXPECT_EQ(file.Control, "frmMain");
      continue;
    }
    const bool isBar = file.Target == SkinTarget::Bar;
    EXPECT_TRUE(file.Control.starts_with(isBar ? "img" : "cmd")) << file.Control;
    EXPECT_TRUE(file.FileName.ends_with(isBar ? u".gif" : u".bmp")) << file.Control;
    EXPECT_GT(layout.PlaceOf(file.Control).Width, 0) << file.Control;
  }
  EXPECT_EQ(controls.size(), 14U);
}

TEST(SkinFiles, EachButtonHasOneSoundAndGoOneOfItsOwn) {
  std::set<std::string_view> controls;
  for (const SkinSound& sound : SkinSounds) {
    EXPECT_TRUE(controls.insert(sound.Control).second) << sound.Control;
    EXPECT_EQ(sound.FileName, sound.Control == "cmdGo" ? u"01.wav" : u"02.wav");
  }
  for (const SkinFile& file : SkinFiles) {
    EXPECT_EQ(controls.contains(file.Control), file.Target == SkinTarget::Button) << file.Control;
  }
}

TEST(SkinFiles, AreTheseInThisOrder) {
  constexpr std::pair<TextView, std::string_view> files[] = {
      {u"Background.gif", "frmMain"},
      {u"TopBar.gif", "imgTopBar"},
      {u"BottomBar.gif", "imgBottomBar"},
      {u"Go.bmp", "cmdGo"},
      {u"Stop.bmp", "cmdStop"},
      {u"Help.bmp", "cmdHelp"},
      {u"Undo.bmp", "cmdUndo"},
      {u"Exit.bmp", "cmdExit"},
      {u"ListFiles.bmp", "cmdListFiles"},
      {u"ListFolders.bmp", "cmdListFolders"},
      {u"ThisFolderOnly.bmp", "cmdThisFolderOnly"},
      {u"IncludeSubFolders.bmp", "cmdIncludeSubFolders"},
      {u"DoOne.bmp", "cmdDoOne"},
      {u"DoAll.bmp", "cmdDoAll"}};
  ASSERT_EQ(std::size(SkinFiles), std::size(files));
  for (std::size_t i = 0; i < std::size(files); ++i) {
    EXPECT_EQ(SkinFiles[i].FileName, files[i].first);
    EXPECT_EQ(SkinFiles[i].Control, files[i].second);
  }
}

}  // namespace
}  // namespace vorlane
