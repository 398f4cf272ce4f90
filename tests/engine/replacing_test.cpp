#include "engine/replacing.h"

#include <gtest/gtest.h>

#include "platform/failure.h"

namespace vorlane {
namespace {

TEST(ReplaceUpTo, GoesLeftToRightWithoutOverlapUpToItsCount) {
  const struct {
    Text text, from, to;
    std::int32_t most;
    Text result;
  } cases[] = {
      {u"aaaaa", u"aa", u"b", -1, u"bba"},  {u"aaaaa", u"aa", u"b", 1, u"baaa"},
      {u"aaaaa", u"aa", u"b", 2, u"bba"},   {u"aaaaa", u"aa", u"b", 99, u"bba"},
      {u"aaaaa", u"aa", u"b", 0, u"aaaaa"}, {u"abab", u"ab", u"abab", -1, u"abababab"},
      {u"abab", u"b", u"", -1, u"aa"},      {u"abab", u"", u"x", -1, u"abab"},
      {u"abab", u"B", u"x", -1, u"abab"},   {u"", u"a", u"b", -1, u""},
  };
  for (const auto& c : cases) {
    Text text = c.text;
    const bool isReplaced = ReplaceUpTo(text, c.from, c.to, c.most);
    EXPECT_EQ(text, c.result);
    EXPECT_EQ(isReplaced, c.result != c.text);
  }
}

TEST(ReplaceUpTo, TellsWhetherItReplacedEvenByTheSame) {
  Text text = u"aba";
  EXPECT_TRUE(ReplaceEvery(text, u"a", u"a"));
  EXPECT_EQ(text, u"aba");
}

TEST(ReplaceUpTo, FailsBeforeTheTextGrowsTooLong) {
  Text text(LongestText / 2, u'a');
  EXPECT_TRUE(ReplaceEvery(text, u"a", u"bb"));
  EXPECT_EQ(text.size(), LongestText);
  for (const TextView value : {TextView(u"bc"), TextView(u"bcdefgh")}) {
    try {
      ReplaceEvery(text, u"b", value);
      ADD_FAILURE() << "grew to " << text.size();
    } catch (const RunError& error) {
      EXPECT_EQ(error.Number(), static_cast<int>(ErrorNumber::OutOfMemory));
    }
    EXPECT_EQ(text, Text(LongestText, u'b'));
  }
}

TEST(ReplaceUpTo, ATextThatIsTooLongMayStillShrink) {
  Text text(LongestText + 3, u'a');
  EXPECT_TRUE(ReplaceUpTo(text, u"aa", u"b", 1));
  EXPECT_EQ(text.size(), LongestText + 2);
}

}  // namespace
}  // namespace vorlane
