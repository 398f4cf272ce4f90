// The mouse at the edges of the main window. While the button is held only an outline follows the
// cursor; the window itself changes once, at release.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "layout/form_grip.h"
#include "ui/frm_border.h"

namespace vorlane {

class FormGrip {
 public:
  // The form outlives this.
  explicit FormGrip(QWidget& form);

  // Arms the grip if the pointer, in the form's pixels, is over the strip, and shows so by the
  // form's cursor. Changes nothing while the left button is down or the window isn't of its normal
  // size.
  void HitTestResizeGrip(QPointF pointer);

  // The pointer has left the strip unseen, or the window has none any more.
  void Disarm();

  // A press in the strip where no program can place an outline: the desktop does the resizing.
  void PressedWithoutPlaces();

  // The form got a mouse move: shows the outline for the cursor if a drag is on. Lets events run.
  void DragStep(QPoint cursor);

  // The button was released: ends the drag. The size that the form is to get, in pixels; nothing if
  // there was no drag.
  std::optional<QSize> FinishDragResize(QPoint cursor);

  // The form's cursor is the default one again.
  std::function<void()> OnPointerReset;

 private:
  bool IsNormal() const;
  void ForgetLostDrag();
  QSize ComputeDragSize(QPoint cursor) const;
  void ShowDragOutline(QPoint cursor);
  void SetMode(DragMode mode);

  QWidget& form_;
  FrmBorder outline_;
  DragMode mode_ = DragMode::None;
  bool inDragOutline_ = false;
};

// Does the desktop tell a program where its windows are, and let it place them? Wayland doesn't.
bool KnowsPlaces();

}  // namespace vorlane
