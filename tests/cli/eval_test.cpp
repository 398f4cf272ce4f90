// vorlane-cli eval: one code text for one entry.
#include "cli/run_cli.h"
#include "support/exif_builder.h"
#include "support/id3_bytes.h"

namespace vorlane {
namespace {

using Lists = std::vector<std::string>;

struct Evaluation {
  Lists Arguments;
  std::string Result;
};

void ExpectResults(const std::vector<Evaluation>& table) {
  for (const Evaluation& evaluation : table) {
    Lists words = evaluation.Arguments;
    words.insert(words.begin(), "eval");
    const ProgramResult result = RunCli(words);
    EXPECT_EQ(result.Status, 0) << result.Errors;
    EXPECT_EQ(result.Output, evaluation.Result + "\n");
    EXPECT_EQ(result.Errors, "");
  }
}

TEST(CliEval, PrintsTheFinishedTextOnALine) {
  ExpectResults({
      {{"<UPPERCASE><NAMEONLY></UPPERCASE><EXTONLY>", "song.mp3"}, "SONG.mp3"},
      {{"<MID>||1| - </MID> - <MID>| - |2|</MID> - <MID>| - || - </MID>",
        "SC3212-05 - Rekraim - I Will Love Again"},
       "SC3212-05 - I Will Love Again - Rekraim"},
      {{"plain words", "a"}, ""},
      {{"", "a"}, ""},
      {{"<FOO><FILENAME>", "a"}, "<FOO>a"},
      {{"<ARTIST>", "a.txt"}, "<ARTIST>"},
      {{"<FILENAME>", ""}, ""},
  });
}

TEST(CliEval, TheTextIsNotCleanedForADisk) {
  ExpectResults({{{" <FILENAME>:*?/ ", "a"}, "a:*?/"}, {{"<ASCII>9</ASCII>|", "a"}, "\t|"}});
}

TEST(CliEval, NumberAndRowsMakeTheAutomaticNumber) {
  ExpectResults({
      {{"<AUTONUMBER>", "a"}, "1"},
      {{"<AUTONUMBER>", "a", "--number", "7", "--rows", "120"}, "007"},
      {{"<AUTONUMBER>", "a", "--number", "007", "--rows", "9"}, "7"},
      {{"<AUTONUMBER>", "a", "--number", "-3", "--rows", "120"}, "0-3"},
      {{"<AUTONUMBER>", "a", "--number", "2147483647"}, "2147483647"},
  });
}

TEST(CliEval, ABoxThatIsGivenIsShown) {
  ExpectResults({
      {{"<BOX1><BOX6><BOX2>", "a", "--box", "1=x", "--box", "6=y=z"}, "xy=z<BOX2>"},
      {{"<BOX1>", "a", "--box", "1="}, ""},
      {{"<BOX2>", "a", "--box", "2=<BOX1>x", "--box", "1=a"}, "ax"},
      {{"<BOX1>", "a", "--box", "1=<NAMEONLY>"}, "a"},
  });
}

TEST(CliEval, TagAndFolderStepsAreEvaluatedOnRequest) {
  ExpectResults({
      {{"<WriteID3v1><NAMEONLY>|", "a"}, ""},
      {{"<WriteID3v1><NAMEONLY>|", "a", "--tag-steps"}, "<WriteID3v1>a|"},
      {{"<MOVE>x</MOVE>", "a", "--folder", "/R"}, ""},
      {{"<MOVE>x</MOVE>", "a", "--folder", "/R", "--folder-steps"}, "/R/x/"},
      {{"<CREATEFOLDER>/x//y</CREATEFOLDER>", "a", "--folder", "/R", "--folder-steps"}, "/x/y/"},
  });
}

TEST(CliEval, PathsOfEitherStyle) {
  const auto windows = [](const std::string& code, const std::string& folder) {
    return Lists{code, "a.mp3", "--paths", "windows", "--folder", folder, "--folder-steps"};
  };
  ExpectResults({
      {windows("<FOLDERNAME>", "C:\\Music\\Rock\\"), "Rock"},
      {windows("<PARENTFOLDERNAME>", "C:\\Music\\Rock"), "Music"},
      {windows("<PARENTPARENTFOLDERNAME>", "C:\\Music\\Rock\\"), "C:"},
      {windows("<FOLDERNAME>,<PARENTFOLDERNAME>", "C:\\Rock\\"), "Rock,C:"},
      {windows("<FOLDERNAME>,<PARENTFOLDERNAME>", "C:\\"), "C:,"},
      {windows("<MOVE>By\\<NAMEONLY></MOVE>", "C:\\Music\\"), "C:\\Music\\By\\a\\"},
      {windows("<MOVE>D:\\x\\\\y</MOVE>", "C:\\Music\\"), "D:\\x\\y\\"},
      {{"<FOLDERNAME>,<PARENTFOLDERNAME>", "a", "--paths", "posix", "--folder", "/R/S/"}, "S,R"},
      {{"<FOLDERNAME>", "a", "--folder", "/R/C:\\Music"}, "C:\\Music"},
      {{"<FOLDERNAME>", "a", "--paths", "windows"}, ""},
  });
}

TEST(CliEval, WithoutAFolderTheEntryIsInTheWorkingFolder) {
  TemporaryFolder folder;
  folder.Write("Sub/a.txt", std::string(1536, 'x'));
  const ProgramResult result = RunProgram(
      Cli,
      {.Arguments = {"eval", "<FOLDERNAME> <FILESIZE>", "a.txt"}, .Folder = folder.Path() + "Sub"});
  EXPECT_EQ(result.Output, "Sub 1.5\n");
}

TEST(CliEval, AsksTheDiskForWhatTheEntrySays) {
  TemporaryFolder folder;
  folder.Write("a.mp3", id3::Audio(200) + id3::V1("Title", "Artist", "Album", "", "", 7, 0));
  folder.Write("b.MP3", id3::Tag(300, id3::Frame("TPE1", "Second") + id3::Frame("TIT2", "T2")) +
                            id3::Audio(200) + id3::V1("Title", "Artist", "Album", "", "", 7, 0));
  folder.Write("c.jpg", ExifBuilder().Add(271, 2, 5, std::string("Acme\0", 5)).Jpeg());
  const auto of = [&](const std::string& code, const std::string& name) {
    return Lists{code, name, "--folder", folder.Path()};
  };
  ExpectResults({
      {of("<ARTIST>/<TITLE>/<ALBUM>/<TRACK>/<KBIT>", "a.mp3"), "Artist/Title/Album/07/0"},
      {of("<ARTIST>/<TITLE>", "b.MP3"), "Second/T2"},
      {of("<ARTIST>", "missing.mp3"), ""},
      {of("<IMAGEMAKE>", "c.jpg"), "Acme"},
      {of("<FILESIZE>", "missing"), "<FILESIZE>"},
      {of("<FILECREATIONTIME>", "missing"), "12:00:00 AM"},
  });
}

TEST(CliEval, InJsonToo) {
  const ProgramResult result = RunCli({"eval", "--json", "<FILENAME>\"", "a\xE4"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output, "{\"result\":\"a\\udce4\\\"\"}\n");
}

TEST(CliEval, NamesKeepTheirBytes) {
  ExpectResults({{{"<FILENAME><BOX1>", "a\xE4\xFF.", "--box", "1=\x80"}, "a\xE4\xFF.\x80"},
                 {{"<FILENAME>", "line\nbreak"}, "line\nbreak"}});
}

}  // namespace
}  // namespace vorlane
