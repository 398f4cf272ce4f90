#include "platform/letter_case.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(LetterCase, MapsLettersOfAllScripts) {
  const struct {
    Text lower, upper;
  } cases[] = {
      {u"abcxyz", u"ABCXYZ"}, {u"àéîõüøþ", u"ÀÉÎÕÜØÞ"}, {u"āğłňőšž", u"ĀĞŁŇŐŠŽ"},
      {u"αβγλωά", u"ΑΒΓΛΩΆ"}, {u"абвяё", u"АБВЯЁ"},     {u"աբգ", u"ԱԲԳ"},
      {u"ṁẁạ", u"ṀẀẠ"},       {u"ⅰⅳⓐ", u"ⅠⅣⒶ"},         {u"ａｚ", u"ＡＺ"},
      {u"ა", u"\u1C90"},      {u"ꭰ", u"\u13A0"},      {u"ǆǉ", u"ǄǇ"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(UpperCase(c.lower), c.upper);
    EXPECT_EQ(LowerCase(c.upper), c.lower);
    EXPECT_EQ(UpperCase(c.upper), c.upper);
    EXPECT_EQ(LowerCase(c.lower), c.lower);
  }
}

TEST(LetterCase, OneUnitStaysOneUnit) {
  EXPECT_EQ(UpperCase(u"straße ŉ ﬁ"), u"STRAßE ŉ ﬁ");
  EXPECT_EQ(LowerCase(u"ẞ"), u"ß");
  EXPECT_EQ(LowerCase(u"İ"), u"i");
  EXPECT_EQ(UpperCase(u"ı"), u"I");
  EXPECT_EQ(UpperCase(u"ÿµſ"), u"Ÿ\u039CS");
  EXPECT_EQ(UpperCase(u"ς"), u"Σ");
  EXPECT_EQ(LowerCase(u"Σ"), u"σ");
}

TEST(LetterCase, OtherCharactersStay) {
  const Text others = u"0129 _-.([{@`~×÷日本\u0301\uFFFF";
  EXPECT_EQ(UpperCase(others), others);
  EXPECT_EQ(LowerCase(others), others);
  // Deseret letters have two cases, but each takes two units.
  EXPECT_EQ(LowerCase(u"\U00010400"), u"\U00010400");
  EXPECT_EQ(UpperCase(u"\U00010428"), u"\U00010428");
  for (int unit = 0xD800; unit <= 0xDFFF; ++unit) {
    EXPECT_EQ(UpperCase(static_cast<char16_t>(unit)), unit);
    EXPECT_EQ(LowerCase(static_cast<char16_t>(unit)), unit);
  }
}

TEST(LetterCase, NoCharacterIsMissingFromTheTable) {
  // As many as UnicodeData.txt 15.0 has up to U+FFFF.
  int upper = 0;
  int lower = 0;
  for (int unit = 0; unit < 0x10000; ++unit) {
    const auto character = static_cast<char16_t>(unit);
    upper += UpperCase(character) != character;
    lower += LowerCase(character) != character;
    // Folding once is folding for good.
    EXPECT_EQ(UpperCase(UpperCase(character)), UpperCase(character)) << std::hex << unit;
  }
  EXPECT_EQ(upper, 1190);
  EXPECT_EQ(lower, 1173);
}

TEST(LetterCase, NamesAreComparedWithoutRegardToCase) {
  const struct {
    Text a, b;
    int result;
  } cases[] = {
      {u"", u"", 0},
      {u"", u"a", -1},
      {u"Name.MP3", u"name.mp3", 0},
      {u"ÄÖÜ", u"äöü", 0},
      {u"ab", u"ABC", -1},
      {u"b", u"A", 1},
      // The upper case decides: "_" stands behind the upper-case letters, in front of the lower.
      {u"a", u"_", -1},
      {u"Z", u"_", -1},
      {u"ß", u"ss", 1},
      {u"\uFF5A", Text(1, 0xDC80), 1},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(CompareIgnoringCase(c.a, c.b), c.result);
    EXPECT_EQ(CompareIgnoringCase(c.b, c.a), -c.result);
    EXPECT_EQ(EqualIgnoringCase(c.a, c.b), c.result == 0);
    EXPECT_EQ(HashIgnoringCase(c.a) == HashIgnoringCase(c.b), c.result == 0);
  }
}

TEST(LetterCase, ComparisonAgreesWithTheFoldedTexts) {
  // Every pair of characters in and around the first scripts.
  for (int first = 0; first < 0x600; ++first) {
    for (int second = 0; second < 0x600; ++second) {
      const Text a(1, static_cast<char16_t>(first));
      const Text b(1, static_cast<char16_t>(second));
      const int expected = FoldCase(a).compare(FoldCase(b));
      const int result = CompareIgnoringCase(a, b);
      ASSERT_TRUE(expected < 0   ? result < 0
                  : expected > 0 ? result > 0
                                 : result == 0)
          << std::hex << first << " " << second;
    }
  }
}

}  // namespace
}  // namespace vorlane
