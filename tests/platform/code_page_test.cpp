#include "platform/code_page.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(CodePage, MapsTheBytesFrom80To9F) {
  // Written out as characters, so that a slip in the table's figures shows.
  EXPECT_EQ(TextFromCodePage("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"),
            u"€‚ƒ„…†‡ˆ‰Š‹ŒŽ");
  EXPECT_EQ(TextFromCodePage("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"),
            u"‘’“”•–—˜™š›œžŸ");
}

TEST(CodePage, BytesWithoutACharacterStandForThemselves) {
  for (const int byte : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
    EXPECT_EQ(CharacterOfByte(static_cast<std::uint8_t>(byte)), byte);
  }
}

TEST(CodePage, OtherBytesAreTheCharacterOfTheSameNumber) {
  for (int byte = 0; byte < 256; ++byte) {
    if (byte < 0x80 || byte > 0x9F) {
      EXPECT_EQ(CharacterOfByte(static_cast<std::uint8_t>(byte)), byte);
    }
  }
  EXPECT_EQ(TextFromCodePage("\xFF\xFE\xE9\xDF"), u"ÿþéß");
}

TEST(CodePage, EveryByteComesBack) {
  for (int byte = 0; byte < 256; ++byte) {
    EXPECT_EQ(ByteOfCharacter(CharacterOfByte(static_cast<std::uint8_t>(byte))), byte);
  }
}

TEST(CodePage, ExactlyTheCharactersOfThePageHaveAByte) {
  int count = 0;
  for (int unit = 0; unit < 0x10000; ++unit) {
    const auto byte = ByteOfCharacter(static_cast<char16_t>(unit));
    if (byte) {
      ++count;
      EXPECT_EQ(CharacterOfByte(*byte), unit);
    }
  }
  EXPECT_EQ(count, 256);
  EXPECT_EQ(ByteOfCharacter(0x80), std::nullopt);
  EXPECT_EQ(ByteOfCharacter(u'日'), std::nullopt);
}

TEST(CodePage, AUnitWithoutAByteIsWrittenAsAQuestionMark) {
  EXPECT_EQ(CodePageBytes(u"a日b\u0080€"), "a?b?\x80");
  EXPECT_EQ(CodePageBytes(u"\U0001F600"), "??");
  EXPECT_EQ(CodePageBytes(Text(u"a\0b", 3)), std::string("a\0b", 3));
  EXPECT_EQ(CodePageBytes(u""), "");
  EXPECT_EQ(TextFromCodePage(""), u"");
}

TEST(CodePage, AUnitWithoutAByteCanStandAsItsNumber) {
  EXPECT_EQ(EscapedCodePageBytes(u"a\u65E5|\u0080\u20AC\r\n"), "a//65E5|//0080\x80\r\n");
  EXPECT_EQ(EscapedCodePageBytes(u"\xDCAB//"), "//DCAB//");
}

}  // namespace
}  // namespace vorlane
