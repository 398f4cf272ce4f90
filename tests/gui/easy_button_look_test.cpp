// What a button shows: its strips, its plain frame, the focus.
#include "gui/button_world.h"

namespace vorlane {
namespace {

// The frame: the top edge and the left one but for their last points, then the other two.
void ExpectFrame(const QImage& image, const QColor& topLeft, const QColor& bottomRight) {
  const int right = image.width() - 1;
  const int bottom = image.height() - 1;
  for (int x = 0; x <= right; ++x) {
    EXPECT_EQ(image.pixelColor(x, 0), x < right ? topLeft : bottomRight) << x;
    EXPECT_EQ(image.pixelColor(x, bottom), bottomRight) << x;
  }
  for (int y = 0; y <= bottom; ++y) {
    EXPECT_EQ(image.pixelColor(0, y), y < bottom ? topLeft : bottomRight) << y;
    EXPECT_EQ(image.pixelColor(right, y), bottomRight) << y;
  }
  EXPECT_TRUE(InkOf(image, GroundColour).isEmpty());
}

TEST(EasyButtonLook, WithoutAPictureItIsAFrameOnItsGround) {
  ButtonWorld world;
  ExpectFrame(world.Look(), NormalFrame, NormalFrame);
}

TEST(EasyButtonLook, ThePlainFrameRisesAndSinks) {
  ButtonWorld world;
  ASSERT_NE(Light(), DarkShadow());
  world.PointAt(Middle);
  ASSERT_TRUE(world.BecomesPlain(Light()));
  ExpectFrame(world.Look(), Light(), DarkShadow());
  world.Press(Middle);
  ASSERT_TRUE(world.BecomesPlain(DarkShadow()));
  ExpectFrame(world.Look(), DarkShadow(), Light());
  world.Release(Middle);
  ExpectFrame(world.Look(), Light(), DarkShadow());
}

TEST(EasyButtonLook, EachStateShowsItsStrip) {
  ButtonWorld world;
  world.Button.SetPicture(FourStrips());
  EXPECT_TRUE(IsAllOf(world.Look(), NormalColour));
  world.PointAt(SolidPlace);
  ASSERT_TRUE(world.Becomes(HoverColour));
  EXPECT_TRUE(IsAllOf(world.Look(), HoverColour));
  world.Press(SolidPlace);
  ASSERT_TRUE(world.Becomes(PressedColour));
  EXPECT_TRUE(IsAllOf(world.Look(), PressedColour));
  world.Release(SolidPlace);
}

TEST(EasyButtonLook, APictureGivesSizeAndOutline) {
  ButtonWorld world;
  world.Button.SetPicture(FourStrips());
  EXPECT_EQ(world.Button.size(), StripSize);
  EXPECT_EQ(world.Button.mask(), QRegion(5, 5, 30, 10));
  world.Button.resize(100, 100);
  EXPECT_EQ(world.Button.size(), StripSize);
  world.Button.setGeometry(10, 20, 3, 3);
  EXPECT_EQ(world.Button.geometry(), QRect(QPoint(10, 20), StripSize));
  EXPECT_TRUE(IsAllOf(world.Look(), NormalColour));
}

TEST(EasyButtonLook, TheOutlineIsWhatIsntWhite) {
  QImage picture = FourStrips();
  picture.setPixelColor(0, 60, QColor(254, 255, 255));
  const StripPicture strips(picture);
  EXPECT_TRUE(strips.Outline().contains(QPoint(0, 0)));
  EXPECT_FALSE(strips.Outline().contains(QPoint(1, 0)));
  EXPECT_TRUE(strips.Outline().contains(GreyPlace));
}

TEST(EasyButtonLook, OnlyExactBlackIsSolid) {
  const StripPicture strips(FourStrips());
  EXPECT_TRUE(strips.IsSolid(SolidPlace));
  EXPECT_FALSE(strips.IsSolid(GreyPlace));
  EXPECT_FALSE(strips.IsSolid(SeeThroughPlace));
  EXPECT_FALSE(strips.IsSolid({-1, 10}));
  EXPECT_FALSE(strips.IsSolid({StripSize.width(), 10}));
  EXPECT_FALSE(strips.IsSolid({20, StripSize.height()}));
  EXPECT_FALSE(strips.IsSolid({20, -1000}));
}

TEST(EasyButtonLook, RowsThatRemainBelowFourStripsAreNeverUsed) {
  for (int remainder = 0; remainder < 4; ++remainder) {
    ButtonWorld world;
    world.Button.SetPicture(FourStrips(remainder));
    EXPECT_EQ(world.Button.size(), StripSize);
    EXPECT_EQ(world.Button.mask(), QRegion(5, 5, 30, 10));
    EXPECT_TRUE(IsAllOf(world.Look(), NormalColour));
  }
}

TEST(EasyButtonLook, AButtonThatIsAllSeeThroughIsNowhere) {
  ButtonWorld world;
  QImage picture(40, 80, QImage::Format_RGB32);
  picture.fill(Qt::white);
  world.Button.SetPicture(picture);
  EXPECT_EQ(world.Form.childAt(world.Button.geometry().center()), nullptr);
}

TEST(EasyButtonLook, AnAlphaChannelIsNoOutline) {
  ButtonWorld world;
  QImage picture = FourStrips().convertToFormat(QImage::Format_ARGB32);
  picture.setPixelColor(7, 7, QColor(200, 10, 20, 0));
  world.Button.SetPicture(picture);
  EXPECT_EQ(world.ColourAt({7, 7}), NormalColour);
}

TEST(EasyButtonLook, APictureSetWhileTheButtonIsHiddenShowsWithIt) {
  ButtonWorld world;
  world.Button.hide();
  world.Button.SetPicture(FourStrips());
  EXPECT_EQ(world.Button.size(), StripSize);
  world.Button.show();
  EXPECT_TRUE(IsAllOf(world.Look(), NormalColour));
}

TEST(EasyButtonLook, ASecondPictureTakesTheFirstOnesPlace) {
  ButtonWorld world;
  world.Button.SetPicture(FourStrips());
  QImage other(20, 40, QImage::Format_RGB32);
  other.fill(QColor(9, 8, 7));
  world.Button.SetPicture(other);
  EXPECT_EQ(world.Button.size(), QSize(20, 10));
  EXPECT_EQ(world.Button.mask(), QRegion(0, 0, 20, 10));
  EXPECT_TRUE(IsAllOf(world.Look(), QColor(9, 8, 7)));
}

TEST(EasyButtonLook, ANewPictureUnderThePointerShowsItsNormalLookInTheOldState) {
  ButtonWorld world;
  world.Button.SetPicture(FourStrips());
  world.PointAt(SolidPlace);
  ASSERT_TRUE(world.Becomes(HoverColour));
  world.Button.SetPicture(FourStrips(1));
  world.PassTicks(3);
  EXPECT_TRUE(IsAllOf(world.Look(), NormalColour));
  world.Press(SolidPlace);
  EXPECT_TRUE(world.Becomes(PressedColour));
  world.Release(SolidPlace);
}

TEST(EasyButtonLook, WhatIsNoPictureLeavesTheButtonPlain) {
  const auto expectPlain = [](const QImage& picture) {
    ButtonWorld world;
    world.Button.SetPicture(picture);
    EXPECT_EQ(world.Button.size(), QSize(60, 30));
    EXPECT_TRUE(world.Button.mask().isEmpty());
    ExpectFrame(world.Look(), NormalFrame, NormalFrame);
    world.Button.resize(50, 20);
    ExpectFrame(world.Look(), NormalFrame, NormalFrame);
  };
  expectPlain(QImage());
  expectPlain(QImage(0, 0, QImage::Format_RGB32));
  QImage low(40, 3, QImage::Format_RGB32);
  low.fill(Qt::black);
  expectPlain(low);
}

TEST(EasyButtonLook, APictureThatGoesShowsUntilTheNextState) {
  ButtonWorld world;
  world.Button.SetPicture(FourStrips());
  world.Button.SetPicture(QImage());
  EXPECT_TRUE(IsAllOf(world.Look(), NormalColour));
  world.Button.SetAlign(0);
  ExpectFrame(world.Look(), NormalFrame, NormalFrame);
  EXPECT_EQ(world.Button.mask(), QRegion(5, 5, 30, 10));
  world.Button.resize(60, 30);
  EXPECT_EQ(world.Button.size(), QSize(60, 30));
}

TEST(EasyButtonLook, TheGroundIsBackColor) {
  ButtonWorld world;
  world.Button.SetBackColor(0x302010);
  EXPECT_EQ(world.ColourAt(Middle), QColor(0x10, 0x20, 0x30));
  world.Button.SetBackColor(0x80000005);
  EXPECT_EQ(world.ColourAt(Middle),
            QApplication::palette().color(QPalette::Active, QPalette::Base));
}

TEST(EasyButtonLook, TheColoursOfTheDesktop) {
  QPalette palette;
  palette.setColor(QPalette::Highlight, QColor(1, 0, 0));
  palette.setColor(QPalette::Base, QColor(2, 0, 0));
  palette.setColor(QPalette::WindowText, QColor(3, 0, 0));
  palette.setColor(QPalette::HighlightedText, QColor(4, 0, 0));
  palette.setColor(QPalette::Button, QColor(5, 0, 0));
  palette.setColor(QPalette::Disabled, QPalette::Text, QColor(6, 0, 0));
  palette.setColor(QPalette::ButtonText, QColor(7, 0, 0));
  palette.setColor(QPalette::Light, QColor(8, 0, 0));
  palette.setColor(QPalette::Shadow, QColor(9, 0, 0));
  palette.setCurrentColorGroup(QPalette::Disabled);
  constexpr std::pair<FormColour, int> reds[] = {{0x02, 1}, {0x05, 2}, {0x07, 3}, {0x08, 3},
                                                 {0x0D, 1}, {0x0E, 4}, {0x0F, 5}, {0x11, 6},
                                                 {0x12, 7}, {0x14, 8}, {0x15, 9}, {0x7F, 0}};
  for (const auto& [number, red] : reds) {
    EXPECT_EQ(ToQColor(0x80000000 + number, palette).red(), red) << number;
  }
  EXPECT_EQ(ToQColor(0x030201, palette), QColor(1, 2, 3));
}

TEST(EasyButtonLook, AResizeWithoutAPictureDrawsTheNormalState) {
  ButtonWorld world;
  world.PointAt(Middle);
  ASSERT_TRUE(world.BecomesPlain(Light()));
  world.Timer().stop();
  world.Button.resize(70, 35);
  ExpectFrame(world.Look(), NormalFrame, NormalFrame);
}

TEST(EasyButtonLook, TheStandInShowsOnlyWithoutPictureAndCaption) {
  ButtonWorld world;
  world.Button.SetStandInCaption(QStringLiteral("Go"));
  const QColor ground = QApplication::palette().color(QPalette::Active, QPalette::Button);
  EXPECT_FALSE(InkOf(world.Look(), ground).isEmpty());
  const QImage standIn = world.Look();
  world.Button.SetStandInCaption(QStringLiteral("Stop"));
  EXPECT_NE(world.Look(), standIn);
  world.Button.SetCaption(QStringLiteral("X"));
  EXPECT_EQ(world.ColourAt({2, 2}), GroundColour);
  world.Button.SetCaption({});
  EXPECT_EQ(world.ColourAt({2, 2}), ground);
  world.Button.SetPicture(FourStrips());
  EXPECT_TRUE(IsAllOf(world.Look(), NormalColour));
}

TEST(EasyButtonLook, TheStandInFollowsTheDesktopsColours) {
  ButtonWorld world;
  world.Button.SetStandInCaption(QStringLiteral("Go"));
  QPalette dark = world.Form.palette();
  dark.setColor(QPalette::Button, QColor(10, 10, 10));
  dark.setColor(QPalette::ButtonText, QColor(250, 250, 250));
  world.Form.setPalette(dark);
  EXPECT_EQ(world.ColourAt({2, 2}), QColor(10, 10, 10));
  bool hasLightText = false;
  const QImage look = world.Look();
  for (int y = 1; y < look.height() - 1; ++y) {
    for (int x = 1; x < look.width() - 1; ++x) {
      hasLightText = hasLightText || look.pixelColor(x, y).lightness() > 200;
    }
  }
  EXPECT_TRUE(hasLightText);
}

TEST(EasyButtonLook, TheFocusShowsWhenTheKeyboardBroughtIt) {
  ButtonWorld world;
  const QImage without = world.Look();
  world.Button.setFocus(Qt::MouseFocusReason);
  ASSERT_TRUE(world.Button.hasFocus());
  EXPECT_EQ(world.Look(), without);
  world.Form.setFocus();
  world.Button.setFocus(Qt::TabFocusReason);
  EXPECT_NE(world.Look(), without);
  EXPECT_EQ(world.ColourAt({0, 0}), NormalFrame);
  world.Form.setFocus();
  EXPECT_EQ(world.Look(), without);
}

TEST(EasyButtonLook, TheFocusFollowsTheOutline) {
  ButtonWorld world;
  world.Button.SetPicture(FourStrips());
  world.Form.setFocus();
  world.Button.setFocus(Qt::TabFocusReason);
  EXPECT_NE(world.ColourAt({5, 10}), NormalColour);
  EXPECT_NE(world.ColourAt({34, 10}), NormalColour);
  EXPECT_NE(world.ColourAt({20, 5}), NormalColour);
  EXPECT_EQ(world.ColourAt({20, 10}), NormalColour);
  EXPECT_EQ(world.ColourAt({3, 10}), NormalColour);
}

}  // namespace
}  // namespace vorlane
