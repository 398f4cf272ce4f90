#include <gtest/gtest.h>

#include "preview/preview.h"

namespace vorlane {
namespace {

TEST(CleanFileName, TrimsAndReplacesNineCharacters) {
  const std::pair<Text, Text> cases[] = {
      {u"", u""},
      {u"   ", u""},
      {u"  a b  ", u"a b"},
      {u"a\\b/c:d*e?f\"g<h>i|j", u"a_b_c_d_e_f_g_h_i_j"},
      {u"3:45:12 PM", u"3_45_12 PM"},
      {u"<FILESIZE>", u"_FILESIZE_"},
      {u"\t\u00E4.\u4E2D", u"\t\u00E4.\u4E2D"},
  };
  for (const auto& [text, cleaned] : cases) {
    EXPECT_EQ(CleanFileName(text), cleaned);
  }
}

TEST(CleanFileName, HalfOfASurrogatePairCannotStandInAName) {
  EXPECT_EQ(CleanFileName(Text(u"a") + static_cast<char16_t>(0xD83D)), u"a_");
  EXPECT_EQ(CleanFileName(Text(1, static_cast<char16_t>(0xDE00)) + u"a"), u"_a");
  EXPECT_EQ(CleanFileName(u"\U0001F600"), u"\U0001F600");
  // A byte that isn't UTF-8 is part of a name that exists.
  const Text oddByte = Text(u"a") + static_cast<char16_t>(0xDCE4);
  EXPECT_EQ(CleanFileName(oddByte), oddByte);
}

}  // namespace
}  // namespace vorlane
