#include "engine/proper_case.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(ProperCase, BeginsWordsInUpperCase) {
  const struct {
    Text text, result;
  } cases[] = {
      {u"", u""},
      {u"   ", u""},
      {u"a", u"A"},
      {u"  aB  ", u"Ab"},
      {u"the BEATLES-live at o'hara's (part.two)_a", u"The Beatles-Live At O'hara's (Part.Two)_A"},
      {u"a_b-c.d(e f", u"A_B-C.D(E F"},
      {u"1st 2ND", u"1st 2nd"},
      {u"o'hara [live] r&b a)b a/b a,b a+b", u"O'hara [live] R&b A)b A/b A,b A+b"},
      {u"a\tb\u00A0c", u"A\tb\u00A0c"},
      {u"--a  b", u"--A  B"},
      {u"\u00E9T\u00C9 \u00E9", u"\u00C9t\u00E9 \u00C9"},
      {u"STRA\u00DFE \u00DFa", u"Stra\u00DFe \u00DFa"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ProperCase(c.text), c.result) << c.text.size();
  }
}

}  // namespace
}  // namespace vorlane
