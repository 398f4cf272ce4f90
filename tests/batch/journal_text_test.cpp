#include "batch/journal_text.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/vendor.h"

namespace vorlane {
namespace {

TEST(JournalHeader, HasExactly193Bytes) {
  EXPECT_EQ(ApplicationTitle.size() + 3 + VendorAddress.size(), 43U);
  EXPECT_EQ(VendorAddress.size(), 28U);
  EXPECT_EQ(JournalHeader().size(), JournalHeaderSize);
  EXPECT_EQ(JournalHeaderSize, 193U);
}

TEST(JournalHeader, ReadsAsSixLines) {
  EXPECT_EQ(JournalHeader(),
            "Vorlane 2006 - https://www.vorlane.example/\r\n\r\n"
            "This is an automatically generated Undo File. Do not edit.\r\n" +
                std::string(80, '-') + "\r\n\r\n\r\n");
}

TEST(JournalFields, OrdinaryNamesStandAsTheyAre) {
  EXPECT_EQ(JournalNameField(u"a b.mp3"), "a b.mp3");
  EXPECT_EQ(JournalNameField(u"\u00FC\u20AC/\\"), "\xFC\x80/\\");
}

TEST(JournalFields, WhatALineCannotCarryIsEscaped) {
  const std::pair<Text, std::string> cases[] = {
      {u"a|b", "a//007Cb"},
      {u"a\r\nb", "a//000D//000Ab"},
      {u"\u65E5", "//65E5"},
      {Text(1, static_cast<char16_t>(0xDC80)), "//DC80"},
      {u"\U0001F600", "//D83D//DE00"},
      {u"\u0081", "\x81"},
  };
  for (const auto& [name, field] : cases) {
    EXPECT_EQ(JournalNameField(name), field);
    EXPECT_EQ(TextOfJournalField(field), name);
  }
}

TEST(JournalFields, EveryUnitComesBack) {
  for (std::uint32_t unit = 1; unit <= 0xFFFF; ++unit) {
    if (unit == u'/') {
      continue;  // never in a name
    }
    const Text name = Text(u"a") + static_cast<char16_t>(unit) + u"0";
    ASSERT_EQ(TextOfJournalField(JournalNameField(name)), name) << unit;
    ASSERT_EQ(JournalNameField(name).find_first_of("|\r\n"), std::string::npos) << unit;
  }
}

TEST(JournalFields, SlashesWithoutFourDigitsAreNoEscape) {
  EXPECT_EQ(TextOfJournalField("//12"), u"//12");
  EXPECT_EQ(TextOfJournalField("//12G4"), u"//12G4");
  EXPECT_EQ(TextOfJournalField("//-123"), u"//-123");
  EXPECT_EQ(TextOfJournalField("/a//0041/"), u"/aA/");
}

TEST(JournalFields, FoldersHaveSingleSeparators) {
  EXPECT_EQ(JournalFolderField(u"//a///b|/", PathStyle::Posix), "/a/b//007C/");
  EXPECT_EQ(JournalFolderField(u"\\\\server\\share\\", PathStyle::Windows), "\\\\server\\share\\");
  EXPECT_EQ(TextOfJournalField("/a/b//007C/"), u"/a/b|/");
}

TEST(JournalFields, ATagsLineBreaksDoNotEndItsRecord) {
  const Text tag = u"2|-1||||01||19\r\n|0";
  EXPECT_EQ(JournalTagFields(tag), "2|-1||||01||19//000D//000A|0");
  EXPECT_EQ(TextOfJournalTagFields(JournalTagFields(tag)), tag);
}

TEST(JournalFields, ATextThatLooksLikeALineBreakComesBack) {
  const std::pair<Text, std::string> cases[] = {
      {u"//000D", "//002F/000D"},   {u"//000A//002F", "//002F/000A//002F/002F"},
      {u"///000D", "///002F/000D"}, {u"/\r", "///000D"},
      {u"//\n", "////000A"},        {u"//00\r0D", "//00//000D0D"},
      {u"12//9", "12//9"},          {u"//007C//000d//000", "//007C//000d//000"},
  };
  for (const auto& [text, written] : cases) {
    EXPECT_EQ(JournalTagFields(text), written);
    EXPECT_EQ(TextOfJournalTagFields(written), text);
  }
}

TEST(JournalFields, EveryTagComesBack) {
  constexpr TextView pieces[] = {u"/", u"//", u"//000D", u"000A", u"//002F", u"00", u"\r", u"\n"};
  std::mt19937 random(1);
  for (int round = 0; round < 5000; ++round) {
    Text tag;
    for (auto count = random() % 6; count > 0; --count) {
      tag += pieces[random() % std::size(pieces)];
    }
    const std::string written = JournalTagFields(tag);
    EXPECT_EQ(written.find_first_of("\r\n"), std::string::npos) << written;
    EXPECT_EQ(TextOfJournalTagFields(written), tag) << written;
  }
}

TEST(JournalHeader, TellsAJournalFromSomebodysFile) {
  const std::string header = JournalHeader();
  EXPECT_TRUE(IsJournalText(header));
  EXPECT_TRUE(IsJournalText(header + "<VORL>|"));
  EXPECT_TRUE(IsJournalText(header.substr(0, 60)));  // cut short
  EXPECT_TRUE(IsJournalText("Another 1.0 - https://x/\r\n\r\n" + header.substr(47)));
  EXPECT_FALSE(IsJournalText(""));
  EXPECT_FALSE(IsJournalText("Vorlane"));
  EXPECT_FALSE(IsJournalText("my own notes"));
}

TEST(JournalLines, AreWhatStandsBehindTheHeader) {
  const std::string header = JournalHeader();
  EXPECT_EQ(JournalLines(header + "one\r\ntwo\r\n"), (std::vector<std::string>{"one", "two"}));
  EXPECT_EQ(JournalLines(header + "open"), (std::vector<std::string>{"op"}));
  EXPECT_TRUE(JournalLines(header).empty());
  EXPECT_TRUE(JournalLines(header + "\n").empty());
  EXPECT_EQ(JournalLines(header + "\r\n"), (std::vector<std::string>{""}));
  EXPECT_TRUE(JournalLines("no header\r\n\r\n").empty());
  EXPECT_TRUE(JournalLines("").empty());
}

TEST(JournalLines, ARecordIsSplitAtItsBars) {
  EXPECT_EQ(SplitRecord("<VORL>|/R/|a|b"), (std::vector<std::string>{"<VORL>", "/R/", "a", "b"}));
  EXPECT_EQ(SplitRecord(""), (std::vector<std::string>{""}));
}

}  // namespace
}  // namespace vorlane
