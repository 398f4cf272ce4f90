// Where a tip stands, and where the stem of a balloon comes out of it.
#pragma once

#include <QRect>

namespace vorlane {

enum class Lean : unsigned char { Left, Middle, Right };

// How a balloon would like to lie to its anchor. It lies otherwise if the screen has no room there.
struct TipSide {
  bool Above = true;
  Lean To = Lean::Right;

  bool operator==(const TipSide&) const = default;
};

enum class StemEdge : unsigned char { None, Top, Bottom };

struct TipPlace {
  QRect Body;       // the tip without its stem, on the screen
  QPoint StemRoot;  // where the middle of the stem leaves the body, on the screen
  StemEdge Stem = StemEdge::None;

  // Body and stem.
  QRect Window() const;
};

inline constexpr int StemLength = 14;
inline constexpr int StemWidth = 12;

// A balloon: its stem's point is the anchor, its body lies beside it. The balloon is as wholly on
// the screen as its size permits.
TipPlace PlaceBalloon(QSize body, QPoint anchor, TipSide side, const QRect& screen);

// A plain rectangle with its upper left corner, or the middle of its upper edge, at the anchor; it
// is pushed back onto the screen.
TipPlace PlaceRectangle(QSize body, QPoint anchor, bool centered, const QRect& screen);

}  // namespace vorlane
