// vorlane-cli tags: both ID3 records and the bit rate of each file.
#include <filesystem>

#include "cli/run_cli.h"
#include "support/id3_bytes.h"

namespace vorlane {
namespace {

using Lists = std::vector<std::string>;

const std::string Corpus = VORLANE_TEST_DATA "/id3/";

std::vector<Json> Objects(const ProgramResult& result) {
  std::vector<Json> objects;
  for (const std::string& line : Lines(result.Output)) {
    objects.push_back(Json::parse(line, nullptr, false));
    EXPECT_FALSE(objects.back().is_discarded()) << line;
  }
  return objects;
}

TEST(CliTags, OneJsonObjectALine) {
  const ProgramResult result =
      RunCli({"tags", "--json", Corpus + "v2-and-v1.mp3", Corpus + "empty.mp3"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Errors, "");
  const auto files = Objects(result);
  ASSERT_EQ(files.size(), 2U);
  EXPECT_EQ(files[0], Json({{"file", Corpus + "v2-and-v1.mp3"},
                            {"id3v1",
                             {{"present", true},
                              {"artist", "Two"},
                              {"title", "One"},
                              {"album", "Three"},
                              {"track", "05"},
                              {"comment", "Four"},
                              {"year", "2000"},
                              {"genre", 6},
                              {"unicode", false}}},
                            {"id3v2",
                             {{"present", true},
                              {"artist", "Artist"},
                              {"title", "Title"},
                              {"album", "Album"},
                              {"track", "07"},
                              {"comment", "Note"},
                              {"year", "1999"},
                              {"genre", 17},
                              {"unicode", false}}},
                            {"kbit", 128}}));
  const Json absent = {{"present", false}, {"artist", ""}, {"title", ""},
                       {"album", ""},      {"track", ""},  {"comment", ""},
                       {"year", ""},       {"genre", 0},   {"unicode", false}};
  EXPECT_EQ(
      files[1],
      Json({{"file", Corpus + "empty.mp3"}, {"id3v1", absent}, {"id3v2", absent}, {"kbit", 0}}));
}

TEST(CliTags, PlainLinesForAPerson) {
  const ProgramResult result = RunCli({"tags", Corpus + "v2-plain.mp3"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output, Corpus +
                               "v2-plain.mp3: 128 kbit/s\n"
                               "  ID3v1: none\n"
                               "  ID3v2 artist: Artist\n"
                               "  ID3v2 title: Title\n"
                               "  ID3v2 album: Album\n"
                               "  ID3v2 track: 07\n"
                               "  ID3v2 comment: Note\n"
                               "  ID3v2 year: 1999\n"
                               "  ID3v2 genre: 17\n");
}

// The marks of a tag that was seen as Unicode, and characters of the code page.
TEST(CliTags, CharactersAreUtf8) {
  auto files = Objects(RunCli({"tags", "--json", Corpus + "v2-utf16-with-mark.mp3",
                               Corpus + "v2-characters-of-the-code-page.mp3"}));
  ASSERT_EQ(files.size(), 2U);
  EXPECT_EQ(files[0]["id3v2"]["unicode"], true);
  EXPECT_NE(files[1]["id3v2"]["artist"].get<std::string>().find("\xE2\x82\xAC"), std::string::npos)
      << files[1];
}

TEST(CliTags, ATextStaysOnItsLineWhateverItHolds) {
  TemporaryFolder folder;
  folder.Write("a.mp3", id3::V1("line\nbreak\x1b[31m", "", "", "", "", 0, 0));
  EXPECT_EQ(Lines(RunCli({"tags", folder.Path() + "a.mp3"}).Output)[1],
            "  ID3v1 title: line?break?[31m");
}

TEST(CliTags, EveryFileOfTheCorpusIsRead) {
  Lists words = {"tags", "--json"};
  for (const auto& entry : std::filesystem::directory_iterator(Corpus)) {
    words.push_back(entry.path());
  }
  EXPECT_EQ(Objects(RunCli(words)).size(), words.size() - 2);
}

TEST(CliTags, WhatCannotBeReadIsToldOfAndTheRestIsPrinted) {
  const ProgramResult result =
      RunCli({"tags", "--json", Corpus + "frame-index-15.mp3", Corpus + "v1-plain.mp3"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Errors,
            "vorlane-cli: GetKbit (frame-index-15.mp3): Subscript out of range (error 9)\n");
  auto files = Objects(result);
  ASSERT_EQ(files.size(), 2U);
  EXPECT_EQ(files[0]["kbit"], 0);
  EXPECT_EQ(files[1]["id3v1"]["artist"], "Artist");
}

TEST(CliTags, AFileMayHaveAnyName) {
  TemporaryFolder folder;
  folder.Write("[a,b]\xE4.mp3", "audio");
  const ProgramResult result =
      RunProgram(Cli, {.Arguments = {"tags", "--json", "[a,b]\xE4.mp3"}, .Folder = folder.Path()});
  EXPECT_EQ(result.Status, 0);
  EXPECT_TRUE(result.Output.starts_with(R"({"file":"[a,b]\udce4.mp3",)")) << result.Output;
}

TEST(CliTags, AFileThatIsNotThereIsStatus3BeforeAnythingIsPrinted) {
  TemporaryFolder folder;
  for (const std::string& name : {folder.Path() + "missing.mp3", folder.Path(), std::string()}) {
    EXPECT_EQ(RefusalOf(RunCli({"tags", Corpus + "v1-plain.mp3", name}), 3),
              "no such file: " + name);
  }
}

// The readers take hidden files for missing ones: their tags would seem to be empty.
TEST(CliTags, AHiddenFileIsRefused) {
  TemporaryFolder folder;
  folder.Write(".a.mp3");
  EXPECT_EQ(RefusalOf(RunCli({"tags", folder.Path() + ".a.mp3"}), 1),
            "hidden files are passed over: " + folder.Path() + ".a.mp3");
}

}  // namespace
}  // namespace vorlane
