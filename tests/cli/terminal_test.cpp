// Progress and escape codes: on a terminal's standard error only.
#include "cli/many_files.h"
#include "cli/run_cli.h"

namespace vorlane {
namespace {

class CliTerminal : public testing::Test {
 protected:
  CliTerminal() { WriteMany(folder_, 1500); }

  ProgramCall Call(bool onTerminal) {
    return {.Arguments = {"apply", folder_.Path(), "--code", "new <FILENAME>"},
            .ErrorsOnTerminal = onTerminal};
  }

  TemporaryFolder folder_;
};

// Progress is shown once a job has taken its time: its output is read so slowly that it does.
TEST_F(CliTerminal, ALongJobShowsItsProgressThereAndTakesItAway) {
  RunningProgram program(Cli, Call(true));
  while (program.ReadErrors().find('%') == std::string::npos) {
    program.ReadSomeOutput();
  }
  const ProgramResult result = program.Finish();
  EXPECT_EQ(result.Status, 0);
  EXPECT_TRUE(result.Errors.ends_with("\r\x1b[K1500 of 1500 changed\r\n")) << result.Errors;
  EXPECT_EQ(result.Output.find('\x1b'), std::string::npos);
}

TEST_F(CliTerminal, WithoutATerminalThereIsNone) {
  RunningProgram program(Cli, Call(false));
  for (int reading = 0; reading < 70; ++reading) {  // each waits for a moment
    program.ReadErrors();
    program.ReadSomeOutput();
  }
  const ProgramResult result = program.Finish();
  EXPECT_EQ(result.Errors, "1500 of 1500 changed\n");
  EXPECT_EQ(result.Output.find('\x1b'), std::string::npos);
}

// An escape code, a line break, the delete character and a code of the upper control range.
TEST(CliTerminalNames, ControlCharactersAreShownAsQuestionMarksThereAlone) {
  const TemporaryFolder folder;
  const std::string name = "a\x1b[31m\nb\x7f\xC2\x9B -\xC2\xA0-\xC3\x9B";
  const std::string shown = "a?[31m?b?? -\xC2\xA0-\xC3\x9B";
  folder.Write(name);
  const std::vector<std::vector<std::string>> commands = {
      {"list", folder.Path()},
      {"preview", folder.Path(), "--all", "--code", "<FILENAME>"},
      {"apply", folder.Path(), "--all", "--code", "<FILENAME>"},
      {"eval", "<FILENAME>", name},
      {"match", "*", name},
  };
  for (const auto& command : commands) {
    const std::string onTerminal =
        RunProgram(Cli, {.Arguments = command, .OutputOnTerminal = true}).Output;
    EXPECT_TRUE(onTerminal.starts_with(shown)) << command.front() << ": " << onTerminal;
    EXPECT_EQ(onTerminal.find('\x1b'), std::string::npos) << command.front();
    EXPECT_TRUE(RunCli(command).Output.starts_with(name)) << command.front();
  }
}

}  // namespace
}  // namespace vorlane
