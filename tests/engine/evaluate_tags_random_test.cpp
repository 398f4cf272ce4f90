// The evaluator against the literal one, on codes that no person would write.
#include <gtest/gtest.h>

#include <array>
#include <random>
#include <vector>

#include "engine/evaluate_tags.h"
#include "engine/function_tags.h"
#include "engine/literal_evaluator.h"
#include "platform/file_name_bytes.h"
#include "support/counting_loop.h"
#include "support/fake_facts.h"

namespace vorlane {
namespace {

class RandomCodes {
 public:
  explicit RandomCodes(unsigned seed) : random_(seed) {}

  int Below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(random_); }

  // The next codes are made of a few kinds of tags, so that they meet their own kind.
  void ChooseKinds() {
    for (auto& kind : kinds_) {
      kind = static_cast<std::size_t>(Below(static_cast<int>(FunctionTags.size())));
    }
  }

  // Anything next to anything: mostly unbalanced.
  Text Pieces(int most) {
    Text code;
    for (int left = Below(most) + 1; left > 0; --left) {
      const FunctionTag& tag = AnyTag();
      switch (Below(5)) {
        case 0:
          code += tag.Opening;
          break;
        case 1:
          code += tag.Closing;
          break;
        case 2:
          code += u"|";
          break;
        default:
          code += Word();
      }
    }
    return code;
  }

  // Balanced for the most part, as an operation's author would nest them.
  Text Expression(int depth) {
    Text code;
    for (int left = Below(3) + 1; left > 0; --left) {
      const FunctionTag& tag = AnyTag();
      if (depth == 0 || Below(3) == 0) {
        code += Word();
        continue;
      }
      code += Below(25) == 0 ? TextView() : tag.Opening;
      const int bars = Below(8) == 0 ? Below(6) : (Below(2) == 0 ? 3 : 1);
      for (int bar = 0; bar < bars; ++bar) {
        code += Field(depth) + u"|";
      }
      code += Field(depth);
      code += Below(25) == 0 ? TextView() : tag.Closing;
    }
    return code;
  }

 private:
  Text Field(int depth) {
    const int kind = Below(4);
    return kind == 0 ? Text() : kind == 1 ? Expression(depth - 1) : Text(Word());
  }

  const FunctionTag& AnyTag() {
    return FunctionTags[kinds_[Below(static_cast<int>(kinds_.size()))]];
  }

  TextView Word() {
    static const std::vector<TextView> words = {
        u"a",
        u"b",
        u"aa",
        u" ",
        u" - ",
        u"-",
        u".",
        u"1",
        u"2",
        u"3",
        u"0",
        u"-1",
        u"2.5",
        u"65",
        u"300",
        u"40000",
        u"3E9",
        u"&H41",
        u"-3000000000",
        u"1/2/2003",
        u"4:05 PM",
        u"<FOO>",
        u"<",
        u">",
        u"</",
        u"MID>",
        u"<mid>",
        u"C:\\",
        u"\\",
        u"/",
        u"\\\\",
        u"//",
        u"Make",
        u"the CAT's",
        u"(x",
        u"\u00DF\u00E9",
        u"\xD83D\xDE00",
        u"?",
        u"||",
        u"x y",
    };
    return words[static_cast<std::size_t>(Below(static_cast<int>(words.size())))];
  }

  std::mt19937 random_;
  std::array<std::size_t, 3> kinds_ = {};
};

struct Tally {
  int Compared = 0;
  int Skipped = 0;
};

// Skips what the literal evaluator gives up on.
void Compare(const Text& code, const Text& defaultText, PathStyle style, LiteralLimits limits,
             Tally& tally) {
  const Text path = style == PathStyle::Windows ? u"C:\\Music\\" : u"/music/";
  FakeFacts facts;
  facts.ExifByName = {{u"Make", u"Acme"}, {u"a", u"<TRY>x|y</TRY>"}};
  facts.ExifFails = code.size() % 3 == 0;
  CountingLoop literalLoop;
  EvaluationContext literalContext{facts, literalLoop, style};
  const auto expected =
      LiterallyEvaluate(code, path, u"name.ext", defaultText, literalContext, limits);
  if (!expected) {
    ++tally.Skipped;
    return;
  }
  CountingLoop loop;
  EvaluationContext context{facts, loop, style};
  const Text result = EvaluateTags(code, path, u"name.ext", defaultText, context);
  ++tally.Compared;
  ASSERT_EQ(result, *expected) << DisplayUtf8(code.substr(0, 2000)) << " with "
                               << DisplayUtf8(defaultText);
  // The pass that finds out that nothing changes any more may be another one.
  if (!ContainsFunctionTag(result)) {
    ASSERT_EQ(loop.Yields, literalLoop.Yields) << DisplayUtf8(code.substr(0, 2000));
  }
}

TEST(EvaluateTagsAtRandom, UnbalancedPiecesGiveWhatTheStepsSay) {
  RandomCodes codes(1);
  Tally tally;
  for (int i = 0; i < 20'000; ++i) {
    codes.ChooseKinds();
    const Text defaultText = codes.Below(20) == 0 ? codes.Pieces(6) : Text(u"A b - c");
    const auto style = codes.Below(2) == 0 ? PathStyle::Windows : PathStyle::Posix;
    ASSERT_NO_FATAL_FAILURE(Compare(codes.Pieces(30), defaultText, style, {}, tally)) << i;
  }
  EXPECT_GT(tally.Compared, 100 * tally.Skipped);
}

TEST(EvaluateTagsAtRandom, NestedExpressionsGiveWhatTheStepsSay) {
  RandomCodes codes(2);
  Tally tally;
  for (int i = 0; i < 20'000; ++i) {
    codes.ChooseKinds();
    const Text defaultText = codes.Below(20) == 0 ? codes.Expression(2) : Text(u"A b - c");
    const auto style = codes.Below(2) == 0 ? PathStyle::Windows : PathStyle::Posix;
    ASSERT_NO_FATAL_FAILURE(Compare(codes.Expression(3), defaultText, style, {}, tally)) << i;
  }
  EXPECT_GT(tally.Compared, 100 * tally.Skipped);
}

TEST(EvaluateTagsAtRandom, TextsAroundTheLastPositionGiveWhatTheStepsSay) {
  RandomCodes codes(3);
  Tally tally;
  for (int i = 0; i < 300; ++i) {
    codes.ChooseKinds();
    Text code = codes.Below(2) == 0 ? codes.Pieces(30) : codes.Expression(2);
    const int filler = 32'767 - codes.Below(static_cast<int>(code.size()) + 30) + 10;
    code.insert(static_cast<std::size_t>(codes.Below(static_cast<int>(code.size()) + 1)),
                static_cast<std::size_t>(filler), u'z');
    ASSERT_NO_FATAL_FAILURE(
        Compare(code, u"A b - c", PathStyle::Posix, {.LongestCode = 100'000}, tally))
        << i;
  }
  EXPECT_GT(tally.Compared, 100 * tally.Skipped);
}

}  // namespace
}  // namespace vorlane
