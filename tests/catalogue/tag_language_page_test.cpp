// docs/tag-language.md: each of its examples gives what stands there, and no tag is left out.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>

#include "engine/process_file_name.h"
#include "platform/file_name_bytes.h"
#include "preview/preview.h"
#include "support/counting_loop.h"
#include "support/fake_facts.h"

namespace vorlane {
namespace {

// The lines "key: value" of a block that begins with "```eval".
struct Example {
  int Line = 0;
  std::map<std::string, std::string> Values;

  bool Has(const std::string& key) const { return Values.count(key) == 1; }
  Text Of(const std::string& key, const std::string& otherwise = "") const {
    const auto found = Values.find(key);
    return TextFromBytes(found == Values.end() ? otherwise : found->second);
  }
};

std::vector<std::string> PageLines() {
  std::ifstream file(VORLANE_SOURCE_DIR "/docs/tag-language.md");
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    lines.push_back(line);
  }
  return lines;
}

// Quotes around a value count as no part of it.
void AddValue(Example& example, const std::string& line) {
  const auto colon = line.find(": ");
  ASSERT_NE(colon, std::string::npos) << line;
  std::string value = line.substr(colon + 2);
  if (value.size() > 1 && value.starts_with('"') && value.ends_with('"')) {
    value = value.substr(1, value.size() - 2);
  }
  example.Values[line.substr(0, colon)] = value;
}

std::vector<Example> Examples() {
  std::vector<Example> examples;
  bool inside = false;
  int number = 0;
  for (const std::string& line : PageLines()) {
    ++number;
    const auto indent = std::min(line.find_first_not_of(' '), line.size());
    const std::string text = line.substr(indent);
    if (inside && text == "```") {
      inside = false;
    } else if (inside) {
      AddValue(examples.back(), text);
    } else if (text == "```eval") {
      inside = true;
      examples.push_back({number, {}});
    }
  }
  EXPECT_FALSE(inside);
  return examples;
}

// What the page says of the entry.
FakeFacts FactsOf(const Example& example) {
  FakeFacts facts;
  facts.ImageDate = example.Of("taken");
  if (example.Has("model")) {
    facts.ExifByName[u"Model"] = example.Of("model");
  }
  return facts;
}

ID3Tag TagOf(const Example& example) {
  ID3Tag tag;
  tag.Artist = example.Of("artist");
  tag.Title = example.Of("title");
  tag.Album = example.Of("album");
  tag.Track = example.Of("track", "00");
  tag.Comment = example.Of("comment");
  tag.Present = !(tag.Artist + tag.Title + tag.Album + tag.Comment).empty();
  return tag;
}

Text EntryOf(const Example& example) {
  return example.Of("name", "07 - Some Artist - My Song.mp3");
}

Text Evaluate(const Example& example) {
  FakeFacts facts = FactsOf(example);
  CountingLoop loop;
  EvaluationContext context{facts, loop, PathStyle::Posix};
  BoxValues boxes;
  for (std::size_t i = 0; i < OptionBoxCount; ++i) {
    const std::string key = "box " + std::to_string(i + 1);
    boxes.Visible[i] = example.Has(key);
    boxes.Values[i] = example.Of(key);
  }
  const std::string row = example.Has("row") ? example.Values.at("row") : "1 of 1";
  const ID3Tag noTag;
  ID3Tag tag = TagOf(example);
  const Text code = example.Of("code");
  const Text name = EntryOf(example);
  return ProcessFileName({.Code = code,
                          .FileName = name,
                          .Path = u"/home/me/Music/Rock/",
                          .TagV1 = noTag,
                          .TagV2 = tag,
                          .AutoNumber = std::stoi(row),
                          .AllowFolderSteps = example.Has("moves to"),
                          .Boxes = boxes,
                          .RowCount = std::stoi(row.substr(row.find("of ") + 3))},
                         context);
}

TEST(TagLanguagePage, GivesWhatItsExamplesSay) {
  const auto examples = Examples();
  EXPECT_GE(examples.size(), 45U);
  for (const Example& example : examples) {
    SCOPED_TRACE("docs/tag-language.md:" + std::to_string(example.Line));
    EXPECT_TRUE(example.Has("code"));
    EXPECT_TRUE(example.Has("gives") != example.Has("moves to"));
    const Text result = Evaluate(example);
    EXPECT_EQ(DisplayUtf8(result),
              DisplayUtf8(example.Of("gives", "") + example.Of("moves to", "")));
    if (example.Has("proposes")) {
      const Text clean = CleanFileName(result);
      EXPECT_EQ(DisplayUtf8(clean.empty() ? EntryOf(example) : clean),
                DisplayUtf8(example.Of("proposes")));
    }
  }
}

TEST(TagLanguagePage, UsesNoKeyThatTheTestPassesOver) {
  const std::vector<std::string> keys = {
      "name",   "code",  "gives",   "proposes", "moves to", "row",   "taken", "model",
      "artist", "title", "comment", "album",    "track",    "box 1", "box 2", "box 3"};
  for (const Example& example : Examples()) {
    for (const auto& [key, value] : example.Values) {
      EXPECT_EQ(std::count(keys.begin(), keys.end(), key), 1) << key << ", line " << example.Line;
    }
  }
}

TEST(TagLanguagePage, TellsEveryTag) {
  std::string page;
  for (const std::string& line : PageLines()) {
    page += line + "\n";
  }
  for (const char* tag : {"FILECREATIONTIME",
                          "FILECREATIONDATE",
                          "FILELASTMODIFIEDTIME",
                          "FILELASTMODIFIEDDATE",
                          "FILESIZE",
                          "IMAGEMAKE",
                          "IMAGETIME",
                          "IMAGEDATE",
                          "LOCALTIME",
                          "LOCALDATE",
                          "FILENAME",
                          "NAMEONLY",
                          "EXTONLY",
                          "AUTONUMBER",
                          "FOLDERNAME",
                          "PARENTFOLDERNAME",
                          "PARENTPARENTFOLDERNAME",
                          "ARTIST",
                          "TITLE",
                          "ALBUM",
                          "COMMENTS",
                          "TRACK",
                          "KBIT",
                          "BOX1",
                          "BOX6",
                          "MID",
                          "TRY",
                          "PROPERCASE",
                          "LOWERCASE",
                          "UPPERCASE",
                          "MAKEEXTENSION",
                          "REPLACE",
                          "LEFTTRIM",
                          "RIGHTTRIM",
                          "CREATEFOLDER",
                          "MOVE",
                          "ASCII",
                          "OLDESTDATETIME",
                          "NEWESTDATETIME",
                          "IMAGEEXIFTAG",
                          "WriteID3v1",
                          "WriteID3v2",
                          "RemoveID3v1"}) {
    EXPECT_NE(page.find("`<" + std::string(tag) + ">"), std::string::npos) << tag;
  }
}

}  // namespace
}  // namespace vorlane
