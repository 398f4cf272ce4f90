#include "engine/function_tags.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "support/counting_loop.h"

namespace vorlane {
namespace {

constexpr const FunctionTag& MidTag = FunctionTags[0];
constexpr const FunctionTag& TryTag = FunctionTags[1];

TEST(FunctionTags, StandInTheOrderInWhichTheyAreLookedAt) {
  const TextView order[] = {
      u"<MID>",           u"<TRY>",     u"<PROPERCASE>",     u"<LOWERCASE>",      u"<UPPERCASE>",
      u"<MAKEEXTENSION>", u"<REPLACE>", u"<LEFTTRIM>",       u"<RIGHTTRIM>",      u"<CREATEFOLDER>",
      u"<MOVE>",          u"<ASCII>",   u"<OLDESTDATETIME>", u"<NEWESTDATETIME>", u"<IMAGEEXIFTAG>",
  };
  ASSERT_EQ(FunctionTags.size(), std::size(order));
  for (std::size_t i = 0; i < std::size(order); ++i) {
    EXPECT_EQ(FunctionTags[i].Opening, order[i]);
    EXPECT_EQ(FunctionTags[i].Closing, u"</" + Text(order[i].substr(1)));
    EXPECT_EQ(static_cast<std::size_t>(FunctionTags[i].Name), i);
  }
}

TEST(FunctionTags, OpeningTagsOfTheListCount) {
  for (const auto& tag : FunctionTags) {
    EXPECT_TRUE(ContainsFunctionTag(u"a" + Text(tag.Opening) + u"b"));
    EXPECT_FALSE(ContainsFunctionTag(tag.Closing));
    EXPECT_FALSE(ContainsFunctionTag(tag.Opening.substr(0, tag.Opening.size() - 1)));
    EXPECT_FALSE(ContainsFunctionTag(tag.Opening.substr(1)));
  }
}

TEST(FunctionTags, NothingElseCounts) {
  for (const TextView text : {u"", u"<", u"a<", u"<>", u"<FOO>", u"<mid>", u"<Mid>", u"<MID",
                              u"< MID>", u"<\u00C9>", u"</MID>", u"<M<I<D>"}) {
    EXPECT_FALSE(ContainsFunctionTag(text)) << text.size();
  }
  EXPECT_TRUE(ContainsFunctionTag(u"<<MID>"));
}

TEST(FunctionTags, OccurringTagsHaveTheBitOfTheirPlace) {
  EXPECT_EQ(OccurringFunctionTags(u"<TRY><MID><MID>"), 0b11U);
  EXPECT_EQ(OccurringFunctionTags(u"<MOVE>"), 1U << 10);
  EXPECT_EQ(OccurringFunctionTags(u"<IMAGEEXIFTAG><MAKEEXTENSION>"), 1U << 14 | 1U << 5);
}

TEST(CountOpeningTags, CountsThatTagFromTheFirstCharacterOn) {
  EXPECT_EQ(CountOpeningTags(u"", MidTag), 0);
  EXPECT_EQ(CountOpeningTags(u"<MID><TRY><MID></MID><mid>", MidTag), 2);
  EXPECT_EQ(CountOpeningTags(u"<MID><TRY><MID></MID><mid>", TryTag), 1);
}

TEST(FindClosingTag, FindsTheOneThatBalances) {
  const struct {
    Text Code;
    Position Closing;
    int Yields;
  } cases[] = {
      {u"", 0, 0},
      {u"<MID", 0, 0},
      {u"<MID>", 0, 0},
      {u"<MID>a", 0, 0},
      {u"<MID></MID>", 6, 1},
      {u"x<MID>a</MID>", 8, 1},
      {u"<MID>a</MID><MID>b</MID>", 7, 1},
      {u"<MID><MID>a</MID>b</MID>", 19, 2},
      {u"<MID><MID>a</MID>", 0, 1},
      {u"<MID><MID><MID></MID></MID></MID>", 28, 3},
      {u"<MID><TRY></MID></TRY>", 11, 1},
      {u"<MID></TRY></MID>", 12, 1},
      {u"<MID></MID</MID>", 11, 1},
      // One that stands first isn't counted, so that it balances at zero.
      {u"</MID>", 1, 1},
      {u"</MID><MID>a</MID>", 1, 1},
      // One further on is, and from then on there is one too many.
      {u" </MID><MID>a</MID>", 0, 2},
      {u" </MID><MID>a<MID></MID>", 19, 2},
  };
  for (const auto& c : cases) {
    CountingLoop loop;
    EXPECT_EQ(FindClosingTag(c.Code, MidTag, loop), c.Closing) << c.Code.size();
    EXPECT_EQ(loop.Yields, c.Yields) << c.Code.size();
  }
}

TEST(FindClosingTag, FailsBehindTheLastPosition) {
  CountingLoop loop;
  const Text code = u"<MID>" + Text(32'766 - 6, u'a') + u"</MID>";
  EXPECT_EQ(FindClosingTag(code, MidTag, loop), 32'766);
  EXPECT_THROW(FindClosingTag(u"a" + code, MidTag, loop), RunError);
  EXPECT_EQ(loop.Yields, 1);
  EXPECT_THROW(FindClosingTag(u"aa" + code, MidTag, loop), RunError);
  EXPECT_EQ(loop.Yields, 1);
}

}  // namespace
}  // namespace vorlane
