// A tip over a window with a few controls.
#pragma once

#include "gui/tips.h"
#include "ui/cls_tooltip.h"

namespace vorlane {

struct TooltipTest : testing::Test {
  static constexpr int Delay = 30;
  static constexpr int LongEnough = 2000;

  TooltipTest() {
    Window.setGeometry(300, 300, 400, 200);
    Button.setGeometry(100, 80, 61, 33);
    Other.setGeometry(300, 80, 60, 30);
    Box.setGeometry(10, 10, 100, 24);
    Window.show();
    Window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window));
    MovePointer(OffAllWindows);
    Tip.setObjectName("tip");
    Tip.SetTitle(u"Title");
    Tip.SetTipText(u"Some text");
    Tip.SetStyle(ClsTooltip::BalloonStyle);
    Tip.SetIcon(ClsTooltip::InformationIcon);
    Tip.SetDelayTime(Delay);
  }
  void Create() { Tip.CreateToolTip(Button); }
  void CreateOnDemand() {
    Tip.SetPopupOnDemand(true);
    Create();
  }
  static bool Appears() {
    return QTest::qWaitFor([] { return IsShown("tip"); }, LongEnough);
  }
  static bool StaysHidden() {
    QTest::qWait(3 * Delay);
    return !IsShown("tip");
  }
  static bool Hides() {
    return QTest::qWaitFor([] { return !IsShown("tip"); }, LongEnough);
  }
  static TipContent Shown() { return TipNamed("tip")->Content(); }
  static QColor Back() { return TipNamed("tip")->palette().color(QPalette::ToolTipBase); }
  static QColor Fore() { return TipNamed("tip")->palette().color(QPalette::ToolTipText); }

  QWidget Window;
  QPushButton Button{&Window};
  QPushButton Other{&Window};
  QLineEdit Box{&Window};
  ClsTooltip Tip;
};

}  // namespace vorlane
