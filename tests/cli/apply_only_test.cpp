// vorlane-cli apply --only: the rows that are named, one by one, with one journal for all of them.
#include <sys/stat.h>

#include "cli/run_cli.h"

namespace vorlane {
namespace {

using Lists = std::vector<std::string>;
using Tree = std::map<std::string, std::string>;

class CliApplyOnly : public testing::Test {
 protected:
  CliApplyOnly() {
    for (const char* name : {"a.txt", "b.txt", "c.txt", "d.txt", "Sub/b.txt"}) {
      folder_.Write(name, name);
    }
    before_ = folder_.Contents();
  }

  ProgramResult Apply(const Lists& only, Lists more) {
    more.insert(more.begin(), {"apply", folder_.Path()});
    for (const std::string& name : only) {
      more.insert(more.end(), {"--only", name});
    }
    return RunCli(more);
  }

  void ExpectUndoRestores() {
    EXPECT_EQ(RunCli({"undo", folder_.Path()}).Status, 0);
    EXPECT_EQ(folder_.Contents(), before_);
  }

  TemporaryFolder folder_;
  Tree before_;
};

TEST_F(CliApplyOnly, DoesThatRowAlone) {
  const ProgramResult result = Apply({"c.txt"}, {"--code", "x<FILENAME>"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output, "c.txt -> xc.txt\n");
  EXPECT_EQ(result.Errors, "1 of 1 changed\n");
  EXPECT_EQ(folder_.Read("xc.txt"), "c.txt");
  ExpectUndoRestores();
}

TEST_F(CliApplyOnly, UndoTakesAllOfThemBack) {
  const ProgramResult result = Apply({"d.txt", "b.txt", "a.txt"}, {"--code", "x<FILENAME>"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output, "a.txt -> xa.txt\nb.txt -> xb.txt\nd.txt -> xd.txt\n");
  EXPECT_EQ(folder_.Read("xa.txt"), "a.txt");
  EXPECT_EQ(folder_.Read("xd.txt"), "d.txt");
  ExpectUndoRestores();
}

// Renamed rows move in the list, and the rows behind them with them.
TEST_F(CliApplyOnly, RowsThatMoveInTheListAreFoundAgain) {
  const ProgramResult result =
      Apply({"a.txt", "b.txt", "c.txt", "d.txt"}, {"--code", "z<FILENAME>"});
  EXPECT_EQ(result.Output, "a.txt -> za.txt\nb.txt -> zb.txt\nc.txt -> zc.txt\nd.txt -> zd.txt\n");
  ExpectUndoRestores();
}

TEST_F(CliApplyOnly, AMovedRowLeavesTheOthersToBeDone) {
  const ProgramResult result = Apply({"a.txt", "b.txt"}, {"--code", "<MOVE>Sub\\</MOVE>"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Output, "a.txt -> Sub/a.txt\n");
  EXPECT_EQ(result.Errors,
            "vorlane-cli: b.txt: not moved: no such folder, or the name is taken there\n"
            "1 of 2 changed, 1 refused\n");
  ExpectUndoRestores();
}

TEST_F(CliApplyOnly, AllRowsOfThatNameInSubFoldersToo) {
  EXPECT_EQ(Apply({"b.txt"}, {"--recursive", "--code", "x<FILENAME>"}).Status, 0);
  EXPECT_EQ(folder_.Read("xb.txt"), "b.txt");
  EXPECT_EQ(folder_.Read("Sub/xb.txt"), "Sub/b.txt");
  ExpectUndoRestores();
}

TEST_F(CliApplyOnly, BoxTextsCountForEachOfThem) {
  const ProgramResult result =
      Apply({"a.txt", "b.txt"}, {"--code", "<BOX1>-<NAMEONLY>", "--box", "1=<FOLDERNAME>"});
  EXPECT_EQ(result.Status, 0);
  const std::string folder = folder_.Path().substr(5, folder_.Path().size() - 6);
  EXPECT_EQ(folder_.Read(folder + "-a"), "a.txt");
  EXPECT_EQ(folder_.Read(folder + "-b"), "b.txt");
}

TEST_F(CliApplyOnly, ATypedTextCountsInABoxWithAFormula) {
  folder_.Write("../" + folder_.Path().substr(5, folder_.Path().size() - 6) + "/Some.ini",
                "Operation Name:\tOne\r\nStep: <BOX1><EXTONLY>\r\nHelp Message: h\r\n"
                "Wildcard: *.txt\r\nAvailable Boxes: 1\r\nBox Name: n\r\n"
                "Box Display: <UPPERCASE><NAMEONLY></UPPERCASE>\r\n\r\n");
  const Lists operation = {"--operation", "One", "--catalogue", folder_.Path() + "Some.ini"};
  EXPECT_EQ(Apply({"a.txt", "b.txt"}, operation).Output, "a.txt -> A.txt\nb.txt -> B.txt\n");
  Lists typed = operation;
  typed.insert(typed.end(), {"--box", "1=new <NAMEONLY>"});
  EXPECT_EQ(Apply({"c.txt", "d.txt"}, typed).Output, "c.txt -> new c.txt\nd.txt -> new d.txt\n");
}

TEST_F(CliApplyOnly, ARefusedRowLeavesTheOthersToBeDone) {
  chmod((folder_.Path() + "b.txt").c_str(), 0444);
  const ProgramResult result =
      Apply({"a.txt", "b.txt", "c.txt"}, {"--json", "--code", "x<FILENAME>"});
  EXPECT_EQ(result.Status, 1);
  Json rows = Document(result);
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0]["done"], true);
  EXPECT_EQ(rows[1]["done"], false);
  EXPECT_EQ(rows[1]["reason"], "read only");
  EXPECT_EQ(rows[2]["done"], true);
}

TEST_F(CliApplyOnly, ANameThatIsNotListedChangesNothing) {
  for (const Lists& only : std::vector<Lists>{{"missing"}, {"a.txt", "missing"}, {"A.TXT"}, {""}}) {
    EXPECT_EQ(RefusalOf(Apply(only, {"--code", "x<FILENAME>"}), 3),
              "not in the list: " + only.back());
    EXPECT_EQ(RefusalOf(Apply(only, {"--json", "--code", "x<FILENAME>"}), 3),
              "not in the list: " + only.back());
    EXPECT_EQ(folder_.Contents(), before_);
  }
}

TEST_F(CliApplyOnly, NothingToDoLeavesNoJournal) {
  EXPECT_EQ(Apply({"a.txt", "b.txt"}, {"--code", "<FILENAME>"}).Status, 0);
  EXPECT_EQ(folder_.Contents(), before_);
  EXPECT_EQ(Apply({"a.txt", "b.txt"}, {"--code", "<REPLACE><FILENAME>|b|x|</REPLACE>"}).Status, 0);
  ExpectUndoRestores();
}

}  // namespace
}  // namespace vorlane
