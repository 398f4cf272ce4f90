// Signals act as Stop, in the middle of a run over thousands of files. A program whose output
// nobody reads is held up there: it can't get to its end before the signal.
#include <signal.h>

#include "cli/run_cli.h"

namespace vorlane {
namespace {

constexpr int Files = 3000;
constexpr const char* Journal = "UNDORENAME.TXT";

using Tree = std::map<std::string, std::string>;

// Long enough that the rows fill the pipe many times over.
std::string NameOf(int file) {
  return "file " + std::to_string(file) + " " + std::string(80, 'x');
}

class CliStop : public testing::TestWithParam<int> {
 protected:
  CliStop() {
    for (int file = 0; file < Files; ++file) {
      folder_.Write(NameOf(file), std::to_string(file));
    }
    before_ = folder_.Contents();
  }

  std::size_t Renamed() {
    std::size_t renamed = 0;
    for (const auto& [name, bytes] : folder_.Contents()) {
      renamed += name.starts_with("new ") ? 1 : 0;
    }
    return renamed;
  }

  std::string JournalText() { return folder_.Read(Journal); }

  std::size_t Records() {
    std::size_t records = 0;
    const std::string text = JournalText();
    for (auto at = text.find("<VORL>"); at != std::string::npos; at = text.find("<VORL>", at + 1)) {
      ++records;
    }
    return records;
  }

  TemporaryFolder folder_;
  Tree before_;
};

std::string NameOfSignal(const testing::TestParamInfo<int>& signal) {
  return signal.param == SIGINT ? "Interrupt" : "Terminate";
}

INSTANTIATE_TEST_SUITE_P(Signals, CliStop, testing::Values(SIGINT, SIGTERM), NameOfSignal);

TEST_P(CliStop, ApplyFinishesTheRowAndLeavesTheJournal) {
  RunningProgram program(
      VORLANE_CLI, {.Arguments = {"apply", folder_.Path(), "--code", "new <FILENAME>"}});
  while (Records() < 10) {
    program.ReadSomeOutput();
  }
  program.Signal(GetParam());
  const ProgramResult result = program.Finish();
  EXPECT_EQ(result.Status, 1);
  const std::size_t renamed = Renamed();
  EXPECT_GE(renamed, 10U);
  EXPECT_LT(renamed, static_cast<std::size_t>(Files));
  EXPECT_EQ(result.Errors, std::to_string(renamed) + " of " + std::to_string(renamed) +
                               " changed, stopped\n");
  EXPECT_EQ(Lines(result.Output).size(), renamed);
  EXPECT_EQ(Records(), renamed);
  EXPECT_TRUE(JournalText().ends_with("\r\n"));

  const ProgramResult undone = RunCli({"undo", folder_.Path()});
  EXPECT_EQ(undone.Status, 0);
  EXPECT_EQ(Lines(undone.Output).size(), renamed);
  EXPECT_EQ(folder_.Contents(), before_);
}

TEST_P(CliStop, TheJsonOfAStoppedRunIsWhole) {
  RunningProgram program(
      VORLANE_CLI, {.Arguments = {"apply", folder_.Path(), "--json", "--code", "new <FILENAME>"}});
  while (Records() < 10) {
    program.ReadSomeOutput();
  }
  program.Signal(GetParam());
  const ProgramResult result = program.Finish();
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(Document(result).size(), Renamed());
  EXPECT_EQ(Lines(result.Errors).size(), 1U);
}

// What wasn't taken back is taken back by the next undo.
TEST_P(CliStop, UndoFinishesTheRecordAndLeavesTheJournal) {
  ASSERT_EQ(RunCli({"apply", folder_.Path(), "--code", "new <FILENAME>"}).Status, 0);
  RunningProgram program(VORLANE_CLI, {.Arguments = {"undo", folder_.Path()}});
  while (!folder_.Exists(NameOf(999))) {  // the last row of the list comes first
    program.ReadSomeOutput();
  }
  program.Signal(GetParam());
  const ProgramResult stopped = program.Finish();
  EXPECT_EQ(stopped.Status, 1);
  const std::size_t left = Renamed();
  EXPECT_GT(left, 0U);
  EXPECT_EQ(stopped.Errors,
            std::to_string(Files - left) + " done, 0 skipped, stopped: the journal stays\n");
  EXPECT_EQ(Records(), static_cast<std::size_t>(Files));

  const ProgramResult again = RunCli({"undo", folder_.Path()});
  EXPECT_EQ(again.Status, 1) << "what was taken back already is skipped";
  EXPECT_EQ(again.Errors,
            std::to_string(left) + " done, " + std::to_string(Files - left) + " skipped\n");
  EXPECT_EQ(folder_.Contents(), before_);
}

}  // namespace
}  // namespace vorlane
