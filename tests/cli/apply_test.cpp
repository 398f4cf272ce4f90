// vorlane-cli apply: carries an operation out, says what was done and leaves the journal.
#include <fcntl.h>
#include <sys/stat.h>

#include "cli/run_cli.h"
#include "cli/test_catalogue.h"
#include "support/other_process.h"

namespace vorlane {
namespace {

using Lists = std::vector<std::string>;
using Tree = std::map<std::string, std::string>;

class CliApply : public testing::Test {
 protected:
  ProgramResult Apply(Lists more) {
    more.insert(more.begin(), {"apply", folder_.Path()});
    return RunCli(more);
  }

  ProgramResult Undo() { return RunCli({"undo", folder_.Path()}); }

  // What the folder holds besides the journal.
  Tree Files() {
    Tree files = folder_.Contents();
    files.erase(Journal);
    return files;
  }

  // Undo brings the folder back to what it was.
  void ExpectUndoRestores(const Tree& before) {
    const ProgramResult undone = Undo();
    EXPECT_EQ(undone.Status, 0) << undone.Output;
    EXPECT_EQ(folder_.Contents(), before);
  }

  TemporaryFolder folder_;
};

TEST_F(CliApply, RenamesAndPrintsWhatItDid) {
  folder_.Write("a.txt", "A");
  folder_.Write("B.txt", "B");
  const ProgramResult result = Apply({"--code", "<UPPERCASE><NAMEONLY></UPPERCASE><EXTONLY>"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output, "a.txt -> A.txt\n");
  EXPECT_EQ(result.Errors, "1 of 2 changed\n");
  EXPECT_EQ(Files(), (Tree{{"A.txt", "A"}, {"B.txt", "B"}}));
  EXPECT_TRUE(
      folder_.Read(Journal).ends_with("\r\n\r\n\r\n<VORL>|" + folder_.Path() + "|a.txt|A.txt\r\n"));
}

TEST_F(CliApply, AllPrintsUnchangedRowsToo) {
  folder_.Write("a.txt");
  folder_.Write("B.txt");
  EXPECT_EQ(Apply({"--all", "--code", "<UPPERCASE><NAMEONLY></UPPERCASE><EXTONLY>"}).Output,
            "a.txt -> A.txt\nB.txt -> B.txt\n");
}

TEST_F(CliApply, ThenUndoRestoresNamesAndBytes) {
  for (const char* name : {"a.txt", "b.txt", "Sub/a.txt", "Sub/Deep/c", "x y.txt"}) {
    folder_.Write(name, name);
  }
  const Tree before = folder_.Contents();
  EXPECT_EQ(Apply({"--recursive", "--code", "<UPPERCASE>n<FILENAME></UPPERCASE>"}).Status, 0);
  EXPECT_EQ(Files().count("Sub/Deep/NC"), 1U);
  ExpectUndoRestores(before);
}

TEST_F(CliApply, OddNamesComeBackFromUndo) {
  for (const char* name : {"bar|name", "line\nbreak", "not-UTF-8-\xE4\xFF", "日本", "ü", "\x01",
                           "semi;colon", "back\\slash", "quote\"d", "a<b>c"}) {
    folder_.Write(name, name);
  }
  const Tree before = folder_.Contents();
  EXPECT_EQ(Apply({"--code", "<BOX1><FILENAME>", "--box", "1=n"}).Status, 0);
  const Tree after = Files();
  EXPECT_EQ(after.count("nbar_name"), 1U);
  EXPECT_EQ(after.count("nnot-UTF-8-\xE4\xFF"), 1U);
  EXPECT_EQ(after.count("nline\nbreak"), 1U);
  ExpectUndoRestores(before);
}

TEST_F(CliApply, FoldersAreRenamedAndComeBack) {
  folder_.Write("Sub/a.txt", "A");
  folder_.Write("b.txt", "B");
  const Tree before = folder_.Contents();
  EXPECT_EQ(Apply({"--folders", "--code", "x<FILENAME>"}).Output, "Sub -> xSub\n");
  EXPECT_EQ(Files(), (Tree{{"b.txt", "B"}, {"xSub/", ""}, {"xSub/a.txt", "A"}}));
  ExpectUndoRestores(before);
}

TEST_F(CliApply, NothingToDoIsDone) {
  const ProgramResult empty = Apply({"--code", "x<FILENAME>"});
  EXPECT_EQ(empty.Status, 0);
  EXPECT_EQ(empty.Output, "");
  EXPECT_EQ(empty.Errors, "0 of 0 changed\n");
  EXPECT_EQ(Document(Apply({"--json", "--code", "x<FILENAME>"})), Json::array());
  folder_.Write("A");
  const ProgramResult same = Apply({"--code", "<UPPERCASE><FILENAME></UPPERCASE>"});
  EXPECT_EQ(same.Status, 0);
  EXPECT_EQ(same.Errors, "0 of 1 changed\n");
  EXPECT_EQ(folder_.Contents(), (Tree{{"A", ""}})) << "a journal without records is removed";
}

TEST_F(CliApply, AReadOnlyRowIsRefused) {
  folder_.Write("a");
  folder_.Write("b");
  chmod((folder_.Path() + "a").c_str(), 0444);
  const ProgramResult result = Apply({"--code", "x<FILENAME>"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Output, "b -> xb\n");
  EXPECT_EQ(result.Errors, "vorlane-cli: a: read only\n1 of 2 changed, 1 refused\n");
  EXPECT_EQ(Files(), (Tree{{"a", ""}, {"xb", ""}}));
}

TEST_F(CliApply, AFileInUseIsRefused) {
  folder_.Write("a");
  folder_.Write("b");
  const OtherProcess writer(
      [&] { return open((folder_.Path() + "a").c_str(), O_WRONLY | O_APPEND) >= 0; });
  const ProgramResult result = Apply({"--code", "x<FILENAME>"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Output, "b -> xb\n");
  EXPECT_EQ(result.Errors, "vorlane-cli: a: in use\n1 of 2 changed, 1 refused\n");
  EXPECT_EQ(Files(), (Tree{{"a", ""}, {"xb", ""}}));
}

TEST_F(CliApply, ANameThatTheDiskRefusesIsRefused) {
  folder_.Write("a", "A");
  const ProgramResult result = Apply({"--code", std::string(300, 'x') + "<FILENAME>"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Errors,
            "vorlane-cli: a: the system refused the name\n0 of 1 changed, 1 refused\n");
  EXPECT_EQ(Files(), (Tree{{"a", "A"}}));
}

TEST_F(CliApply, NothingIsEverOverwritten) {
  folder_.Write("a", "A");
  folder_.Write(".x", "hidden");
  const ProgramResult result = Apply({"--code", "<LOWERCASE>.x</LOWERCASE>"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Errors, "vorlane-cli: a: the name is taken\n0 of 1 changed, 1 refused\n");
  EXPECT_EQ(Files(), (Tree{{"a", "A"}, {".x", "hidden"}}));
}

TEST_F(CliApply, InJsonEachRowSaysWhetherItWasDone) {
  for (const char* name : {"a", "b", "C"}) {
    folder_.Write(name);
  }
  chmod((folder_.Path() + "a").c_str(), 0444);
  const ProgramResult result = Apply({"--json", "--code", "<UPPERCASE><FILENAME></UPPERCASE>"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Errors, "");
  Json rows = Document(result);
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0], Json({{"row", 1},
                           {"folder", folder_.Path()},
                           {"name", "a"},
                           {"proposed", ""},
                           {"marker", "<Read Only>"},
                           {"artist", ""},
                           {"title", ""},
                           {"id3v1", ""},
                           {"id3v2", ""},
                           {"readOnly", "Yes"},
                           {"done", false},
                           {"reason", "read only"}}));
  EXPECT_EQ(rows[1]["name"], "b");
  EXPECT_EQ(rows[1]["proposed"], "B");
  EXPECT_EQ(rows[1]["done"], true);
  EXPECT_FALSE(rows[1].contains("reason"));
  EXPECT_EQ(rows[2]["done"], false) << "unchanged";
  EXPECT_FALSE(rows[2].contains("reason"));
}

// What a preview proposes is what a run then does, for whatever operation.
TEST_F(CliApply, DoesWhatThePreviewProposed) {
  const std::vector<Lists> operations = {
      {"--code", "<UPPERCASE><FILENAME></UPPERCASE>"},
      {"--code", "<LOWERCASE>same</LOWERCASE><EXTONLY>"},
      {"--code", "<BOX1><EXTONLY>", "--box", "1=n<AUTONUMBER>"},
      {"--code", "<FOLDERNAME> <FILENAME>", "--recursive"},
      {"--code", "<BOX1><EXTONLY>", "--box", "1=<AUTONUMBER>", "--recursive"},
      {"--code", "x<FILENAME>", "--folders"},
      {"--operation", "Number/Text and number"},
      {"--operation", "Number/List number in front"},
      {"--operation", "Insert/Text in front", "--box", "1=a "},
      {"--code", "<BOX1><EXTONLY>", "--box", "1=<AUTONUMBER>", "--only", "c.txt", "--only",
       "a.txt"},
      {"--code", "<LOWERCASE>same</LOWERCASE>", "--only", "b.txt", "--only", "a.mp3"},
  };
  for (const Lists& operation : operations) {
    TemporaryFolder place;
    for (const char* name : {"a.txt", "b.txt", "c.txt", "a.mp3", "same.txt", "Sub/a.txt",
                             "Sub/b.txt", "Other/1.txt"}) {
      place.Write(name, name);
    }
    Lists words = {"preview", place.Path(), "--json"};
    words.insert(words.end(), operation.begin(), operation.end());
    Json proposals = Document(RunCli(words));
    words[0] = "apply";
    Json rows = Document(RunCli(words));
    ASSERT_EQ(rows.size(), proposals.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const std::string folder = rows[i]["folder"];
      const std::string name = rows[i]["name"];
      const std::string proposed = proposals[i]["proposed"];
      SCOPED_TRACE(operation[1] + ": " + name);
      EXPECT_EQ(folder, proposals[i]["folder"]);
      EXPECT_EQ(name, proposals[i]["name"]);
      EXPECT_EQ(rows[i]["proposed"], proposed);
      EXPECT_EQ(rows[i]["done"], proposed != name);
      if (operation.back() != "--folders") {
        EXPECT_EQ(place.Read((folder + proposed).substr(place.Path().size())),
                  (folder + name).substr(place.Path().size()));
      }
    }
  }
}

TEST_F(CliApply, AFolderThatIsNotThereIsStatus3) {
  EXPECT_EQ(RefusalOf(RunCli({"apply", "/no such folder", "--code", "x<FILENAME>"}), 3),
            "no such folder: /no such folder");
  EXPECT_EQ(RefusalOf(Apply({"--operation", "No/such"}), 3), "no such operation: No/such");
}

TEST_F(CliApply, WithoutAJournalItSaysSo) {
  folder_.Write("a");
  folder_.Write(Journal, "somebody's own text");
  const ProgramResult result = Apply({"--code", "x<FILENAME>"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_NE(Lines(result.Errors).front().find("CreateUndoFile"), std::string::npos)
      << result.Errors;
  EXPECT_EQ(folder_.Read(Journal), "somebody's own text");
}

TEST_F(CliApply, ANewRunReplacesTheJournal) {
  folder_.Write("a");
  EXPECT_EQ(Apply({"--code", "x<FILENAME>"}).Status, 0);
  EXPECT_EQ(Apply({"--code", "y<FILENAME>"}).Status, 0);
  EXPECT_EQ(Undo().Status, 0);
  EXPECT_EQ(folder_.Contents(), (Tree{{"xa", ""}}));
}

}  // namespace
}  // namespace vorlane
