// Where tips stand, at the screen's edges too.
#include "ui/tip_placement.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

const QRect Screen(0, 0, 1000, 800);
constexpr QSize Body(200, 60);

struct Case {
  QPoint Anchor;
  TipSide Side;
  bool IsAbove;
  int Left;  // of the body
};

TEST(TipPlacement, BalloonsFlipWhereTheScreenHasNoRoom) {
  const Case cases[] = {
      {{500, 400}, {true, Lean::Right}, true, 500 - 18},
      {{500, 400}, {true, Lean::Left}, true, 518 - 200},
      {{500, 400}, {false, Lean::Right}, false, 500 - 18},
      {{500, 400}, {false, Lean::Left}, false, 518 - 200},
      {{500, 74}, {true, Lean::Right}, true, 500 - 18},
      {{500, 73}, {true, Lean::Right}, false, 500 - 18},
      {{500, 726}, {false, Lean::Right}, false, 500 - 18},
      {{500, 727}, {false, Lean::Right}, true, 500 - 18},
      {{818, 400}, {true, Lean::Right}, true, 800},
      {{819, 400}, {true, Lean::Right}, true, 819 + 18 - 200},
      {{182, 400}, {true, Lean::Left}, true, 0},
      {{181, 400}, {true, Lean::Left}, true, 181 - 18},
  };
  for (const Case& c : cases) {
    const TipPlace place = PlaceBalloon(Body, c.Anchor, c.Side, Screen);
    EXPECT_EQ(place.Stem, c.IsAbove ? StemEdge::Bottom : StemEdge::Top) << c.Anchor.x();
    EXPECT_EQ(place.Body.size(), Body);
    EXPECT_EQ(place.Body.left(), c.Left) << c.Anchor.x() << " " << c.Anchor.y();
    EXPECT_EQ(place.StemRoot.x(), c.Anchor.x());
    EXPECT_TRUE(Screen.contains(place.Window()));
    const int point = c.IsAbove ? place.Window().bottom() + 1 : place.Window().top();
    EXPECT_EQ(point, c.Anchor.y());
  }
}

TEST(TipPlacement, AnAnchorOffTheScreenKeepsTheBalloonOnIt) {
  for (const int x : {-300, 5, 995, 2000}) {
    const TipPlace place = PlaceBalloon(Body, {x, 400}, {}, Screen);
    EXPECT_TRUE(Screen.contains(place.Body)) << x;
    EXPECT_GE(place.StemRoot.x(), place.Body.left());
    EXPECT_LE(place.StemRoot.x(), place.Body.right());
  }
}

TEST(TipPlacement, ABalloonLargerThanTheScreenKeepsItsWantedSide) {
  const TipPlace place = PlaceBalloon({1200, 900}, {500, 400}, {true, Lean::Right}, Screen);
  EXPECT_EQ(place.Body.left(), 0);
  EXPECT_EQ(place.Stem, StemEdge::Bottom);
}

TEST(TipPlacement, BalloonsInTheMiddleArePushedBack) {
  const TipSide below{false, Lean::Middle};
  TipPlace place = PlaceBalloon(Body, {500, 400}, below, Screen);
  EXPECT_EQ(place.Body, QRect(QPoint(400, 414), Body));
  EXPECT_EQ(place.Stem, StemEdge::Top);
  place = PlaceBalloon(Body, {50, 790}, below, Screen);
  EXPECT_EQ(place.Body, QRect(QPoint(0, 790 - 14 - 60), Body));
  EXPECT_EQ(place.Stem, StemEdge::Bottom);
  EXPECT_EQ(place.StemRoot.x(), 50);
}

TEST(TipPlacement, RectanglesArePushedBack) {
  EXPECT_EQ(PlaceRectangle(Body, {500, 400}, false, Screen).Window(),
            QRect(QPoint(500, 400), Body));
  EXPECT_EQ(PlaceRectangle(Body, {500, 400}, true, Screen).Window(), QRect(QPoint(400, 400), Body));
  EXPECT_EQ(PlaceRectangle(Body, {900, 790}, false, Screen).Window(),
            QRect(QPoint(800, 740), Body));
  EXPECT_EQ(PlaceRectangle(Body, {-9, -9}, false, Screen).Window(), QRect(QPoint(0, 0), Body));
}

}  // namespace
}  // namespace vorlane
