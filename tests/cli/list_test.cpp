// vorlane-cli list: what the window's list would show.
#include <sys/stat.h>
#include <unistd.h>

#include "cli/run_cli.h"

namespace vorlane {
namespace {

using Names = std::vector<std::string>;

class CliList : public testing::Test {
 protected:
  ProgramResult List(std::vector<std::string> more = {}) {
    more.insert(more.begin(), {"list", folder_.Path()});
    return RunCli(more);
  }

  Names Shown(std::vector<std::string> more = {}) {
    const ProgramResult result = List(std::move(more));
    EXPECT_EQ(result.Status, 0);
    EXPECT_EQ(result.Errors, "");
    return Lines(result.Output);
  }

  TemporaryFolder folder_;
};

TEST_F(CliList, ShowsVisibleFilesSortedWithoutRegardToCase) {
  for (const char* name : {"b.txt", "A.txt", "c.mp3", ".hidden", "UNDORENAME.TXT", "Sub/d.txt"}) {
    folder_.Write(name);
  }
  EXPECT_EQ(Shown(), (Names{"A.txt", "b.txt", "c.mp3"}));
}

TEST_F(CliList, TheWildcardChooses) {
  for (const char* name : {"a.txt", "b.TXT", "c.mp3", "plain"}) {
    folder_.Write(name);
  }
  EXPECT_EQ(Shown({"--wildcard", "*.txt"}), (Names{"a.txt", "b.TXT"}));
  EXPECT_EQ(Shown({"--wildcard", "[!a].*"}), (Names{"b.TXT", "c.mp3"}));
  EXPECT_EQ(Shown({"--wildcard", "*.*"}), (Names{"a.txt", "b.TXT", "c.mp3", "plain"}));
  EXPECT_EQ(Shown({"--wildcard", ""}), (Names{"a.txt", "b.TXT", "c.mp3", "plain"}));
  EXPECT_EQ(Shown({"--wildcard", "*.doc"}), Names());
}

TEST_F(CliList, SubFoldersComeWithTheirPath) {
  for (const char* name : {"b.txt", "Sub/a.txt", "Sub/Deep/c.txt", "Other/a.mp3"}) {
    folder_.Write(name);
  }
  const std::string here = folder_.Path();
  EXPECT_EQ(Shown({"--recursive", "--wildcard", "*.txt"}),
            (Names{here + "Sub/a.txt", "b.txt", here + "Sub/Deep/c.txt"}));
}

TEST_F(CliList, FoldersInsteadOfFiles) {
  for (const char* name : {"b.txt", "Sub/Deep/c.txt", ".hidden/x"}) {
    folder_.Write(name);
  }
  EXPECT_EQ(Shown({"--folders"}), (Names{"Sub"}));
  EXPECT_EQ(Shown({"--folders", "--recursive"}), (Names{folder_.Path() + "Sub/Deep", "Sub"}));
}

TEST_F(CliList, InJsonARowHasEveryColumn) {
  folder_.Write("a.txt");
  folder_.Write("Sub/b.txt");
  chmod((folder_.Path() + "a.txt").c_str(), 0444);
  Json rows = Document(List({"--json", "--recursive"}));
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0], Json({{"row", 1},
                           {"folder", folder_.Path()},
                           {"name", "a.txt"},
                           {"proposed", ""},
                           {"marker", nullptr},
                           {"artist", ""},
                           {"title", ""},
                           {"id3v1", ""},
                           {"id3v2", ""},
                           {"readOnly", "Yes"}}));
  EXPECT_EQ(rows[1]["folder"], folder_.Path() + "Sub/");
  EXPECT_EQ(rows[1]["readOnly"], "No");
}

TEST_F(CliList, AnEmptyFolderIsAnEmptyList) {
  EXPECT_EQ(Shown(), Names());
  EXPECT_EQ(Document(List({"--json"})), Json::array());
}

TEST_F(CliList, NamesKeepTheirBytes) {
  const std::string odd = "a|b\xE4;\n\x01.txt";
  folder_.Write(odd);
  EXPECT_EQ(List().Output, odd + "\n");
  const std::string json = List({"--json"}).Output;
  EXPECT_NE(json.find(R"("name":"a|b\udce4;\n\u0001.txt")"), std::string::npos) << json;
}

// Such a sequence isn't valid UTF-8 for a system that keeps names in UTF-16.
TEST_F(CliList, BytesOfHalfASurrogatePairAreEscapedOneByOne) {
  folder_.Write("x\xED\xA0\x80y");
  const std::string json = List({"--json"}).Output;
  EXPECT_NE(json.find(R"("name":"x\udced\udca0\udc80y")"), std::string::npos) << json;
}

TEST_F(CliList, TheFolderMayBeRelative) {
  folder_.Write("Sub/a.txt");
  const auto list = [&](const std::string& name) {
    return RunProgram(Cli, {.Arguments = {"list", name, "--json"}, .Folder = folder_.Path()});
  };
  for (const char* name : {"Sub", "Sub/", "./Sub", "Sub/../Sub"}) {
    EXPECT_EQ(Document(list(name))[0]["folder"], folder_.Path() + "Sub/") << name;
  }
  EXPECT_EQ(Document(list("."))[0], nullptr);
}

TEST_F(CliList, AFolderBehindALinkIsListedUnderTheNameGiven) {
  folder_.Write("Sub/a.txt");
  ASSERT_EQ(symlink("Sub", (folder_.Path() + "link").c_str()), 0);
  const ProgramResult result = RunCli({"list", folder_.Path() + "link", "--json"});
  EXPECT_EQ(Document(result)[0]["folder"], folder_.Path() + "link/");
}

TEST_F(CliList, AFolderThatIsNotThereIsStatus3) {
  folder_.Write("file");
  for (const std::string& name : {folder_.Path() + "missing", folder_.Path() + "file",
                                  folder_.Path() + "file/", std::string()}) {
    EXPECT_EQ(RefusalOf(RunCli({"list", name}), 3), "no such folder: " + name);
  }
}

}  // namespace
}  // namespace vorlane
