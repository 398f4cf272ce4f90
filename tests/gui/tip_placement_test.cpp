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
      {{500, 400}, {true, false}, true, 500 - 18},
      {{500, 400}, {true, true}, true, 518 - 200},
      {{500, 400}, {false, false}, false, 500 - 18},
      {{500, 400}, {false, true}, false, 518 - 200},
      {{500, 74}, {true, false}, true, 500 - 18},
      {{500, 73}, {true, false}, false, 500 - 18},
      {{500, 726}, {false, false}, false, 500 - 18},
      {{500, 727}, {false, false}, true, 500 - 18},
      {{818, 400}, {true, false}, true, 800},
      {{819, 400}, {true, false}, true, 819 + 18 - 200},
      {{182, 400}, {true, true}, true, 0},
      {{181, 400}, {true, true}, true, 181 - 18},
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
  const TipPlace place = PlaceBalloon({1200, 900}, {500, 400}, {true, false}, Screen);
  EXPECT_EQ(place.Body.left(), 0);
  EXPECT_EQ(place.Stem, StemEdge::Bottom);
}

TEST(TipPlacement, CenteredBalloonsHangBelowTheirAnchor) {
  TipPlace place = PlaceCenteredBalloon(Body, {500, 400}, Screen);
  EXPECT_EQ(place.Body, QRect(QPoint(400, 414), Body));
  EXPECT_EQ(place.Stem, StemEdge::Top);
  place = PlaceCenteredBalloon(Body, {50, 790}, Screen);
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
