// Frames, pixel by pixel.
#include "ui/mod_menu_ctl.h"

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QGuiApplication>
#include <QPalette>

#include "gui/pixel_rows.h"
#include "support/recording_prompter.h"
#include "ui/form_colours.h"

namespace vorlane {
namespace {

constexpr ColorNumber Surface = 0x646464;  // 100 each
constexpr ColorNumber Light = 0x969696;    // 150
constexpr ColorNumber Dark = 0x0A0A0A;     // 10

struct FrameTest : testing::Test {
  FrameTest() {
    Canvas.BackColor = Surface;
    Canvas.Resize({9, 7});
    Font.setPixelSize(11);
    Font.setStyleStrategy(QFont::NoAntialias);
    Canvas.Font = Font;
  }
  QStringList Rows() const {
    return PixelRows(Canvas.Picture(), {{0xFF646464, '.'},
                                        {0xFF969696, 'L'},
                                        {0xFF969796, 'L'},  // shaded: green a little high
                                        {0xFF0A0A0A, 'D'},
                                        {0xFF7D7E7D, 'l'},  // half way back
                                        {0xFF373737, 'd'},
                                        {0xFFFF0000, 'r'}});
  }

  QFont Font{QStringLiteral("DejaVu Sans")};
  FormCanvas Canvas;
  RecordingPrompter Boxes;
};

TEST_F(FrameTest, AnEtchedFrameIsTwoRings) {
  DrawFrameEtched(Canvas, {Light, Dark}, {}, false);
  EXPECT_EQ(Rows(), QStringList({"DDDDDDDDL", "DLLLLLLDL", "DL.....DL", "DL.....DL", "DL.....DL",
                                 "DDDDDDD.L", "LLLLLLLL."}));
}

TEST_F(FrameTest, ASunkenEtchedFrameIsTheOtherWayRound) {
  DrawFrameEtched(Canvas, {Light, Dark}, {}, true);
  EXPECT_EQ(Rows(), QStringList({"LLLLLLLLD", "LDDDDDDLD", "LD.....LD", "LD.....LD", "LD.....LD",
                                 "LLLLLLL.D", "DDDDDDDD."}));
}

TEST_F(FrameTest, ALayeredFrameFadesInwards) {
  DrawFrameLayered(Canvas, 3, {Light, Dark}, {}, false, Boxes);
  EXPECT_EQ(Rows(), QStringList({"LLLLLLLLD", "LlllllldD", "Ll.....dD", "Ll.....dD", "Ll.....dD",
                                 "LdddddddD", "DDDDDDDDD"}));
}

TEST_F(FrameTest, ASunkenLayeredFrameIsTheOtherWayRound) {
  DrawFrameLayered(Canvas, 3, {Light, Dark}, {}, true, Boxes);
  EXPECT_EQ(Rows(), QStringList({"DDDDDDDDL", "DddddddlL", "Dd.....lL", "Dd.....lL", "Dd.....lL",
                                 "DlllllllL", "LLLLLLLLL"}));
}

TEST_F(FrameTest, TwoLayersAreOneRingAndTheSurface) {
  DrawFrameLayered(Canvas, 2, {Light, Dark}, {}, false, Boxes);
  EXPECT_EQ(Rows(), QStringList({"LLLLLLLLD", "L.......D", "L.......D", "L.......D", "L.......D",
                                 "L.......D", "DDDDDDDDD"}));
}

TEST_F(FrameTest, TooFewLayersAreToldOf) {
  for (const int layers : {0, 1}) {
    DrawFrameLayered(Canvas, layers, {Light, Dark}, {}, false, Boxes);
    EXPECT_EQ(Rows(), QStringList(QList<QString>(7, QStringLiteral("........."))));
  }
  ASSERT_EQ(Boxes.Boxes.size(), 2U);
  EXPECT_EQ(Boxes.Boxes[0].Message, u"There was an error. Make sure that Layers <> 0 or 1");
  EXPECT_EQ(Canvas.ScaleMode, ScaleMode::InTwips);
}

TEST_F(FrameTest, AFlatFrameIsALine) {
  DrawFrameFlat(Canvas, Dark, 1, {});
  EXPECT_EQ(Rows(), QStringList({"DDDDDDDDD", "D.......D", "D.......D", "D.......D", "D.......D",
                                 "D.......D", "DDDDDDDDD"}));
}

TEST_F(FrameTest, AWideFlatFrameIsABand) {
  DrawFrameFlat(Canvas, Light, 2, {});
  EXPECT_EQ(Rows(), QStringList({"LLLLLLLLL", "LLLLLLLLL", "LL.....LL", "LL.....LL", "LL.....LL",
                                 "LLLLLLLLL", "LLLLLLLLL"}));
}

TEST_F(FrameTest, ColorsThatArentGivenAreShadesOfTheSurface) {
  const FrameColors shades = CalcFrameColors(Canvas);
  EXPECT_EQ(shades.Light, 0x969696U);
  EXPECT_EQ(shades.Dark, 0x0A0A0AU);
  DrawFrameEtched(Canvas, {}, {}, false);
  EXPECT_EQ(Rows().front(), "DDDDDDDDL");
  Canvas.Cls();
  DrawFrameLayered(Canvas, 3, {}, {}, false, Boxes);
  EXPECT_EQ(Rows().front(), "LLLLLLLLD");
  EXPECT_EQ(Rows()[1], "LlllllldD");
  Canvas.Cls();
  DrawFrameFlat(Canvas, ColorToWorkOut, 1, {});
  EXPECT_EQ(Rows().front(), "DDDDDDDDD");
}

TEST_F(FrameTest, TheSurfaceAndTheColorsMayBeTheSystems) {
  const QPalette before = QGuiApplication::palette();
  QPalette palette = before;
  palette.setColor(QPalette::Button, QColor(100, 100, 100));
  palette.setColor(QPalette::Highlight, QColor(255, 0, 0));
  QGuiApplication::setPalette(palette);
  Canvas.BackColor = DesktopColour::ButtonFace;
  Canvas.Cls();
  EXPECT_EQ(CalcFrameColors(Canvas).Light, 0x969696U);
  DrawFrameFlat(Canvas, DesktopColour::Highlight, 1, {});
  EXPECT_EQ(Rows()[0], "rrrrrrrrr");
  EXPECT_EQ(Rows()[1], "r.......r");
  EXPECT_EQ(OleTranslateColor(DesktopColour::Highlight), 0x0000FFU);
  EXPECT_EQ(OleTranslateColor(0x123456), 0x123456U);
  QGuiApplication::setPalette(before);
}

TEST_F(FrameTest, FramesLeaveTheScaleAsItWas) {
  Canvas.ScaleMode = ScaleMode::InTwips;
  DrawFrameEtched(Canvas, {}, {}, false);
  DrawFrameLayered(Canvas, 3, {}, {}, false, Boxes);
  DrawFrameFlat(Canvas, 0, 1, {});
  EXPECT_EQ(Canvas.ScaleMode, ScaleMode::InTwips);
  EXPECT_EQ(PrepareCanvas(Canvas), ScaleMode::InTwips);
  EXPECT_EQ(Canvas.ScaleMode, ScaleMode::InPixels);
}

struct CaptionTest : FrameTest {
  CaptionTest() { Canvas.Resize({60, 40}); }

  const FrameCaption Caption{.Text = QStringLiteral("Wide"), .Left = 10};
  const int TextHeight = QFontMetrics(Font).height();
  const int TextWidth = QFontMetrics(Font).horizontalAdvance(Caption.Text);
};

// Its upper line runs through the middle of the caption, where it leaves a gap.
TEST_F(CaptionTest, AFrameLeavesAGapForItsCaption) {
  const int line = (TextHeight - 1) / 2;  // 6.5 is 6
  Canvas.ForeColor = 0x0000FF;
  const auto drawers = std::vector<std::function<void()>>{
      [&] {
        DrawFrameEtched(Canvas, {Light, Dark}, Caption, false);
      },
      [&] {
        DrawFrameLayered(Canvas, 3, {Light, Dark}, Caption, false, Boxes);
      },
      [&] { DrawFrameFlat(Canvas, Dark, 1, Caption); }};
  for (const auto& draw : drawers) {
    Canvas.Cls();
    draw();
    const QStringList rows = Rows();
    EXPECT_EQ(rows[line - 1].left(8), "........");
    EXPECT_NE(rows[line].left(8), "........");
    EXPECT_EQ(rows[line][7], rows[line][2]);
    EXPECT_EQ(rows[line].mid(8, 2), "..");  // the gap
    EXPECT_EQ(rows[line].mid(10 + TextWidth, 2), "..");
    EXPECT_NE(rows[line][10 + TextWidth + 2], '.');
    EXPECT_TRUE(rows.join(QString()).contains(QLatin1Char('r')));
  }
}

TEST_F(CaptionTest, ACaptionMayBeUnderlined) {
  Canvas.ForeColor = 0x0000FF;
  for (const bool underlined : {false, true}) {
    Canvas.Cls();
    DrawFrameCaption(Canvas, {.Text = QStringLiteral("WW"), .Left = 10, .Underline = underlined});
    const QString line(QFontMetrics(Font).horizontalAdvance(QStringLiteral("WW")) - 1, 'r');
    EXPECT_EQ(Rows().join(QString()).contains(line), underlined);
    EXPECT_FALSE(Canvas.Font.underline());
  }
}

}  // namespace
}  // namespace vorlane
