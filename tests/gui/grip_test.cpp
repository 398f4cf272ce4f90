// The mouse on the form and its two bars: the strip that resizes, and what the window passes on.
#include "gui/window_world.h"

namespace vorlane {
namespace {

struct GripTest : testing::Test {
  GripTest() {
    Window.OnRightPress = [this] { ++RightPresses; };
    Window.OnHoverReset = [this] { ++HoverResets; };
    Window.move(100, 80);
    Move(300, 500);
    HoverResets = 0;
  }
  // No button stays down for the next test.
  ~GripTest() override {
    Window.OnRightPress = nullptr;
    Window.OnHoverReset = nullptr;
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
      Release(300, 500, button);
    }
  }
  // As a mouse does it, by way of the window: what takes the press gets the moves up to the
  // release.
  void Move(int x, int y) { QTest::mouseMove(Window.windowHandle(), {x, y}); }
  void Press(int x, int y, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(Window.windowHandle(), button, {}, {x, y});
  }
  void Release(int x, int y, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseRelease(Window.windowHandle(), button, {}, {x, y});
  }
  std::vector<QRect> Places() {
    std::vector<QRect> places;
    for (const QWidget* control :
         Window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      if (!control->isWindow()) {
        places.push_back(control->geometry());
      }
    }
    return places;
  }

  WindowWorld World;
  FrmMain& Window = World.Main.Window();
  QWidget& Outline = World.Find<QWidget>("frmBorder");
  int RightPresses = 0;
  int HoverResets = 0;
};

TEST_F(GripTest, ARightPressOnTheFormAndTheBarsIsPassedOn) {
  const QPoint places[] = {
      {10, 200},   // the form
      {255, 50},   // imgTopBar, left of the list
      {250, 370},  // imgBottomBar, left of the keyword box
  };
  int count = 0;
  for (const QPoint& place : places) {
    Press(place.x(), place.y(), Qt::RightButton);
    Release(place.x(), place.y(), Qt::RightButton);
    EXPECT_EQ(RightPresses, ++count) << place.x() << " " << place.y();
  }
  for (const Qt::MouseButton other : {Qt::LeftButton, Qt::MiddleButton}) {
    Press(10, 200, other);
    Release(10, 200, other);
  }
  EXPECT_EQ(RightPresses, count);
}

TEST_F(GripTest, ARightPressOnAnyOtherControlIsNone) {
  for (QWidget* control : Window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    const QString name = control->objectName();
    if (control->isHidden() || control->isWindow() || name.startsWith("img")) {
      continue;
    }
    for (const bool enabled : {true, false}) {
      control->setEnabled(enabled);
      const QPoint place = control->geometry().center();
      if (Window.childAt(place) != nullptr && control->isAncestorOf(Window.childAt(place))) {
        Press(place.x(), place.y(), Qt::RightButton);
        Release(place.x(), place.y(), Qt::RightButton);
        while (QWidget* menu = QApplication::activePopupWidget()) {
          menu->close();
        }
      }
      EXPECT_EQ(RightPresses, 0) << name.toStdString() << enabled;
    }
  }
}

TEST_F(GripTest, EachMoveOverTheFormAndTheBarsIsPassedOn) {
  Move(10, 200);
  EXPECT_EQ(HoverResets, 1);
  Move(11, 200);
  EXPECT_EQ(HoverResets, 2);
  Move(255, 50);
  EXPECT_EQ(HoverResets, 3);
  Move(250, 370);
  EXPECT_EQ(HoverResets, 4);
  Move(600, 200);  // the list
  Move(502, 30);   // cmdDoOne
  Move(850, 28);   // objProgressBar
  EXPECT_EQ(HoverResets, 4);
}

struct Spot {
  int X;
  int Y;
  Qt::CursorShape Shape;
};

TEST_F(GripTest, TheCursorTellsWhatTheStripDoes) {
  for (const Spot& spot : {Spot{1013, 300, Qt::SizeHorCursor},
                           {1012, 300, Qt::ArrowCursor},
                           {600, 513, Qt::SizeVerCursor},
                           {600, 512, Qt::ArrowCursor},
                           {1013, 513, Qt::SizeFDiagCursor},
                           {1023, 521, Qt::SizeFDiagCursor},
                           {600, 503, Qt::ArrowCursor}}) {
    Move(spot.X, spot.Y);
    EXPECT_EQ(Window.cursor().shape(), spot.Shape) << spot.X << " " << spot.Y;
  }
}

TEST_F(GripTest, AMouseThatJumpsFromTheStripIntoAControlTakesItsCursorAlong) {
  Move(1015, 200);
  Move(600, 200);
  EXPECT_EQ(Window.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(GripTest, WhileItIsDraggedOnlyTheOutlineChanges) {
  const auto before = Places();
  Move(1020, 518);
  Press(1020, 518);
  EXPECT_FALSE(Outline.isVisible());
  Move(1100, 600);
  EXPECT_TRUE(Outline.isVisible());
  EXPECT_EQ(Outline.geometry(), QRect(Window.geometry().topLeft(), QSize(1100, 600)));
  Move(1150, 650);
  EXPECT_EQ(Outline.size(), QSize(1150, 650));
  EXPECT_EQ(Window.size(), QSize(1024, 522));
  EXPECT_EQ(Places(), before);
  Release(1160, 660);
  EXPECT_FALSE(Outline.isVisible());
  EXPECT_EQ(Window.size(), QSize(1160, 660));
  EXPECT_EQ(Window.cursor().shape(), Qt::ArrowCursor);
  EXPECT_NE(Places(), before);
}

TEST_F(GripTest, TheOutlineIsAFrameOfOnePixel) {
  Move(1020, 518);
  Press(1020, 518);
  Move(1100, 600);
  EXPECT_EQ(Outline.mask(), QRegion(0, 0, 1100, 600).subtracted(QRegion(1, 1, 1098, 598)));
  EXPECT_TRUE(Outline.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_TRUE(Outline.windowFlags().testFlag(Qt::WindowTransparentForInput));
  EXPECT_TRUE(Outline.windowFlags().testFlag(Qt::FramelessWindowHint));
  const QImage shown = Outline.grab().toImage();
  EXPECT_EQ(shown.pixelColor(0, 0), Outline.palette().color(QPalette::Active, QPalette::Highlight));
  Release(1100, 600);
}

TEST_F(GripTest, OneEdgeLeavesTheOtherAlone) {
  Move(1020, 300);
  Press(1020, 300);
  Move(1120, 520);
  EXPECT_EQ(Outline.size(), QSize(1120, 522));
  Release(1130, 520);
  EXPECT_EQ(Window.size(), QSize(1130, 522));
  Move(600, 518);
  Press(600, 518);
  Move(800, 600);
  EXPECT_EQ(Outline.size(), QSize(1130, 600));
  Release(800, 610);
  EXPECT_EQ(Window.size(), QSize(1130, 610));
}

TEST_F(GripTest, TheLeastSizeIsTheEnd) {
  Move(1020, 518);
  Press(1020, 518);
  Move(-90, -70);
  EXPECT_EQ(Outline.size(), QSize(996, 453));
  Release(-90, -70);
  EXPECT_EQ(Window.size(), QSize(996, 453));
}

TEST_F(GripTest, ADragGoesOnAcrossControls) {
  Move(1020, 518);
  Press(1020, 518);
  Move(1100, 600);
  HoverResets = 0;
  Move(600, 200);
  EXPECT_EQ(Outline.size(), QSize(996, 453));
  EXPECT_EQ(HoverResets, 1);
  Release(1050, 550);
  EXPECT_EQ(Window.size(), QSize(1050, 550));
}

TEST_F(GripTest, APressOutsideTheStripDragsNothing) {
  Move(600, 503);
  Press(600, 503);
  Move(1020, 518);
  EXPECT_FALSE(Outline.isVisible());
  Release(1020, 518);
  EXPECT_EQ(Window.size(), QSize(1024, 522));
}

TEST_F(GripTest, AClickInTheStripTakesTheEdgeToTheMouse) {
  Move(1015, 300);
  Press(1015, 300);
  Release(1015, 300);
  EXPECT_EQ(Window.size(), QSize(1015, 522));
}

// The release asks which strip the mouse was on and not which button it is.
TEST_F(GripTest, AnyButtonsClickInTheStripTakesTheEdgeToTheMouse) {
  Move(1015, 300);
  Press(1015, 300, Qt::MiddleButton);
  EXPECT_EQ(Window.size(), QSize(1024, 522));
  Release(1015, 300, Qt::MiddleButton);
  EXPECT_EQ(Window.size(), QSize(1015, 522));
  EXPECT_EQ(RightPresses, 0);
}

TEST_F(GripTest, ADragBackToWhereItBeganLaysNothingOut) {
  const auto before = Places();
  Window.Controls().Go->move(1, 2);  // a layout would take it back
  Move(1023, 521);
  Press(1023, 521);
  Move(1100, 600);
  Move(1024, 522);
  Release(1024, 522);
  EXPECT_EQ(Window.Controls().Go->pos(), QPoint(1, 2));
  EXPECT_EQ(Window.size(), QSize(1024, 522));
}

TEST_F(GripTest, AMaximizedWindowHasNoGrip) {
  Move(1020, 518);
  Window.showMaximized();
  ASSERT_TRUE(WindowWorld::WaitFor([&] { return Window.width() > 1300; })) << Window.width();
  EXPECT_NE(Window.cursor().shape(), Qt::SizeFDiagCursor);
  const QPoint corner(Window.width() - 3, Window.height() - 3);
  Move(corner.x(), corner.y());
  EXPECT_NE(Window.cursor().shape(), Qt::SizeFDiagCursor);
  Press(corner.x(), corner.y());
  Move(corner.x() - 100, corner.y() - 100);
  EXPECT_FALSE(Outline.isVisible());
  Release(corner.x() - 100, corner.y() - 100);
  EXPECT_TRUE(Window.isMaximized());
}

TEST_F(GripTest, TheStripTakesTheBusyCursorAway) {
  World.Main.State().SetPointer(MousePointer::ArrowHourglass);
  EXPECT_EQ(Window.cursor().shape(), Qt::BusyCursor);
  Move(600, 503);
  EXPECT_EQ(Window.cursor().shape(), Qt::ArrowCursor);
  EXPECT_EQ(World.Main.State().Pointer, MousePointer::Default);
}

// A menu that opens under the drag takes the release.
TEST_F(GripTest, ADragWhoseReleaseIsLostChangesNothing) {
  Move(1020, 518);
  Press(1020, 518);
  Move(1100, 600);
  ASSERT_TRUE(Outline.isVisible());
  QMenu menu(&Window);
  menu.addAction(QStringLiteral("x"));
  menu.popup({900, 700});
  QTest::mouseRelease(menu.windowHandle(), Qt::LeftButton, {}, {500, 200});
  menu.close();
  Move(300, 500);
  EXPECT_FALSE(Outline.isVisible());
  Press(300, 500);
  Release(300, 500);
  EXPECT_EQ(Window.size(), QSize(1024, 522));
}

TEST_F(GripTest, ARightPressInTheMiddleOfADragIsNone) {
  Move(1020, 518);
  Press(1020, 518);
  Move(1040, 530);
  Press(1040, 530, Qt::RightButton);
  EXPECT_EQ(RightPresses, 0);
  Release(1040, 530, Qt::RightButton);
  Release(1040, 530);
  EXPECT_FALSE(Outline.isVisible());
}

// The outline lets events run while it is drawn.
TEST_F(GripTest, AMoveInsideTheDrawingOfTheOutlineIsDropped) {
  Move(1020, 518);
  Press(1020, 518);
  Window.OnHoverReset = [this] {
    Window.OnHoverReset = nullptr;
    QTimer::singleShot(0, &Window, [this] { Move(1150, 650); });
  };
  Move(1100, 600);
  EXPECT_EQ(Outline.size(), QSize(1100, 600));
}

}  // namespace
}  // namespace vorlane
