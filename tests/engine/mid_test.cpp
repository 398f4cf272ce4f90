#include "engine/mid.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "platform/failure.h"
#include "support/evaluator.h"

namespace vorlane {
namespace {

TEST(MidFromPosition, RunsFromThereToTheEndMark) {
  const struct {
    Text text;
    Position start;
    Text endMark, result;
  } cases[] = {
      {u"abc", 1, u"", u"abc"},
      {u"abc", 3, u"", u"c"},
      {u"abc", 4, u"", u""},  // one behind the end
      {u"abc", 4, u"c", u""},
      {u"", 1, u"", u""},
      {u"ab-cd-e", 1, u"-", u"ab"},
      {u"ab-cd-e", 4, u"-", u"cd"},
      {u"ab-cd-e", 3, u"-", u"-cd"},  // a mark just at the start is passed over
      {u"-a", 1, u"-", u"-a"},
      {u"--a", 1, u"-", u"-"},
      {u"abc", 1, u"x", u"abc"},
      {u"abc", 1, u"C", u"abc"},
      {u"  ab  cd ", 1, u"", u"ab  cd"},
      {u"a b - c", 2, u" - ", u"b"},
      {u"\ta\t", 1, u"", u"\ta\t"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(MidFromPosition(c.text, c.start, c.endMark), c.result) << c.start;
  }
}

TEST(MidFromPosition, FailsOutsideTheText) {
  for (const Position start : std::initializer_list<Position>{-32'768, -1, 0, 5, 32'767}) {
    EXPECT_THROW(MidFromPosition(u"abc", start, u""), RunError) << start;
    EXPECT_THROW(MidFromPosition(u"abc", start, u"b"), RunError) << start;
  }
}

TEST(MidFromPosition, FailsIfTheEndIsNoPosition) {
  EXPECT_EQ(MidFromPosition(Text(32'766, u'a'), 1, u"").size(), 32'766U);
  EXPECT_THROW(MidFromPosition(Text(32'767, u'a'), 1, u""), RunError);
  EXPECT_EQ(MidFromPosition(Text(100, u'a') + u"b" + Text(40'000, u'a'), 1, u"b").size(), 100U);
}

TEST(MidFromMarker, BeginsBehindThatOccurrence) {
  const struct {
    Text text, mark;
    std::int16_t count;
    Text endMark, result;
  } cases[] = {
      {u"a-b-c-d", u"-", 1, u"", u"b-c-d"},
      {u"a-b-c-d", u"-", 2, u"", u"c-d"},
      {u"a-b-c-d", u"-", 3, u"", u"d"},
      {u"a-b-c-d", u"-", 1, u"-", u"b"},
      {u"a-b-c-d", u"-", 3, u"-", u"d"},
      // More than there are: behind the last one that was found.
      {u"a-b-c-d", u"-", 4, u"", u"d"},
      {u"a-b-c-d", u"-", 5, u"", u"d"},
      {u"a-b-c-d", u"-", 32'767, u"", u"d"},
      // None at all: from the beginning.
      {u"abc", u"-", 1, u"", u"abc"},
      {u"abc", u"-", 7, u"c", u"ab"},
      {u"abc", u"A", 1, u"", u"abc"},
      {u"", u"-", 1, u"", u""},
      // Overlapping occurrences, and those that touch, use up a count.
      {u"aaaa", u"aa", 1, u"", u"aa"},
      {u"aaaa", u"aa", 2, u"", u"aa"},
      {u"aaaa", u"aa", 3, u"", u"aa"},
      {u"aaaaa", u"aa", 4, u"", u""},
      {u"a--b", u"-", 2, u"", u"-b"},
      {u"a--b-c", u"-", 3, u"", u"c"},
      // At the very end.
      {u"ab-", u"-", 1, u"", u""},
      {u"ab-", u"-", 1, u"b", u""},
      // The end mark may stand at once behind the mark.
      {u"a-.b", u"-", 1, u".", u""},
      {u"a - b - c", u" - ", 1, u" - ", u"b"},
      {u"a-  b  -c", u"-", 1, u"-", u"b"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(MidFromMarker(c.text, c.mark, c.count, c.endMark), c.result)
        << c.text.size() << ' ' << c.count;
  }
}

TEST(MidFromMarker, FailsForAnOccurrenceBelowOne) {
  for (const Position count : std::initializer_list<Position>{-32'768, -1, 0}) {
    EXPECT_THROW(MidFromMarker(u"a-b", u"-", count, u""), RunError);
    EXPECT_THROW(MidFromMarker(u"a-b", u"-", count, u"b"), RunError);
  }
}

TEST(MidFromMarker, FailsBehindTheLastPosition) {
  const Text text = Text(32'765, u'a') + u"-";
  EXPECT_EQ(MidFromMarker(text, u"-", 1, u""), u"");
  EXPECT_THROW(MidFromMarker(u"a" + text, u"-", 1, u""), RunError);
  EXPECT_THROW(MidFromMarker(u"aa" + text, u"-", 1, u""), RunError);
}

TEST(MidTag, TakesItsFieldsAsTheyCome) {
  Evaluator evaluate;
  const CodeCase cases[] = {
      // The position form.
      {u"<MID>a b||1| </MID>", u"a"},
      {u"<MID>abc||2|</MID>", u"bc"},
      {u"<MID>abc|||</MID>", u"abc"},
      {u"<MID>abc||x|</MID>", u"abc"},
      {u"<MID>abc||2.5|</MID>", u"bc"},
      {u"<MID>abc||1.5|</MID>", u"bc"},
      {u"<MID>abc|| 2 |</MID>", u"bc"},
      {u"<MID>abc||&H2|</MID>", u"bc"},
      {u"<MID>abc||$2|</MID>", u"bc"},
      {u"<MID>abc||2</MID>", u"abc"},  // the number loses its only digit
      // The marker form.
      {u"<MID>a-b-c|-|2|</MID>", u"c"},
      {u"<MID>a-b-c|-|2</MID>", u"b-c"},
      {u"<MID>a-b-c|-||</MID>", u"b-c"},
      {u"<MID>a-b-c|-|x|</MID>", u"b-c"},
      {u"<MID>a-b-c|-|1.5|</MID>", u"c"},
      {u"<MID>a-b-c|-||-</MID>", u"b"},
      {u"<MID>a-b-c|-||-|x|y</MID>", u"b"},
      {u"<MID> a - b |-|1|</MID>", u"b"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(evaluate(c.Code), c.Result) << DisplayUtf8(c.Code);
  }
}

TEST(MidTag, AnEmptyFirstFieldMeansTheDefaultText) {
  Evaluator evaluate;
  EXPECT_EQ(evaluate(u"<MID></MID>", u"  a b "), u"a b");
  EXPECT_EQ(evaluate(u"<MID>|||</MID>", u"a b"), u"a b");
  EXPECT_EQ(evaluate(u"<MID>abc</MID>", u"x"), u"x");
  EXPECT_EQ(evaluate(u"<MID>a|b</MID>", u"x"), u"a");
  EXPECT_EQ(evaluate(u"<MID>||2|</MID>", u"xyz"), u"yz");
  EXPECT_EQ(evaluate(u"<MID>|y||</MID>", u"xyz"), u"z");
  EXPECT_EQ(evaluate(u"<MID> |||</MID>", u"xyz"), u"");
  EXPECT_EQ(evaluate(u"<MID></MID>", u""), u"");
}

TEST(MidTag, KeepsTheResultBeforeIfItFails) {
  Evaluator evaluate;
  const Text before = u"<MID>x|||</MID>,";
  const CodeCase cases[] = {
      {u"<MID>abc||0|</MID>", u"x,x"},
      {u"<MID>abc||-1|</MID>", u"x,x"},
      {u"<MID>abc||5|</MID>", u"x,x"},
      {u"<MID>abc||4|</MID>", u"x,"},
      {u"<MID>abc||40000|</MID>", u"x,x"},
      {u"<MID>abc||-40000|</MID>", u"x,x"},
      {u"<MID>abc||1E2|</MID>", u"x,x"},
      {u"<MID>a-b|-|0|</MID>", u"x,x"},
      {u"<MID>a-b|-|-1|</MID>", u"x,x"},
      // The occurrence is still 0, as the tag before didn't set it.
      {u"<MID>a-b|-|40000|</MID>", u"x,x"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(evaluate(before + c.Code), c.Result) << DisplayUtf8(c.Code);
  }
}

TEST(MidTag, AnOccurrenceOutOfRangeLeavesTheOneBefore) {
  Evaluator evaluate;
  EXPECT_EQ(evaluate(u"<MID>a-b-c|-|2|</MID>,<MID>d-e-f|-|40000|</MID>"), u"c,f");
  EXPECT_EQ(evaluate(u"<MID>a-b-c|-|1|</MID>,<MID>d-e-f|-|-40000|</MID>"), u"b-c,e-f");
  // An empty number sets it to 1 again.
  EXPECT_EQ(evaluate(u"<MID>a-b-c|-|2|</MID>,<MID>d-e-f|-||</MID>"), u"c,e-f");
  // The position form doesn't touch it.
  EXPECT_EQ(evaluate(u"<MID>a-b-c|-|2|</MID>,<MID>q||1|</MID>,<MID>d-e-f|-|40000|</MID>"),
            u"c,q,f");
}

}  // namespace
}  // namespace vorlane
