// vorlane-cli match: the list's wildcard rule on names.
#include "cli/run_cli.h"

namespace vorlane {
namespace {

struct Matching {
  std::vector<std::string> Arguments;
  std::string Output;
};

TEST(CliMatch, PrintsTheNamesThatTheWildcardAccepts) {
  const std::vector<Matching> table = {
      {{"*.txt", "a.txt", "b.mp3", "c.TXT"}, "a.txt\nc.TXT\n"},
      {{"*.*", "a.txt", "README"}, "a.txt\nREADME\n"},
      {{"track ##.*", "Track 01.mp3", "track 1.mp3"}, "Track 01.mp3\n"},
      {{"[a-c]?", "ax", "dx", "Bx"}, "ax\nBx\n"},
      {{"[!a]*", "ax", "bx"}, "bx\n"},
      {{"*", "[a,b]", "{}", "%%", "", "-", "++x"}, "[a,b]\n{}\n%%\n\n-\n++x\n"},
      {{"*", "--", "--json", "-h"}, "--json\n-h\n"},
      {{"*", "match", "list", "undo"}, "match\nlist\nundo\n"},
      {{"?", "\xE4", "\xC3\xA4", "ab"}, "\xE4\n\xC3\xA4\n"},
      {{"\xC3\x84*", "\xC3\xA4x"}, "\xC3\xA4x\n"},
      {{"*", "line\nbreak"}, "line\nbreak\n"},
  };
  for (const Matching& matching : table) {
    std::vector<std::string> arguments = matching.Arguments;
    arguments.insert(arguments.begin(), "match");
    const ProgramResult result = RunCli(arguments);
    EXPECT_EQ(result.Status, 0);
    EXPECT_EQ(result.Output, matching.Output);
    EXPECT_EQ(result.Errors, "");
  }
}

TEST(CliMatch, NoneIsStatus1) {
  for (const char* wildcard : {"*.doc", "[", "[b-a]", "*.tx"}) {
    const ProgramResult result = RunCli({"match", wildcard, "a.txt"});
    EXPECT_EQ(result.Status, 1) << wildcard;
    EXPECT_EQ(result.Output + result.Errors, "") << wildcard;
  }
}

}  // namespace
}  // namespace vorlane
