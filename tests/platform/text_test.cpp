#include "platform/text.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(Text, TrimTakesSpacesAlone) {
  EXPECT_EQ(Trim(u"  a b "), u"a b");
  EXPECT_EQ(Trim(u"\ta\u00A0"), u"\ta\u00A0");
  EXPECT_EQ(Trim(u"   "), u"");
  EXPECT_EQ(Trim(u""), u"");
}

TEST(Text, ReplaceAllGoesLeftToRightWithoutOverlap) {
  const struct {
    Text text, from, to, result;
  } cases[] = {
      {u"aaa", u"aa", u"b", u"ba"},
      {u"abab", u"ab", u"abab", u"abababab"},
      {u"abc", u"", u"x", u"abc"},
      {u"abc", u"c", u"", u"ab"},
      {u"", u"a", u"b", u""},
      {u"a|b", u"|", u"\x01|\x01",
       u"a\x01|\x01"
       u"b"},
  };
  for (const auto& c : cases) {
    Text text = c.text;
    ReplaceAll(text, c.from, c.to);
    EXPECT_EQ(text, c.result);
  }
}

TEST(Text, SplitGivesOnePieceMoreThanSeparators) {
  EXPECT_EQ(Split(u"", u"|"), (std::vector<Text>{u""}));
  EXPECT_EQ(Split(u"a||b|", u"|"), (std::vector<Text>{u"a", u"", u"b", u""}));
  EXPECT_EQ(Split(u"a\r\nb", u"\r\n"), (std::vector<Text>{u"a", u"b"}));
}

TEST(Text, FormatElapsedDoesNotCapMinutes) {
  EXPECT_EQ(FormatElapsed(0), u"00:00");
  EXPECT_EQ(FormatElapsed(59), u"00:59");
  EXPECT_EQ(FormatElapsed(61), u"01:01");
  EXPECT_EQ(FormatElapsed(6000), u"100:00");
}

TEST(Text, DecimalTextHasASignOnlyBelowZero) {
  EXPECT_EQ(DecimalText(0), u"0");
  EXPECT_EQ(DecimalText(-32768), u"-32768");
}

}  // namespace
}  // namespace vorlane
