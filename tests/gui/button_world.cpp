#include "gui/button_world.h"

namespace vorlane {

QImage FourStrips(int remainder) {
  const int w = StripSize.width();
  const int q = StripSize.height();
  QImage image(w, 4 * q + remainder, QImage::Format_RGB32);
  image.fill(QColor(123, 45, 67));  // what no strip shows
  QPainter painter(&image);
  painter.fillRect(0, 0, w, q, NormalColour);
  painter.fillRect(0, q, w, q, HoverColour);
  painter.fillRect(0, 2 * q, w, q, PressedColour);
  painter.fillRect(0, 3 * q, w, q, Qt::white);
  painter.fillRect(5, 3 * q + 5, w - 10, q - 10, Qt::black);
  painter.fillRect(QRect(GreyPlace + QPoint(-1, 3 * q - 1), QSize(3, 3)), QColor(1, 1, 1));
  return image;
}

ButtonWorld::ButtonWorld() : Button({Disk, Prompts, Sounds}, &Form) {
  QCursor::setPos(1300, 1000);
  Form.setGeometry(100, 100, 300, 200);
  Button.setGeometry(50, 60, 60, 30);
  Button.OnClick = [this] { ++Clicks; };
  Form.show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&Form));
}

// What a failed test still holds isn't held in the next one.
ButtonWorld::~ButtonWorld() {
  for (const auto button : {Qt::LeftButton, Qt::RightButton}) {
    if (QGuiApplication::mouseButtons().testFlag(button)) {
      Release({}, button);
    }
  }
}

void ButtonWorld::PointAt(QPoint place) {
  QCursor::setPos(Button.mapToGlobal(place));
  QTest::mouseMove(Form.windowHandle(), Button.mapTo(&Form, place));
}

void ButtonWorld::Press(QPoint place, Qt::MouseButton button) {
  QTest::mousePress(Form.windowHandle(), button, {}, Button.mapTo(&Form, place));
}

void ButtonWorld::Release(QPoint place, Qt::MouseButton button) {
  QTest::mouseRelease(Form.windowHandle(), button, {}, Button.mapTo(&Form, place));
}

void ButtonWorld::Click(QPoint place, Qt::MouseButton button) {
  Press(place, button);
  Release(place, button);
}

void ButtonWorld::DoubleClick(QPoint place, Qt::MouseButton button) {
  QTest::mouseDClick(Form.windowHandle(), button, {}, Button.mapTo(&Form, place));
}

bool ButtonWorld::Becomes(const QColor& colour) {
  return QTest::qWaitFor([&] { return ColourAt(Button.rect().center()) == colour; }, 5000);
}

bool ButtonWorld::BecomesPlain(const QColor& corner) {
  return QTest::qWaitFor([&] { return ColourAt({0, 0}) == corner; }, 5000);
}

void ButtonWorld::PassTicks(int count) {
  int passed = 0;
  const auto counting =
      QObject::connect(&Timer(), &QTimer::timeout, &Timer(), [&passed] { ++passed; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return passed >= count || !IsTicking(); }, 5000));
  QObject::disconnect(counting);
}

QColor Light() {
  return QApplication::palette().color(QPalette::Active, QPalette::Light).rgb();
}

QColor DarkShadow() {
  return QApplication::palette().color(QPalette::Active, QPalette::Shadow).rgb();
}

}  // namespace vorlane
