#include "preview/time_estimate.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(TimeEstimate, FiftyRowsOrFewerGetNone) {
  EXPECT_FALSE(TimeEstimate(50).IsWanted());
  EXPECT_TRUE(TimeEstimate(51).IsWanted());
}

TEST(TimeEstimate, BeforeTheRingIsFullItAveragesOverTheRowNumber) {
  TimeEstimate estimate(100);  // a ring of 10
  EXPECT_EQ(estimate.SecondsLeft(1, 1000), 99);
  // (1000 + 3000) / 2 = 2000 ms for each of 98 rows
  EXPECT_EQ(estimate.SecondsLeft(2, 3000), 196);
}

TEST(TimeEstimate, TheFullRingFollowsTheRecentSpeed) {
  TimeEstimate estimate(100);
  for (std::int32_t row = 1; row <= 10; ++row) {
    estimate.SecondsLeft(row, 1000);
  }
  // Nine rows of 1000 and one of 11000: 2000 ms on average for 89 rows.
  EXPECT_EQ(estimate.SecondsLeft(11, 11000), 178);
  for (std::int32_t row = 12; row <= 20; ++row) {
    estimate.SecondsLeft(row, 1000);
  }
  EXPECT_EQ(estimate.SecondsLeft(21, 1000), 79);  // the slow row has left the ring
}

TEST(TimeEstimate, TheRingIsATenthOfTheRowsHalvesToTheEvenNumber) {
  // 55 rows give 5.5, a ring of 6: after six rows the average is over six durations only.
  TimeEstimate estimate(55);
  for (std::int32_t row = 1; row <= 6; ++row) {
    estimate.SecondsLeft(row, 6000);
  }
  EXPECT_EQ(estimate.SecondsLeft(7, 0), 48 * 5);
  // 65 rows give 6.5, a ring of 6 as well.
  TimeEstimate longer(65);
  for (std::int32_t row = 1; row <= 6; ++row) {
    longer.SecondsLeft(row, 6000);
  }
  EXPECT_EQ(longer.SecondsLeft(7, 0), 58 * 5);
}

TEST(TimeEstimate, TheAverageIsRoundedBeforeItIsMultiplied) {
  TimeEstimate estimate(10000);
  EXPECT_EQ(estimate.SecondsLeft(2, 1), 0);   // 0.5 ms rounds to 0
  EXPECT_EQ(estimate.SecondsLeft(2, 2), 20);  // 1.5 ms rounds to 2: 19,996 ms
}

}  // namespace
}  // namespace vorlane
