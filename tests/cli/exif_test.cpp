// vorlane-cli exif: the entries of an image's EXIF block.
#include "cli/run_cli.h"
#include "support/exif_builder.h"

namespace vorlane {
namespace {

class CliExif : public testing::Test {
 protected:
  ProgramResult Read(const std::string& bytes, std::vector<std::string> more = {"--json"}) {
    folder_.Write("a.jpg", bytes);
    more.insert(more.begin(), {"exif", Path()});
    return RunCli(more);
  }

  std::string Path() { return folder_.Path() + "a.jpg"; }

  TemporaryFolder folder_;
};

std::string Picture(const std::string& byteOrder) {
  ExifBuilder block(byteOrder);
  return block.Add(271, 2, 5, std::string("Acme\0", 5))
      .Add(282, 5, 1, block.Rational(145, 2))
      .AddExif(36867, 2, 20, std::string("2020:12:31 10:20:30\0", 20))
      .Jpeg();
}

TEST_F(CliExif, OneJsonObjectALine) {
  for (const std::string order : {"II", "MM"}) {
    const ProgramResult result = Read(Picture(order));
    EXPECT_EQ(result.Status, 0);
    EXPECT_EQ(result.Errors, "");
    Json image = Document(result);
    EXPECT_EQ(image["file"], Path());
    EXPECT_EQ(image["status"], 0);
    EXPECT_EQ(image["intel"], order == "II");
    EXPECT_EQ(image["imageDate"], "2020/12/31 10:20:30");
    ASSERT_EQ(image["tags"].size(), 4U) << image;
    Json make = image["tags"][0];
    EXPECT_EQ(make["tag"], 271);
    EXPECT_EQ(make["name"], "Make");
    EXPECT_EQ(make["format"], 2);
    EXPECT_EQ(make["count"], 5);
    EXPECT_EQ(make["text"], "Acme");
    EXPECT_TRUE(make["value"].is_number_integer()) << make;
    EXPECT_EQ(image["tags"][1]["value"], 72.5);
    EXPECT_EQ(image["tags"][3]["tag"], 36867);
  }
}

TEST_F(CliExif, PlainLinesForAPerson) {
  const ProgramResult result = Read(Picture("II"), {});
  EXPECT_EQ(result.Status, 0);
  const auto lines = Lines(result.Output);
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[0], Path());
  EXPECT_EQ(lines[1], "  Make: Acme");
  EXPECT_EQ(lines[4], "  DateTimeOriginal: 2020/12/31 10:20:30");
}

TEST_F(CliExif, AFileWithoutABlockIsStatus1InItsObject) {
  const ProgramResult result = Read("no picture");
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(Document(result), Json::parse(R"({"file":")" + Path() + R"(","status":1,"intel":false,
                                              "tags":[],"imageDate":""})"));
  EXPECT_EQ(Read("no picture", {}).Output, Path() + "\n  File is not in EXIF format.\n");
}

TEST_F(CliExif, AFileThatCannotBeReadIsToldOfAndTheRestIsPrinted) {
  folder_.Write("empty.jpg");
  const ProgramResult result =
      Read(Picture("II"), {"--json", folder_.Path() + "empty.jpg", Path()});
  EXPECT_EQ(result.Status, 1);
  const auto lines = Lines(result.Output);
  ASSERT_EQ(lines.size(), 3U);
  Json empty = Json::parse(lines[1]);
  EXPECT_EQ(empty["file"], folder_.Path() + "empty.jpg");
  EXPECT_EQ(empty["error"]["number"], 1);
  EXPECT_EQ(Json::parse(lines[2])["status"], 0);
  EXPECT_EQ(Lines(result.Errors).size(), 1U);
}

TEST_F(CliExif, TextsKeepTheCharactersOfTheCodePage) {
  const ProgramResult result =
      Read(ExifBuilder().Add(271, 2, 5, std::string("\xE4\x80\"\n\0", 5)).Jpeg());
  EXPECT_EQ(Document(result)["tags"][0]["text"], "ä€\"\n");
}

TEST_F(CliExif, AFileThatIsNotThereIsStatus3) {
  EXPECT_EQ(RefusalOf(RunCli({"exif", "--json", Path()}), 3), "no such file: " + Path());
  EXPECT_EQ(RefusalOf(RunCli({"exif"}), 2), "FILE is required");
}

}  // namespace
}  // namespace vorlane
