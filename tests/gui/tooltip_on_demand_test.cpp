// Tips that are shown at a place and stay there.
#include "gui/tooltip_world.h"

namespace vorlane {
namespace {

using TooltipOnDemandTest = TooltipTest;

TEST_F(TooltipOnDemandTest, OnDemandIgnoresThePointer) {
  CreateOnDemand();
  PointAt(Button);
  EXPECT_TRUE(StaysHidden());
  Tip.Show(5, 6, Button);
  EXPECT_TRUE(IsShown("tip"));
  EXPECT_EQ(StemPoint(*TipNamed("tip")), Button.mapToGlobal(QPoint(5, 6)));
}

TEST_F(TooltipOnDemandTest, OnDemandStaysUntilItIsDestroyed) {
  Tip.SetVisibleTime(10);
  CreateOnDemand();
  Tip.Show(0, 0, Button);
  PointAt(Button);
  QTest::mouseClick(&Button, Qt::LeftButton);
  PointAt(Other);
  QTest::qWait(50);
  EXPECT_TRUE(IsShown("tip"));
  Tip.Destroy();
  EXPECT_EQ(TipNamed("tip"), nullptr);
}

TEST_F(TooltipOnDemandTest, ANewMakingEndsATipOnDemand) {
  CreateOnDemand();
  Tip.Show(0, 0, Button);
  ASSERT_TRUE(IsShown("tip"));
  Tip.SetPopupOnDemand(false);
  EXPECT_TRUE(IsShown("tip"));
  Create();
  EXPECT_FALSE(IsShown("tip"));
}

TEST_F(TooltipOnDemandTest, OnlyATipOnDemandIsShown) {
  Tip.Show(0, 0, Button);
  EXPECT_EQ(TipNamed("tip"), nullptr);
  Create();
  Tip.Show(0, 0, Button);
  Tip.SetPopupOnDemand(true);  // too late for this one
  Tip.Show(0, 0, Button);
  EXPECT_FALSE(IsShown("tip"));
}

TEST_F(TooltipOnDemandTest, OnDemandWithoutTextShowsNothingUntilThereIsOne) {
  Tip.SetTipText(u"");
  CreateOnDemand();
  Tip.Show(0, 0, Button);
  EXPECT_FALSE(IsShown("tip"));
  Tip.SetTipText(u"x");
  EXPECT_TRUE(IsShown("tip"));
}

TEST_F(TooltipOnDemandTest, NamedPlacesOfAControl) {
  // 61 and 33 pixels are 915 and 495 twips; their halves, 457.5 and 247.5, go to the even 458 and
  // 248, which are 31 and 17 pixels.
  const QPoint places[] = {{0, 0},   {31, 0}, {61, 0},  {0, 17}, {31, 17},
                           {61, 17}, {0, 33}, {31, 33}, {61, 33}};
  CreateOnDemand();
  for (int position = -1; position <= 10; ++position) {
    Tip.ShowBalloonToolTip(Button, position);
    const QPoint place = position >= 0 && position <= 8 ? places[position] : QPoint();
    EXPECT_EQ(StemPoint(*TipNamed("tip")), Button.mapToGlobal(place)) << position;
  }
}

TEST_F(TooltipOnDemandTest, OfCenteredKindStandsBelowItsPlace) {
  Tip.SetCentered(true);
  for (const auto style : {ClsTooltip::BalloonStyle, ClsTooltip::RectangleStyle}) {
    Tip.SetStyle(style);
    CreateOnDemand();
    Tip.Show(5, 6, Button);
    ASSERT_TRUE(IsShown("tip"));
    const QPoint place = Button.mapToGlobal(QPoint(5, 6));
    EXPECT_NEAR(TipNamed("tip")->geometry().center().x(), place.x(), 1);
    EXPECT_EQ(TipNamed("tip")->geometry().top(), place.y());
  }
}

TEST_F(TooltipOnDemandTest, OnDemandFollowsItsWindowAndControl) {
  CreateOnDemand();
  Tip.Show(5, 6, Button);
  Window.move(500, 420);
  QCoreApplication::processEvents();
  EXPECT_EQ(StemPoint(*TipNamed("tip")), Button.mapToGlobal(QPoint(5, 6)));
  Button.move(200, 100);
  QCoreApplication::processEvents();
  EXPECT_EQ(StemPoint(*TipNamed("tip")), Button.mapToGlobal(QPoint(5, 6)));
}

TEST_F(TooltipOnDemandTest, OnDemandIsOutOfSightWithAMinimizedWindow) {
  CreateOnDemand();
  Tip.Show(5, 6, Button);
  Window.showMinimized();
  EXPECT_TRUE(Hides());
  Window.showNormal();
  Window.activateWindow();
  EXPECT_TRUE(Appears());
}

TEST_F(TooltipOnDemandTest, OnDemandIsOutOfSightWithAHiddenWindow) {
  CreateOnDemand();
  Tip.Show(5, 6, Button);
  Window.hide();
  EXPECT_TRUE(Hides());
  Window.show();
  {
    QWidget front;  // the display in memory notices a new front window only
    front.show();
    front.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&front));
  }
  Window.activateWindow();
  EXPECT_TRUE(Appears());
}

TEST_F(TooltipOnDemandTest, OnDemandMakesRoomForAnotherWindow) {
  CreateOnDemand();
  Tip.Show(5, 6, Button);
  {
    QWidget front;
    front.show();
    front.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&front));
    EXPECT_TRUE(Hides());
  }
  Window.activateWindow();
  EXPECT_TRUE(Appears());
}

TEST_F(TooltipOnDemandTest, AHiddenControlCanBePointedAt) {
  CreateOnDemand();
  Other.hide();
  Tip.Show(0, 0, Other);
  EXPECT_TRUE(IsShown("tip"));
  EXPECT_EQ(StemPoint(*TipNamed("tip")), Other.mapToGlobal(QPoint(0, 0)));
}

}  // namespace
}  // namespace vorlane
