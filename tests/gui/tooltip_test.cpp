// clsTooltip alone, over a window with a few controls.
#include "gui/tooltip_world.h"

namespace vorlane {
namespace {

TEST_F(TooltipTest, ANewOneHasTheDefaults) {
  const ClsTooltip tip;
  EXPECT_EQ(tip.DelayTime(), 500);
  EXPECT_EQ(tip.VisibleTime(), 5000);
  EXPECT_FALSE(tip.PopupOnDemand());
  EXPECT_FALSE(tip.Centered());
  EXPECT_EQ(tip.Style(), ClsTooltip::RectangleStyle);
  EXPECT_EQ(tip.Icon(), ClsTooltip::NoIcon);
  EXPECT_EQ(tip.BackColor(), 0u);
  EXPECT_EQ(tip.ForeColor(), 0u);
  EXPECT_EQ(tip.Title(), u"");
  EXPECT_EQ(tip.TipText(), u"");
  EXPECT_FALSE(tip.TipFont());
}

TEST_F(TooltipTest, WhatIsSetIsWhatIsGot) {
  Tip.SetBackColor(0x123456);
  Tip.SetForeColor(0x80000012);
  Tip.SetCentered(true);
  Tip.SetVisibleTime(32000);
  Tip.SetPopupOnDemand(true);
  Tip.SetTipFont(QFont("DejaVu Serif"));
  EXPECT_EQ(Tip.BackColor(), 0x123456u);
  EXPECT_EQ(Tip.ForeColor(), 0x80000012);
  EXPECT_TRUE(Tip.Centered());
  EXPECT_EQ(Tip.VisibleTime(), 32000);
  EXPECT_TRUE(Tip.PopupOnDemand());
  EXPECT_EQ(Tip.TipFont()->family(), "DejaVu Serif");
  EXPECT_EQ(TipNamed("tip"), nullptr);
}

TEST_F(TooltipTest, AppearsOnceThePointerHasRested) {
  Create();
  EXPECT_FALSE(IsShown("tip"));
  QElapsedTimer time;
  time.start();
  PointAt(Button);
  EXPECT_FALSE(IsShown("tip"));
  EXPECT_TRUE(Appears());
  EXPECT_GE(time.elapsed(), Delay);
}

TEST_F(TooltipTest, EachMoveBeginsTheDelayAnew) {
  Tip.SetDelayTime(150);
  Create();
  QElapsedTimer time;
  for (int step = 0; step < 5; ++step) {
    time.start();
    PointAt(Button, {step, 0});
    QTest::qWait(40);
  }
  EXPECT_FALSE(IsShown("tip"));
  EXPECT_TRUE(Appears());
  EXPECT_GE(time.elapsed(), 150);
}

TEST_F(TooltipTest, GoesWhenThePointerLeaves) {
  Create();
  PointAt(Button);
  ASSERT_TRUE(Appears());
  PointAt(Button, {10, 5});
  EXPECT_TRUE(IsShown("tip"));
  PointAt(Other);
  EXPECT_FALSE(IsShown("tip"));
  PointAt(Button);
  EXPECT_TRUE(Appears());
}

TEST_F(TooltipTest, DoesNotComeBehindAPointerThatHasLeft) {
  Create();
  PointAt(Button);
  PointAt(Other);
  EXPECT_TRUE(StaysHidden());
}

TEST_F(TooltipTest, GoesWithAPressAndComesBackWhenThePointerDoes) {
  Create();
  PointAt(Button);
  ASSERT_TRUE(Appears());
  QTest::mousePress(&Button, Qt::LeftButton);
  EXPECT_FALSE(IsShown("tip"));
  QTest::mouseRelease(&Button, Qt::LeftButton);
  PointAt(Button, {3, 3});
  EXPECT_TRUE(StaysHidden());
  PointAt(Other);
  PointAt(Button);
  EXPECT_TRUE(Appears());
}

TEST_F(TooltipTest, APressInAPartOfItsControlIsOneInTheControl) {
  QComboBox parts(&Window);
  parts.setEditable(true);
  parts.setGeometry(150, 10, 120, 24);
  parts.show();
  Tip.CreateToolTip(parts);
  PointAt(parts);
  ASSERT_TRUE(Appears());
  QTest::mouseClick(parts.lineEdit(), Qt::LeftButton);
  EXPECT_FALSE(IsShown("tip"));
  PointAt(parts, {3, 3});
  EXPECT_TRUE(StaysHidden());  // while one types
  PointAt(Other);
  PointAt(parts);
  QTest::mouseClick(parts.lineEdit(), Qt::LeftButton);  // before the pointer has rested
  EXPECT_TRUE(StaysHidden());
  PointAt(Other);
  PointAt(parts);
  EXPECT_TRUE(Appears());
}

TEST_F(TooltipTest, WithSomethingNewToTellItComesAgainAtTheNextRest) {
  Create();
  PointAt(Button);
  ASSERT_TRUE(Appears());
  Tip.AwaitNextRest();
  EXPECT_TRUE(IsShown("tip"));
  QTest::mouseClick(&Button, Qt::LeftButton);
  Tip.AwaitNextRest();
  PointAt(Button, {3, 3});
  EXPECT_TRUE(Appears());
}

TEST_F(TooltipTest, GoesAfterItsTimeAndComesBackWhenThePointerDoes) {
  Tip.SetVisibleTime(60);
  Create();
  PointAt(Button);
  ASSERT_TRUE(Appears());
  EXPECT_TRUE(Hides());
  PointAt(Button, {3, 3});
  EXPECT_TRUE(StaysHidden());
  PointAt(Other);
  PointAt(Button);
  EXPECT_TRUE(Appears());
}

TEST_F(TooltipTest, StaysHiddenWithoutText) {
  Tip.SetTipText(u"");
  Create();
  PointAt(Button);
  EXPECT_TRUE(StaysHidden());
  Tip.SetTipText(u" ");
  PointAt(Button, {1, 0});
  EXPECT_TRUE(Appears());
}

TEST_F(TooltipTest, ALostTextHidesIt) {
  Create();
  PointAt(Button);
  ASSERT_TRUE(Appears());
  Tip.SetTipText(u"");
  EXPECT_FALSE(IsShown("tip"));
}

TEST_F(TooltipTest, IsForTheWindowInFront) {
  Create();
  QWidget front;
  front.setGeometry(900, 600, 100, 100);
  front.show();
  front.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&front));
  PointAt(Button);
  EXPECT_TRUE(StaysHidden());
}

TEST_F(TooltipTest, CoversADisabledControlToo) {
  Button.setEnabled(false);
  Create();
  PointAt(Button);
  EXPECT_TRUE(Appears());
}

TEST_F(TooltipTest, PointsToThePointer) {
  Create();
  PointAt(Button, {7, -3});
  ASSERT_TRUE(Appears());
  EXPECT_EQ(StemPoint(*TipNamed("tip")), QCursor::pos());
}

TEST_F(TooltipTest, OfRectangleStyleStandsClearOfThePointer) {
  Tip.SetStyle(ClsTooltip::RectangleStyle);
  Create();
  PointAt(Button, {7, -3});
  ASSERT_TRUE(Appears());
  EXPECT_EQ(TipNamed("tip")->geometry().topLeft(), QCursor::pos() + QPoint(0, 20));
}

TEST_F(TooltipTest, OfCenteredKindStandsBelowItsControl) {
  Tip.SetCentered(true);
  for (const auto style : {ClsTooltip::BalloonStyle, ClsTooltip::RectangleStyle}) {
    Tip.SetStyle(style);
    Create();
    PointAt(Button);
    ASSERT_TRUE(Appears());
    const QRect tip = TipNamed("tip")->geometry();
    EXPECT_NEAR(tip.center().x(), Button.mapToGlobal(Button.rect().center()).x(), 1);
    EXPECT_EQ(tip.top(), Button.mapToGlobal(QPoint(0, Button.height())).y());
    PointAt(Other);
  }
}

TEST_F(TooltipTest, HasTheShapeOfItsStyle) {
  CreateOnDemand();
  Tip.Show(0, 0, Button);
  ASSERT_TRUE(Appears());
  const TipWindow* balloon = TipNamed("tip");
  EXPECT_FALSE(balloon->mask().contains(QPoint(0, 0)));
  EXPECT_TRUE(balloon->mask().contains(QPoint(balloon->width() / 2, 10)));
  Tip.SetStyle(ClsTooltip::RectangleStyle);
  EXPECT_TRUE(TipNamed("tip")->IsBalloon());  // until it is made again
  Create();
  Tip.Show(0, 0, Button);
  EXPECT_TRUE(TipNamed("tip")->mask().isEmpty());
  EXPECT_EQ(TipNamed("tip")->geometry().topLeft(), Button.mapToGlobal(QPoint(0, 0)));
}

TEST_F(TooltipTest, ColoursOfZeroAreTheDesktopsAtTheMakingAndBlackLater) {
  Create();
  EXPECT_EQ(Back(), QToolTip::palette().color(QPalette::ToolTipBase));
  EXPECT_EQ(Fore(), QToolTip::palette().color(QPalette::ToolTipText));
  Tip.SetBackColor(0x0000FF);
  Tip.SetForeColor(0xFF8000);
  EXPECT_EQ(Back(), QColor(255, 0, 0));
  EXPECT_EQ(Fore(), QColor(0, 128, 255));
  Create();
  EXPECT_EQ(Back(), QColor(255, 0, 0));
  EXPECT_EQ(Fore(), QColor(0, 128, 255));
  Tip.SetBackColor(0);
  EXPECT_EQ(Back(), QColor(Qt::black));
  EXPECT_EQ(Fore(), QColor(0, 128, 255));
  Create();
  EXPECT_EQ(Back(), QToolTip::palette().color(QPalette::ToolTipBase));
}

TEST_F(TooltipTest, TheMakingTakesATitleOrAnIcon) {
  const struct {
    TextView Title;
    std::int32_t Icon;
    TipIcon Shown;
  } cases[] = {{u"", 0, TipIcon::None},
               {u"T", 0, TipIcon::None},
               {u"", 1, TipIcon::Information},
               {u"T", 1, TipIcon::Information}};
  for (const auto& c : cases) {
    Tip.SetTitle(c.Title);
    Tip.SetIcon(c.Icon);
    Create();
    EXPECT_EQ(Shown().Title, ToQString(c.Title));
    EXPECT_EQ(Shown().Icon, c.Shown);
  }
}

TEST_F(TooltipTest, ALiveTipTakesTitleAndIconOnlyTogether) {
  Create();
  Tip.SetTitle(u"");
  EXPECT_EQ(Shown().Title, "Title");
  Tip.SetIcon(0);
  Tip.SetTitle(u"Other");
  EXPECT_EQ(Shown().Title, "Title");
  EXPECT_EQ(Shown().Icon, TipIcon::Information);
  Tip.SetIcon(3);
  EXPECT_EQ(Shown().Title, "Other");
  EXPECT_EQ(Shown().Icon, TipIcon::Error);
  EXPECT_EQ(Tip.Title(), u"Other");
}

TEST_F(TooltipTest, ALiveTipTakesTextAndFont) {
  CreateOnDemand();
  Tip.Show(0, 0, Button);
  const QSize before = TipNamed("tip")->size();
  Tip.SetTipText(u"A text that is clearly longer than the one before");
  EXPECT_EQ(Shown().Text, "A text that is clearly longer than the one before");
  EXPECT_GT(TipNamed("tip")->width(), before.width());
  QFont large;
  large.setPixelSize(40);
  Tip.SetTipFont(large);
  EXPECT_EQ(TipNamed("tip")->font().pixelSize(), 40);
  EXPECT_GT(TipNamed("tip")->height(), before.height() + 20);
  Create();
  EXPECT_EQ(TipNamed("tip")->font().pixelSize(), 40);
}

TEST_F(TooltipTest, TimesCountFromTheNextMakingOn) {
  Tip.SetDelayTime(100'000);
  Create();
  Tip.SetDelayTime(Delay);
  PointAt(Button);
  EXPECT_TRUE(StaysHidden());
  PointAt(Other);
  Create();
  PointAt(Button);
  EXPECT_TRUE(Appears());
}

TEST_F(TooltipTest, TheVisibleTimeCountsFromTheNextMakingOn) {
  Tip.SetVisibleTime(60);
  Create();
  Tip.SetVisibleTime(100'000);
  PointAt(Button);
  ASSERT_TRUE(Appears());
  EXPECT_TRUE(Hides());
  PointAt(Other);
  Create();
  PointAt(Button);
  ASSERT_TRUE(Appears());
  QTest::qWait(120);
  EXPECT_TRUE(IsShown("tip"));
}

TEST_F(TooltipTest, CenteringCountsFromTheNextMakingOn) {
  Create();
  Tip.SetCentered(true);
  PointAt(Button, {7, -3});
  ASSERT_TRUE(Appears());
  EXPECT_EQ(StemPoint(*TipNamed("tip")), QCursor::pos());
  Tip.SetTipText(u"Another text");  // it is placed anew
  EXPECT_EQ(StemPoint(*TipNamed("tip")), QCursor::pos());
}

TEST_F(TooltipTest, ALongerTextWidensItUnderThePointer) {
  Create();
  PointAt(Button);
  ASSERT_TRUE(Appears());
  const int before = TipNamed("tip")->width();
  Tip.SetTipText(u"A text that is clearly longer");
  EXPECT_TRUE(IsShown("tip"));
  EXPECT_GT(TipNamed("tip")->width(), before);
  EXPECT_EQ(StemPoint(*TipNamed("tip")), QCursor::pos());
}

TEST_F(TooltipTest, TakesNoFocus) {
  Box.setFocus();
  CreateOnDemand();
  Tip.Show(0, 0, Button);
  ASSERT_TRUE(IsShown("tip"));
  QTest::qWait(20);
  EXPECT_EQ(QApplication::activeWindow(), &Window);
  EXPECT_TRUE(Box.hasFocus());
  QTest::keyClicks(&Box, "typed");
  EXPECT_EQ(Box.text(), "typed");
  EXPECT_TRUE(TipNamed("tip")->windowFlags().testFlag(Qt::WindowTransparentForInput));
}

TEST_F(TooltipTest, GoesWithItsControl) {
  auto* control = new QPushButton(&Window);
  control->show();
  Tip.SetPopupOnDemand(true);
  Tip.CreateToolTip(*control);
  Tip.Show(0, 0, *control);
  ASSERT_TRUE(IsShown("tip"));
  delete control;
  EXPECT_EQ(TipNamed("tip"), nullptr);
  Tip.SetTipText(u"still there");
  Tip.SetTitle(u"still there");
  Tip.ShowBalloonToolTip(Button, 4);
  Tip.Raise();
  Tip.Destroy();
}

TEST_F(TooltipTest, TheProgramEndsWithItsLastWindow) {
  constexpr int InVain = 7;
  CreateOnDemand();
  Tip.Show(0, 0, Button);
  ASSERT_TRUE(IsShown("tip"));
  QTimer::singleShot(0, &Window, [this] { Window.close(); });
  QTimer::singleShot(LongEnough, &Window, [] { QCoreApplication::exit(InVain); });
  EXPECT_EQ(QCoreApplication::exec(), 0);
  EXPECT_FALSE(IsShown("tip"));
}

TEST_F(TooltipTest, LongTextsAreWrapped) {
  CreateOnDemand();
  Text text;
  for (int i = 0; i < 100; ++i) {
    text += u"words ";
  }
  Tip.SetTipText(text);
  Tip.Show(0, 0, Button);
  EXPECT_LT(TipNamed("tip")->width(), 400);
  EXPECT_GT(TipNamed("tip")->height(), 80);
}

TEST_F(TooltipTest, LinesStayLines) {
  CreateOnDemand();
  Tip.SetTipText(u"One.");
  Tip.Show(0, 0, Button);
  const int one = TipNamed("tip")->height();
  Tip.SetTipText(u"One.\r\nTwo.\r\nThree.");
  const int line = QFontMetrics(TipNamed("tip")->font()).lineSpacing();
  EXPECT_NEAR(TipNamed("tip")->height(), one + 2 * line, 2);
}

}  // namespace
}  // namespace vorlane
