// Tips on the screen in memory, and a pointer that moves over it.
#pragma once

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include "ui/qt_text.h"
#include "ui/tip_window.h"

namespace vorlane {

// Where the pointer is clear of every window of a test.
inline const QPoint OffAllWindows(1395, 1045);

inline void MovePointer(QPoint place) {
  QCursor::setPos(place);
  QCoreApplication::processEvents();
}

inline void PointAt(const QWidget& control, QPoint offset = {}) {
  MovePointer(control.mapToGlobal(control.rect().center() + offset));
}

// The tip of that name; none if it isn't made.
inline TipWindow* TipNamed(const QString& name) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (auto* tip = dynamic_cast<TipWindow*>(widget); tip != nullptr && tip->objectName() == name) {
      return tip;
    }
  }
  return nullptr;
}

inline bool IsShown(const QString& name) {
  const TipWindow* tip = TipNamed(name);
  return tip != nullptr && tip->isVisible();
}

// Where the stem of a balloon ends, on the screen: the narrow end of its shape.
inline QPoint StemPoint(const TipWindow& tip) {
  const auto rowOfShape = [&](int y) {
    return tip.mask().intersected(QRect(0, y, tip.width(), 1)).boundingRect();
  };
  const QRect top = rowOfShape(0);
  const QRect bottom = rowOfShape(tip.height() - 1);
  const bool isTop = top.width() < bottom.width();
  return tip.mapToGlobal((isTop ? top : bottom).center()) + QPoint(0, isTop ? 0 : 1);
}

}  // namespace vorlane
