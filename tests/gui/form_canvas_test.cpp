// The primitives by which controls draw themselves.
#include "ui/form_canvas.h"

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QPainter>

#include "gui/pixel_rows.h"

namespace vorlane {
namespace {

constexpr ColorNumber Red = 0x0000FF;
constexpr ColorNumber Blue = 0xFF0000;

struct FormCanvasTest : testing::Test {
  FormCanvasTest() {
    Canvas.ScaleMode = ScaleMode::InPixels;
    Canvas.Resize({6, 4});
  }
  QStringList Rows() const {
    return PixelRows(Canvas.Picture(),
                     {{0xFFFFFFFF, '.'}, {0xFFFF0000, 'r'}, {0xFF0000FF, 'b'}, {0xFF000000, 'k'}});
  }

  FormCanvas Canvas;
};

TEST_F(FormCanvasTest, ALineLeavesItsLastPointOut) {
  Canvas.Line({1, 0}, {4, 0}, Red);
  Canvas.Line({4, 2}, {1, 2}, Blue);
  EXPECT_EQ(Rows(), QStringList({".rrr..", "......", "..bbb.", "......"}));
}

TEST_F(FormCanvasTest, ALineMayRunDownwardsOrSlanting) {
  Canvas.Line({0, 0}, {0, 3}, Red);
  Canvas.Line({2, 3}, {5, 0}, Blue);
  EXPECT_EQ(Rows(), QStringList({"r.....", "r...b.", "r..b..", "..b..."}));
}

TEST_F(FormCanvasTest, ALineOfNoLengthDrawsNothing) {
  Canvas.Line({2, 2}, {2, 2}, Red);
  EXPECT_EQ(Rows(), QStringList({"......", "......", "......", "......"}));
}

TEST_F(FormCanvasTest, BothCornersArePartOfABox) {
  Canvas.Box({1, 0}, {4, 3}, Red);
  EXPECT_EQ(Rows(), QStringList({".rrrr.", ".r..r.", ".r..r.", ".rrrr."}));
  Canvas.FilledBox({2, 1}, {3, 2}, Blue);
  EXPECT_EQ(Rows(), QStringList({".rrrr.", ".rbbr.", ".rbbr.", ".rrrr."}));
}

TEST_F(FormCanvasTest, ABoxOfOneRowIsALineWithItsEnd) {
  Canvas.Box({1, 1}, {3, 1}, Red);
  Canvas.Box({5, 1}, {5, 3}, Blue);
  Canvas.Box({0, 3}, {0, 3}, Blue);
  EXPECT_EQ(Rows(), QStringList({"......", ".rrr.b", ".....b", "b....b"}));
}

TEST_F(FormCanvasTest, ABoxMayBeGivenByAnyTwoCorners) {
  Canvas.Box({4, 3}, {1, 0}, Red);
  Canvas.FilledBox({2, 2}, {3, 1}, Blue);
  EXPECT_EQ(Rows(), QStringList({".rrrr.", ".rbbr.", ".rbbr.", ".rrrr."}));
}

TEST_F(FormCanvasTest, DotsAreEverySecondPixel) {
  Canvas.DrawStyle = DrawStyle::Dots;
  Canvas.Box({0, 0}, {4, 2}, Red);
  EXPECT_EQ(Rows(), QStringList({"r.r.r.", "......", "r.r.r.", "......"}));
  Canvas.Line({0, 3}, {6, 3}, Blue);
  EXPECT_EQ(Rows().back(), "b.b.b.");
}

TEST_F(FormCanvasTest, WhatLiesOutsideIsntDrawn) {
  Canvas.Box({-2, -2}, {2, 1}, Red);
  Canvas.Line({3, 3}, {50, 3}, Blue);
  EXPECT_EQ(Rows(), QStringList({"..r...", "rrr...", "......", "...bbb"}));
}

TEST_F(FormCanvasTest, TwipsAreFifteenToAPixel) {
  Canvas.ScaleMode = ScaleMode::InTwips;
  Canvas.Line({15, 0}, {60, 0}, Red);
  EXPECT_EQ(Rows().front(), ".rrr..");
  EXPECT_EQ(Canvas.ScaleWidth(), 90);
  EXPECT_EQ(Canvas.ScaleHeight(), 60);
}

TEST_F(FormCanvasTest, HalfWayBetweenTwoPixelsIsTheUpperOne) {
  Canvas.ScaleMode = ScaleMode::InTwips;
  Canvas.Line({0, 22.5}, {30, 22.5}, Red);    // 1.5
  Canvas.Line({30, 32.5}, {90, 32.5}, Blue);  // 2.17
  EXPECT_EQ(Rows(), QStringList({"......", "rr....", "..bbbb", "......"}));
}

TEST_F(FormCanvasTest, StrokesMoveTheCurrentPointToTheirEnd) {
  Canvas.Line({1, 2}, {3, 4}, Red);
  EXPECT_EQ(Canvas.Current.X, 3);
  EXPECT_EQ(Canvas.Current.Y, 4);
  Canvas.FilledBox({1, 2}, {5, 1}, Red);
  EXPECT_EQ(Canvas.Current.X, 5);
  Canvas.Cls();
  EXPECT_EQ(Canvas.Current.X, 0);
  EXPECT_EQ(Canvas.Current.Y, 0);
}

TEST_F(FormCanvasTest, ClsAndNewRoomHaveTheBackColor) {
  Canvas.FilledBox({0, 0}, {5, 3}, Red);
  Canvas.BackColor = Blue;
  Canvas.Resize({7, 5});
  EXPECT_EQ(Rows(), QStringList({"rrrrrrb", "rrrrrrb", "rrrrrrb", "rrrrrrb", "bbbbbbb"}));
  Canvas.Resize({2, 1});
  EXPECT_EQ(Rows(), QStringList({"rr"}));
  Canvas.Cls();
  EXPECT_EQ(Rows(), QStringList({"bb"}));
}

TEST_F(FormCanvasTest, APictureIsPaintedAtItsOwnSize) {
  QImage picture(2, 2, QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  picture.setPixelColor(0, 0, Qt::red);
  picture.setPixelColor(1, 1, Qt::blue);
  Canvas.PaintPicture(picture, {3, 1});
  Canvas.PaintPicture({}, {0, 0});
  EXPECT_EQ(Rows(), QStringList({"......", "...r..", "....b.", "......"}));
  EXPECT_EQ(Canvas.Current.X, 0);
}

TEST_F(FormCanvasTest, TextIsPrintedAtTheCurrentPointWhichGoesToTheNextLine) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(11);
  font.setStyleStrategy(QFont::NoAntialias);
  Canvas.Font = font;
  Canvas.ForeColor = Red;
  Canvas.Resize({40, 30});
  Canvas.Current = {3, 5};
  Canvas.Print(QStringLiteral("Wg"));
  const QFontMetrics metrics(font);
  EXPECT_EQ(Canvas.Current.X, 0);
  EXPECT_EQ(Canvas.Current.Y, 5 + metrics.height());
  QImage expected(40, 30, QImage::Format_RGB32);
  expected.fill(Qt::white);
  {
    QPainter painter(&expected);
    painter.setFont(font);
    painter.setPen(Qt::red);
    painter.drawText(3, 5 + metrics.ascent(), QStringLiteral("Wg"));
  }
  EXPECT_TRUE(SamePicture(Canvas.Picture(), expected));
  EXPECT_TRUE(Rows().join(QString()).contains(QLatin1Char('r')));
}

TEST_F(FormCanvasTest, TextIsMeasuredInTheScaleInUse) {
  const QFontMetrics metrics(Canvas.Font);
  const QString text = QStringLiteral("Wide");
  EXPECT_EQ(Canvas.TextWidth(text), metrics.horizontalAdvance(text));
  EXPECT_EQ(Canvas.TextHeight(), metrics.height());
  Canvas.ScaleMode = ScaleMode::InTwips;
  EXPECT_EQ(Canvas.TextWidth(text), 15 * metrics.horizontalAdvance(text));
  EXPECT_EQ(Canvas.TextHeight(), 15 * metrics.height());
  EXPECT_EQ(Canvas.TextWidth({}), 0);
}

TEST_F(FormCanvasTest, OnADenseScreenAPixelIsABlock) {
  FormCanvas dense(2);
  dense.ScaleMode = ScaleMode::InPixels;
  dense.Resize({3, 2});
  dense.Line({0, 0}, {2, 0}, Red);
  EXPECT_EQ(PixelRows(dense.Picture(), {{0xFFFFFFFF, '.'}, {0xFFFF0000, 'r'}}),
            QStringList({"rrrr..", "rrrr..", "......", "......"}));
  EXPECT_EQ(dense.ScaleWidth(), 3);
}

}  // namespace
}  // namespace vorlane
