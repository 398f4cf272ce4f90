#include "ui/tip_placement.h"

#include <algorithm>

namespace vorlane {

namespace {

// From the body's corner to the middle of the stem.
constexpr int StemInset = 18;

// As much of it as fits, from the left and the top.
QRect PushedOnto(QRect place, const QRect& screen) {
  place.moveLeft(
      std::max(screen.left(), std::min(place.left(), screen.right() + 1 - place.width())));
  place.moveTop(
      std::max(screen.top(), std::min(place.top(), screen.bottom() + 1 - place.height())));
  return place;
}

// The coordinate at which a body of that length begins: beside the anchor, on the wanted side if
// it fits there or on neither.
int BeginBeside(int before, int behind, int length, bool wantsBefore, int first, int last) {
  const bool fitsBefore = before >= first;
  const bool fitsBehind = behind + length - 1 <= last;
  const bool isBefore = fitsBefore == fitsBehind ? wantsBefore : fitsBefore;
  return isBefore ? before : behind;
}

// A body in the middle is merely pushed back onto the screen.
int LeftBeside(QSize body, QPoint anchor, Lean to, const QRect& screen) {
  if (to == Lean::Middle) {
    return anchor.x() - body.width() / 2;
  }
  return BeginBeside(anchor.x() + StemInset - body.width(), anchor.x() - StemInset, body.width(),
                     to == Lean::Left, screen.left(), screen.right());
}

int TopBeside(QSize body, QPoint anchor, bool above, const QRect& screen) {
  return BeginBeside(anchor.y() - StemLength - body.height(), anchor.y() + StemLength,
                     body.height(), above, screen.top(), screen.bottom());
}

}  // namespace

QRect TipPlace::Window() const {
  switch (Stem) {
    case StemEdge::Top:
      return Body.adjusted(0, -StemLength, 0, 0);
    case StemEdge::Bottom:
      return Body.adjusted(0, 0, 0, StemLength);
    case StemEdge::None:
      break;
  }
  return Body;
}

TipPlace PlaceBalloon(QSize body, QPoint anchor, TipSide side, const QRect& screen) {
  const int top = TopBeside(body, anchor, side.Above, screen);
  const bool isAbove = top < anchor.y();
  TipPlace place;
  place.Body = {{LeftBeside(body, anchor, side.To, screen), top}, body};
  place.Body.moveLeft(PushedOnto(place.Body, screen).left());
  const int least = place.Body.left() + StemInset;
  const int most = std::max(least, place.Body.right() + 1 - StemInset);
  place.Stem = isAbove ? StemEdge::Bottom : StemEdge::Top;
  place.StemRoot = {std::clamp(anchor.x(), least, most),
                    isAbove ? place.Body.bottom() + 1 : place.Body.top()};
  return place;
}

TipPlace PlaceRectangle(QSize body, QPoint anchor, bool centered, const QRect& screen) {
  const int left = centered ? anchor.x() - body.width() / 2 : anchor.x();
  TipPlace place;
  place.Body = PushedOnto({{left, anchor.y()}, body}, screen);
  return place;
}

}  // namespace vorlane
