// Signals act as Stop, in the middle of a run over thousands of files. A program whose output
// nobody reads is held up there: it can't get to its end before the signal.
#include <signal.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "cli/many_files.h"
#include "cli/run_cli.h"

namespace vorlane {
namespace {

constexpr int FilesToStopIn = 3000;

class CliStop : public testing::TestWithParam<int> {
 protected:
  CliStop() {
    WriteMany(folder_, FilesToStopIn);
    before_ = Names();
  }

  std::set<std::string> Names() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
      names.insert(entry.path().filename());
    }
    return names;
  }

  std::size_t Renamed() const {
    const auto names = Names();
    return static_cast<std::size_t>(std::count_if(
        names.begin(), names.end(), [](const auto& name) { return name.starts_with("new "); }));
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
  std::set<std::string> before_;
};

std::string NameOfSignal(const testing::TestParamInfo<int>& signal) {
  return signal.param == SIGINT ? "Interrupt" : "Terminate";
}

INSTANTIATE_TEST_SUITE_P(Signals, CliStop, testing::Values(SIGINT, SIGTERM), NameOfSignal);

TEST_P(CliStop, ApplyFinishesTheRowAndLeavesTheJournal) {
  RunningProgram program(
      Cli, {.Arguments = {"apply", folder_.Path(), "--json", "--code", "new <FILENAME>"}});
  while (Records() < 10) {
    program.ReadSomeOutput();
  }
  program.Signal(GetParam());
  const ProgramResult result = program.Finish();
  EXPECT_EQ(result.Status, 1);
  const std::size_t renamed = Renamed();
  EXPECT_GE(renamed, 10U);
  EXPECT_LT(renamed, static_cast<std::size_t>(FilesToStopIn));
  EXPECT_EQ(result.Errors,
            std::to_string(renamed) + " of " + std::to_string(renamed) + " changed, stopped\n");
  EXPECT_EQ(Document(result).size(), renamed);
  EXPECT_EQ(Records(), renamed);
  EXPECT_TRUE(JournalText().ends_with("\r\n"));

  const ProgramResult undone = RunCli({"undo", folder_.Path()});
  EXPECT_EQ(undone.Status, 0);
  EXPECT_EQ(Lines(undone.Output).size(), renamed);
  EXPECT_EQ(Names(), before_);
}

// What wasn't taken back is taken back by the next undo.
TEST_P(CliStop, UndoFinishesTheRecordAndLeavesTheJournal) {
  ASSERT_EQ(RunCli({"apply", folder_.Path(), "--code", "new <FILENAME>"}).Status, 0);
  RunningProgram program(Cli, {.Arguments = {"undo", folder_.Path()}});
  while (!folder_.Exists(NameOfMany(999))) {  // the last row of the list comes first
    program.ReadSomeOutput();
  }
  program.Signal(GetParam());
  const ProgramResult stopped = program.Finish();
  EXPECT_EQ(stopped.Status, 1);
  const std::size_t left = Renamed();
  EXPECT_GT(left, 0U);
  EXPECT_EQ(stopped.Errors, std::to_string(FilesToStopIn - left) +
                                " done, 0 skipped, stopped: the journal stays\n");
  EXPECT_EQ(Records(), static_cast<std::size_t>(FilesToStopIn));

  const ProgramResult again = RunCli({"undo", folder_.Path()});
  EXPECT_EQ(again.Status, 1) << "what was taken back already is skipped";
  EXPECT_EQ(again.Errors,
            std::to_string(left) + " done, " + std::to_string(FilesToStopIn - left) + " skipped\n");
  EXPECT_EQ(Names(), before_);
}

// Enough work on each row that the preview is far from its end when its progress shows.
std::vector<std::string> LongPreview(const std::string& folder, std::vector<std::string> more) {
  std::string code = "new ";
  for (int part = 0; part < 500; ++part) {
    code += "<UPPERCASE><LEFT><FILENAME>|1|</LEFT></UPPERCASE>";
  }
  more.insert(more.begin(), {"preview", folder, "--code", code});
  return more;
}

ProgramResult SignalInPreview(const std::vector<std::string>& arguments, int signal) {
  RunningProgram program(Cli, {.Arguments = arguments, .ErrorsOnTerminal = true});
  // Each reading waits for a moment; a program that shows none is done sooner or later.
  for (int reading = 0; reading < 2000; ++reading) {
    if (program.ReadErrors().find('%') != std::string::npos) {
      break;
    }
  }
  program.Signal(signal);
  return program.Finish();
}

TEST_P(CliStop, PreviewTellsOfTheRowsItGotTo) {
  const ProgramResult result = SignalInPreview(LongPreview(folder_.Path(), {"--all"}), GetParam());
  EXPECT_EQ(result.Status, 1);
  const std::size_t reached = Lines(result.Output).size();
  EXPECT_GT(reached, 0U);
  EXPECT_LT(reached, static_cast<std::size_t>(FilesToStopIn));
  const std::string count = std::to_string(reached);
  EXPECT_TRUE(result.Errors.ends_with("\r\x1b[K" + count + " of " + count +
                                      " would be renamed, stopped\r\n"))
      << result.Errors;
}

TEST_P(CliStop, PreviewLeavesAWholeDocument) {
  const ProgramResult result = SignalInPreview(LongPreview(folder_.Path(), {"--json"}), GetParam());
  EXPECT_EQ(result.Status, 1);
  const Json rows = Document(result);
  EXPECT_GT(rows.size(), 0U);
  EXPECT_LT(rows.size(), static_cast<std::size_t>(FilesToStopIn));
  for (const Json& row : rows) {
    EXPECT_NE(row["proposed"], "");
  }
  EXPECT_TRUE(result.Errors.ends_with(" would be renamed, stopped\r\n")) << result.Errors;
}

TEST_P(CliStop, PreviewStopsInTheMiddleOfItsOutput) {
  RunningProgram program(
      Cli, {.Arguments = {"preview", folder_.Path(), "--json", "--code", "new <FILENAME>"}});
  program.ReadSomeOutput();
  program.Signal(GetParam());
  const ProgramResult result = program.Finish();
  EXPECT_EQ(result.Status, 1);
  const std::size_t printed = Document(result).size();
  EXPECT_GT(printed, 0U);
  EXPECT_LT(printed, static_cast<std::size_t>(FilesToStopIn));
  const std::string count = std::to_string(printed);
  EXPECT_EQ(result.Errors, count + " of " + count + " would be renamed, stopped\n");
}

}  // namespace
}  // namespace vorlane
