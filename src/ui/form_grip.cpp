#include "ui/form_grip.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QWindow>

namespace vorlane {

namespace {

bool IsLeftDown() {
  return QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
}

Qt::CursorShape ShapeOf(DragMode mode) {
  switch (mode) {
    case DragMode::BottomEdge:
      return Qt::SizeVerCursor;
    case DragMode::Corner:
      return Qt::SizeFDiagCursor;
    case DragMode::RightEdge:
      return Qt::SizeHorCursor;
    case DragMode::None:
      break;
  }
  return Qt::ArrowCursor;
}

Qt::Edges EdgesOf(DragMode mode) {
  Qt::Edges edges;
  edges.setFlag(Qt::RightEdge, mode != DragMode::BottomEdge);
  edges.setFlag(Qt::BottomEdge, mode != DragMode::RightEdge);
  return edges;
}

}  // namespace

FormGrip::FormGrip(QWidget& form) : form_(form), outline_(form) {}

bool FormGrip::IsNormal() const {
  return (form_.windowState() &
          (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen)) == 0;
}

void FormGrip::SetMode(DragMode mode) {
  mode_ = mode;
  if (mode != DragMode::None) {
    form_.setCursor(ShapeOf(mode));
    return;
  }
  if (form_.testAttribute(Qt::WA_SetCursor)) {
    form_.unsetCursor();
  }
  if (OnPointerReset) {
    OnPointerReset();
  }
}

// A menu or a message box may have taken the release that ends a drag.
void FormGrip::ForgetLostDrag() {
  if (!IsLeftDown()) {
    outline_.hide();
  }
}

void FormGrip::HitTestResizeGrip(QPointF pointer) {
  ForgetLostDrag();
  if (IsLeftDown() || !IsNormal()) {
    return;
  }
  const TwipsSize size{TwipsOf(form_.width()), TwipsOf(form_.height())};
  const DragMode mode =
      vorlane::HitTestResizeGrip(size, {pointer.x() * TwipsPerPixel, pointer.y() * TwipsPerPixel});
  if (mode != DragMode::None || !outline_.isVisible()) {
    SetMode(mode);
  }
}

void FormGrip::Disarm() {
  ForgetLostDrag();
  if (mode_ != DragMode::None && !outline_.isVisible()) {
    SetMode(DragMode::None);
  }
}

void FormGrip::PressedWithoutPlaces() {
  if (mode_ != DragMode::None && IsNormal() &&
      form_.windowHandle()->startSystemResize(EdgesOf(mode_))) {
    SetMode(DragMode::None);
  }
}

QSize FormGrip::ComputeDragSize(QPoint cursor) const {
  const QRect client = form_.geometry();
  const TwipsSize size = vorlane::ComputeDragSize(
      mode_,
      {TwipsOf(client.x()), TwipsOf(client.y()), TwipsOf(client.width()), TwipsOf(client.height())},
      {TwipsOf(cursor.x()), TwipsOf(cursor.y())});
  return {PixelsOf(size.Width), PixelsOf(size.Height)};
}

void FormGrip::DragStep(QPoint cursor) {
  if (IsLeftDown() && mode_ != DragMode::None && KnowsPlaces()) {
    outline_.move(form_.geometry().topLeft());
    ShowDragOutline(cursor);
  }
}

// The events that run here may bring the next move of the mouse, or the release.
void FormGrip::ShowDragOutline(QPoint cursor) {
  if (inDragOutline_) {
    return;
  }
  const QScopedValueRollback showing(inDragOutline_, true);
  outline_.resize(ComputeDragSize(cursor));
  outline_.DoResize();
  QCoreApplication::processEvents();
  if (!outline_.isVisible() && IsLeftDown()) {
    outline_.show();
  }
}

std::optional<QSize> FormGrip::FinishDragResize(QPoint cursor) {
  outline_.hide();
  if (mode_ == DragMode::None) {
    return std::nullopt;
  }
  if (!IsNormal()) {
    SetMode(DragMode::None);  // it was maximized under the drag
    return std::nullopt;
  }
  const QSize size = ComputeDragSize(cursor);
  SetMode(DragMode::None);
  return size;
}

bool KnowsPlaces() {
  return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

}  // namespace vorlane
