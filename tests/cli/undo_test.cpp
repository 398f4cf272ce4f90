// vorlane-cli undo: replays the journal of a folder backwards.
#include <unistd.h>

#include "cli/run_cli.h"
#include "support/id3_bytes.h"
#include "support/other_process.h"

namespace vorlane {
namespace {

using Lists = std::vector<std::string>;
using Tree = std::map<std::string, std::string>;

class CliUndo : public testing::Test {
 protected:
  ProgramResult Apply(const std::string& code) {
    return RunCli({"apply", folder_.Path(), "--code", code});
  }

  ProgramResult Undo(Lists more = {}) {
    more.insert(more.begin(), {"undo", folder_.Path()});
    return RunCli(more);
  }

  // A journal of these records.
  void WriteJournal(const std::string& records) {
    folder_.Write("file for the header");
    ASSERT_EQ(RunCli({"apply", folder_.Path(), "--code", "x", "--only", "file for the header",
                      "--code", "x<FILENAME>"})
                  .Status,
              0);
    const std::string header = folder_.Read(Journal).substr(0, 193);
    ASSERT_EQ(unlink((folder_.Path() + "xfile for the header").c_str()), 0);
    folder_.Write(Journal, header + records);
  }

  std::string Record(const std::string& before, const std::string& after) {
    return "<VORL>|" + folder_.Path() + "|" + before + "|" + after;
  }

  TemporaryFolder folder_;
};

TEST_F(CliUndo, PrintsEachRecordFromTheLastToTheFirstAndRemovesTheJournal) {
  folder_.Write("a", "A");
  folder_.Write("b", "B");
  ASSERT_EQ(Apply("x<FILENAME>").Status, 0);
  const ProgramResult result = Undo();
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output,
            "done     " + Record("b", "xb") + "\ndone     " + Record("a", "xa") + "\n");
  EXPECT_EQ(result.Errors, "2 done, 0 skipped\n");
  EXPECT_EQ(folder_.Contents(), (Tree{{"a", "A"}, {"b", "B"}}));
}

TEST_F(CliUndo, InJsonToo) {
  folder_.Write("a");
  folder_.Write("b");
  ASSERT_EQ(Apply("x<FILENAME>").Status, 0);
  folder_.Write("a");
  const ProgramResult result = Undo({"--json"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Errors, "");
  EXPECT_EQ(Document(result),
            Json::array({{{"record", Record("b", "xb")}, {"done", true}},
                         {{"record", Record("a", "xa")},
                          {"done", false},
                          {"reason", "the entry has gone or its old name is taken"}}}));
  EXPECT_FALSE(folder_.Exists(Journal));
}

TEST_F(CliUndo, WhatCannotBeTakenBackIsSkippedWithItsReason) {
  for (const char* name : {"a", "b", "c"}) {
    folder_.Write(name, name);
  }
  ASSERT_EQ(Apply("x<FILENAME>").Status, 0);
  folder_.Write("a", "a new one");
  unlink((folder_.Path() + "xb").c_str());
  const ProgramResult result = Undo();
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Output,
            "done     " + Record("c", "xc") + "\n" + "skipped  " + Record("b", "xb") +
                " (the entry has gone or its old name is taken)\n" + "skipped  " +
                Record("a", "xa") + " (the entry has gone or its old name is taken)\n");
  EXPECT_EQ(result.Errors, "1 done, 2 skipped\n");
  EXPECT_EQ(folder_.Contents(), (Tree{{"a", "a new one"}, {"c", "c"}, {"xa", "a"}}));
}

TEST_F(CliUndo, OddNamesStandInTheirEscapes) {
  folder_.Write("a|\n\xE4");
  ASSERT_EQ(Apply("x<FILENAME>").Status, 0);
  const ProgramResult result = Undo();
  EXPECT_EQ(result.Output, "done     " + Record("a//007C//000A//DCE4", "xa_//000A//DCE4") + "\n");
  EXPECT_TRUE(folder_.Exists("a|\n\xE4"));
}

TEST_F(CliUndo, FoldersThatARunMadeGoAgain) {
  folder_.Write("a.txt", "A");
  ASSERT_EQ(RunCli({"apply", folder_.Path(), "--code", "<CREATEFOLDER>x\\y</CREATEFOLDER>",
                    "--code", "<MOVE>x\\y</MOVE>"})
                .Status,
            0);
  folder_.Write("x/other");
  const ProgramResult result = Undo();
  EXPECT_EQ(result.Status, 1);
  const std::string there = folder_.Path() + "x/y/";
  EXPECT_EQ(result.Output, "done     <MOVE>|" + folder_.Path() + "|a.txt|" + there + "|a.txt\n" +
                               "skipped  <CREATEFOLDER>|2|" + there + " (a folder isn't empty)\n");
  EXPECT_EQ(folder_.Contents(), (Tree{{"a.txt", "A"}, {"x/", ""}, {"x/other", ""}}));
}

TEST_F(CliUndo, TagsComeBack) {
  const std::string before = id3::Audio(200) + id3::V1("Title", "Artist", "", "", "", 3, 0);
  folder_.Write("a.mp3", before);
  ASSERT_EQ(Apply("<RemoveID3v1>").Status, 0);
  ASSERT_EQ(folder_.Read("a.mp3"), id3::Audio(200));
  const ProgramResult result = Undo();
  EXPECT_EQ(result.Status, 0);
  EXPECT_TRUE(result.Output.starts_with("done     <MP3TAG>|1|-1|")) << result.Output;
  EXPECT_EQ(folder_.Contents(), (Tree{{"a.mp3", before}}));
}

// The replay itself passes over what the writer of the tag reports.
TEST_F(CliUndo, ATagThatCannotBeWrittenIsNotDone) {
  folder_.Write("a.mp3", "audio");
  WriteJournal("<MP3TAG>|1|-1|41|42||300|||0|" + folder_.Path() + "|a.mp3\r\n");
  const ProgramResult result = Undo({"--json"});
  EXPECT_EQ(result.Status, 1);
  Json record = Document(result)[0];
  EXPECT_EQ(record["done"], false);
  EXPECT_EQ(record["reason"], "WriteID3v1 (a.mp3): Invalid procedure call or argument (error 5)");
  EXPECT_EQ(folder_.Read("a.mp3"), "audio");
}

TEST_F(CliUndo, ALineThatIsNoRecordIsSkipped) {
  folder_.Write("xa");
  WriteJournal(Record("a", "xa") + "\r\nwhatever\r\n");
  const ProgramResult result = Undo();
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Output, "skipped  whatever (not a record that can be undone)\ndone     " +
                               Record("a", "xa") + "\n");
  EXPECT_EQ(folder_.Contents(), (Tree{{"a", ""}}));
}

TEST_F(CliUndo, AJournalWithoutRecordsIsDone) {
  WriteJournal("");
  const ProgramResult result = Undo();
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output, "");
  EXPECT_EQ(result.Errors, "0 done, 0 skipped\n");
  EXPECT_EQ(folder_.Contents(), Tree());
}

TEST_F(CliUndo, AFailureEndsTheReplayAndIsToldOf) {
  WriteJournal("<CREATEFOLDER>|many|" + folder_.Path() + "x/\r\n");
  const ProgramResult result = Undo({"--json"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Errors, "vorlane-cli: cmdUndo_Click: Type mismatch (error 13)\n");
  EXPECT_EQ(Document(result), Json::array());
  EXPECT_FALSE(folder_.Exists(Journal));
}

TEST_F(CliUndo, WithoutAJournalIsStatus3) {
  folder_.Write("a");
  EXPECT_EQ(RefusalOf(Undo(), 3), "no journal in " + folder_.Path());
  EXPECT_EQ(RefusalOf(Undo({"--json"}), 3), "no journal in " + folder_.Path());
  folder_.Write(Journal, "somebody's own text");
  EXPECT_EQ(RefusalOf(Undo(), 3), "no journal in " + folder_.Path());
  EXPECT_EQ(folder_.Read(Journal), "somebody's own text");
}

TEST_F(CliUndo, TwiceIsStatus3) {
  folder_.Write("a");
  ASSERT_EQ(Apply("x<FILENAME>").Status, 0);
  EXPECT_EQ(Undo().Status, 0);
  EXPECT_EQ(Undo().Status, 3);
}

TEST_F(CliUndo, AFolderThatIsNotThereIsStatus3) {
  EXPECT_EQ(RefusalOf(RunCli({"undo", "/no such folder"}), 3), "no such folder: /no such folder");
}

TEST_F(CliUndo, AJournalThatCannotBeReadIsToldOf) {
  folder_.Write(Journal, "x");
  chmod((folder_.Path() + Journal).c_str(), 0);
  chmod(folder_.Path().c_str(), 0755);
  AsOrdinaryUser([&] {
    EXPECT_EQ(RefusalOf(Undo(), 1),
              "can't read the journal in " + folder_.Path() + ": Permission denied");
  });
}

}  // namespace
}  // namespace vorlane
