#include "layout/form_grip.h"

#include <gtest/gtest.h>

#include "layout/form_control.h"

namespace vorlane {
namespace {

constexpr TwipsSize Form{DesignWidth, DesignHeight};
constexpr Twips InnerX = DesignWidth - 180;   // 12 pixels from the right edge
constexpr Twips InnerY = DesignHeight - 150;  // 10 pixels from the bottom edge

TEST(FormGrip, TheStripHasThreeParts) {
  EXPECT_EQ(HitTestResizeGrip(Form, {InnerX + 15, 300}), DragMode::RightEdge);
  EXPECT_EQ(HitTestResizeGrip(Form, {300, InnerY + 15}), DragMode::BottomEdge);
  EXPECT_EQ(HitTestResizeGrip(Form, {InnerX + 15, InnerY + 15}), DragMode::Corner);
  EXPECT_EQ(HitTestResizeGrip(Form, {300, 300}), DragMode::None);
}

TEST(FormGrip, ItsInnerEdgeIsNotPartOfIt) {
  EXPECT_EQ(HitTestResizeGrip(Form, {InnerX, 300}), DragMode::None);
  EXPECT_EQ(HitTestResizeGrip(Form, {300, InnerY}), DragMode::None);
  EXPECT_EQ(HitTestResizeGrip(Form, {InnerX, InnerY}), DragMode::None);
  EXPECT_EQ(HitTestResizeGrip(Form, {InnerX + 1, InnerY}), DragMode::RightEdge);
  EXPECT_EQ(HitTestResizeGrip(Form, {InnerX, InnerY + 1}), DragMode::BottomEdge);
}

TEST(FormGrip, WhatLiesOutsideCountsLikeTheEdge) {
  EXPECT_EQ(HitTestResizeGrip(Form, {DesignWidth + 600, -30}), DragMode::RightEdge);
  EXPECT_EQ(HitTestResizeGrip(Form, {-30, DesignHeight + 600}), DragMode::BottomEdge);
}

struct Drag {
  DragMode Mode;
  TwipsPoint Cursor;
  TwipsSize Result;
};

TEST(FormGrip, TheDraggedEdgesFollowTheCursor) {
  constexpr TwipsRect form{1500, 750, 15360, 7830};
  for (const Drag& drag : {
           Drag{DragMode::RightEdge, {18000, 9900}, {16500, 7830}},
           Drag{DragMode::BottomEdge, {18000, 9900}, {15360, 9150}},
           Drag{DragMode::Corner, {18000, 9900}, {16500, 9150}},
           Drag{DragMode::None, {18000, 9900}, {0, 0}},
       }) {
    EXPECT_EQ(ComputeDragSize(drag.Mode, form, drag.Cursor), drag.Result)
        << static_cast<int>(drag.Mode);
  }
}

TEST(FormGrip, ADragStopsAtTheLeastSize) {
  constexpr TwipsRect form{1500, 750, 15360, 7830};
  constexpr Twips leastWidth = 996 * 15;
  constexpr Twips leastHeight = 453 * 15;
  for (const Drag& drag : {
           Drag{DragMode::Corner, {0, 0}, {leastWidth, leastHeight}},
           Drag{DragMode::Corner, {-9000, -9000}, {leastWidth, leastHeight}},
           Drag{DragMode::RightEdge, {0, 0}, {leastWidth, 7830}},
           Drag{DragMode::BottomEdge, {0, 0}, {15360, leastHeight}},
           Drag{
               DragMode::Corner, {1500 + leastWidth, 750 + leastHeight}, {leastWidth, leastHeight}},
           Drag{DragMode::Corner,
                {1515 + leastWidth, 765 + leastHeight},
                {leastWidth + 15, leastHeight + 15}},
       }) {
    EXPECT_EQ(ComputeDragSize(drag.Mode, form, drag.Cursor), drag.Result)
        << drag.Cursor.X << " " << drag.Cursor.Y;
  }
}

// A form that the system's frame has made smaller keeps what isn't dragged.
TEST(FormGrip, TheEdgeThatIsNotDraggedKeepsASizeBelowTheLeastOne) {
  constexpr TwipsRect form{0, 0, 3000, 1500};
  EXPECT_EQ(ComputeDragSize(DragMode::RightEdge, form, {18000, 0}), (TwipsSize{18000, 1500}));
  EXPECT_EQ(ComputeDragSize(DragMode::BottomEdge, form, {0, 9000}), (TwipsSize{3000, 9000}));
}

TEST(FormGrip, AScreenOfMoreThan16BitsOfTwipsIsReached) {
  EXPECT_EQ(ComputeDragSize(DragMode::Corner, {0, 0, 15360, 7830}, {115200, 64800}),
            (TwipsSize{115200, 64800}));
}

}  // namespace
}  // namespace vorlane
