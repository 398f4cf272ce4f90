// vorlane-cli preview: which names an operation proposes, with nothing changed.
#include <fcntl.h>
#include <sys/stat.h>

#include "cli/run_cli.h"
#include "cli/test_catalogue.h"
#include "support/id3_bytes.h"
#include "support/other_process.h"

namespace vorlane {
namespace {

using Lists = std::vector<std::string>;

class CliPreview : public testing::Test {
 protected:
  CliPreview() { outside_.Write("Some.ini", TestCatalogue()); }

  ProgramResult Preview(Lists more) {
    const auto before = folder_.Contents();
    more.insert(more.begin(), {"preview", folder_.Path()});
    ProgramResult result = RunCli(more);
    EXPECT_EQ(folder_.Contents(), before) << "a preview changed the disk";
    return result;
  }

  // The lines of a preview that has nothing to complain of.
  Lists Proposals(Lists more) {
    const ProgramResult result = Preview(std::move(more));
    EXPECT_EQ(result.Status, 0) << result.Errors;
    return Lines(result.Output);
  }

  Lists OfOperation(const std::string& operation, Lists more = {}) {
    more.insert(more.end(), {"--operation", operation, "--catalogue", Catalogue()});
    return Proposals(more);
  }

  std::string Catalogue() { return outside_.Path() + "Some.ini"; }

  TemporaryFolder outside_;
  TemporaryFolder folder_;
};

TEST_F(CliPreview, PrintsChangedRowsAndASummary) {
  folder_.Write("a.txt");
  folder_.Write("B.txt");
  const ProgramResult result = Preview({"--code", "<UPPERCASE><NAMEONLY></UPPERCASE><EXTONLY>"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output, "a.txt -> A.txt\n");
  EXPECT_EQ(result.Errors, "1 of 2 would be renamed\n");
}

TEST_F(CliPreview, AllPrintsUnchangedRowsToo) {
  folder_.Write("a.txt");
  folder_.Write("B.txt");
  EXPECT_EQ(Proposals({"--all", "--code", "<UPPERCASE><NAMEONLY></UPPERCASE><EXTONLY>"}),
            (Lists{"a.txt -> A.txt", "B.txt -> B.txt"}));
}

TEST_F(CliPreview, AnOperationIsFoundByIndexAndByItsPathOfTitles) {
  folder_.Write("a.txt");
  const Lists capitals = {"a.txt -> A.txt"};
  const Lists withExtension = {"a.txt -> A.TXT"};
  EXPECT_EQ(OfOperation("2"), capitals);
  EXPECT_EQ(OfOperation("Names/Upper case"), capitals);
  EXPECT_EQ(OfOperation("names/UPPER CASE"), capitals);
  EXPECT_EQ(OfOperation("6"), withExtension);
  EXPECT_EQ(OfOperation("Others/Upper case"), withExtension);
}

TEST_F(CliPreview, AnExactTitleGoesBeforeOneInAnotherCase) {
  outside_.Write("Some.ini", WithCrLf("Operation Name:\tUP\nStep: 1<FILENAME>\n\n"
                                      "Operation Name:\tup\nStep: 2<FILENAME>\n\n"
                                      "Operation Name:\t2024\nStep: 3<FILENAME>\n\n"));
  folder_.Write("a");
  EXPECT_EQ(OfOperation("up"), (Lists{"a -> 2a"}));
  EXPECT_EQ(OfOperation("Up"), (Lists{"a -> 1a"}));
  EXPECT_EQ(OfOperation("2024"), (Lists{"a -> 3a"}));
}

TEST_F(CliPreview, AnOperationThatIsNotThereIsStatus3) {
  for (const char* operation : {"0", "7", "-1", "Names", "1", "Upper case", "Names/Upper", ""}) {
    const std::string line =
        RefusalOf(Preview({"--catalogue", Catalogue(), "--operation", operation}), 3);
    const bool heading = operation == std::string("Names") || operation == std::string("1");
    EXPECT_EQ(line, (heading ? "a heading, not an operation: " : "no such operation: ") +
                        std::string(operation));
  }
}

TEST_F(CliPreview, TheShippedOperationsComeWithoutAFileName) {
  folder_.Write("a b.txt");
  EXPECT_EQ(Proposals({"--operation", "Replace/Spaces to underscores"}),
            (Lists{"a b.txt -> a_b.txt"}));
}

TEST_F(CliPreview, ABrokenCatalogueIsToldOfAndUsedUpToTheBreak) {
  outside_.Write("Some.ini", TestCatalogue() + "Operation Name: no tab");
  folder_.Write("a.txt");
  const ProgramResult result = Preview({"--operation", "2", "--catalogue", Catalogue()});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Output, "a.txt -> A.txt\n");
  EXPECT_EQ(Lines(result.Errors).front(),
            "vorlane-cli: the catalogue was read up to line 36 only: Subscript out of range");
}

TEST_F(CliPreview, AnOperationWithABrokenKeyIsToldOf) {
  outside_.Write("Some.ini", WithCrLf("Operation Name:\tOne\nStep: x<FILENAME>\nHelp Message: h\n"
                                      "Available Boxes: many\n\n"));
  folder_.Write("a");
  const ProgramResult result = Preview({"--operation", "One", "--catalogue", Catalogue()});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Output, "a -> xa\n");
  EXPECT_EQ(Lines(result.Errors).front(),
            "vorlane-cli: lstRenamingOperations_NodeClick: Type mismatch (error 13)");
}

TEST_F(CliPreview, OfSeveralStepsTheLastOneDecides) {
  folder_.Write("a");
  EXPECT_EQ(Proposals({"--code", "x<FILENAME>", "--code", "y<FILENAME>"}), (Lists{"a -> ya"}));
  EXPECT_EQ(Proposals({"--code", "x<FILENAME>", "--code", ""}), Lists());
}

TEST_F(CliPreview, StepsThatNameNothingChangeNothing) {
  folder_.Write("a");
  for (const char* code : {"", "plain words", "<CREATEFOLDER>x</CREATEFOLDER>", "<WriteID3v1>|"}) {
    EXPECT_EQ(Proposals({"--code", code}), Lists()) << code;
  }
}

TEST_F(CliPreview, ACodeThatIsTooLongIsToldOf) {
  folder_.Write("a");
  const ProgramResult result = Preview({"--code", "<FILENAME>" + std::string(40000, 'x')});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Output, "");
  EXPECT_EQ(Lines(result.Errors).front(), "vorlane-cli: UpdateFilePreviewAll: Overflow (error 6)");
}

TEST_F(CliPreview, TheWildcardIsTheOperationsOwnUnlessGiven) {
  folder_.Write("a.txt");
  folder_.Write("b.mp3");
  EXPECT_EQ(OfOperation("Names/Framed"), (Lists{"a.txt -> New a.txt"}));
  EXPECT_EQ(OfOperation("Names/Framed", {"--wildcard", "*.mp3"}), (Lists{"b.mp3 -> New b.mp3"}));
  EXPECT_EQ(OfOperation("Names/Framed", {"--wildcard", ""}),
            (Lists{"a.txt -> New a.txt", "b.mp3 -> New b.mp3"}));
  EXPECT_EQ(OfOperation("Names/Upper case"), (Lists{"a.txt -> A.txt", "b.mp3 -> B.mp3"}));
}

TEST_F(CliPreview, SubFoldersAndFolders) {
  folder_.Write("a");
  folder_.Write("Sub/b");
  EXPECT_EQ(Proposals({"--code", "x<FILENAME>"}), (Lists{"a -> xa"}));
  EXPECT_EQ(Proposals({"--code", "x<FILENAME>", "--recursive"}), (Lists{"a -> xa", "b -> xb"}));
  EXPECT_EQ(Proposals({"--code", "x<FILENAME>", "--folders"}), (Lists{"Sub -> xSub"}));
}

TEST_F(CliPreview, BoxesHoldTheirDefaultOrTheTextGiven) {
  folder_.Write("a.txt");
  EXPECT_EQ(OfOperation("3"), (Lists{"a.txt -> New a.txt"}));
  EXPECT_EQ(OfOperation("3", {"--box", "1=Old "}), (Lists{"a.txt -> Old a.txt"}));
  EXPECT_EQ(OfOperation("3", {"--box", "2=!", "--box", "1="}), (Lists{"a.txt -> a!.txt"}));
  EXPECT_EQ(OfOperation("3", {"--box", "1=one", "--box", "1=two"}), (Lists{"a.txt -> twoa.txt"}));
}

TEST_F(CliPreview, ABoxMayHoldCodeButNotItself) {
  folder_.Write("a.txt");
  EXPECT_EQ(OfOperation("3", {"--box", "1=<BOX2>", "--box", "2=<EXTONLY>"}),
            (Lists{"a.txt -> .txta.txt.txt"}));
  EXPECT_EQ(OfOperation("3", {"--box", "1=x<BOX1>"}), (Lists{"a.txt -> xa.txt"}));
}

TEST_F(CliPreview, StepsGivenByHandHaveTheBoxesThatAreGiven) {
  folder_.Write("a");
  EXPECT_EQ(Proposals({"--code", "<BOX1><BOX6><FILENAME><BOX2>", "--box", "1=x", "--box", "6=y"}),
            (Lists{"a -> xya_BOX2_"}));
  EXPECT_EQ(Proposals({"--code", "<BOX1>", "--box", "1=n<AUTONUMBER>"}), (Lists{"a -> n1"}));
}

TEST_F(CliPreview, ATickedBoxCountsForEveryRow) {
  folder_.Write("a.txt");
  folder_.Write("b.txt");
  const std::string checked = "Names/Checked";
  EXPECT_EQ(OfOperation(checked), (Lists{"a.txt -> A.txt", "b.txt -> B.txt"}));
  EXPECT_EQ(OfOperation(checked, {"--check", "1", "--box", "1=x<NAMEONLY>"}),
            (Lists{"a.txt -> xa.txt", "b.txt -> xb.txt"}));
}

// As when the user ticks the box and types nothing.
TEST_F(CliPreview, ATickedBoxWithoutATextHoldsTheFirstRowsValue) {
  folder_.Write("a.txt");
  folder_.Write("b.txt");
  EXPECT_EQ(OfOperation("Names/Checked", {"--check", "1"}),
            (Lists{"a.txt -> A.txt", "b.txt -> (1)A.txt"}));
  EXPECT_EQ(OfOperation("Names/Checked", {"--check", "1", "--box", "1="}),
            (Lists{"a.txt -> .txt", "b.txt -> (1).txt"}));
}

TEST_F(CliPreview, BoxesThatTheOperationLacksAreWrongUse) {
  const auto wrong = [&](const std::string& operation, Lists more) {
    more.insert(more.begin(), {"preview", "/no such folder", "--operation", operation,
                               "--catalogue", Catalogue()});
    return RefusalOf(RunCli(more), 2);
  };
  EXPECT_EQ(wrong("2", {"--box", "1=x"}), "--box 1=x: the operation has no such box");
  EXPECT_EQ(wrong("3", {"--box", "3=x"}), "--box 3=x: the operation has no such box");
  EXPECT_EQ(wrong("4", {"--box", "1=x"}), "--box 1=x: the box opens by --check 1");
  EXPECT_EQ(wrong("3", {"--check", "1"}), "--check 1: that box has no check box");
  EXPECT_EQ(wrong("4", {"--check", "2"}), "--check 2: that box has no check box");
}

TEST_F(CliPreview, OneJsonObjectARow) {
  folder_.Write("a.mp3", "audio" + id3::V1("Title", "Artist", "", "", "", 1, 0));
  folder_.Write("b.txt");
  folder_.Write("c.txt");
  chmod((folder_.Path() + "c.txt").c_str(), 0444);
  const ProgramResult result = Preview({"--json", "--code", "x<NAMEONLY><ARTIST>"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Errors, "");
  Json rows = Document(result);
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0], Json({{"row", 1},
                           {"folder", folder_.Path()},
                           {"name", "a.mp3"},
                           {"proposed", "xaArtist"},
                           {"marker", nullptr},
                           {"artist", "Artist"},
                           {"title", "Title"},
                           {"id3v1", "Yes"},
                           {"id3v2", "No"},
                           {"readOnly", "No"}}));
  EXPECT_EQ(rows[1]["proposed"], "xb_ARTIST_");
  EXPECT_EQ(rows[1]["id3v1"], "");
  EXPECT_EQ(rows[2]["proposed"], "");
  EXPECT_EQ(rows[2]["marker"], "<Read Only>");
  EXPECT_EQ(rows[2]["readOnly"], "Yes");
}

TEST_F(CliPreview, MarkersStandInThePlaceOfANewName) {
  folder_.Write("free");
  folder_.Write("locked");
  folder_.Write("open");
  chmod((folder_.Path() + "locked").c_str(), 0444);
  const OtherProcess writer(
      [&] { return open((folder_.Path() + "open").c_str(), O_WRONLY | O_APPEND) >= 0; });
  EXPECT_EQ(Proposals({"--code", "x<FILENAME>"}),
            (Lists{"free -> xfree", "locked -> <Read Only>", "open -> <File in Use>"}));
}

TEST_F(CliPreview, CollidingNamesAreMadeUnique) {
  for (const char* name : {"1.txt", "2.txt", "same"}) {
    folder_.Write(name);
  }
  const std::string code = "<LOWERCASE>same</LOWERCASE>";
  EXPECT_EQ(Proposals({"--code", code, "--wildcard", "*.txt"}),
            (Lists{"1.txt -> (1)same", "2.txt -> (2)same"}));
  EXPECT_EQ(Proposals({"--code", code}), (Lists{"1.txt -> (1)same", "2.txt -> (2)same"}));
}

TEST_F(CliPreview, OnlyPreviewsTheRowsThatAreNamed) {
  for (const char* name : {"a", "b", "c", "Sub/b"}) {
    folder_.Write(name);
  }
  EXPECT_EQ(Proposals({"--code", "x<FILENAME>", "--only", "b"}), (Lists{"b -> xb"}));
  EXPECT_EQ(Proposals({"--code", "x<FILENAME>", "--only", "c", "--only", "a", "--only", "c"}),
            (Lists{"a -> xa", "c -> xc"}));
  EXPECT_EQ(Proposals({"--recursive", "--code", "x<FILENAME>", "--only", "b"}),
            (Lists{"b -> xb", "b -> xb"}));
  EXPECT_EQ(Document(Preview({"--json", "--code", "x<FILENAME>", "--only", "b"}))[0]["row"], 2);
}

TEST_F(CliPreview, ARowThatIsNotListedIsStatus3) {
  folder_.Write("a");
  folder_.Write("b.txt");
  EXPECT_EQ(RefusalOf(Preview({"--code", "x<FILENAME>", "--only", "missing"}), 3),
            "not in the list: missing");
  EXPECT_EQ(RefusalOf(Preview({"--code", "x<FILENAME>", "--only", "a", "--only", "A"}), 3),
            "not in the list: A");
  EXPECT_EQ(RefusalOf(Preview({"--code", "x<FILENAME>", "--wildcard", "*.txt", "--only", "a"}), 3),
            "not in the list: a");
}

TEST_F(CliPreview, TextsMayHoldAnyBytes) {
  folder_.Write("a\xE4");
  EXPECT_EQ(Proposals({"--code", "<BOX1>\xFF<FILENAME>", "--box", "1=\x80|"}),
            (Lists{"a\xE4 -> \x80_\xFF"
                   "a\xE4"}));
  const std::string json =
      Preview({"--json", "--only", "a\xE4", "--code", "<BOX1><FILENAME>", "--box", "1=\x80"})
          .Output;
  EXPECT_NE(json.find(R"("name":"a\udce4","proposed":"\udc80a\udce4")"), std::string::npos) << json;
}

TEST_F(CliPreview, AnEmptyFolderHasNothingToDo) {
  const ProgramResult result = Preview({"--code", "x<FILENAME>"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output, "");
  EXPECT_EQ(result.Errors, "0 of 0 would be renamed\n");
  EXPECT_EQ(Document(Preview({"--json", "--code", "x<FILENAME>"})), Json::array());
}

TEST_F(CliPreview, AFolderThatIsNotThereIsStatus3) {
  EXPECT_EQ(RefusalOf(RunCli({"preview", "/no such folder", "--code", "x<FILENAME>"}), 3),
            "no such folder: /no such folder");
}

}  // namespace
}  // namespace vorlane
