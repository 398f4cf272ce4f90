// vorlane-cli apply, steps that do something other than rename: making folders, moving, tags.
#include <sys/stat.h>

#include "cli/run_cli.h"
#include "support/id3_bytes.h"
#include "support/other_process.h"

namespace vorlane {
namespace {

using Lists = std::vector<std::string>;
using Tree = std::map<std::string, std::string>;

class CliApplySteps : public testing::Test {
 protected:
  ProgramResult Apply(Lists more) {
    more.insert(more.begin(), {"apply", folder_.Path()});
    return RunCli(more);
  }

  void ExpectUndoRestores(const Tree& before) {
    const ProgramResult undone = RunCli({"undo", folder_.Path()});
    EXPECT_EQ(undone.Status, 0) << undone.Output << undone.Errors;
    EXPECT_EQ(folder_.Contents(), before);
  }

  std::string Path(const std::string& name) { return folder_.Path() + name; }

  TemporaryFolder folder_;
};

const Lists SortByExtension = {"--code", "<CREATEFOLDER>by type\\<EXTONLY></CREATEFOLDER>",
                               "--code", "<MOVE>by type\\<EXTONLY></MOVE>"};

Lists With(Lists words, const Lists& more) {
  words.insert(words.end(), more.begin(), more.end());
  return words;
}

TEST_F(CliApplySteps, AMovedRowIsPrintedWithItsDestination) {
  folder_.Write("a.txt", "A");
  folder_.Write("b.mp3x", "B");
  const Tree before = folder_.Contents();
  const ProgramResult result = Apply(SortByExtension);
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output, "a.txt -> by type/.txt/a.txt\nb.mp3x -> by type/.mp3x/b.mp3x\n");
  EXPECT_EQ(result.Errors, "2 of 2 changed\n");
  EXPECT_EQ(folder_.Read("by type/.txt/a.txt"), "A");
  EXPECT_FALSE(folder_.Exists("a.txt"));
  ExpectUndoRestores(before);
}

TEST_F(CliApplySteps, ADestinationElsewhereIsPrintedWhole) {
  TemporaryFolder elsewhere;
  folder_.Write("a.txt");
  EXPECT_EQ(Apply({"--code", "<MOVE>" + elsewhere.Path() + "</MOVE>"}).Output,
            "a.txt -> " + elsewhere.Path() + "a.txt\n");
  EXPECT_TRUE(elsewhere.Exists("a.txt"));
}

TEST_F(CliApplySteps, InJsonAMovedRowSaysWhereItIs) {
  folder_.Write("a.txt");
  const ProgramResult result = Apply(With(SortByExtension, {"--json"}));
  EXPECT_EQ(result.Status, 0);
  Json row = Document(result)[0];
  EXPECT_EQ(row["folder"], folder_.Path());
  EXPECT_EQ(row["name"], "a.txt");
  EXPECT_EQ(row["proposed"], "a.txt");
  EXPECT_EQ(row["done"], true);
  EXPECT_EQ(row["movedTo"], Path("by type/.txt/"));
  EXPECT_FALSE(row.contains("reason"));
}

TEST_F(CliApplySteps, ARowThatWasNotMovedHasNoPlace) {
  folder_.Write("a.txt");
  EXPECT_FALSE(Document(Apply({"--json", "--code", "x<FILENAME>"}))[0].contains("movedTo"));
}

TEST_F(CliApplySteps, AMoveToAFolderThatIsNotThereIsRefused) {
  folder_.Write("a.txt");
  const std::string reason = "not moved: no such folder, or the name is taken there";
  const ProgramResult result = Apply({"--code", "<MOVE>nowhere</MOVE>"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Output, "");
  EXPECT_EQ(result.Errors, "vorlane-cli: a.txt: " + reason + "\n0 of 1 changed, 1 refused\n");
  Json row = Document(Apply({"--json", "--code", "<MOVE>nowhere</MOVE>"}))[0];
  EXPECT_EQ(row["done"], false);
  EXPECT_EQ(row["reason"], reason);
}

TEST_F(CliApplySteps, AMoveOverAnotherFileIsRefused) {
  folder_.Write("a.txt", "here");
  folder_.Write("there/a.txt", "there");
  const Tree before = folder_.Contents();
  EXPECT_EQ(Apply({"--code", "<MOVE>there</MOVE>"}).Status, 1);
  EXPECT_EQ(folder_.Contents(), before);
}

TEST_F(CliApplySteps, AnEntryThatIsThereAlreadyHasNothingToDo) {
  folder_.Write("a.txt");
  const ProgramResult result = Apply({"--code", "<MOVE>" + folder_.Path() + "</MOVE>"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output, "");
  EXPECT_EQ(result.Errors, "0 of 1 changed\n");
}

TEST_F(CliApplySteps, WhatWasMovedIsNotRenamedAsWell) {
  folder_.Write("a.txt");
  const Tree before = folder_.Contents();
  const ProgramResult result =
      Apply(With(SortByExtension, {"--code", "<UPPERCASE><NAMEONLY></UPPERCASE><EXTONLY>"}));
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Output, "a.txt -> by type/.txt/a.txt\n");
  EXPECT_EQ(result.Errors,
            "vorlane-cli: a.txt: moved, but not renamed: it had gone from its folder\n"
            "1 of 1 changed, 1 refused\n");
  ExpectUndoRestores(before);
}

// The marker bars the new name only: the steps have been carried out.
TEST_F(CliApplySteps, AReadOnlyRowWhoseStepsWereCarriedOutIsDone) {
  folder_.Write("a.txt");
  chmod(Path("a.txt").c_str(), 0444);
  const ProgramResult result = Apply(With(SortByExtension, {"--json"}));
  EXPECT_EQ(result.Status, 0);
  Json row = Document(result)[0];
  EXPECT_EQ(row["marker"], "<Read Only>");
  EXPECT_EQ(row["done"], true);
  EXPECT_FALSE(row.contains("reason"));
  EXPECT_TRUE(folder_.Exists("by type/.txt/a.txt"));
}

TEST_F(CliApplySteps, AReadOnlyRowWhoseMoveWasRefusedIsNotDone) {
  folder_.Write("a.txt");
  chmod(Path("a.txt").c_str(), 0444);
  Json row = Document(Apply({"--json", "--code", "<MOVE>nowhere</MOVE>"}))[0];
  EXPECT_EQ(row["done"], false);
  EXPECT_EQ(row["reason"], "not moved: no such folder, or the name is taken there");
}

TEST_F(CliApplySteps, OnlyTheRowThatMadeTheFolderIsAChange) {
  folder_.Write("a.txt");
  folder_.Write("b.txt");
  const Tree before = folder_.Contents();
  const ProgramResult result = Apply({"--code", "<CREATEFOLDER>x\\y</CREATEFOLDER>"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output, "a.txt -> a.txt\n");
  EXPECT_EQ(result.Errors, "1 of 2 changed\n");
  ExpectUndoRestores(before);
}

TEST_F(CliApplySteps, TagsAreWrittenAndComeBack) {
  folder_.Write("a.mp3", "audio" + id3::V1("Title", "Artist", "Album", "", "Note", 7, 0));
  folder_.Write("b.txt", "text");
  const Tree before = folder_.Contents();
  const ProgramResult result =
      Apply({"--json", "--code", "<WriteID3v1>New|<TITLE>|<ALBUM>|<COMMENTS>|<TRACK><X>", "--code",
             "<UPPERCASE><NAMEONLY></UPPERCASE><EXTONLY>"});
  EXPECT_EQ(result.Status, 0) << result.Errors;
  Json rows = Document(result);
  EXPECT_EQ(rows[0]["done"], true);
  EXPECT_EQ(rows[0]["artist"], "New");
  EXPECT_EQ(folder_.Read("A.mp3"), "audio" + id3::V1("Title", "New", "Album", "", "Note", 7, 0));
  ExpectUndoRestores(before);
}

// The writer tells why; the row counts as refused, and is renamed all the same.
TEST_F(CliApplySteps, ATagThatCannotBeWrittenIsRefused) {
  folder_.Write("a.mp3", "audio");
  const Lists operation = {"--code", "<WriteID3v1>A|T|L|" + std::string(30, 'c') + "|1<X>"};
  const ProgramResult plain = Apply(operation);
  EXPECT_EQ(plain.Status, 1);
  EXPECT_EQ(plain.Output, "");
  EXPECT_EQ(plain.Errors,
            "vorlane-cli: WriteID3v1 (a.mp3): Invalid procedure call or argument (error 5)\n"
            "0 of 1 changed, 1 refused\n");
  const ProgramResult json = Apply(With(operation, {"--json", "--code", "x<FILENAME>"}));
  EXPECT_EQ(json.Status, 1);
  Json row = Document(json)[0];
  EXPECT_EQ(row["reason"], "WriteID3v1 (a.mp3): Invalid procedure call or argument (error 5)");
  EXPECT_EQ(row["done"], true) << "renamed";
  EXPECT_EQ(folder_.Read("xa.mp3"), "audio");
}

TEST_F(CliApplySteps, AnID3v2TagThatCannotBeWrittenIsRefused) {
  const std::string farPastTheEnd = id3::Header(20000000) + "audio";
  folder_.Write("a.mp3", farPastTheEnd);
  const ProgramResult result = Apply({"--json", "--code", "<WriteID3v2>A|T|L|C|1|0"});
  EXPECT_EQ(result.Status, 1);
  Json row = Document(result)[0];
  EXPECT_EQ(row["done"], false);
  EXPECT_NE(row["reason"].get<std::string>().find("Error number: 62"), std::string::npos)
      << row["reason"];
  EXPECT_EQ(folder_.Read("a.mp3"), farPastTheEnd);
}

TEST_F(CliApplySteps, ATagThatCannotBeRecordedIsRefused) {
  folder_.Write("a.mp3", "audio");
  folder_.Write("UNDORENAME.TXT", "somebody's own text");
  const ProgramResult result =
      Apply({"--code", "<WriteID3v1>A|T|L|C|1</WriteID3v1>", "--code", "x<FILENAME>"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Output, "a.mp3 -> xa.mp3\n");
  EXPECT_NE(result.Errors.find(
                "vorlane-cli: a.mp3: tag unchanged: the undo file can't record the old one\n"
                "1 of 1 changed, 1 refused\n"),
            std::string::npos)
      << result.Errors;
  EXPECT_EQ(folder_.Read("xa.mp3"), "audio");
}

// A tag step with too few fields ends the whole run.
TEST_F(CliApplySteps, ABrokenStepEndsTheRun) {
  folder_.Write("a.mp3", "audio");
  folder_.Write("b.mp3", "audio");
  const ProgramResult result = Apply({"--json", "--code", "<WriteID3v1>A|T"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(Document(result), Json::array());
  EXPECT_EQ(result.Errors, "vorlane-cli: cmdGo_Click: Subscript out of range (error 9)\n");
}

TEST_F(CliApplySteps, BoxesServeTheStepsToo) {
  folder_.Write("a.txt", "A");
  const Tree before = folder_.Contents();
  EXPECT_EQ(
      Apply({"--operation", "Move into folders/One folder for all", "--box", "1=Box\\Sub"}).Status,
      0);
  EXPECT_EQ(folder_.Read("Box/Sub/a.txt"), "A");
  ExpectUndoRestores(before);
}

}  // namespace
}  // namespace vorlane
