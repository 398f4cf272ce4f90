#include "engine/operation_steps.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/failure.h"

namespace vorlane {
namespace {

std::vector<Text> StepsOf(const Text& code) {
  std::vector<Text> steps;
  std::size_t position = 0;
  while (const auto step = NextStep(code, position)) {
    steps.emplace_back(*step);
  }
  return steps;
}

int FailureOf(const Text& code) {
  try {
    StepsOf(code);
    return 0;
  } catch (const RunError& failure) {
    return failure.Number();
  }
}

TEST(OperationSteps, StandBehindEveryStepKey) {
  const struct {
    Text code;
    std::vector<Text> steps;
  } cases[] = {
      {u"", {}},
      {u"\r\n\r", {}},
      {u"Help Message: nothing to do\r\n", {}},
      {u"\r\nStep: <NAMEONLY>\r\n", {u"<NAMEONLY>"}},
      {u"\r\nStep: a\r\nStep: b\r\nHelp Message: c\r\nStep: d\r\n", {u"a", u"b", u"d"}},
      // Spaces are trimmed, other blanks aren't; no space is needed.
      {u"Step:a\r\nStep:   b  \r\nStep:\tc\r\n", {u"a", u"b", u"\tc"}},
      // Anywhere in a line, by exact letters alone.
      {u"the Step: a\r\nstep: b\r\nSTEP: c\r\nStep : d\r\n", {u"a"}},
      // The rest of a step's line is the step's own.
      {u"Step: a Step: b\r\nStep: c\r\n", {u"a Step: b", u"c"}},
      // A step may be empty.
      {u"Step:\r\nStep:   \r\nStep: a\r\n", {u"", u"", u"a"}},
      // Only a whole line end ends a step.
      {u"Step: a\nb\rc\r\nd", {u"a\nb\rc"}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(StepsOf(c.code), c.steps);
  }
}

TEST(OperationSteps, WithoutALineEndTheLastCharacterIsLeftOut) {
  EXPECT_EQ(StepsOf(u"Step: <NAMEONLY>\r"), (std::vector<Text>{u"<NAMEONLY>"}));
  EXPECT_EQ(StepsOf(u"Step: abc"), (std::vector<Text>{u"ab"}));
  EXPECT_EQ(StepsOf(u"Step: a\r\nStep: bcd"), (std::vector<Text>{u"a", u"bc"}));
  EXPECT_EQ(StepsOf(u"Step: ab c"), (std::vector<Text>{u"ab"}));
  EXPECT_EQ(StepsOf(u"Step:\r"), (std::vector<Text>{u""}));
  EXPECT_EQ(StepsOf(u"Step:a"), (std::vector<Text>{u""}));
}

TEST(OperationSteps, FailAtTheEndIfThereIsNoCharacterToLeaveOut) {
  EXPECT_EQ(FailureOf(u"Step:"), 5);
  const Text code = u"Step: a\r\nStep:";
  std::size_t position = 0;
  EXPECT_EQ(NextStep(code, position), u"a");
  EXPECT_THROW(NextStep(code, position), RunError);
}

TEST(OperationSteps, OverflowInACodeOfMoreThan32767Characters) {
  const Text steps = u"Step: a\r\nStep: b\r\n";
  EXPECT_EQ(StepsOf(steps + Text(32767 - steps.size(), u'x')), (std::vector<Text>{u"a", u"b"}));
  EXPECT_EQ(FailureOf(steps + Text(32768 - steps.size(), u'x')), 6);
  EXPECT_EQ(FailureOf(Text(32768, u'x')), 6);
}

TEST(OperationSteps, EndOnAnyText) {
  std::mt19937 random(20060131);
  const Text pieces[] = {u"Step:", u"\r\n", u"\r", u"\n", u" ", u"x", u"St", u"ep:"};
  for (int round = 0; round < 20'000; ++round) {
    Text code;
    for (auto left = random() % 12; left > 0; --left) {
      code += pieces[random() % std::size(pieces)];
    }
    std::size_t position = 0;
    try {
      while (const auto step = NextStep(code, position)) {
        ASSERT_LT(position, code.size());
        EXPECT_EQ(*step, Trim(*step));
        EXPECT_FALSE(Contains(*step, u"\r\n"));
      }
    } catch (const RunError& failure) {
      EXPECT_EQ(failure.Number(), 5);
      EXPECT_TRUE(code.ends_with(u"Step:"));
    }
  }
}

}  // namespace
}  // namespace vorlane
