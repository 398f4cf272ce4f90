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

TipPlace WithStem(QRect body, QPoint anchor, bool above, const QRect& screen) {
  body.moveLeft(PushedOnto(body, screen).left());
  const int least = body.left() + StemInset;
  const int most = std::max(least, body.right() + 1 - StemInset);
  TipPlace place;
  place.Body = body;
  place.Stem = above ? StemEdge::Bottom : StemEdge::Top;
  place.StemRoot = {std::clamp(anchor.x(), least, most), above ? body.bottom() + 1 : body.top()};
  return place;
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
  const int left = BeginBeside(anchor.x() + StemInset - body.width(), anchor.x() - StemInset,
                               body.width(), side.Left, screen.left(), screen.right());
  const int top = TopBeside(body, anchor, side.Above, screen);
  return WithStem({{left, top}, body}, anchor, top < anchor.y(), screen);
}

TipPlace PlaceCenteredBalloon(QSize body, QPoint anchor, const QRect& screen) {
  const int top = TopBeside(body, anchor, false, screen);
  return WithStem({{anchor.x() - body.width() / 2, top}, body}, anchor, top < anchor.y(), screen);
}

TipPlace PlaceRectangle(QSize body, QPoint anchor, bool centered, const QRect& screen) {
  const int left = centered ? anchor.x() - body.width() / 2 : anchor.x();
  TipPlace place;
  place.Body = PushedOnto({{left, anchor.y()}, body}, screen);
  return place;
}

}  // namespace vorlane
