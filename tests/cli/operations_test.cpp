// vorlane-cli operations: the tree of the catalogue.
#include <filesystem>

#include "cli/run_cli.h"
#include "cli/test_catalogue.h"

namespace vorlane {
namespace {

class CliOperations : public testing::Test {
 protected:
  ProgramResult Read(const std::string& catalogue, std::vector<std::string> more = {}) {
    folder_.Write("Some.ini", catalogue);
    more.insert(more.begin(), {"operations", "--catalogue", folder_.Path() + "Some.ini"});
    return RunCli(more);
  }

  TemporaryFolder folder_;
};

TEST_F(CliOperations, AreListedWithTheirIndexIndentedByTheirDepth) {
  const ProgramResult result = Read(TestCatalogue());
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Errors, "");
  EXPECT_EQ(result.Output,
            "1\tNames:\n"
            "2\t  Upper case\n"
            "3\t  Framed\n"
            "4\t  Checked\n"
            "5\tOthers:\n"
            "6\t  Upper case\n");
}

TEST_F(CliOperations, AreListedWithAllTheirKeysInJson) {
  const ProgramResult result = Read(TestCatalogue(), {"--json"});
  EXPECT_EQ(result.Status, 0);
  Json all = Document(result);
  ASSERT_EQ(all.size(), 6U);
  EXPECT_EQ(all[0], Json::parse(R"({"index":1,"depth":1,"title":"Names","heading":true,"help":"",
      "wildcard":"","boxes":[]})"));
  EXPECT_EQ(all[1], Json::parse(R"({"index":2,"depth":2,"title":"Upper case","heading":false,
      "help":"All in capitals.","wildcard":"*.*","boxes":[]})"));
  EXPECT_EQ(all[2], Json::parse(R"-({"index":3,"depth":2,"title":"Framed","heading":false,
      "help":"A text on each side.","wildcard":"*.txt","boxes":[
        {"name":"Front","display":"Registry(Front|New )","toolTip":"Stands in front","check":""},
        {"name":"Back","display":"","toolTip":"Stands behind","check":""}]})-"));
  EXPECT_EQ(all[3]["boxes"][0]["check"], "Own text");
  EXPECT_EQ(all[5]["index"], 6);
}

TEST_F(CliOperations, TitlesMayHoldAnyCharacter) {
  EXPECT_EQ(Read(WithCrLf("Operation Name:\tDépôt 日本\nStep: <FILENAME>\n\n")).Output,
            "1\tDépôt 日本\n");
  EXPECT_EQ(Read(WithCrLf("Operation Name:\tD\xE9p\xF4t\nStep: <FILENAME>\n\n")).Output,
            "1\tDépôt\n");
}

TEST_F(CliOperations, TheShippedOnesComeWithoutAFileName) {
  const ProgramResult result = RunCli({"operations", "--json"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Errors, "");
  EXPECT_GT(Document(result).size(), 20U);
}

TEST_F(CliOperations, ThoseBesideTheProgramAreFoundInAnyCase) {
  std::filesystem::copy_file(Cli.Path(), folder_.Path() + "vorlane-cli");
  folder_.Write("operations.INI", WithCrLf("Operation Name:\tBeside\nStep: <FILENAME>\n\n"));
  const ProgramFile copy(folder_.Path() + "vorlane-cli");
  const ProgramResult result = RunProgram(copy, {.Arguments = {"operations"}});
  EXPECT_EQ(result.Errors, "");
  EXPECT_EQ(result.Output, "1\tBeside\n");
}

TEST_F(CliOperations, ABrokenFileIsListedUpToTheBreak) {
  const std::string broken = TestCatalogue() + WithCrLf("Operation Name: no tab\nStep: <A>\n\n");
  for (const bool asJson : {false, true}) {
    const ProgramResult result =
        Read(broken, asJson ? std::vector<std::string>{"--json"} : std::vector<std::string>());
    EXPECT_EQ(result.Status, 1);
    EXPECT_EQ(result.Errors,
              "vorlane-cli: the catalogue was read up to line 36 only: Subscript out of range\n");
    EXPECT_EQ(asJson ? Document(result).size() : Lines(result.Output).size(), 6U);
  }
}

TEST_F(CliOperations, ATreeWithAMissingLevelIsListedUpToThere) {
  const ProgramResult result =
      Read(WithCrLf("Operation Name:\tOne\n\nOperation Name:\t\t\tThree\n\n"));
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Output, "1\tOne:\n");
  EXPECT_EQ(result.Errors,
            "vorlane-cli: the catalogue was read up to line 3 only: Subscript out of range\n");
}

// Cut anywhere, a file gives the operations in front of the cut, and never anything but 0 or 1.
TEST_F(CliOperations, ACutFileIsReadUpToTheCut) {
  const std::string whole = TestCatalogue();
  for (std::size_t length = 0; length < whole.size(); length += 37) {
    const ProgramResult result = Read(whole.substr(0, length));
    EXPECT_EQ(result.Status, result.Errors.empty() ? 0 : 1) << length;
    EXPECT_LE(Lines(result.Output).size(), 6U) << length;
    EXPECT_LE(Lines(result.Errors).size(), 1U) << length;
  }
  const ProgramResult inAHeader = Read(whole.substr(0, whole.rfind("Operation Name:") + 15));
  EXPECT_EQ(inAHeader.Status, 1);
  EXPECT_EQ(Lines(inAHeader.Output).size(), 5U);
}

TEST_F(CliOperations, AFileWithoutOperationsGivesNone) {
  const ProgramResult plain = Read("");
  EXPECT_EQ(plain.Status, 0);
  EXPECT_EQ(plain.Output + plain.Errors, "");
  EXPECT_EQ(Document(Read("nothing of the kind", {"--json"})), Json::array());
}

TEST_F(CliOperations, AFileThatIsNotThereIsStatus3) {
  const std::string missing = folder_.Path() + "missing.ini";
  EXPECT_EQ(RefusalOf(RunCli({"operations", "--catalogue", missing}), 3),
            "no such catalogue: " + missing);
  EXPECT_EQ(RefusalOf(RunCli({"operations", "--catalogue", folder_.Path()}), 3),
            "no such catalogue: " + folder_.Path());
  EXPECT_EQ(RefusalOf(RunCli({"operations", "--catalogue", ""}), 3), "no such catalogue: ");
}

TEST_F(CliOperations, AnotherProgramFolderMayBeNamed) {
  folder_.Write("Operations.ini", WithCrLf("Operation Name:\tMine\nStep: <FILENAME>\n\n"));
  const ProgramResult result = RunProgram(
      Cli, {.Arguments = {"operations"}, .Environment = {{"VORLANE_HOME", folder_.Path()}}});
  EXPECT_EQ(result.Output, "1\tMine\n");
}

TEST_F(CliOperations, AProgramFolderWithoutTheFileIsStatus3) {
  const ProgramResult result = RunProgram(
      Cli, {.Arguments = {"operations"}, .Environment = {{"VORLANE_HOME", folder_.Path()}}});
  EXPECT_EQ(RefusalOf(result, 3), "no Operations.ini in " + folder_.Path());
}

// As packages lay it out: the program in bin, what it reads in share.
TEST_F(CliOperations, AreFoundInTheShareFolderOfTheInstallation) {
  folder_.Write("usr/share/vorlane/Operations.ini", TestCatalogue());
  folder_.MakeFolder("usr/bin");
  const std::string program = folder_.Path() + "usr/bin/vorlane-cli";
  std::filesystem::copy_file(Cli.Path(), program);
  const ProgramResult result = RunProgram(ProgramFile(program), {.Arguments = {"operations"}});
  EXPECT_EQ(result.Status, 0) << result.Errors;
  EXPECT_TRUE(result.Output.starts_with("1\tNames:\n2\t  Upper case\n")) << result.Output;
}

// A catalogue beside the program, as in its build folder, goes before that of an installation.
TEST_F(CliOperations, BesideTheProgramGoBeforeTheShareFolder) {
  folder_.Write("usr/share/vorlane/Operations.ini", "not this one");
  folder_.Write("usr/bin/Operations.ini", TestCatalogue());
  const std::string program = folder_.Path() + "usr/bin/vorlane-cli";
  std::filesystem::copy_file(Cli.Path(), program);
  const ProgramResult result = RunProgram(ProgramFile(program), {.Arguments = {"operations"}});
  EXPECT_TRUE(result.Output.starts_with("1\tNames:\n2\t  Upper case\n")) << result.Output;
}

}  // namespace
}  // namespace vorlane
