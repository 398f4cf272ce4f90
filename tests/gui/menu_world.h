// A pop-up menu over a window of its own, with fixed colours and a fixed font.
#pragma once

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>
#include <optional>

#include "support/recording_prompter.h"
#include "ui/menu_ctl.h"

namespace vorlane {

struct MenuWorld : testing::Test {
  static constexpr QRgb Face = 0xFF646464;
  static constexpr QRgb FaceLight = 0xFF969696;
  static constexpr QRgb FaceDark = 0xFF0A0A0A;
  static constexpr QRgb Words = 0xFF112233;
  static constexpr QRgb Bar = 0xFF000080;
  static constexpr QRgb BarWords = 0xFFFFFFFE;

  struct Click {
    int Index;
    QString Caption;
    QString Name;

    bool operator==(const Click&) const = default;
  };

  MenuWorld() : before_(QGuiApplication::palette()), Menu(Owner, Boxes) {
    QPalette palette = before_;
    palette.setColor(QPalette::Button, QColor::fromRgb(Face));
    palette.setColor(QPalette::WindowText, QColor::fromRgb(Words));
    palette.setColor(QPalette::Highlight, QColor::fromRgb(Bar));
    palette.setColor(QPalette::HighlightedText, QColor::fromRgb(BarWords));
    QApplication::setPalette(palette);
    Font.setPixelSize(11);
    Font.setStyleStrategy(QFont::NoAntialias);
    Menu.Properties().Font = Font;
    Menu.ItemClicked = [this](int index, const QString& caption, const QString& name) {
      Clicks.push_back({index, caption, name});
    };
    Owner.setGeometry(100, 100, 300, 200);
    Owner.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&Owner));
  }
  ~MenuWorld() override { QApplication::setPalette(before_); }

  void Add(const char* caption, const char* name = "item", bool enabled = true) {
    Menu.AddItem(QString::fromUtf8(caption), QString::fromUtf8(name), enabled);
  }

  // Shows the menu and does that to it once it is open. True as ShowMenu.
  bool Show(std::function<void(QWidget& form)> act, QPoint at = {200, 150},
            const QImage& left = {}) {
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
      // A menu that opens step by step doesn't wait in a loop yet.
      QWidget* form = QApplication::activePopupWidget();
      if (form != nullptr && act &&
          (ActsWhileOpening || QThread::currentThread()->loopLevel() > 0)) {
        std::exchange(act, nullptr)(*form);
      }
    });
    poll.start(0);
    QTimer patience;  // a menu that doesn't close is a failure, not the end of all tests
    QObject::connect(&patience, &QTimer::timeout, [] {
      ADD_FAILURE() << "the menu is still open";
      QApplication::activePopupWidget()->close();
    });
    patience.start(3000);
    return Menu.ShowMenu(at.x(), at.y(), left);
  }

  // Where a menu that is shown there stands.
  QRect PlaceAt(QPoint at) {
    QRect place;
    Show(
        [&](QWidget& form) {
          place = form.geometry();
          Release(form, {});
        },
        at);
    return place;
  }

  static void Move(QWidget& form, QPoint to) {
    QMouseEvent event(QEvent::MouseMove, to, form.mapToGlobal(to), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&form, &event);
  }
  static void Release(QWidget& form, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    QMouseEvent event(QEvent::MouseButtonRelease, at, form.mapToGlobal(at), button, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&form, &event);
  }
  static void Press(QWidget& form, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    QMouseEvent event(QEvent::MouseButtonPress, at, form.mapToGlobal(at), button, button,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&form, &event);
  }
  // Goes to the middle of a row, from 1.
  void Point(QWidget& form, int row) const { Move(form, {20, RowTop(row) + RowHeight() / 2}); }
  void Choose(QWidget& form, int row) const {
    Point(form, row);
    Release(form, {20, RowTop(row)});
  }

  int RowHeight() const { return QFontMetrics(Font).height(); }
  int RowTop(int row) const { return 4 + (row - 1) * RowHeight(); }
  int WidthOf(const char* text) const {
    return QFontMetrics(Font).horizontalAdvance(QString::fromUtf8(text));
  }
  static QImage PictureOf(QWidget& form) {
    return form.grab().toImage().convertToFormat(QImage::Format_RGB32);
  }

 private:
  QPalette before_;

 public:
  QFont Font{QStringLiteral("DejaVu Sans")};
  RecordingPrompter Boxes;
  QWidget Owner;
  MenuCtl Menu;
  std::vector<Click> Clicks;
  bool ActsWhileOpening = false;
};

inline std::ostream& operator<<(std::ostream& out, const MenuWorld::Click& click) {
  return out << click.Index << " " << click.Caption.toStdString() << " "
             << click.Name.toStdString();
}

}  // namespace vorlane
