// The keyword list that is shipped names the whole language, and what its help says is true.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include "catalogue/keyword_list.h"
#include "catalogue/text_file.h"
#include "engine/process_file_name.h"
#include "platform/file_name_bytes.h"
#include "support/counting_loop.h"
#include "support/fake_facts.h"

namespace vorlane {
namespace {

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Every "<WORD>" in a text.
std::set<std::string> TagsIn(const std::string& text) {
  static const std::regex tag("<[A-Za-z0-9_]+>");
  const std::sregex_iterator first(text.begin(), text.end(), tag);
  std::set<std::string> tags;
  std::for_each(first, std::sregex_iterator(), [&](const auto& hit) { tags.insert(hit.str()); });
  return tags;
}

// The keywords as the engine's source has them, in literals.
std::set<std::string> TagsOfTheEngine() {
  std::set<std::string> tags;
  for (const auto& entry : std::filesystem::directory_iterator(VORLANE_SOURCE_DIR "/src/engine")) {
    static const std::regex literal("u\"(<[A-Za-z0-9_]+>)\"");
    const std::string source = BytesOf(entry.path());
    for (std::sregex_iterator hit(source.begin(), source.end(), literal), end; hit != end; ++hit) {
      tags.insert((*hit)[1].str());
    }
  }
  return tags;
}

// Steps of their own, useless in an option box.
const std::set<std::string> StepTags = {"<CREATEFOLDER>", "<MOVE>", "<WriteID3v1>", "<WriteID3v2>",
                                        "<RemoveID3v1>"};

class ShippedKeywords : public testing::Test {
 protected:
  ShippedKeywords()
      : bytes_(BytesOf(VORLANE_SOURCE_DIR "/data/KeywordList.ini")),
        list_(LoadKeywordList(DecodeTextFile(bytes_))) {
    facts_.ExifByName[u"Model"] = u"Snap 3";
  }

  // What a code gives for a song in a folder; the boxes hold "one" to "six".
  Text Evaluate(TextView code) {
    BoxValues boxes;
    const TextView values[] = {u"one", u"two", u"three", u"four", u"five", u"six"};
    std::copy(std::begin(values), std::end(values), boxes.Values.begin());
    boxes.Visible.fill(true);
    const ID3Tag none;
    ID3Tag tag;
    tag.Present = true;
    tag.Artist = u"Artist";
    tag.Title = u"Title";
    tag.Album = u"Album";
    tag.Track = u"07";
    tag.Comment = u"Comment";
    EvaluationContext context{facts_, loop_, PathStyle::Posix};
    return ProcessFileName({.Code = code,
                            .FileName = u"some song.mp3",
                            .Path = u"/a/b/c/",
                            .TagV1 = none,
                            .TagV2 = tag,
                            .Boxes = boxes,
                            .RowCount = 120},
                           context);
  }

  std::string bytes_;
  KeywordList list_;
  FakeFacts facts_;
  CountingLoop loop_;
};

TEST_F(ShippedKeywords, AreAsciiWithReturnsAndNoEmptyLineAtTheEnd) {
  EXPECT_TRUE(std::all_of(bytes_.begin(), bytes_.end(),
                          [](char c) { return c == '\r' || c == '\n' || (c >= ' ' && c <= '~'); }));
  EXPECT_EQ(std::count(bytes_.begin(), bytes_.end(), '\n'),
            std::count(bytes_.begin(), bytes_.end(), '\r'));
  EXPECT_FALSE(bytes_.ends_with("\n"));
}

TEST_F(ShippedKeywords, AllHaveHelpInWholeSentences) {
  ASSERT_EQ(list_.KeywordHelp.size(), list_.Entries.size());
  std::set<Text> seen;
  for (std::size_t i = 0; i < list_.Entries.size(); ++i) {
    const std::string keyword = DisplayUtf8(list_.Entries[i]);
    EXPECT_TRUE(seen.insert(list_.Entries[i]).second) << keyword;
    for (const Text& line : Split(list_.HelpOf(i), u"\r\n")) {
      ASSERT_FALSE(line.empty()) << keyword;
      EXPECT_TRUE(line.ends_with(u'.')) << keyword << ": " << DisplayUtf8(line);
      EXPECT_FALSE(line.starts_with(u'\'')) << keyword;
      const bool beginsWell = (line[0] >= u'A' && line[0] <= u'Z') || line.starts_with(u"65");
      EXPECT_TRUE(beginsWell) << keyword << ": " << DisplayUtf8(line);
    }
  }
}

TEST_F(ShippedKeywords, AreThoseOfTheLanguage) {
  const std::set<std::string> known = TagsOfTheEngine();
  ASSERT_EQ(known.size(), 17u + 6u + 15u + 3u);
  std::set<std::string> listed;
  for (const Text& entry : list_.Entries) {
    const std::string tag = *TagsIn(DisplayUtf8(entry)).begin();
    EXPECT_TRUE(known.count(tag) != 0 || tag == "<BOX1>") << tag << " is no keyword";
    listed.insert(tag);
  }
  for (const std::string& tag : known) {
    EXPECT_EQ(listed.count(tag), StepTags.count(tag) == 0 ? 1u : 0u) << tag;
  }
}

TEST_F(ShippedKeywords, EvaluateAsTheyStand) {
  for (const Text& entry : list_.Entries) {
    Text code = entry;
    ReplaceAll(code, u"date|date", u"<FILECREATIONDATE>|<LOCALDATE>");  // the words are no dates
    const Text value = Evaluate(code);
    EXPECT_FALSE(value.empty()) << DisplayUtf8(entry);
    EXPECT_FALSE(Contains(value, u"<")) << DisplayUtf8(value);
  }
}

TEST_F(ShippedKeywords, DoWhatTheirHelpSays) {
  const struct {
    TextView Code;
    TextView Value;
  } cases[] = {
      {u"<NAMEONLY>", u"some song"},
      {u"<EXTONLY>", u".mp3"},
      {u"<FILENAME>", u"some song.mp3"},
      {u"<FOLDERNAME>", u"c"},
      {u"<PARENTFOLDERNAME>", u"b"},
      {u"<PARENTPARENTFOLDERNAME>", u"a"},
      {u"<AUTONUMBER>", u"001"},
      {u"<IMAGEEXIFTAG>Model</IMAGEEXIFTAG>", u"Snap 3"},
      {u"<BOX1><BOX6>", u"onesix"},
      // Behind which of several marks; up to the end text; the place of the first character.
      {u"<MID>a-b-c.d|-|1|.</MID>", u"b-c"},
      {u"<MID>a-b-c.d|-|2|.</MID>", u"c"},
      {u"<MID>abcd||3|</MID>", u"cd"},
      {u"<MID>|s|1|</MID>", u"ome song"},
      {u"<TRY><ARTIST>|other</TRY>", u"Artist"},
      {u"<TRY><NOSUCH>|other</TRY>", u"other"},
      {u"<TRY>|other</TRY>", u"other"},
      {u"<REPLACE>aAa|a|x|</REPLACE>", u"xAx"},
      {u"<REPLACE>aAa|a|x|1</REPLACE>", u"xAa"},
      {u"<REPLACE>|s|x|</REPLACE>", u"xome xong"},
      {u"<LEFTTRIM>abcdef||3|</LEFTTRIM>", u"def"},
      {u"<LEFTTRIM>abcdefg|||3</LEFTTRIM>", u"efg"},
      {u"<LEFTTRIM>ab-cd|-||</LEFTTRIM>", u"-cd"},
      {u"<RIGHTTRIM>abcdef||3|</RIGHTTRIM>", u"abc"},
      {u"<RIGHTTRIM>abcdefg|||3</RIGHTTRIM>", u"abc"},
      {u"<RIGHTTRIM>a-b-cd|-||</RIGHTTRIM>", u"a-b-"},
      {u"<PROPERCASE>some SONG</PROPERCASE>", u"Some Song"},
      {u"<LOWERCASE>Some SONG</LOWERCASE>", u"some song"},
      {u"<UPPERCASE>Some song</UPPERCASE>", u"SOME SONG"},
      {u"<MAKEEXTENSION>txt</MAKEEXTENSION>", u".txt"},
      {u"<MAKEEXTENSION>.txt</MAKEEXTENSION>", u".txt"},
      {u"a<MAKEEXTENSION></MAKEEXTENSION>", u"a"},
      {u"<ASCII>65</ASCII>", u"A"},
      {u"<OLDESTDATETIME>1/2/2025|11/15/2026</OLDESTDATETIME>", u"1/2/2025"},
      {u"<NEWESTDATETIME>1/2/2025|11/15/2026</NEWESTDATETIME>", u"11/15/2026"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(DisplayUtf8(Evaluate(c.Code)), DisplayUtf8(c.Value)) << DisplayUtf8(c.Code);
  }
}

}  // namespace
}  // namespace vorlane
