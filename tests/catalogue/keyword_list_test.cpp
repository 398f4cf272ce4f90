#include "catalogue/keyword_list.h"

#include <gtest/gtest.h>

#include "platform/file_name_bytes.h"
#include "support/memory_file_system.h"

namespace vorlane {
namespace {

using Texts = std::vector<Text>;

struct Case {
  const char* Name;
  Text File;
  Texts Entries;
  Texts Help;
};

class KeywordListCases : public testing::TestWithParam<Case> {};

TEST_P(KeywordListCases, AreReadAsTold) {
  const KeywordList list = LoadKeywordList(GetParam().File);
  EXPECT_EQ(list.Entries, GetParam().Entries);
  EXPECT_EQ(list.KeywordHelp, GetParam().Help);
  EXPECT_FALSE(list.Failure);
}

INSTANTIATE_TEST_SUITE_P(
    All, KeywordListCases,
    testing::Values(
        Case{"TwoEntries",
             u"<NAMEONLY>\r\n'The name of the file. It has no extension.\r\n\r\n"
             u"<MID>|text|start|end|</MID>\r\n'Cuts a piece out of a text.",
             {u"<NAMEONLY>", u"<MID>|text|start|end|</MID>"},
             {u"The name of the file.\r\nIt has no extension.", u"Cuts a piece out of a text."}},
        Case{"Empty", u"", {}, {}}, Case{"OneEntryWithoutHelp", u"<A>", {u"<A>"}, {u""}},
        Case{"NoEntryHasHelp", u"<A>\r\n\r\n<B>", {u"<A>", u"<B>"}, {u""}},
        Case{"WithoutHelpBetweenOthers",
             u"<A>\r\n'a\r\n\r\n<B>\r\n\r\n<C>\r\n'c",
             {u"<A>", u"<B>", u"<C>"},
             {u"a", u"", u"c"}},
        Case{"WithoutHelpAtTheEnd",
             u"<A>\r\n'a\r\n\r\n<B>\r\n\r\n<C>",
             {u"<A>", u"<B>", u"<C>"},
             {u"a"}},
        Case{"AnEmptyLineAtTheEndIsABlankEntry", u"<A>\r\n'a\r\n\r\n", {u"<A>", u""}, {u"a"}},
        Case{"OneLineEndAtTheEndIsNone", u"<A>\r\n'a\r\n", {u"<A>"}, {u"a"}},
        Case{"ALineEndBehindTheKeywordIsEmptyHelp",
             u"<A>\r\n\r\n<B>\r\n",
             {u"<A>", u"<B>"},
             {u"", u""}},
        Case{"AThirdLineEndMakesABlankKeyword", u"<A>\r\n\r\n\r\n'a", {u"<A>", u""}, {u"", u"a"}},
        Case{"OneApostropheOfEachLineGoes",
             u"<A>\r\n'one\r\ntwo\r\n''three\r\n 'four",
             {u"<A>"},
             {u"one two 'three  'four"}},
        Case{"SentencesOnLinesOfTheirOwn",
             u"<A>\r\n'One.\r\n'Two. Three.  Four. ",
             {u"<A>"},
             {u"One.\r\nTwo.\r\nThree.\r\n Four."}},
        Case{"AnyPointWithABlankEndsALine",
             u"<A>\r\n'For e.g. this.",
             {u"<A>"},
             {u"For e.g.\r\nthis."}},
        Case{"SpacesAtTheEndOfTheWholeGo", u"<A>\r\n' a  \r\n'  \r\n", {u"<A>"}, {u" a"}},
        Case{"TheKeywordKeepsItsSpaces", u"  <A> b \r\n'a", {u"  <A> b "}, {u"a"}},
        Case{"ABareReturnIsNoLineEnd", u"<A>\r'a\n\n<B>", {u"<A>\r'a\n\n<B>"}, {u""}}),
    [](const auto& tested) { return tested.param.Name; });

TEST(KeywordList, HelpBeyondTheLastOneIsEmpty) {
  const KeywordList list = LoadKeywordList(u"<A>\r\n'a\r\n\r\n<B>");
  EXPECT_EQ(list.HelpOf(0), u"a");
  EXPECT_EQ(list.HelpOf(1), u"");
  EXPECT_EQ(list.HelpOf(2), u"");
  EXPECT_EQ(list.HelpOf(static_cast<std::size_t>(-1)), u"");
  EXPECT_EQ(KeywordList().HelpOf(0), u"");
}

TEST(KeywordListFile, IsReadFromTheFolder) {
  MemoryFileSystem files;
  files.Write(u"/app/KeywordList.ini",
              "<A>\r\n'Gr\xFC\xDF"
              "e\r\n\r\n<B>");
  const auto list = LoadKeywordListFile(files, u"/app/");
  ASSERT_TRUE(list);
  EXPECT_EQ(list->Entries, (Texts{u"<A>", u"<B>"}));
  EXPECT_EQ(list->KeywordHelp, (Texts{u"Gr\u00FC\u00DFe"}));
}

TEST(KeywordListFile, MayBeOfAnyCaseUtf8AndWithoutReturns) {
  MemoryFileSystem files;
  files.Write(u"/app/keywordlist.INI",
              "\xEF\xBB\xBF<A>\n'Gr\xC3\xBC\xC3\x9F"
              "e\n\n<B>\n'b\n");
  const auto list = LoadKeywordListFile(files, u"/app/");
  ASSERT_TRUE(list);
  EXPECT_EQ(list->Entries, (Texts{u"<A>", u"<B>"}));
  EXPECT_EQ(list->KeywordHelp, (Texts{u"Gr\u00FC\u00DFe", u"b"}));
}

TEST(KeywordListFile, MayBeMissingOrEmpty) {
  MemoryFileSystem files;
  files.MakeFolder(u"/app");
  EXPECT_FALSE(LoadKeywordListFile(files, u"/app/"));
  files.Write(u"/app/KeywordList.ini");
  const auto list = LoadKeywordListFile(files, u"/app/");
  ASSERT_TRUE(list);
  EXPECT_TRUE(list->Entries.empty());
  EXPECT_FALSE(list->Failure);
}

TEST(KeywordListFile, ThatCannotBeReadGivesTheFailure) {
  MemoryFileSystem files;
  files.Write(u"/app/KeywordList.ini", "<A>");
  files.SetUnreadable(u"/app/KeywordList.ini");
  const auto list = LoadKeywordListFile(files, u"/app/");
  ASSERT_TRUE(list);
  EXPECT_TRUE(list->Entries.empty());
  EXPECT_TRUE(list->Failure);
}

}  // namespace
}  // namespace vorlane
