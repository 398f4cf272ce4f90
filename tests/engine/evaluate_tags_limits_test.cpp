// Codes that would rewrite themselves for ever, nest deeply, or go beyond the last position.
#include <gtest/gtest.h>

#include "engine/evaluate_tags.h"
#include "engine/function_tags.h"
#include "engine/replacing.h"
#include "support/evaluator.h"

namespace vorlane {
namespace {

Text Repeated(TextView part, int count) {
  Text text;
  for (int i = 0; i < count; ++i) {
    text += part;
  }
  return text;
}

TEST(EndlessCodes, AreReturnedOnceAPassChangesNothing) {
  Evaluator evaluate;
  for (const TextView code :
       {u"</MID><MID>a</MID>", u"</UPPERCASE><UPPERCASE>", u"</TRY>a<TRY>b</TRY><TRY>c</TRY>"}) {
    evaluate.Loop.Yields = 0;
    EXPECT_EQ(evaluate(code), code) << DisplayUtf8(code);
    EXPECT_LE(evaluate.Loop.Yields, 2) << DisplayUtf8(code);
    EXPECT_GE(evaluate.Loop.Yields, 1) << DisplayUtf8(code);
  }
}

TEST(EndlessCodes, KeepWhatWasRewrittenBefore) {
  Evaluator evaluate;
  EXPECT_EQ(evaluate(u"</MID><MID>a</MID>,<UPPERCASE>b</UPPERCASE>,<UPPERCASE>c</UPPERCASE>"),
            u"</MID><MID>a</MID>,B,C");
  EXPECT_EQ(evaluate(u"x<UPPERCASE></MID><MID>a</MID></UPPERCASE>"), u"x</MID>A</MID>");
}

TEST(EndlessCodes, AFailingTagThatIsReplacedByItselfEnds) {
  Evaluator evaluate;
  EXPECT_EQ(evaluate(u"<REPLACE>?ASCII>x?/ASCII>|?|<|</REPLACE>"), u"<ASCII>x</ASCII>");
}

TEST(EndlessCodes, ANestedOneEndsToo) {
  Evaluator evaluate;
  // Made within the nested text, where its closing tag comes first.
  const Text code = u"<UPPERCASE><REPLACE>?/MID>?MID>a?/MID>|?|<|</REPLACE></UPPERCASE>";
  EXPECT_EQ(evaluate(code), u"</MID><MID>A</MID>");
}

TEST(EndlessCodes, AGrowingOneEnds) {
  Evaluator evaluate;
  // The file's name brings the tag back with every value.
  const Text result = evaluate(u"<MID></MID>", u"<MID></MID><MID></MID>");
  EXPECT_LE(result.size(), LongestText);
  EXPECT_TRUE(ContainsFunctionTag(result));
}

TEST(EndlessCodes, OneThatNestsEverDeeperEnds) {
  Evaluator evaluate;
  evaluate(u"<MID></MID>", u"<MID><REPLACE>||||</REPLACE>|x||</MID>");
  EXPECT_LT(evaluate.Loop.Yields, 100'000);
}

TEST(EndlessCodes, OneThatGrowsByLittleEndsAfterTenThousandPasses) {
  Evaluator evaluate;
  EXPECT_EQ(evaluate(u"<MID></MID>", u"<MID></MID>a"), u"<MID></MID>" + Repeated(u"a", 10'000));
}

// Each pass is longer than the one before; without a bound on their sum this takes a minute.
TEST(EndlessCodes, OneThatGrowsByMuchEndsLongBeforeTenThousandPasses) {
  Evaluator evaluate;
  const Text code = u"<REPLACE>?ASCII>x?/ASCII>" + Repeated(u"y", 50) + u"|?|<|</REPLACE>";
  EXPECT_GT(evaluate(code).size(), 1000U);
  EXPECT_LT(evaluate.Loop.Yields, 5000);
}

TEST(DeepNesting, OfThousandsOfLevelsIsResolved) {
  Evaluator evaluate;
  constexpr int levels = 2'700;
  EXPECT_EQ(evaluate(Repeated(u"<TRY>", levels) + u"a" + Repeated(u"|</TRY>", levels)), u"a");
  EXPECT_EQ(evaluate.Loop.Yields, levels * (levels + 1) / 2);
}

TEST(DeepNesting, IsResolvedUpToTheLastPosition) {
  Evaluator evaluate;
  constexpr int levels = 2'900;
  // Without its bar each value loses its last character.
  EXPECT_EQ(evaluate(Repeated(u"<TRY>", levels) + u"abc|" + Repeated(u"</TRY>", levels)), u"");
  EXPECT_EQ(evaluate(Repeated(u"<UPPERCASE>", 1'300) + u"abc" + Repeated(u"</UPPERCASE>", 1'300)),
            u"ABC");
}

TEST(DeepNesting, UnclosedTagsInThousandsVanish) {
  Evaluator evaluate;
  EXPECT_EQ(evaluate(Repeated(u"<TRY>", 6'000) + u"a"), u"a");
  EXPECT_EQ(evaluate(Repeated(u"<TRY>", 3'000) + u"a" + Repeated(u"</TRY>", 2'000)),
            u"a" + Repeated(u"</TRY>", 2'000));
}

TEST(LastPosition, AClosingTagBehindItIsNotFound) {
  Evaluator evaluate;
  // The place of the closing tag fails; it stays at "nowhere", so the opening tag is deleted.
  const Text filler(32'768, u'a');
  EXPECT_EQ(evaluate(u"<UPPERCASE>" + filler + u"</UPPERCASE>"), filler + u"</UPPERCASE>");
  // One that ends in time is evaluated.
  const Text shorter(32'766 - 12, u'a');
  EXPECT_EQ(evaluate(u"<UPPERCASE>" + shorter + u"</UPPERCASE>"), Text(shorter.size(), u'A'));
}

TEST(LastPosition, AnOpeningTagBehindItIsNotFound) {
  Evaluator evaluate;
  const Text code = Text(32'767, u'a') + u"<UPPERCASE>b</UPPERCASE>";
  EXPECT_EQ(evaluate(code), code);
  EXPECT_EQ(evaluate.Loop.Yields, 0);
}

TEST(LastPosition, PositionsFoundBeforeStay) {
  Evaluator evaluate;
  // "<MID>" is found and evaluated. The places of "<TRY>", the next in the list, then fail, and
  // those left from "<MID>" are taken with its text: a "<TRY>" of just that text is replaced
  // without having been found, any other stays.
  const Text filler(32'767, u'a');
  EXPECT_EQ(evaluate(u"<MID>x|||</MID>" + filler + u"<TRY>x|||</TRY>"), u"x" + filler + u"x");
  EXPECT_EQ(evaluate(u"<MID>x|||</MID>" + filler + u"<TRY>b|c</TRY>"),
            u"x" + filler + u"<TRY>b|c</TRY>");
}

TEST(LastPosition, FieldsThatCannotBeSplitStayThoseBefore) {
  Evaluator evaluate;
  // The nested value makes the text between the tags longer than any position.
  const Text grown = u"<REPLACE>" + Text(300, u'a') + u"|a|" + Text(200, u'b') + u"|</REPLACE>";
  EXPECT_EQ(evaluate(u"<MID>xy||2|</MID>,<TRY>" + grown + u"|c</TRY>"), u"y,xy");
  // Without any fields the step fails, and there is no result to keep.
  EXPECT_EQ(evaluate(u"<TRY>" + grown + u"|c</TRY>"), u"");
}

TEST(LongestText, AReplacementBeyondItFails) {
  Evaluator evaluate;
  const Text many(8'000, u'a');
  const Text bomb = u"<REPLACE>" + many + u"|a|" + many + u"|</REPLACE>";
  EXPECT_EQ(evaluate(bomb), u"");
  EXPECT_EQ(evaluate(u"<MID>old|||</MID>," + bomb), u"old,old");
}

TEST(LongestText, ACodeBeyondItIsReturnedAsItIs) {
  Evaluator evaluate;
  const Text code = u"<UPPERCASE>a</UPPERCASE>" + Text(LongestText, u'b');
  EXPECT_EQ(evaluate(code), code);
}

}  // namespace
}  // namespace vorlane
