// vorlane-cli tag-write: one write by the writers of a run.
#include <fcntl.h>
#include <sys/stat.h>

#include "cli/run_cli.h"
#include "support/id3_bytes.h"
#include "support/other_process.h"

namespace vorlane {
namespace {

using id3::Audio;
using id3::Comment;
using id3::Frame;
using id3::NewHeader;
using id3::Padded;
using id3::V1;
using Lists = std::vector<std::string>;

class CliTagWrite : public testing::Test {
 protected:
  ProgramResult Write(const std::string& before, Lists more) {
    folder_.Write("a.mp3", before);
    return WriteAgain(std::move(more));
  }

  ProgramResult WriteAgain(Lists more) {
    more.insert(more.begin(), {"tag-write", folder_.Path() + "a.mp3"});
    return RunCli(more);
  }

  std::string Bytes() { return folder_.Read("a.mp3"); }

  // The bytes behind a write that has nothing to complain of.
  std::string Written(const std::string& before, Lists more) {
    const ProgramResult result = Write(before, std::move(more));
    EXPECT_EQ(result.Status, 0);
    EXPECT_EQ(result.Output + result.Errors, "");
    return Bytes();
  }

  TemporaryFolder folder_;
};

std::string V2(const std::string& artist, const std::string& title, const std::string& track,
               const std::string& year, const std::string& genre) {
  return Padded(NewHeader() + Frame("TPE1", artist) + Frame("TIT2", title) + Frame("TALB", "") +
                    Comment("") + Frame("TYER", year) + Frame("TRCK", track) + Frame("TCON", genre),
                257);
}

TEST_F(CliTagWrite, AnID3v1TagGetsTheFieldsGivenAndKeepsTheOthers) {
  const std::string before = Audio(200) + V1("Title", "Artist", "Album", "", "Note", 7, 0);
  EXPECT_EQ(Written(before, {"--v1", "--artist", "New", "--track", "12"}),
            Audio(200) + V1("Title", "New", "Album", "", "Note", 12, 0));
  EXPECT_EQ(Written(before, {"--v1", "--title", "", "--album", "L", "--comment", "C"}),
            Audio(200) + V1("", "Artist", "L", "", "C", 7, 0));
}

TEST_F(CliTagWrite, AFileWithoutATagGetsOne) {
  EXPECT_EQ(Written(Audio(200), {"--v1", "--artist", "New"}),
            Audio(200) + V1("", "New", "", "", "", 0, 0));
  EXPECT_EQ(Written(Audio(200), {"--v2", "--artist", "New", "--year", "1999", "--genre", "17"}),
            V2("New", "", "", "1999", "(17)") + Audio(200));
}

TEST_F(CliTagWrite, AnID3v2TagGetsTheFieldsGivenAndKeepsTheOthers) {
  const std::string before = V2("Artist", "Title", "07", "1999", "(17)") + Audio(200);
  EXPECT_EQ(Written(before, {"--v2", "--title", "Other"}),
            V2("Artist", "Other", "07", "1999", "(17)") + Audio(200));
  EXPECT_EQ(Written(before, {"--v2", "--genre", "12", "--track", "8"}),
            V2("Artist", "Title", "8", "1999", "(12)") + Audio(200));
}

TEST_F(CliTagWrite, EachVersionKeepsItsOwnFields) {
  const std::string both =
      V2("Two", "Title", "07", "", "(17)") + Audio(200) + V1("T1", "One", "", "", "", 3, 0);
  EXPECT_EQ(Written(both, {"--v1", "--album", "L"}),
            V2("Two", "Title", "07", "", "(17)") + Audio(200) + V1("T1", "One", "L", "", "", 3, 0));
  EXPECT_EQ(Written(Audio(200) + V1("T1", "One", "", "", "", 3, 0), {"--v2", "--title", "T2"}),
            Padded(NewHeader() + Frame("TPE1", "") + Frame("TIT2", "T2") + Frame("TALB", "") +
                       Comment("") + Frame("TYER", "") + Frame("TRCK", "") +
                       id3::RawFrame("TCON", 5, "(0)"),
                   257) +
                Audio(200) + V1("T1", "One", "", "", "", 3, 0));
}

TEST_F(CliTagWrite, RemoveV1TakesTheOtherTagOff) {
  const std::string tag = V2("Artist", "Title", "07", "1999", "(17)");
  EXPECT_EQ(Written(tag + Audio(200) + V1("T", "A", "", "", "", 1, 0), {"--v2", "--remove-v1"}),
            tag + Audio(200));
  EXPECT_EQ(Written(tag + Audio(200), {"--v2", "--remove-v1"}), tag + Audio(200));
}

TEST_F(CliTagWrite, ARecordGivesAllFieldsAtOnce) {
  const std::string before = Audio(200) + V1("Title", "Artist", "Album", "", "Note", 7, 0);
  EXPECT_EQ(Written(before, {"--v1", "--record",
                             R"({"present":true,"artist":"A","title":"\u00e4","album":"L",
                                 "track":"03","comment":"C","year":"1999","genre":5,
                                 "unicode":false})"}),
            Audio(200) + V1("\xE4", "A", "L", "", "C", 3, 0));
  EXPECT_EQ(Written(before, {"--v1", "--record", R"({"artist":"A"})"}),
            Audio(200) + V1("", "A", "", "", "", 0, 0));
  EXPECT_EQ(Written(before, {"--v1", "--record", R"({"present":false})"}), Audio(200));
}

TEST_F(CliTagWrite, WhatTagsPrintsIsARecord) {
  const std::string before = V2("Artist", "Title", "07", "1999", "(17)") + Audio(200);
  folder_.Write("a.mp3", before);
  const std::string record =
      Document(RunCli({"tags", "--json", folder_.Path() + "a.mp3"}))["id3v2"].dump();
  EXPECT_EQ(Written(Audio(200), {"--v2", "--record", record}), before);
}

TEST_F(CliTagWrite, InJsonTheTagsAreToldAsTheyAreAfterwards) {
  const ProgramResult result = Write(Audio(200), {"--v1", "--artist", "New", "--json"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(Document(result), Document(RunCli({"tags", "--json", folder_.Path() + "a.mp3"})));
  EXPECT_EQ(Document(result)["id3v1"]["artist"], "New");
}

TEST_F(CliTagWrite, NothingChangedIsNothingWritten) {
  const std::string before = Audio(200) + V1("Title", "Artist", "Album", "", "Note", 7, 0);
  folder_.Write("a.mp3", before);
  const std::string path = folder_.Path() + "a.mp3";
  const timespec longAgo[2] = {{1000, 0}, {1000, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), longAgo, 0), 0);
  EXPECT_EQ(WriteAgain({"--v1"}).Status, 0);
  struct stat status {};
  ASSERT_EQ(stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mtim.tv_sec, 1000);
}

struct Refusal {
  std::string Before;
  Lists Arguments;
  int Number;
  std::string Description;
};

TEST_F(CliTagWrite, ARefusalTellsNumberAndDescriptionAndLeavesTheFile) {
  const std::string invalid = "Invalid procedure call or argument";
  const std::vector<Refusal> table = {
      {Audio(200), {"--v1", "--comment", std::string(30, 'c')}, 5, invalid},
      {Audio(200), {"--v1", "--track", "300"}, 5, invalid},
      {Audio(200), {"--v1", "--track", "-1"}, 5, invalid},
      {Audio(200), {"--v1", "--track", "seven"}, 13, "Type mismatch"},
      {Audio(200), {"--v1", "--track", "99999"}, 6, "Overflow"},
      {Audio(200), {"--v1", "--record", R"({"track":"x"})"}, 13, "Type mismatch"},
      {Audio(200), {"--v2", "--artist", std::string(200, 'a')}, 5, invalid},
      {V2("A", "", "", "", "(17)") + Audio(200),
       {"--v2", "--artist", std::string(255, 'a')},
       5,
       invalid},
      {id3::Header(0) + Audio(200), {"--v2"}, 9, "Subscript out of range"},
      {id3::Header(20000000) + Audio(200), {"--v2"}, 62, "Input past end of file"},
      {V1("T", "A", "", "", "", 1, 0),
       {"--v1", "--record", R"({"present":false})"},
       9,
       "Subscript out of range"},
  };
  for (const Refusal& refused : table) {
    SCOPED_TRACE(refused.Arguments.back().substr(0, 20));
    const std::string line = RefusalOf(Write(refused.Before, refused.Arguments), 1);
    EXPECT_EQ(line, folder_.Path() + "a.mp3: " + refused.Description + " (error " +
                        std::to_string(refused.Number) + ")");
    EXPECT_EQ(Bytes(), refused.Before);
    Lists more = refused.Arguments;
    more.push_back("--json");
    const ProgramResult json = WriteAgain(more);
    EXPECT_EQ(json.Status, 1);
    EXPECT_EQ(
        Document(json),
        Json({{"error", {{"number", refused.Number}, {"description", refused.Description}}}}));
    EXPECT_EQ(Bytes(), refused.Before);
  }
}

TEST_F(CliTagWrite, AFileThatMayNotBeWrittenIsRefused) {
  folder_.Write("a.mp3", Audio(200));
  chmod((folder_.Path() + "a.mp3").c_str(), 0444);
  chmod(folder_.Path().c_str(), 0755);
  AsOrdinaryUser([&] {
    for (const char* version : {"--v1", "--v2"}) {
      EXPECT_EQ(RefusalOf(WriteAgain({version, "--artist", "A"}), 1),
                folder_.Path() + "a.mp3: Permission denied (error 70)");
    }
  });
  EXPECT_EQ(Bytes(), Audio(200));
}

TEST_F(CliTagWrite, AFileThatIsNotThereIsNotMade) {
  EXPECT_EQ(RefusalOf(WriteAgain({"--v1", "--artist", "A"}), 3),
            "no such file: " + folder_.Path() + "a.mp3");
  EXPECT_FALSE(folder_.Exists("a.mp3"));
}

TEST_F(CliTagWrite, WrongArgumentsChangeNothing) {
  const std::vector<std::pair<Lists, std::string>> table = {
      {{}, "--v1 or --v2 is required"},
      {{"--artist", "A"}, "--v1 or --v2 is required"},
      {{"--v1", "--v2"}, "--v1 excludes --v2"},
      {{"--v1", "--remove-v1"}, "--remove-v1 requires --v2"},
      {{"--v1", "--artist"}, "--artist: 1 required T missing"},
      {{"--v1", "--genre", "rock"}, "--genre: no whole number: rock"},
      {{"--v1", "--genre", "32768"}, "Could not convert: --genre = 32768"},
      {{"--v1", "--record", "{}", "--artist", "A"}, "--record excludes --artist"},
      {{"--v1", "--record", "{"}, "--record: not JSON at byte 2"},
      {{"--v1", "--record", R"({"genre":1e400})"}, "--record: a number is too large"},
      {{"--v1", "--record", "[]"}, "--record: expected a JSON object"},
      {{"--v1", "--record", R"({"artist":1})"}, "--record: artist: expected a text"},
      {{"--v1", "another.mp3"}, "The following argument was not expected: another.mp3"},
  };
  for (const auto& [arguments, line] : table) {
    EXPECT_EQ(RefusalOf(Write(Audio(200), arguments), 2), line);
    EXPECT_EQ(Bytes(), Audio(200));
  }
}

}  // namespace
}  // namespace vorlane
