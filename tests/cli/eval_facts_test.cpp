// The facts that eval --jsonl may be given instead of asking the disk.
#include "cli/run_cli.h"
#include "support/id3_bytes.h"

namespace vorlane {
namespace {

// What one code gives for an entry of that folder with these facts, as JSON text; empty for no
// facts at all.
std::string ResultOf(const std::string& code, const std::string& facts,
                     const std::string& name = "a.jpg", const std::string& folder = "/R") {
  Json line = {{"code", code}, {"name", name}, {"folder", folder}};
  if (!facts.empty()) {
    line["facts"] = Json::parse(facts);
  }
  const ProgramResult result = RunCli({"eval", "--jsonl"}, line.dump() + "\n");
  EXPECT_EQ(result.Status, 0) << result.Errors;
  return Document(result)["result"];
}

struct Fact {
  std::string Code;
  std::string Facts;
  std::string Result;
};

void ExpectFacts(const std::vector<Fact>& table, const std::string& name = "a.jpg") {
  for (const Fact& fact : table) {
    EXPECT_EQ(ResultOf(fact.Code, fact.Facts, name), fact.Result) << fact.Code << fact.Facts;
  }
}

TEST(CliEvalFacts, Size) {
  ExpectFacts({
      {"<FILESIZE>", R"({"size":0})", "0"},
      {"<FILESIZE>", R"({"size":1536})", "1.5"},
      {"<FILESIZE>", R"({"size":1264179})", "1234.55"},
      {"<FILESIZE>", R"({"size":2147483648})", "<FILESIZE>"},
      {"<FILESIZE>", R"({"size":null})", "<FILESIZE>"},
      {"<FILESIZE>", R"({})", "<FILESIZE>"},
  });
}

TEST(CliEvalFacts, Dates) {
  const std::string facts = R"({"created":"2024-11-15T15:45:12","modified":"2023-02-03T00:00:00",
                                "now":"2025-12-31T23:59:59"})";
  ExpectFacts({
      {"<FILECREATIONDATE> <FILECREATIONTIME>", facts, "11/15/2024 3:45:12 PM"},
      {"<FILELASTMODIFIEDDATE> <FILELASTMODIFIEDTIME>", facts, "2/3/2023 12:00:00 AM"},
      {"<LOCALDATE> <LOCALTIME>", facts, "12/31/2025 11:59:59 PM"},
      {"<FILECREATIONDATE>", R"({"created":null})", "12:00:00 AM"},
      {"<FILELASTMODIFIEDTIME>", R"({"modified":null})", "12:00:00 AM"},
      {"<FILECREATIONDATE>", R"({})", "12:00:00 AM"},
  });
}

TEST(CliEvalFacts, BitRate) {
  ExpectFacts(
      {
          {"<KBIT>", R"({"kbit":192})", "192"},
          {"<KBIT>", R"({"kbit":null})", "0"},
          {"<KBIT>", R"({})", "0"},
      },
      "a.mp3");
}

TEST(CliEvalFacts, ExifByNumber) {
  const std::string facts =
      R"({"exif":{"271":"Acme","272":"Model X","36867":"2020:12:31","36868":"2019/01/02 03:04:05"}})";
  ExpectFacts({
      {"<IMAGEMAKE>", facts, "Acme"},
      {"<IMAGEEXIFTAG>Model</IMAGEEXIFTAG>", facts, "Model X"},
      {"<IMAGEEXIFTAG>Software</IMAGEEXIFTAG>.", facts, "."},
      {"<IMAGEEXIFTAG>No such name</IMAGEEXIFTAG>.", facts, "."},
      {"<IMAGEDATE> <IMAGETIME>", facts, "1/2/2019 3:04:05 AM"},
      {"<IMAGEDATE>", R"({"exif":{"36867":"2020/12/31 00:00:00"}})", "12/31/2020"},
      {"<IMAGEDATE>", R"({"exif":{"306":"2020/12/30 00:00:00"}})", "12/30/2020"},
  });
}

TEST(CliEvalFacts, AFileWithoutExifOrOneThatCannotBeRead) {
  ExpectFacts({
      {"<IMAGEMAKE>.<IMAGEDATE>.<IMAGETIME>", R"({"exif":{}})", ".."},
      {"<IMAGEMAKE>.<IMAGEDATE>.<IMAGETIME>", R"({"exif":null})", "<IMAGEMAKE>.."},
      {"<UPPERCASE>x</UPPERCASE><IMAGEEXIFTAG>Make</IMAGEEXIFTAG>", R"({"exif":{}})", "X"},
      // The reader fails: the result of the tag before it is kept.
      {"<UPPERCASE>x</UPPERCASE><IMAGEEXIFTAG>Make</IMAGEEXIFTAG>", R"({"exif":null})", "XX"},
  });
}

TEST(CliEvalFacts, WhatIsNotGivenIsAskedOfTheDisk) {
  TemporaryFolder folder;
  folder.Write("a.mp3", id3::Audio(512));
  EXPECT_EQ(ResultOf("<FILESIZE>", "", "a.mp3", folder.Path()), "0.5");
  EXPECT_EQ(ResultOf("<FILESIZE>", "{}", "a.mp3", folder.Path()), "0.5");
  EXPECT_EQ(ResultOf("<FILESIZE>", R"({"kbit":1})", "a.mp3", folder.Path()), "0.5");
  EXPECT_EQ(ResultOf("<FILESIZE>", R"({"size":null})", "a.mp3", folder.Path()), "<FILESIZE>");
}

}  // namespace
}  // namespace vorlane
