#include "filelist/wildcard.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

struct Case {
  Text name;
  Text pattern;
  bool matches;
};

TEST(Wildcard, MatchesTheWholeNameWithoutRegardToCase) {
  const Case cases[] = {
      {u"A.MP3", u"*.mp3", true},  {u"README", u"*.*", true},
      {u"README", u"*.?*", false}, {u"a.mp3x", u"*.mp3", false},
      {u"a.mp3", u"b*", false},    {u"", u"*", true},
      {u"", u"?", false},          {u"", u"", true},
      {u"a", u"", false},          {u"abc", u"a?c", true},
      {u"ac", u"a?c", false},      {u"a1", u"a#", true},
      {u"ax", u"a#", false},       {u"a\u0661", u"a#", false},
      {u"abcabc", u"*abc", true},  {u"abcabd", u"*abc", false},
      {u"aXbXc", u"a*b*c", true},  {u"\u00C4.TXT", u"\u00E4.txt", true},
      {u"a|b", u"*|*", true},      {u"a.mp3", u"*.mp3|*.ogg", false},
      {u"x*y", u"x[*]y", true},    {u"xzy", u"x[*]y", false},
      {u"x?y", u"x[?]y", true},    {u"x[y", u"x[[]y", true},
      {u"x#y", u"x[#]y", true},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(MatchesWildcard(c.name, c.pattern), c.matches)
        << testing::PrintToString(c.name) << testing::PrintToString(c.pattern);
  }
}

TEST(Wildcard, BracketsListCharactersAndRanges) {
  const Case cases[] = {
      {u"b", u"[abc]", true},   {u"B", u"[abc]", true},         {u"d", u"[abc]", false},
      {u"m", u"[a-z]", true},   {u"M", u"[a-z]", true},         {u"m", u"[A-Z]", true},
      {u"5", u"[a-z]", false},  {u"5", u"[a-z0-9]", true},      {u"d", u"[!abc]", true},
      {u"a", u"[!abc]", false}, {u"", u"[!abc]", false},        {u"-", u"[a-]", true},
      {u"-", u"[-a]", true},    {u"a]", u"[a]]", true},         {u"]", u"]", true},
      {u"ab", u"a[]b", true},   {u"a", u"[]", false},           {u"", u"[]", true},
      {u"!", u"[!]", true},     {u"x1.txt", u"*[0-9].*", true},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(MatchesWildcard(c.name, c.pattern), c.matches)
        << testing::PrintToString(c.name) << testing::PrintToString(c.pattern);
  }
}

TEST(Wildcard, ABrokenBracketMatchesNothing) {
  for (const Text pattern : {u"[", u"[abc", u"*[", u"[z-a]", u"[!z-a]", u"a*[b"}) {
    for (const Text name : {u"a", u"[", u"abc", u"z", u""}) {
      EXPECT_FALSE(MatchesWildcard(name, pattern));
    }
  }
}

TEST(Wildcard, ManyStarsDoNotTakeForEver) {
  const Text name(2000, u'a');
  Text pattern;
  for (int i = 0; i < 500; ++i) {
    pattern += u"*a";
  }
  EXPECT_TRUE(MatchesWildcard(name, pattern));
  EXPECT_FALSE(MatchesWildcard(name, pattern + u"b"));
}

TEST(Wildcard, TheSystemRuleKnowsStarAndQuestionMarkOnly) {
  const Case cases[] = {
      {u"README", u"*.*", true}, {u"A.MP3", u"*.mp3", true}, {u"a1", u"a#", false},
      {u"a#", u"a#", true},      {u"b", u"[abc]", false},    {u"[abc]", u"[abc]", true},
      {u"abc", u"a?c", true},    {u"", u"*", true},          {u"a", u"", false},
      {u"ab.txt", u"*b*", true}, {u"ab", u"a", false},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(MatchesSystemWildcard(c.name, c.pattern), c.matches)
        << testing::PrintToString(c.name) << testing::PrintToString(c.pattern);
  }
}

}  // namespace
}  // namespace vorlane
