#include "layout/form_grip.h"

#include <algorithm>

#include "layout/window_placement.h"

namespace vorlane {

DragMode HitTestResizeGrip(TwipsSize form, TwipsPoint pointer) {
  const bool onRightEdge = form.Width - GripX < pointer.X;
  const bool onBottomEdge = form.Height - GripY < pointer.Y;
  if (onRightEdge) {
    return onBottomEdge ? DragMode::Corner : DragMode::RightEdge;
  }
  return onBottomEdge ? DragMode::BottomEdge : DragMode::None;
}

TwipsSize ComputeDragSize(DragMode mode, const TwipsRect& form, TwipsPoint cursor) {
  if (mode == DragMode::None) {
    return {};
  }
  TwipsSize size{form.Width, form.Height};
  if (mode != DragMode::BottomEdge) {
    size.Width = std::max(cursor.X - form.Left, MinFormWidth);
  }
  if (mode != DragMode::RightEdge) {
    size.Height = std::max(cursor.Y - form.Top, MinFormHeight);
  }
  return size;
}

}  // namespace vorlane
