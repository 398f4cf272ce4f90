// Every operation that is shipped, with its defaults, on files that nobody should have: nothing is
// lost, hidden or mangled by keywords that have no value there, and Undo brings all of it back.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/exif_builder.h"
#include "support/id3_bytes.h"
#include "support/shipped_catalogue.h"

namespace vorlane {
namespace {

using Files = std::map<std::string, std::string>;

// Differs from name to name; the first byte is found again behind any tag.
std::string Content(const std::string& name) {
  return "\x02" + name + id3::Audio(400);
}

std::vector<std::string> AwkwardNames() {
  return {" - ",
          "()",
          "x",
          "a b",
          "A b",
          "(open",
          "shut)",
          " lead",
          "trail ",
          "a - b - c",
          "über",
          "inv\xFFlid",
          "dots...x",
          "a,b",
          "The ",
          "1 one",
          "$1$ & % #",
          "e\xCC\x81",
          "\xF0\x9F\x98\x80 x",
          std::string(240, 'n')};
}

void MakeAwkwardFolders(const TemporaryFolder& folder) {
  for (const std::string& name : AwkwardNames()) {
    folder.Write("work/" + name + "/inside", Content(name));
  }
  for (const char* name : {"none", "Sorted", "A", "a - b.jpg"}) {
    folder.Write(std::string("work/") + name + "/inside", Content(name));
  }
}

void MakeAwkwardFiles(const TemporaryFolder& folder, bool allKinds) {
  const std::vector<std::string> kinds = {".txt", ".mp3", ".jpg"};
  const std::vector<std::string> endings(kinds.begin(), allKinds ? kinds.end() : kinds.begin() + 1);
  for (const std::string& name : AwkwardNames()) {
    for (const std::string& ending : endings) {
      folder.Write("work/" + name + ending, Content(name + ending));
    }
  }
  for (const char* name : {".profile", "x.", "readme", ".jpg", "A.TXT", "a.txt", "File 1.txt"}) {
    folder.Write(std::string("work/") + name, name);
  }
  folder.Write("work/empty.txt");
  folder.Write("work/tag - only.mp3", id3::V1("", "", "", "", "", 0, 0) + Content("only"));
  folder.Write("work/slash.mp3", id3::Tag(700, id3::Frame("TPE1", "up/..") +
                                                   id3::Frame("TIT2", "a/b\\c:d*e?f\"g<h>i|j") +
                                                   id3::Frame("TALB", "..")) +
                                     Content("slash"));
  folder.Write("work/no date.jpg",
               ExifBuilder().AddExif(0x9003, 2, 20, "    :  :     :  :  ").Jpeg());
  folder.Write("work/sub/inside.txt", "inside");
}

// What no operation may change, whatever becomes of the tags around it.
std::string Payload(const std::string& bytes) {
  const std::string audio = id3::Audio(400);
  const auto found = bytes.find(audio);
  if (found == std::string::npos) {
    return bytes;
  }
  const auto start = std::min(bytes.rfind('\x02', found), found);
  return bytes.substr(start, found + audio.size() - start);
}

// The payloads, sorted; the same before and after if no file is lost.
std::vector<std::string> Payloads(const Files& files) {
  std::vector<std::string> payloads;
  for (const auto& [name, bytes] : files) {
    if (!name.ends_with('/') && !name.ends_with("UNDORENAME.TXT")) {
      payloads.push_back(Payload(bytes));
    }
  }
  std::sort(payloads.begin(), payloads.end());
  return payloads;
}

// The names that a run has given.
std::vector<std::string> NewNames(const Files& before, const Files& after) {
  std::vector<std::string> names;
  for (const auto& [name, bytes] : after) {
    if (before.count(name) == 0 && !name.ends_with("UNDORENAME.TXT")) {
      names.push_back(name);
    }
  }
  return names;
}

void ExpectReadableName(const std::string& name) {
  EXPECT_EQ(name.find("/."), std::string::npos) << name << " is hidden";
  for (const char* sign : {"12_00_00", "_FILE", "_IMAGE", "_NAME", "_BOX", "<"}) {
    EXPECT_EQ(name.find(sign), std::string::npos) << name;
  }
}

class AwkwardFiles : public testing::TestWithParam<std::string> {
 protected:
  // Runs the operation over the files of "work/" and takes it back. Gives the new names.
  std::vector<std::string> RunAndUndo(const TemporaryFolder& folder, bool listFolders) {
    const Files before = folder.Contents();
    ShippedCatalogue catalogue(folder);
    catalogue.Select(GetParam(), "work/", listFolders);
    catalogue.Go();
    const Files after = folder.Contents();
    EXPECT_TRUE(Payloads(after) == Payloads(before));
    catalogue.Undo();
    const Files undone = folder.Contents();
    for (const auto& [name, bytes] : before) {
      if (undone.count(name) == 0) {
        ADD_FAILURE() << name << " isn't back";
        continue;
      }
      const std::string& found = undone.at(name);
      const bool isTagged = name.ends_with(".mp3") && GetParam().starts_with("Music/");
      EXPECT_TRUE(isTagged ? Payload(found) == Payload(bytes) : found == bytes) << name;
    }
    EXPECT_EQ(undone.size(), before.size());
    catalogue.ExpectQuiet();
    return NewNames(before, after);
  }
};

TEST_P(AwkwardFiles, SurviveWithoutALossAndComeBack) {
  const TemporaryFolder folder;
  MakeAwkwardFiles(folder, GetParam()[0] == 'M' || GetParam()[0] == 'P');
  for (const std::string& name : RunAndUndo(folder, false)) {
    ExpectReadableName(name);
  }
}

TEST_P(AwkwardFiles, AreAsSafeInAwkwardFolders) {
  const TemporaryFolder folder;
  MakeAwkwardFolders(folder);
  for (const std::string& name : RunAndUndo(folder, true)) {
    ExpectReadableName(name);
  }
}

// Such names shift the fields of the tags around them; there is no way to quote them.
TEST_P(AwkwardFiles, ComeBackWithTheSignsOfTheLanguageInTheirNames) {
  const TemporaryFolder folder;
  for (const char* name : {"a|b | c.mp3", "<NAMEONLY>.mp3", "a>b<c.jpg", "</MID>.txt"}) {
    folder.Write(std::string("work/") + name, Content(name));
  }
  RunAndUndo(folder, false);
}

INSTANTIATE_TEST_SUITE_P(Catalogue, AwkwardFiles, testing::ValuesIn(ShippedOperationPaths()),
                         NameOfPath);

}  // namespace
}  // namespace vorlane
