#include "platform/file_name_bytes.h"

#include <gtest/gtest.h>

#include <random>

namespace vorlane {
namespace {

std::string Bytes(std::initializer_list<int> values) {
  std::string bytes;
  for (const int value : values) {
    bytes.push_back(static_cast<char>(value));
  }
  return bytes;
}

Text Units(std::initializer_list<int> values) {
  Text text;
  for (const int value : values) {
    text.push_back(static_cast<char16_t>(value));
  }
  return text;
}

// A name never holds a NUL byte; all other bytes may come in any order.
void ExpectComesBack(const std::string& bytes) {
  const Text text = TextFromBytes(bytes);
  const auto back = BytesFromText(text);
  if (bytes.find('\0') != std::string::npos) {
    EXPECT_EQ(back, std::nullopt);
    return;
  }
  ASSERT_TRUE(back.has_value()) << testing::PrintToString(bytes);
  EXPECT_EQ(*back, bytes) << testing::PrintToString(bytes);
  EXPECT_EQ(ReplaceUnpairedSurrogates(text), text) << testing::PrintToString(bytes);
  EXPECT_EQ(DisplayUtf8(text), bytes) << testing::PrintToString(bytes);
}

TEST(FileNameBytes, ValidUtf8BecomesItsCharacters) {
  EXPECT_EQ(TextFromBytes(""), u"");
  EXPECT_EQ(TextFromBytes("plain name.mp3"), u"plain name.mp3");
  EXPECT_EQ(TextFromBytes("\xC3\xA9\xE6\x97\xA5\xF0\x9F\x98\x80"), u"é日\U0001F600");
  EXPECT_EQ(TextFromBytes(Bytes({0x7F, 0xC2, 0x80, 0xDF, 0xBF})), Units({0x7F, 0x80, 0x7FF}));
  EXPECT_EQ(TextFromBytes(Bytes({0xE0, 0xA0, 0x80, 0xED, 0x9F, 0xBF})), Units({0x800, 0xD7FF}));
  EXPECT_EQ(TextFromBytes(Bytes({0xEE, 0x80, 0x80, 0xEF, 0xBF, 0xBF})), Units({0xE000, 0xFFFF}));
  EXPECT_EQ(TextFromBytes(Bytes({0xF0, 0x90, 0x80, 0x80})), Units({0xD800, 0xDC00}));
  EXPECT_EQ(TextFromBytes(Bytes({0xF4, 0x8F, 0xBF, 0xBF})), Units({0xDBFF, 0xDFFF}));
}

TEST(FileNameBytes, NothingIsNormalised) {
  EXPECT_EQ(TextFromBytes("e\xCC\x81"), u"e\u0301");
  EXPECT_EQ(BytesFromText(u"e\u0301"), "e\xCC\x81");
}

TEST(FileNameBytes, EachByteOfAnInvalidSequenceIsEscaped) {
  const struct {
    const char* What;
    std::string Invalid;
  } cases[] = {
      {"a continuation byte alone", Bytes({0x80})},
      {"another one", Bytes({0xBF})},
      {"overlong, two bytes", Bytes({0xC0, 0x80})},
      {"overlong, two bytes", Bytes({0xC1, 0xBF})},
      {"overlong, three bytes", Bytes({0xE0, 0x9F, 0xBF})},
      {"overlong, four bytes", Bytes({0xF0, 0x8F, 0xBF, 0xBF})},
      {"first surrogate", Bytes({0xED, 0xA0, 0x80})},
      {"last surrogate", Bytes({0xED, 0xBF, 0xBF})},
      {"a pair of surrogates", Bytes({0xED, 0xA0, 0x80, 0xED, 0xB0, 0x80})},
      {"past U+10FFFF", Bytes({0xF4, 0x90, 0x80, 0x80})},
      {"a lead of old", Bytes({0xF8, 0x88, 0x80, 0x80, 0x80})},
      {"no lead at all", Bytes({0xFE, 0xFF})},
      {"cut after one of two", Bytes({0xC3})},
      {"cut after two of three", Bytes({0xE6, 0x97})},
      {"cut after three of four", Bytes({0xF0, 0x9F, 0x98})},
  };
  for (const auto& c : cases) {
    Text escaped;
    for (const char byte : c.Invalid) {
      escaped.push_back(static_cast<char16_t>(0xDC00 + static_cast<unsigned char>(byte)));
    }
    EXPECT_EQ(TextFromBytes(c.Invalid), escaped) << c.What;
    EXPECT_EQ(TextFromBytes("a" + c.Invalid + "b"), u"a" + escaped + u"b") << c.What;
    EXPECT_EQ(TextFromBytes(c.Invalid + "\xC3\xA9"), escaped + u"é") << c.What;
    EXPECT_EQ(BytesFromText(escaped), c.Invalid) << c.What;
    EXPECT_FALSE(IsValidUtf8(c.Invalid)) << c.What;
    EXPECT_FALSE(IsValidUtf8("a" + c.Invalid)) << c.What;
  }
}

TEST(FileNameBytes, BytesBehindTheEndAreNotRead) {
  EXPECT_EQ(TextFromBytes(std::string_view("\xC3\xA9").substr(0, 1)), Units({0xDCC3}));
  EXPECT_EQ(TextFromBytes(std::string_view("\xF0\x9F\x98\x80").substr(0, 3)),
            Units({0xDCF0, 0xDC9F, 0xDC98}));
  EXPECT_EQ(BytesFromText(TextView(u"\U0001F600").substr(0, 1)), std::nullopt);
}

TEST(FileNameBytes, EveryOneAndTwoByteSequenceComesBack) {
  for (int first = 0; first < 256; ++first) {
    ExpectComesBack(Bytes({first}));
    for (int second = 0; second < 256; ++second) {
      ExpectComesBack(Bytes({first, second}));
    }
  }
}

TEST(FileNameBytes, EveryThreeAndFourByteSequenceOfTellingBytesComesBack) {
  // The bytes at which a rule of UTF-8 changes.
  const int telling[] = {0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC0, 0xC1, 0xC2, 0xDF,
                         0xE0, 0xE1, 0xEC, 0xED, 0xEE, 0xEF, 0xF0, 0xF1, 0xF3, 0xF4, 0xF5, 0xFF};
  for (const int a : telling) {
    for (const int b : telling) {
      for (const int c : telling) {
        ExpectComesBack(Bytes({a, b, c}));
        for (const int d : telling) {
          ExpectComesBack(Bytes({a, b, c, d}));
        }
      }
    }
  }
}

TEST(FileNameBytes, RandomSequencesComeBack) {
  for (unsigned seed = 1; seed <= 20000; ++seed) {
    std::mt19937 random(seed);
    std::string bytes;
    const auto length = random() % 40;
    for (unsigned i = 0; i < length; ++i) {
      // Mostly leads and continuations, so that sequences of every length meet.
      const bool high = random() % 4 != 0;
      bytes.push_back(static_cast<char>(high ? 0x80 + random() % 128 : 1 + random() % 127));
    }
    SCOPED_TRACE(seed);
    ExpectComesBack(bytes);
  }
}

TEST(FileNameBytes, EveryCharacterComesBack) {
  for (char32_t character = 1; character <= 0x10FFFF; ++character) {
    if (character >= 0xD800 && character <= 0xDFFF) {
      continue;
    }
    Text text;
    if (character < 0x10000) {
      text = Units({static_cast<int>(character)});
    } else {
      const int offset = static_cast<int>(character) - 0x10000;
      text = Units({0xD800 + offset / 0x400, 0xDC00 + offset % 0x400});
    }
    const auto bytes = BytesFromText(text);
    ASSERT_TRUE(bytes.has_value()) << std::hex << static_cast<int>(character);
    ASSERT_TRUE(IsValidUtf8(*bytes)) << std::hex << static_cast<int>(character);
    ASSERT_EQ(TextFromBytes(*bytes), text) << std::hex << static_cast<int>(character);
  }
}

TEST(FileNameBytes, TextThatNoNameCanHoldIsRefused) {
  EXPECT_EQ(BytesFromText(Units({'a', 0, 'b'})), std::nullopt);
  EXPECT_EQ(BytesFromText(Units({0xD800})), std::nullopt);
  EXPECT_EQ(BytesFromText(Units({0xDBFF, 'a'})), std::nullopt);
  EXPECT_EQ(BytesFromText(Units({0xD83D, 0xD83D, 0xDE00})), std::nullopt);
  EXPECT_EQ(BytesFromText(Units({0xDC00})), std::nullopt);
  EXPECT_EQ(BytesFromText(Units({0xDC7F})), std::nullopt);
  EXPECT_EQ(BytesFromText(Units({0xDD00})), std::nullopt);
  EXPECT_EQ(BytesFromText(Units({0xDFFF})), std::nullopt);
  EXPECT_EQ(BytesFromText(u""), "");
}

TEST(FileNameBytes, AnEscapeBehindAHighSurrogateIsTheOtherHalfOfItsPair) {
  EXPECT_EQ(BytesFromText(Units({0xD800, 0xDC80})), Bytes({0xF0, 0x90, 0x82, 0x80}));
  EXPECT_EQ(BytesFromText(Units({0xD800, 0xDC80, 0xDC80})), Bytes({0xF0, 0x90, 0x82, 0x80, 0x80}));
  EXPECT_EQ(BytesFromText(Units({0xDC80, 0xDCFF})), Bytes({0x80, 0xFF}));
}

TEST(FileNameBytes, WhatIsRefusedIsShownAsTheReplacementCharacter) {
  EXPECT_EQ(DisplayUtf8(Units({'a', 0xD800, 'b'})),
            "a\xEF\xBF\xBD"
            "b");
  EXPECT_EQ(DisplayUtf8(Units({0, 0xDFFF})), "\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(DisplayUtf8(u"é\U0001F600"), "\xC3\xA9\xF0\x9F\x98\x80");
  EXPECT_EQ(DisplayUtf8(Units({0xDCE9})), "\xE9");
}

TEST(FileNameBytes, IsValidUtf8TakesEmptyTextAndNul) {
  EXPECT_TRUE(IsValidUtf8(""));
  EXPECT_TRUE(IsValidUtf8(Bytes({'a', 0, 0xC3, 0xA9})));
}

TEST(FileNameBytes, HalvesOfPairsAreReplacedByAnUnderline) {
  EXPECT_EQ(ReplaceUnpairedSurrogates(Units({'a', 0xD83D, 'b', 0xDE00})), u"a_b_");
  EXPECT_EQ(ReplaceUnpairedSurrogates(Units({0xD83D, 0xD83D, 0xDE00})), u"_\U0001F600");
  EXPECT_EQ(ReplaceUnpairedSurrogates(Units({0xDC80, 0xDC7F})), Units({0xDC80, '_'}));
  EXPECT_EQ(ReplaceUnpairedSurrogates(Units({0xD800})), u"_");
  EXPECT_EQ(ReplaceUnpairedSurrogates(u"plain é\U0001F600"), u"plain é\U0001F600");
  EXPECT_EQ(ReplaceUnpairedSurrogates(Units({'a', 0})), Units({'a', 0}));
}

}  // namespace
}  // namespace vorlane
