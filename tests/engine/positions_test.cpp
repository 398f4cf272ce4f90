#include "engine/positions.h"

#include <gtest/gtest.h>

#include "platform/failure.h"

namespace vorlane {
namespace {

int FailureOf(auto&& step) {
  try {
    step();
    return 0;
  } catch (const RunError& error) {
    return error.Number();
  }
}

constexpr int InvalidArgument = static_cast<int>(ErrorNumber::InvalidArgument);
constexpr int Overflow = static_cast<int>(ErrorNumber::Overflow);

TEST(Positions, EndAt32767) {
  EXPECT_EQ(ToPosition(32'767), 32'767);
  EXPECT_EQ(FailureOf([] { ToPosition(32'768); }), Overflow);
}

TEST(Positions, CountFromOne) {
  EXPECT_EQ(PositionOf(u"abab", u"ab"), 1);
  EXPECT_EQ(PositionOf(u"abab", u"ab", 2), 3);
  EXPECT_EQ(PositionOf(u"abab", u"ab", 3), 3);
  EXPECT_EQ(PositionOf(u"abab", u"ab", 4), 0);
  EXPECT_EQ(PositionOf(u"abab", u"ab", 100), 0);
  EXPECT_EQ(PositionOf(u"", u"ab"), 0);
  EXPECT_EQ(FailureOf([] { PositionOf(u"abab", u"ab", 0); }), InvalidArgument);
  EXPECT_EQ(FailureOf([] { PositionOf(u"abab", u"ab", -1); }), InvalidArgument);
}

TEST(Positions, ATextFoundTooFarBehindFails) {
  EXPECT_EQ(PositionOf(Text(32'766, u'a') + u"b", u"b"), 32'767);
  EXPECT_EQ(FailureOf([] { PositionOf(Text(32'767, u'a') + u"b", u"b"); }), Overflow);
  EXPECT_EQ(PositionOf(Text(40'000, u'a'), u"b"), 0);
  EXPECT_EQ(FailureOf([] { LastPositionOf(u"b" + Text(32'767, u'a') + u"b", u"b"); }), Overflow);
}

TEST(Positions, LastPositionIsThatOfTheLastOccurrence) {
  EXPECT_EQ(LastPositionOf(u"aaa", u"aa"), 2);
  EXPECT_EQ(LastPositionOf(u"aba", u"a"), 3);
  EXPECT_EQ(LastPositionOf(u"aba", u"c"), 0);
}

TEST(Slice, IsCutOffAtTheEnd) {
  EXPECT_EQ(Slice(u"abc", 2, 1), u"b");
  EXPECT_EQ(Slice(u"abc", 2, 0), u"");
  EXPECT_EQ(Slice(u"abc", 2, 10), u"bc");
  EXPECT_EQ(Slice(u"abc", 4, 1), u"");
  EXPECT_EQ(Slice(u"abc", 10, 1), u"");
  EXPECT_EQ(FailureOf([] { Slice(u"abc", 0, 1); }), InvalidArgument);
  EXPECT_EQ(FailureOf([] { Slice(u"abc", -1, 1); }), InvalidArgument);
  EXPECT_EQ(FailureOf([] { Slice(u"abc", 1, -1); }), InvalidArgument);
}

}  // namespace
}  // namespace vorlane
