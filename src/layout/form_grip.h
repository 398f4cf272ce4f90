// The grip: a strip along the right and the bottom edge of the form, by which the form is made
// larger or smaller.
#pragma once

#include "layout/twips.h"

namespace vorlane {

// What a drag by the grip changes.
enum class DragMode : unsigned char {
  None,
  BottomEdge,
  Corner,
  RightEdge,
};

inline constexpr Twips GripX = 12 * TwipsPerPixel;  // width of the strip along the right edge
inline constexpr Twips GripY = 10 * TwipsPerPixel;  // height of the strip along the bottom edge

struct TwipsPoint {
  Twips X = 0;
  Twips Y = 0;
};

// What a pointer at that place of a form of that size takes hold of. The strip's inner edge itself
// isn't part of it.
DragMode HitTestResizeGrip(TwipsSize form, TwipsPoint pointer);

// The size that a drag gives a form that stands there: its edge follows the cursor, but never below
// the least size of the window. What isn't dragged keeps the form's size. Nothing by nothing
// without a drag.
TwipsSize ComputeDragSize(DragMode mode, const TwipsRect& form, TwipsPoint cursor);

}  // namespace vorlane
