#include "preview/used_numbers.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/failure.h"

namespace vorlane {
namespace {

// The rule as it reads: slots from `number` up to the one before the upper bound.
std::int32_t LiteralNextFree(const std::vector<int>& slots, std::int32_t number) {
  const auto upperBound = static_cast<std::int32_t>(slots.size()) - 1;
  for (std::int32_t slot = number; slot <= upperBound - 1; ++slot) {
    if (slots[static_cast<std::size_t>(slot)] == 0) {
      return slot + 1;
    }
  }
  return 1;
}

TEST(UsedNumbers, GivesTheFirstFreeNumberAbove) {
  UsedNumbers used;
  used.Reset(4);  // slots 0 to 4
  EXPECT_EQ(used.NextFreeAutoNumber(1), 2);
  used.Take(2);
  EXPECT_EQ(used.NextFreeAutoNumber(1), 3);
  EXPECT_EQ(used.NextFreeAutoNumber(3), 4);
  EXPECT_EQ(used.NextFreeAutoNumber(4), 1);  // the last slot is never looked at
}

TEST(UsedNumbers, NoFreeNumberGivesOne) {
  UsedNumbers used;
  used.Reset(2);
  used.Take(2);
  EXPECT_EQ(used.NextFreeAutoNumber(1), 1);
}

TEST(UsedNumbers, ResetFreesAllNumbers) {
  UsedNumbers used;
  used.Reset(5);
  used.Take(2);
  used.Reset(5);
  EXPECT_EQ(used.NextFreeAutoNumber(1), 2);
}

TEST(UsedNumbers, ANumberPastTheSlotsIsAFailure) {
  UsedNumbers used;
  used.Reset(3);
  used.Take(4);
  EXPECT_THROW(used.Take(5), RunError);
  EXPECT_THROW(used.Take(0), RunError);
}

TEST(UsedNumbers, TakenNumbersBehindAHoleAreSteppedOverAsOne) {
  constexpr std::int32_t Numbers = 200'000;
  UsedNumbers used;
  used.Reset(Numbers + 5);
  // The number 2 stays free; looking through all behind it each time would take minutes.
  for (std::int32_t number = 3; number <= Numbers; ++number) {
    ASSERT_EQ(used.NextFreeAutoNumber(2), number);
    used.Take(number);
  }
  EXPECT_EQ(used.NextFreeAutoNumber(1), 2);
}

TEST(UsedNumbers, AgreesWithTheSearchThroughAllSlots) {
  std::mt19937 random(1);
  for (int round = 0; round < 200; ++round) {
    const auto size = static_cast<std::int32_t>(2 + random() % 12);
    UsedNumbers used;
    used.Reset(size);
    std::vector<int> slots(static_cast<std::size_t>(size) + 1);
    for (int step = 0; step < 60; ++step) {
      if (step == 30) {
        used.Reset(size);
        slots.assign(slots.size(), 0);
      }
      const auto number = static_cast<std::int32_t>(1 + random() % static_cast<unsigned>(size));
      EXPECT_EQ(used.NextFreeAutoNumber(number), LiteralNextFree(slots, number));
      used.Take(number);
      slots[static_cast<std::size_t>(number) - 1] = 1;
    }
  }
}

}  // namespace
}  // namespace vorlane
