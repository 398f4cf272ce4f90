#include "catalogue/text_file.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using namespace std::string_view_literals;

TEST(TextFile, IsUtf8OnlyWithAMarkOrIfAllOfItIs) {
  const struct {
    std::string_view bytes;
    TextView text;
  } cases[] = {
      {"", u""},
      {"plain", u"plain"},
      {"\xEF\xBB\xBFplain", u"plain"},
      {"\xEF\xBB\xBF", u""},
      {"gr\xC3\xBC\xC3\x9F", u"gr\u00FC\u00DF"},
      {"\xEF\xBB\xBFgr\xC3\xBC", u"gr\u00FC"},
      {"\xF0\x9F\x8E\xB5", u"\U0001F3B5"},
      // The same letters in the code page.
      {"gr\xFC\xDF", u"gr\u00FC\u00DF"},
      {"\x80 \x93x\x94", u"\u20AC \u201Cx\u201D"},
      {"\x81\x8D\x8F\x90\x9D", u"\u0081\u008D\u008F\u0090\u009D"},
      // One bad byte, and nothing of it is UTF-8.
      {"gr\xC3\xBC \xFC", u"gr\u00C3\u00BC \u00FC"},
      {"\xED\xA0\x80", u"\u00ED\u00A0\u20AC"},
      {"cut \xE2\x82", u"cut \u00E2\u201A"},
      // A mark decides, whatever follows: bad bytes come as they do in file names.
      {"\xEF\xBB\xBFgr\xFC", u"gr\xDCFC"},
      // Half a mark, or one further on, is text.
      {"\xEF\xBB", u"\u00EF\u00BB"},
      {"a\xEF\xBB\xBF", u"a\uFEFF"},
      {"a\0b"sv, u"a\0b"sv},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(DecodeTextFile(c.bytes), c.text) << c.bytes;
  }
}

TEST(TextFile, LineFeedsCountAsLineEndsIfThereAreNoOthers) {
  EXPECT_EQ(DecodeTextFile("a\nb\n\n"), u"a\r\nb\r\n\r\n");
  EXPECT_EQ(DecodeTextFile("\xEF\xBB\xBF\xC3\xA4\n"), u"\u00E4\r\n");
  EXPECT_EQ(DecodeTextFile("a\nb\r\nc"), u"a\nb\r\nc");
  EXPECT_EQ(DecodeTextFile("a\rb\nc"), u"a\rb\r\nc");
  EXPECT_EQ(DecodeTextFile("a\rb"), u"a\rb");
}

}  // namespace
}  // namespace vorlane
