// Progress and escape codes: on a terminal's standard error only.
#include "cli/run_cli.h"

namespace vorlane {
namespace {

class CliTerminal : public testing::Test {
 protected:
  CliTerminal() {
    for (int file = 0; file < 3000; ++file) {
      folder_.Write("file " + std::to_string(file) + " " + std::string(80, 'x'));
    }
  }

  ProgramCall Call(bool onTerminal) {
    return {.Arguments = {"apply", folder_.Path(), "--code", "new <FILENAME>"},
            .ErrorsOnTerminal = onTerminal};
  }

  TemporaryFolder folder_;
};

// Progress is shown once a job has taken its time: its output is read so slowly that it does.
TEST_F(CliTerminal, ALongJobShowsItsProgressThereAndTakesItAway) {
  RunningProgram program(VORLANE_CLI, Call(true));
  while (program.ReadErrors().find('%') == std::string::npos) {
    program.ReadSomeOutput();
  }
  const ProgramResult result = program.Finish();
  EXPECT_EQ(result.Status, 0);
  EXPECT_TRUE(result.Errors.ends_with("\r\x1b[K3000 of 3000 changed\r\n")) << result.Errors;
  EXPECT_EQ(result.Output.find('\x1b'), std::string::npos);
}

TEST_F(CliTerminal, WithoutATerminalThereIsNone) {
  RunningProgram program(VORLANE_CLI, Call(false));
  for (int reading = 0; reading < 70; ++reading) {  // each waits for a moment
    program.ReadErrors();
    program.ReadSomeOutput();
  }
  const ProgramResult result = program.Finish();
  EXPECT_EQ(result.Errors, "3000 of 3000 changed\n");
  EXPECT_EQ(result.Output.find('\x1b'), std::string::npos);
}

}  // namespace
}  // namespace vorlane
