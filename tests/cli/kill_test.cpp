// The program is killed at any moment of a run: every file is whole, under its old or its new name,
// and what the journal tells is true.
#include <signal.h>

#include <chrono>
#include <filesystem>
#include <random>
#include <thread>

#include "cli/run_cli.h"
#include "support/id3_bytes.h"

namespace vorlane {
namespace {

constexpr int Kills = 36;
constexpr int FilesToKillIn = 250;
constexpr std::uintmax_t LongestWait = 18'000;  // bytes of the journal; a whole run makes more

std::string NameOf(int file) {
  return "f" + std::to_string(1000 + file) + ".mp3";
}

std::string BytesOf(int file) {
  return "audio of file " + std::to_string(file) + std::string(3000, static_cast<char>(file));
}

std::string TagOf(const char* artist) {
  return id3::V1("Title", artist, "Album", "", "Note", 7, 0);
}

// Each file gets another artist in its tag and another name.
const std::vector<std::string> Steps = {
    "--code", "<WriteID3v1>New|<TITLE>|<ALBUM>|<COMMENTS>|<TRACK><X>", "--code", "new <FILENAME>"};

// Looks at every file: it is there once, with all of its audio and one of the two tags.
int CountRenamed(const TemporaryFolder& folder) {
  int renamed = 0;
  for (int file = 0; file < FilesToKillIn; ++file) {
    const bool isOld = folder.Exists(NameOf(file));
    const bool isNew = folder.Exists("new " + NameOf(file));
    EXPECT_NE(isOld, isNew) << NameOf(file);
    renamed += isNew ? 1 : 0;
    const std::string bytes = folder.Read((isNew ? "new " : "") + NameOf(file));
    EXPECT_TRUE(bytes == BytesOf(file) + TagOf("Old") || bytes == BytesOf(file) + TagOf("New"))
        << NameOf(file);
  }
  return renamed;
}

// Returns when the journal is so long, or the run has gone on without one for long enough.
void WaitForJournal(const TemporaryFolder& folder, std::uintmax_t length) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  std::error_code error;
  while (std::chrono::steady_clock::now() < end) {
    const auto now = std::filesystem::file_size(folder.Path() + "UNDORENAME.TXT", error);
    if (!error && now >= length) {
      return;
    }
  }
}

TEST(CliKill, LeavesWholeFilesAndATrueJournal) {
  std::mt19937 random(11);
  int cutShort = 0;
  for (int kill = 0; kill < Kills; ++kill) {
    const TemporaryFolder folder;
    for (int file = 0; file < FilesToKillIn; ++file) {
      folder.Write(NameOf(file), BytesOf(file) + TagOf("Old"));
    }
    std::vector<std::string> arguments = {"apply", folder.Path()};
    arguments.insert(arguments.end(), Steps.begin(), Steps.end());
    {
      const RunningProgram program(Cli, {.Arguments = arguments});
      WaitForJournal(folder, random() % LongestWait);
      std::this_thread::sleep_for(std::chrono::microseconds(random() % 300));
      program.Signal(SIGKILL);
    }
    const int renamed = CountRenamed(folder);
    cutShort += renamed > 0 && renamed < FilesToKillIn ? 1 : 0;
    RunCli({"undo", folder.Path()});
    int notTakenBack = 0;
    for (int file = 0; file < FilesToKillIn; ++file) {
      const bool isBack =
          folder.Exists(NameOf(file)) && folder.Read(NameOf(file)) == BytesOf(file) + TagOf("Old");
      notTakenBack += isBack ? 0 : 1;
    }
    EXPECT_LE(notTakenBack, 1) << "only the file in hand may have a record that isn't whole";
    CountRenamed(folder);
  }
  EXPECT_GT(cutShort, Kills / 2) << "the kills came too early or too late to tell anything";
}

}  // namespace
}  // namespace vorlane
