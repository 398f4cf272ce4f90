// What a button shows: its strips, its plain frame, its caption.
#include "gui/button_world.h"
#include "ui/caption_alignment.h"

namespace vorlane {
namespace {

constexpr FormColour Ground = 0xC0C0C0;
const QColor GroundColour(0xC0, 0xC0, 0xC0);
const QColor NormalFrame(0xCF, 0xCF, 0xCF);
constexpr QPoint Middle(30, 15);  // of a button without a picture, which is 60 by 30 here

// The rectangle around everything in an image that isn't its ground, without the frame.
QRect InkOf(const QImage& image, const QColor& ground) {
  QRect ink;
  for (int y = 1; y < image.height() - 1; ++y) {
    for (int x = 1; x < image.width() - 1; ++x) {
      if (image.pixelColor(x, y) != ground) {
        ink |= QRect(x, y, 1, 1);
      }
    }
  }
  return ink;
}

bool IsAllOf(const QImage& image, const QColor& colour) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) != colour) {
        return false;
      }
    }
  }
  return true;
}

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

TEST(EasyButtonLook, TheFlagsOfEveryAlignment) {
  constexpr int flags[] = {5, 1, 9, 4, 0, 8, 6, 2, 10};
  for (int align = 0; align < 9; ++align) {
    EXPECT_EQ(AlignToDrawFlags(align), flags[align]) << align;
  }
  for (const int align : {-1, 9, 10, 1000, -32768}) {
    EXPECT_EQ(AlignToDrawFlags(align), 0) << align;
  }
}

TEST(EasyButtonLook, TheCaptionStandsWhereAlignSays) {
  ButtonWorld world;
  world.Button.resize(120, 60);
  world.Button.SetCaption(QStringLiteral("XX"));
  for (int align = 0; align <= 9; ++align) {
    world.Button.SetAlign(align);
    const QRect ink = InkOf(world.Look(), GroundColour);
    ASSERT_FALSE(ink.isEmpty()) << align;
    ASSERT_LT(ink.width(), 30);
    const int column = align >= 9 ? 3 : align;
    const int centre = ink.center().x();
    if (column < 3) {
      EXPECT_NEAR(centre, 60, 2) << align;
    } else if (column < 6) {
      EXPECT_LT(ink.right(), 30) << align;
    } else {
      EXPECT_GT(ink.left(), 90) << align;
    }
    const int row = align == 9 ? 1 : align % 3;
    if (row == 0) {
      EXPECT_NEAR(ink.center().y(), 30, 3) << align;
    } else if (row == 1) {
      EXPECT_LT(ink.bottom(), 20) << align;
    } else {
      EXPECT_GT(ink.top(), 40) << align;
    }
  }
}

TEST(EasyButtonLook, AnyOtherAlignmentIsTheTopLeftCorner) {
  ButtonWorld world;
  world.Button.SetCaption(QStringLiteral("Text"));
  world.Button.SetAlign(4);
  const QImage topLeft = world.Look();
  world.Button.SetAlign(9);
  EXPECT_EQ(world.Look(), topLeft);
  world.Button.SetAlign(-5);
  EXPECT_EQ(world.Look(), topLeft);
  world.Button.SetAlign(3);
  EXPECT_NE(world.Look(), topLeft);
}

TEST(EasyButtonLook, TheCaptionMovesWithThePressedState) {
  ButtonWorld world;
  world.Button.SetAlign(0);
  world.Button.SetCaption(QStringLiteral("XX"));
  const QRect atRest = InkOf(world.Look(), GroundColour);
  world.PointAt(Middle);
  ASSERT_TRUE(world.BecomesPlain(Light()));
  EXPECT_EQ(InkOf(world.Look(), GroundColour), atRest);
  world.Press(Middle);
  ASSERT_TRUE(world.BecomesPlain(DarkShadow()));
  EXPECT_EQ(InkOf(world.Look(), GroundColour), atRest.translated(1, 1));
  world.Release(Middle);
}

TEST(EasyButtonLook, ACaptionStandsOnEachStrip) {
  ButtonWorld world;
  world.Button.SetPicture(FourStrips());
  world.Button.SetForeColor(0x00FFFF);  // yellow: red and green
  world.Button.SetCaption(QStringLiteral("X"));
  EXPECT_FALSE(InkOf(world.Look(), NormalColour).isEmpty());
  world.PointAt(SolidPlace);
  ASSERT_TRUE(QTest::qWaitFor([&] { return world.ColourAt({1, 1}) == HoverColour; }));
  EXPECT_FALSE(InkOf(world.Look(), HoverColour).isEmpty());
}

TEST(EasyButtonLook, ACaptionOfBlanksDrawsNothing) {
  ButtonWorld world;
  const QImage bare = world.Look();
  for (const char* blank : {"", " ", "      "}) {
    world.Button.SetCaption(QLatin1String(blank));
    EXPECT_EQ(world.Look(), bare);
  }
  world.Button.SetCaption(QStringLiteral(" . "));
  EXPECT_NE(world.Look(), bare);
}

TEST(EasyButtonLook, TheMarkOfTheAccessKeyUnderlines) {
  ButtonWorld world;
  world.Button.SetCaption(QStringLiteral("Xnn"));
  const QImage plain = world.Look();
  world.Button.SetCaption(QStringLiteral("&Xnn"));
  const QRect ink = InkOf(plain, GroundColour);
  const QRect underlined = InkOf(world.Look(), GroundColour);
  EXPECT_GT(underlined.bottom(), ink.bottom());
  EXPECT_EQ(underlined.left(), ink.left());
  EXPECT_EQ(underlined.right(), ink.right());  // the mark itself takes no room
}

TEST(EasyButtonLook, DisabledChangesTheCaptionsColourAlone) {
  ButtonWorld world;
  world.Button.SetForeColor(0x0000FF);
  world.Button.SetCaption(QStringLiteral("XX"));
  const auto has = [&world](const QColor& colour) {
    const QImage look = world.Look();
    for (int y = 1; y < look.height() - 1; ++y) {
      for (int x = 1; x < look.width() - 1; ++x) {
        const QColor at = look.pixelColor(x, y);
        if (std::abs(at.red() - colour.red()) + std::abs(at.green() - colour.green()) +
                std::abs(at.blue() - colour.blue()) <
            60) {
          return true;
        }
      }
    }
    return false;
  };
  EXPECT_TRUE(has(Qt::red));
  world.Button.setEnabled(false);
  EXPECT_FALSE(has(Qt::red));
  const QImage disabled = world.Look();
  EXPECT_TRUE(has(QApplication::palette().color(QPalette::Disabled, QPalette::Text).rgb()));
  world.Button.setEnabled(true);
  EXPECT_TRUE(has(Qt::red));
  world.Button.SetEnabled(false);
  EXPECT_EQ(world.Look(), disabled);
}

TEST(EasyButtonLook, ADisabledButtonKeepsItsStrips) {
  ButtonWorld world;
  world.Button.SetPicture(FourStrips());
  const QImage enabled = world.Look();
  world.Button.setEnabled(false);
  EXPECT_EQ(world.Look(), enabled);
}

struct Set {
  const char* Name;
  std::function<void(EasyButton&)> Do;
};

std::vector<Set> SetsThatClear() {
  return {{"Align", [](EasyButton& button) { button.SetAlign(3); }},
          {"BackColor", [](EasyButton& button) { button.SetBackColor(Ground); }},
          {"Caption", [](EasyButton& button) { button.SetCaption(QStringLiteral("Y")); }},
          {"Enabled", [](EasyButton& button) { button.SetEnabled(true); }},
          {"Enabled", [](EasyButton& button) { button.setEnabled(false); }},
          {"Font", [](EasyButton& button) { button.SetFont(QFont(QStringLiteral("Serif"), 7)); }},
          {"Font", [](EasyButton& button) { button.SetFont(button.Font()); }},
          {"ForeColor", [](EasyButton& button) { button.SetForeColor(0xFF); }}};
}

TEST(EasyButtonLook, ASetUnderThePointerLeavesItBlankUntilThePointerLeaves) {
  for (const Set& set : SetsThatClear()) {
    ButtonWorld world;
    world.Button.SetPicture(FourStrips());
    world.Button.SetCaption(QStringLiteral("X"));
    world.PointAt(SolidPlace);
    ASSERT_TRUE(QTest::qWaitFor([&] { return world.ColourAt({1, 1}) == HoverColour; }));
    set.Do(world.Button);
    EXPECT_TRUE(IsAllOf(world.Look(), GroundColour)) << set.Name;
    world.PassTicks(3);
    EXPECT_TRUE(IsAllOf(world.Look(), GroundColour)) << set.Name;
    world.PointAt(OutsidePlace);
    EXPECT_TRUE(QTest::qWaitFor([&] {
      return world.ColourAt({1, 1}) == NormalColour;
    })) << set.Name;
  }
}

TEST(EasyButtonLook, ASetWhileItIsHeldLeavesItBlankUntilTheRelease) {
  ButtonWorld world;
  world.PointAt(Middle);
  world.Press(Middle);
  ASSERT_TRUE(world.BecomesPlain(DarkShadow()));
  world.Button.SetCaption(QStringLiteral("X"));
  EXPECT_TRUE(IsAllOf(world.Look(), GroundColour));
  world.PassTicks(3);
  EXPECT_TRUE(IsAllOf(world.Look(), GroundColour));
  world.Release(Middle);
  EXPECT_EQ(world.ColourAt({0, 0}), Light());
  EXPECT_FALSE(InkOf(world.Look(), GroundColour).isEmpty());
}

TEST(EasyButtonLook, ABlankButtonThatIsPressedShowsAgain) {
  ButtonWorld world;
  world.Button.SetPicture(FourStrips());
  world.PointAt(SolidPlace);
  ASSERT_TRUE(world.Becomes(HoverColour));
  world.Button.SetCaption(QStringLiteral(" "));
  EXPECT_TRUE(IsAllOf(world.Look(), GroundColour));
  world.Press(SolidPlace);
  EXPECT_TRUE(world.Becomes(PressedColour));
  world.Release(SolidPlace);
}

TEST(EasyButtonLook, AtRestASetShowsAtOnceAndIsTold) {
  for (const Set& set : SetsThatClear()) {
    ButtonWorld world;
    world.Button.SetCaption(QStringLiteral("X"));
    QStringList told;
    world.Button.OnPropertyChanged = [&told](const QString& name) { told << name; };
    set.Do(world.Button);
    EXPECT_EQ(told, QStringList(QLatin1String(set.Name)));
    EXPECT_EQ(world.ColourAt({0, 0}), NormalFrame) << set.Name;
    EXPECT_FALSE(InkOf(world.Look(), GroundColour).isEmpty()) << set.Name;
  }
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

}  // namespace
}  // namespace vorlane
