// What the commands have in common: help, versions, and one clear line for wrong arguments.
#include "cli/run_cli.h"

namespace vorlane {
namespace {

const std::vector<std::string> Commands = {"operations", "list",          "preview", "apply",
                                           "undo",       "eval",          "tags",    "match",
                                           "tag-write",  "tag-remove-v1", "exif"};

TEST(CliUsage, TheProgramAndEveryCommandHasHelp) {
  const ProgramResult whole = RunCli({"--help"});
  EXPECT_EQ(whole.Status, 0);
  EXPECT_EQ(whole.Errors, "");
  for (const std::string& command : Commands) {
    EXPECT_NE(whole.Output.find("  " + command + " "), std::string::npos) << command;
    const ProgramResult help = RunCli({command, "--help"});
    EXPECT_EQ(help.Status, 0);
    EXPECT_EQ(help.Errors, "");
    EXPECT_NE(help.Output.find("Usage: vorlane-cli " + command), std::string::npos) << help.Output;
    EXPECT_NE(help.Output.find("--help"), std::string::npos);
    EXPECT_NE(help.Output.find("--version"), std::string::npos);
  }
}

TEST(CliUsage, TheProgramAndEveryCommandTellsItsVersion) {
  const ProgramResult whole = RunCli({"--version"});
  EXPECT_EQ(whole.Status, 0);
  EXPECT_TRUE(whole.Output.starts_with("vorlane-cli ")) << whole.Output;
  EXPECT_EQ(Lines(whole.Output).size(), 1U);
  for (const std::string& command : Commands) {
    const ProgramResult version = RunCli({command, "--version"});
    EXPECT_EQ(version.Status, 0) << command;
    EXPECT_EQ(version.Output, whole.Output) << command;
  }
}

struct WrongUse {
  std::vector<std::string> Arguments;
  std::string Line;
};

TEST(CliUsage, WrongArgumentsGiveOneLineAndStatus2) {
  const std::vector<WrongUse> table = {
      {{}, "a command is required; --help lists them"},
      {{"--json"}, "A subcommand is required"},
      {{"rename"}, "no such command: rename"},
      {{"rename", "list", "/"}, "no such command: rename"},
      {{""}, "no such command: "},
      {{"Match", "*", "a"}, "no such command: Match"},

      {{"list"}, "FOLDER is required"},
      {{"list", "/", "/"}, "The following argument was not expected: /"},
      {{"list", "/", "--all"}, "The following argument was not expected: --all"},
      {{"list", "/", "--wildcard"}, "--wildcard: 1 required W missing"},
      {{"undo"}, "FOLDER is required"},
      {{"undo", "/", "--wildcard=*"}, "The following argument was not expected: --wildcard=*"},
      {{"match"}, "WILDCARD is required"},
      {{"match", "*"}, "NAME is required"},
      {{"operations", "--catalogue"}, "--catalogue: 1 required FILE missing"},
      {{"operations", "1"}, "The following argument was not expected: 1"},

      {{"preview", "/"}, "--operation or --code is required"},
      {{"apply", "/"}, "--operation or --code is required"},
      {{"preview", "--code", "x"}, "FOLDER is required"},
      {{"preview", "/", "--operation", "1", "--code", "x"}, "--operation excludes --code"},
      {{"apply", "/", "--code", "x", "--operation", "1"}, "--operation excludes --code"},
      {{"apply", "/", "--code"}, "--code: 1 required STEP missing"},
      {{"apply", "/", "--code", "a\r\nb"}, "--code: a step is one line"},
      {{"apply", "/", "--no-journal", "--code", "x"},
       "The following argument was not expected: --no-journal"},
      {{"preview", "/", "--code", "x", "--box", "1"}, "--box 1: expected N=TEXT with N 1 to 6"},
      {{"preview", "/", "--code", "x", "--box", "0=a"}, "--box 0=a: expected N=TEXT with N 1 to 6"},
      {{"preview", "/", "--code", "x", "--box", "7=a"}, "--box 7=a: expected N=TEXT with N 1 to 6"},
      {{"preview", "/", "--code", "x", "--box", "12=a"},
       "--box 12=a: expected N=TEXT with N 1 to 6"},
      {{"preview", "/", "--code", "x", "--box", "=a"}, "--box =a: expected N=TEXT with N 1 to 6"},
      {{"preview", "/", "--code", "x", "--box", ""}, "--box : expected N=TEXT with N 1 to 6"},
      {{"preview", "/", "--code", "x", "--check", "1"}, "--check 1: that box has no check box"},
      {{"preview", "/", "--code", "x", "--check", "0"}, "--check 0: that box has no check box"},
      {{"preview", "/", "--code", "x", "--check", "-1"}, "--check -1: that box has no check box"},
      {{"preview", "/", "--code", "x", "--check", "7"}, "--check 7: that box has no check box"},
      {{"preview", "/", "--code", "x", "--check", "one"}, "--check: no whole number: one"},
      {{"preview", "/", "--code", "x", "--check", "1.5"}, "--check: no whole number: 1.5"},

      {{"eval"}, "CODE and NAME are required"},
      {{"eval", "x"}, "CODE and NAME are required"},
      {{"eval", "x", "y", "z"}, "The following argument was not expected: z"},
      {{"eval", "x", "y", "--number", ""}, "--number: no whole number: "},
      {{"eval", "x", "y", "--number", "x"}, "--number: no whole number: x"},
      {{"eval", "x", "y", "--number", "0x10"}, "--number: no whole number: 0x10"},
      {{"eval", "x", "y", "--number", " 1"}, "--number: no whole number:  1"},
      {{"eval", "x", "y", "--number", "2147483648"}, "--number: no whole number: 2147483648"},
      {{"eval", "x", "y", "--rows", "1e3"}, "--rows: no whole number: 1e3"},
      {{"eval", "x", "y", "--rows", "99999999999999999999"},
       "--rows: no whole number: 99999999999999999999"},
      {{"eval", "x", "y", "--paths", "mac"}, "paths: expected windows or posix, not mac"},
      {{"eval", "x", "y", "--paths", "Windows"}, "paths: expected windows or posix, not Windows"},
      {{"eval", "x", "y", "--box", "7=a"}, "--box 7=a: expected N=TEXT with N 1 to 6"},
      {{"eval", "x", "y", "--box"}, "--box: 1 required N=TEXT missing"},
      {{"eval", "x", "y", "--jsonl"}, "--jsonl reads its entries from standard input"},
  };
  for (const WrongUse& wrong : table) {
    EXPECT_EQ(RefusalOf(RunCli(wrong.Arguments), 2), wrong.Line);
  }
}

TEST(CliUsage, AMessageIsOneLineWhateverItTellsOf) {
  EXPECT_EQ(RefusalOf(RunCli({"list", "/no\nsuch\r\x1b[31m"}), 3),
            "no such folder: /no?such??[31m");
}

TEST(CliUsage, AnOptionTakesItsValueAlsoBehindAnEqualsSign) {
  EXPECT_EQ(RunCli({"eval", "<AUTONUMBER>", "a", "--number=7"}).Output, "7\n");
  EXPECT_EQ(RunCli({"eval", "--box=1=a=b", "<BOX1>", "a"}).Output, "a=b\n");
}

TEST(CliUsage, TextsThatLookLikeOptionsOrListsAreTexts) {
  EXPECT_EQ(RunCli({"eval", "<BOX1>", "a", "--box", "1=--json"}).Output, "--json\n");
  EXPECT_EQ(RunCli({"eval", "--", "--<NAMEONLY>", "-a"}).Output, "---a\n");
  EXPECT_EQ(RunCli({"eval", "[<NAMEONLY>,b]", "[a,b]"}).Output, "[[a,b],b]\n");
  EXPECT_EQ(RunCli({"eval", "{}<NAMEONLY>", "{}"}).Output, "{}{}\n");
}

TEST(CliUsage, OutputThatCannotBeWrittenIsAFailure) {
  const ProgramResult result =
      RunProgram(Cli, {.Arguments = {"operations"}, .OutputOnFullDevice = true});
  EXPECT_EQ(RefusalOf(result, 1), "can't write to standard output");
}

}  // namespace
}  // namespace vorlane
