// The evaluator as a whole: what is taken up when, what passes from tag to tag, and where it ends.
#include "engine/evaluate_tags.h"

#include <gtest/gtest.h>

#include "support/evaluator.h"

namespace vorlane {
namespace {

TEST(EvaluateTags, LeavesEverythingElseAlone) {
  Evaluator evaluate;
  for (const TextView text :
       {u"", u"abc", u"a|b", u"<FOO>", u"<FOO>a</FOO>", u"<mid>a</mid>", u"abc</MID>", u"</MID>",
        u"a < b > c", u"<NAMEONLY>", u"<MID", u">MID<", u"  a  "}) {
    EXPECT_EQ(evaluate(text), text) << DisplayUtf8(text);
  }
  EXPECT_EQ(evaluate(u"a<FOO>-<UPPERCASE>b</UPPERCASE>-<mid></MID>"), u"a<FOO>-B-<mid></MID>");
}

TEST(EvaluateTags, AnOpeningTagThatIsNeverClosedVanishes) {
  Evaluator evaluate;
  const CodeCase cases[] = {
      {u"<MID>abc", u"abc"},
      {u"a<MID>b<MID>c", u"abc"},
      {u"<MID><MID>a</MID>", u"a</MID>"},  // both openers go, since the counts never balance
      {u"<MID>a</TRY>", u"a</TRY>"},
      {u"<MID><UPPERCASE>a</UPPERCASE>", u"A"},
      {u"<UPPERCASE>a<MID>b</UPPERCASE>", u"AB"},
      {u"<MID>a</MID", u"a</MID"},
      {u"a</UPPERCASE><UPPERCASE>b</UPPERCASE>", u"a</UPPERCASE>b</UPPERCASE>"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(evaluate(c.Code), c.Result) << DisplayUtf8(c.Code);
  }
}

TEST(EvaluateTags, WorkedExamples) {
  Evaluator evaluate;
  const struct {
    Text Name, Code, Result;
  } cases[] = {
      {u"SC3212-05 - Someone - Some Other Song",
       u"<MID>||1| - </MID> - <MID>| - |2|</MID> - <MID>| - || - </MID>",
       u"SC3212-05 - Some Other Song - Someone"},
      {u"Last, First - Some Song - ABCD001-10",
       u"<MID>|,||-</MID> <MID>||1|,</MID> - <MID>|-||</MID>",
       u"First Last - Some Song - ABCD001-10"},
      // Without a comma both pieces fall back to what they can find.
      {u"Someone - Some Song - ABCD001-10", u"<MID>|,||-</MID> <MID>||1|,</MID> - <MID>|-||</MID>",
       u"Someone Someone - Some Song - ABCD001-10 - Some Song - ABCD001-10"},
      {u"ezh011-01 - First Last - Some Song",
       u"<MID>||1| - </MID> - <MID>| - |2|</MID> - <MID>| |3| - </MID>, <MID>| - || </MID>",
       u"ezh011-01 - Some Song - Last, First"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(evaluate(c.Code, c.Name), c.Result) << DisplayUtf8(c.Code);
  }
}

TEST(EvaluateTags, AThrowAwayMarkPicksOneOccurrence) {
  Evaluator evaluate;
  const Text name = u"ezh011-01 - First Balance - Some Song";
  const Text inner = u"<MID><REPLACE>" + name + u"| |$1$|2</REPLACE>| || - </MID>";
  EXPECT_EQ(evaluate(inner, name), u"Balance");
  EXPECT_EQ(evaluate(u"<MID>" + inner + u"|l|| - </MID>", name), u"ance");
  const Text other = u"SC3212-05 - Someone - Some Other Song";
  EXPECT_EQ(evaluate(u"<MID>||1| - </MID> - <MID><REPLACE>" + other +
                         u"| - |$1$|1</REPLACE>| - ||</MID> - <MID>| - || - </MID>",
                     other),
            u"SC3212-05 - Some Other Song - Someone");
}

TEST(EvaluateTags, NestedTagsAreResolvedBeforeTheFieldsAreSplit) {
  Evaluator evaluate;
  const CodeCase cases[] = {
      {u"<TRY><REPLACE>a-b|-|x|</REPLACE>|c</TRY>", u"axb"},
      {u"<TRY><TRY>|a</TRY>|b</TRY>", u"a"},
      {u"<UPPERCASE><MID>a-b|-||</MID></UPPERCASE>", u"B"},
      {u"<MID><UPPERCASE>a-b</UPPERCASE>|-||</MID>", u"B"},
      {u"<UPPERCASE>a<UPPERCASE>b</UPPERCASE>c</UPPERCASE>", u"ABC"},
      {u"<MID>a-b-c|-|<MID>2|||</MID>|</MID>", u"c"},
      // A bar that a nested tag leaves is one of the outer tag's.
      {u"<TRY><UPPERCASE>a|b</UPPERCASE>|c</TRY>", u"A"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(evaluate(c.Code), c.Result) << DisplayUtf8(c.Code);
  }
}

TEST(EvaluateTags, AResultIsOrdinaryTextAgain) {
  Evaluator evaluate;
  EXPECT_EQ(evaluate(u"<REPLACE>?UPPERCASE>a?/UPPERCASE>|?|<|</REPLACE>"), u"A");
  EXPECT_EQ(evaluate(u"<ASCII>60</ASCII>UPPERCASE>a</UPPERCASE>"), u"A");
  // "<TRY>" is evaluated in the first pass, what "<REPLACE>" brings in the second.
  EXPECT_EQ(evaluate(u"<REPLACE>?UPPERCASE>a?/UPPERCASE>|?|<|</REPLACE>,<TRY>|b</TRY>"), u"A,b");
}

TEST(EvaluateTags, TagsGoByTheOrderOfTheListFirst) {
  Evaluator evaluate;
  // The failing "<ASCII>" comes before the "<MID>" in the text, behind it in the list.
  EXPECT_EQ(evaluate(u"<ASCII>x</ASCII>,<MID>a|||</MID>"), u"a,a");
  // One expression a tag and pass: "<TRY>" gets its turn before the second "<MID>", which keeps
  // what that one left.
  EXPECT_EQ(evaluate(u"<MID>a|||</MID>,<MID>b||0|</MID>,<TRY>c|d</TRY>"), u"a,c,c");
}

TEST(EvaluateTags, IdenticalExpressionsAreEvaluatedOnce) {
  Evaluator evaluate;
  evaluate.Facts.ExifByName = {{u"Make", u"Acme"}};
  EXPECT_EQ(evaluate(u"<IMAGEEXIFTAG>Make</IMAGEEXIFTAG>,<IMAGEEXIFTAG>Make</IMAGEEXIFTAG>"),
            u"Acme,Acme");
  EXPECT_EQ(evaluate.Facts.Calls.size(), 1U);
  EXPECT_EQ(evaluate.Loop.Yields, 1);
  // Also those that hold other tags, as they stand.
  evaluate.Loop.Yields = 0;
  EXPECT_EQ(evaluate(u"<TRY><ASCII>65</ASCII>|</TRY>,<TRY><ASCII>65</ASCII>|</TRY>"), u"A,A");
  EXPECT_EQ(evaluate.Loop.Yields, 2);
}

TEST(EvaluateTags, AnExpressionIsReplacedAlsoInsideAnother) {
  Evaluator evaluate;
  // The first "<LOWERCASE>" is taken before its "<UPPERCASE>" neighbour, which holds the same one.
  EXPECT_EQ(evaluate(u"<LOWERCASE>A</LOWERCASE>,<UPPERCASE><LOWERCASE>A</LOWERCASE></UPPERCASE>"),
            u"a,A");
  EXPECT_EQ(evaluate.Loop.Yields, 2);
}

TEST(EvaluateTags, TheResultOfTheTagBeforeIsKept) {
  Evaluator evaluate;
  EXPECT_EQ(evaluate(u"<MID>x|||</MID><OLDESTDATETIME>a|b</OLDESTDATETIME>"), u"xx");
  EXPECT_EQ(evaluate(u"<UPPERCASE>x</UPPERCASE><ASCII>a</ASCII>"), u"XX");
  EXPECT_EQ(evaluate(u"<ASCII>a</ASCII>"), u"");
  // The result lives on from pass to pass.
  EXPECT_EQ(evaluate(u"<ASCII>65</ASCII><ASCII>a</ASCII>"), u"AA");
}

TEST(EvaluateTags, ANestedEvaluationStartsAfresh) {
  Evaluator evaluate;
  // Neither the result nor the occurrence of the outer text gets in.
  EXPECT_EQ(evaluate(u"<MID>x|||</MID>,<UPPERCASE>a<ASCII>b</ASCII></UPPERCASE>"), u"x,A");
  EXPECT_EQ(evaluate(u"<MID>a-b-c|-|2|</MID>,<UPPERCASE><MID>d-e-f|-|40000|</MID></UPPERCASE>"),
            u"c,");
  // Nor does the nested one get out.
  EXPECT_EQ(evaluate(u"<MID>a||<LOWERCASE>0</LOWERCASE>|</MID>"), u"");
  EXPECT_EQ(evaluate(u"<TRY><REPLACE>a-b-c|-|x|</REPLACE>|</TRY><MID>a-b|-|40000|</MID>"),
            u"axbxc");
}

TEST(EvaluateTags, CallsStartAfreshToo) {
  Evaluator evaluate;
  EXPECT_EQ(evaluate(u"<MID>a-b-c|-|2|</MID>"), u"c");
  EXPECT_EQ(evaluate(u"<MID>a-b-c|-|40000|</MID>"), u"");
}

TEST(EvaluateTags, YieldsOnceForEachClosingTagExamined) {
  Evaluator evaluate;
  evaluate(u"<UPPERCASE>a</UPPERCASE>");
  EXPECT_EQ(evaluate.Loop.Yields, 1);
  evaluate.Loop.Yields = 0;
  // The outer one examines two, the inner one its own.
  evaluate(u"<MID><MID>a|||</MID>|||</MID>");
  EXPECT_EQ(evaluate.Loop.Yields, 3);
  evaluate.Loop.Yields = 0;
  evaluate(u"abc</MID>");
  EXPECT_EQ(evaluate.Loop.Yields, 0);
}

TEST(EvaluateTags, TheDefaultTextReachesNestedTags) {
  Evaluator evaluate;
  EXPECT_EQ(evaluate(u"<UPPERCASE><MID></MID></UPPERCASE>", u"name"), u"NAME");
}

}  // namespace
}  // namespace vorlane
