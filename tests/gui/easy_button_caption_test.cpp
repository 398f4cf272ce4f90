// Where a button's caption stands, and in which colour.
#include "gui/button_world.h"
#include "ui/caption_alignment.h"

namespace vorlane {
namespace {

TEST(EasyButtonCaption, TheFlagsOfEveryAlignment) {
  constexpr int flags[] = {5, 1, 9, 4, 0, 8, 6, 2, 10};
  for (int align = 0; align < 9; ++align) {
    EXPECT_EQ(AlignToDrawFlags(align), flags[align]) << align;
  }
  for (const int align : {-1, 9, 10, 1000, -32768}) {
    EXPECT_EQ(AlignToDrawFlags(align), 0) << align;
  }
}

TEST(EasyButtonCaption, TheCaptionStandsWhereAlignSays) {
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

TEST(EasyButtonCaption, AnyOtherAlignmentIsTheTopLeftCorner) {
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

TEST(EasyButtonCaption, TheCaptionMovesWithThePressedState) {
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

TEST(EasyButtonCaption, ACaptionStandsOnEachStrip) {
  ButtonWorld world;
  world.Button.SetPicture(FourStrips());
  world.Button.SetForeColor(0x00FFFF);  // yellow: red and green
  world.Button.SetCaption(QStringLiteral("X"));
  EXPECT_FALSE(InkOf(world.Look(), NormalColour).isEmpty());
  world.PointAt(SolidPlace);
  ASSERT_TRUE(QTest::qWaitFor([&] { return world.ColourAt({1, 1}) == HoverColour; }));
  EXPECT_FALSE(InkOf(world.Look(), HoverColour).isEmpty());
}

TEST(EasyButtonCaption, ACaptionOfBlanksDrawsNothing) {
  ButtonWorld world;
  const QImage bare = world.Look();
  for (const char* blank : {"", " ", "      "}) {
    world.Button.SetCaption(QLatin1String(blank));
    EXPECT_EQ(world.Look(), bare);
  }
  world.Button.SetCaption(QStringLiteral(" . "));
  EXPECT_NE(world.Look(), bare);
}

TEST(EasyButtonCaption, TheMarkOfTheAccessKeyUnderlines) {
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

TEST(EasyButtonCaption, DisabledChangesTheCaptionsColourAlone) {
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

TEST(EasyButtonCaption, ADisabledButtonKeepsItsStrips) {
  ButtonWorld world;
  world.Button.SetPicture(FourStrips());
  const QImage enabled = world.Look();
  world.Button.setEnabled(false);
  EXPECT_EQ(world.Look(), enabled);
}

TEST(EasyButtonCaption, AnotherPictureTakesTheCaptionAlong) {
  const QImage larger = FourStrips().scaled(120, 240);
  ButtonWorld world;
  ButtonWorld fresh;
  for (ButtonWorld* each : {&world, &fresh}) {
    each->Button.SetCaption(QStringLiteral("X"));
    each->Button.SetAlign(0);
  }
  world.Button.SetPicture(FourStrips());
  world.Button.SetPicture(larger);
  fresh.Button.SetPicture(larger);
  EXPECT_EQ(world.Look(), fresh.Look());
}

}  // namespace
}  // namespace vorlane
