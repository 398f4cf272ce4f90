#include <gtest/gtest.h>

#include "support/evaluator.h"

namespace vorlane {
namespace {

// A tag before, so that a result that is kept can be seen.
const Text Before = u"<MID>old|||</MID>,";

TEST(LeftTrim, CutsInThreeWays) {
  Evaluator evaluate;
  const CodeCase cases[] = {
      {u"Track 05|k||", u"k 05"},
      {u"Track 05||3|", u"ck 05"},
      {u"Track 05|||2", u"05"},
      // From the first occurrence on, itself included.
      {u"a-b-c|-||", u"-b-c"},
      {u"a-b-c|a||", u"a-b-c"},
      {u"a--b|-b||", u"-b"},
      // What leaves nothing gives the whole text.
      {u"abc|x||", u"abc"},
      {u"abc|B||", u"abc"},
      {u"abc||3|", u"abc"},
      {u"abc||99|", u"abc"},
      {u"abc|||0", u"abc"},
      {u"abc|||-2", u"abc"},
      // The numbers' limits.
      {u"abc||0|", u"abc"},
      {u"abc||-5|", u"abc"},
      {u"abc||2|", u"c"},
      {u"abc|||2", u"bc"},
      {u"abc|||99", u"abc"},
      {u"abc||1.5|", u"c"},
      {u"abc||2147483647|", u"abc"},
      // What is no number is 0.
      {u"abc||x|", u"abc"},
      {u"abc|||x", u"abc"},
      // The last way that is filled in wins, each cuts the whole text.
      {u"ab-cde|-|1|", u"b-cde"},
      {u"a-bcde|-|2|3", u"cde"},
      {u"a-bcde|-||2", u"de"},
      {u"a-bcde||1|2", u"de"},
      {u"a-bcde|-|x|", u"a-bcde"},
      {u"a-bcde||2|x", u"a-bcde"},
      // Spaces stay.
      {u" a b |||3", u" b "},
      // Bars are needed.
      {u"abc||1", u"abc"},
      {u"abc", u""},
      {u"", u""},
      {u"|a|1|1", u""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(evaluate(u"<LEFTTRIM>" + c.Code + u"</LEFTTRIM>"), c.Result) << DisplayUtf8(c.Code);
  }
}

TEST(RightTrim, CutsInThreeWays) {
  Evaluator evaluate;
  const CodeCase cases[] = {
      {u"Track 05|a||", u"Tra"},
      {u"Track 05||3|", u"Track"},
      {u"Track 05|||2", u"Tr"},
      // Up to the last occurrence, itself included.
      {u"a-b-c|-||", u"a-b-"},
      {u"a-b-c|c||", u"a-b-c"},
      {u"a--b|a-||", u"a-"},
      {u"aaab|aa||", u"aaa"},
      // What leaves nothing gives the whole text.
      {u"abc|x||", u"abc"},
      {u"abc|B||", u"abc"},
      {u"abc||3|", u"abc"},
      {u"abc||99|", u"abc"},
      {u"abc|||0", u"abc"},
      {u"abc|||-2", u"abc"},
      // The numbers' limits.
      {u"abc||0|", u"abc"},
      {u"abc||-5|", u"abc"},
      {u"abc||-2147483648|", u"abc"},
      {u"abc||2|", u"a"},
      {u"abc|||2", u"ab"},
      {u"abc|||99", u"abc"},
      {u"abc||1.5|", u"a"},
      // What is no number is 0.
      {u"abc||x|", u"abc"},
      {u"abc|||x", u"abc"},
      // The last way that is filled in wins, each cuts the whole text.
      {u"ab-cde|-|1|", u"ab-cd"},
      {u"ab-cde|-|2|1", u"a"},
      {u"ab-cde|-||2", u"ab"},
      {u"ab-cde||1|2", u"ab"},
      {u"ab-cde|-|x|", u"ab-cde"},
      {u"ab-cde||2|x", u"ab-cde"},
      // Spaces stay.
      {u" a b |||3", u" a "},
      // Bars are needed.
      {u"abc||1", u"abc"},
      {u"abc", u""},
      {u"", u""},
      {u"|a|1|1", u""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(evaluate(u"<RIGHTTRIM>" + c.Code + u"</RIGHTTRIM>"), c.Result) << DisplayUtf8(c.Code);
  }
}

TEST(BothTrims, AssignNothingIfNoWayIsFilledIn) {
  Evaluator evaluate;
  for (const Text& tag : {Text(u"LEFTTRIM>"), Text(u"RIGHTTRIM>")}) {
    const auto trim = [&](const Text& inner) { return u"<" + tag + inner + u"</" + tag; };
    EXPECT_EQ(evaluate(trim(u"abc|||")), u"abc");
    EXPECT_EQ(evaluate(Before + trim(u"abc|||")), u"old,old");
    // An empty first field does assign, and there is no default text for it.
    EXPECT_EQ(evaluate(Before + trim(u"|||")), u"old,");
    EXPECT_EQ(evaluate(Before + trim(u"abc")), u"old,");
    // So does a cut that leaves nothing.
    EXPECT_EQ(evaluate(Before + trim(u"abc|x||")), u"old,abc");
  }
}

TEST(BothTrims, SkipACutWithANumberOutOfRange) {
  Evaluator evaluate;
  const CodeCase cases[] = {
      {u"<LEFTTRIM>abcd||3000000000|</LEFTTRIM>", u"old,old"},
      {u"<LEFTTRIM>abcd|||3000000000</LEFTTRIM>", u"old,old"},
      {u"<LEFTTRIM>abcd|c|3000000000|</LEFTTRIM>", u"old,cd"},
      {u"<LEFTTRIM>abcd||1|-3000000000</LEFTTRIM>", u"old,bcd"},
      {u"<LEFTTRIM>abcd||3000000000|1</LEFTTRIM>", u"old,d"},
      {u"<RIGHTTRIM>abcd||3000000000|</RIGHTTRIM>", u"old,old"},
      {u"<RIGHTTRIM>abcd|||3000000000</RIGHTTRIM>", u"old,old"},
      {u"<RIGHTTRIM>abcd|b|-3000000000|</RIGHTTRIM>", u"old,ab"},
      {u"<RIGHTTRIM>abcd||1|3000000000</RIGHTTRIM>", u"old,abc"},
      {u"<RIGHTTRIM>abcd||3000000000|1</RIGHTTRIM>", u"old,a"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(evaluate(Before + c.Code), c.Result) << DisplayUtf8(c.Code);
  }
}

}  // namespace
}  // namespace vorlane
