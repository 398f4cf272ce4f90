// The same results whatever the user's locale is.
#include "cli/run_cli.h"
#include "support/id3_bytes.h"

namespace vorlane {
namespace {

// What the commands print that have to do with case, numbers, dates and order.
std::string OutputUnder(const std::string& locale) {
  TemporaryFolder folder;
  for (const char* name : {"title.mid", "TITLE.txt", "ä.txt", "Z.txt", "ı.txt", "İ.txt", "i.txt"}) {
    folder.Write(name);
  }
  folder.Write("a.mp3", id3::Audio(200) + id3::V1("title i", "Artist", "", "", "", 7, 0));
  const std::string facts =
      R"("facts":{"size":1264179,"created":"2024-11-15T15:45:12","now":"2025-05-06T07:08:09"}})";
  const std::vector<std::string> codes = {"<FILESIZE>",
                                          "<FILECREATIONDATE> <FILECREATIONTIME>",
                                          "<LOCALDATE> <LOCALTIME>",
                                          "<UPPERCASE>title.mid ß ı ä</UPPERCASE>",
                                          "<LOWERCASE>TITLE İ Ä</LOWERCASE>",
                                          "<PROPERCASE>ıi-istanbul</PROPERCASE>",
                                          "<RIGHTTRIM>abcdef||1,5|</RIGHTTRIM>",
                                          "<OLDESTDATETIME>5.6.2024|5/6/2023</OLDESTDATETIME>"};
  std::string questions;
  for (const std::string& code : codes) {
    questions += R"({"code":")" + code + R"(","name":"a","folder":"/R",)" + facts + "\n";
  }
  const auto run = [&](std::vector<std::string> arguments, const std::string& input = {}) {
    const ProgramResult result =
        RunProgram(Cli, {.Arguments = std::move(arguments),
                         .Input = input,
                         .Environment = {{"LANG", locale}, {"LC_ALL", locale}},
                         .Folder = folder.Path()});
    return std::to_string(result.Status) + "\n" + result.Output + result.Errors;
  };
  return run({"eval", "--jsonl"}, questions) + run({"list", "."}) +
         run({"list", ".", "--wildcard", "I*"}) + run({"match", "TITLE*", "title", "tıtle"}) +
         run({"preview", ".", "--code", "<UPPERCASE><FILENAME></UPPERCASE>"}) +
         run({"preview", ".", "--operation", "case/TITLE CASE"}) + run({"operations"}) +
         run({"apply", ".", "--code", "<LOWERCASE><FILENAME></LOWERCASE>"}) + run({"list", "."}) +
         run({"list", "/no such folder"});
}

TEST(CliLocale, IsTheSameEverywhere) {
  const std::string expected = OutputUnder("C");
  for (const std::string part :
       {"\"1234.55\"", "\"11/15/2024 3:45:12 PM\"", "\"5/6/2025 7:08:09 AM\"", "\"TITLE.MID ß",
        "title.mid -> TITLE.MID", "title.mid -> Title.mid", "no such folder"}) {
    EXPECT_NE(expected.find(part), std::string::npos) << part << "\n" << expected;
  }
  for (const char* locale : {"C.UTF-8", "de_DE.UTF-8", "tr_TR.UTF-8"}) {
    EXPECT_EQ(OutputUnder(locale), expected) << locale;
  }
}

}  // namespace
}  // namespace vorlane
