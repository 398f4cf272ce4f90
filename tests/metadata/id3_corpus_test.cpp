// The files of tests/data/id3, which tools/make_id3_corpus.sh makes: what each gives.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "metadata/tag_reading.h"
#include "metadata/tag_writing.h"
#include "platform/file_name_bytes.h"
#include "platform/posix_file_system.h"
#include "support/corpus.h"
#include "support/memory_file_system.h"
#include "support/recording_prompter.h"
#include "support/recording_report.h"
#include "support/recording_status_line.h"

namespace vorlane {
namespace {

const std::filesystem::path Corpus = VORLANE_TEST_DATA "/id3";

// Artist, title, album, track, comment, year, genre; "U" if a byte-order mark was seen. Empty for a
// tag that isn't there.
Text Summary(const ID3Tag& tag) {
  if (!tag.Present) {
    EXPECT_EQ(tag, ID3Tag{});
    return u"";
  }
  return tag.Artist + u"/" + tag.Title + u"/" + tag.Album + u"/" + tag.Track + u"/" + tag.Comment +
         u"/" + tag.Year + u"/" + DecimalText(tag.Genre) + (tag.Unicode ? u" U" : u"");
}

struct Expected {
  const char* File;
  Text V1;
  Text V2;
  std::int16_t Kbit = 0;
  Text Reporting = {};  // the procedures that report an error
};

const TextView All = u"Artist/Title/Album/07/Note/1999/17";
const TextView None = u"///00///0";

std::vector<Expected> Table() {
  const Text all(All);
  const Text none(None);
  const Text nul(1, u'\0');
  return {
      {"v1-plain", all, u""},
      {"v1-behind-audio", all, u"", 128},
      {"v1-of-127-bytes", u"", u""},
      {"v1-not-at-the-end", u"", u""},
      {"v1-comment-of-30-in-the-older-layout",
       u"Artist/Title/Album/65/12345678901234567890123456789/1999/17", u""},
      {"v1-spaces-and-nuls", u"Artist/Title//200//99/255", u""},
      {"v1-track-zero", u"Artist/Title/Album/00/Note/1999/0", u""},

      {"v2-plain", u"", all, 128},
      {"v2-and-v1", u"Two/One/Three/05/Four/2000/6", all, 128},
      {"v2-size-20-with-frames-behind-it", u"", all},
      {"v2-size-without-the-header", u"", all, 128},
      {"v2-header-alone", u"", none},
      {"v2-three-letters", u"", none},
      {"v2-size-zero", u"", none, 128},
      {"v2-size-far-past-the-end", u"", u"Artist///00///0"},
      {"v2-size-bytes-with-their-upper-bit", u"", u"///00///17"},
      {"v2-cut-inside-a-frame", u"", u"Artist/Tit" + Text(2, u'\0') + u"//00///0"},
      {"v2-frame-without-a-size-byte", u"", u"", 0, u"ReadID3v2"},
      {"v2-new-genre-5", u"", u"///00///5"},
      {"v2-new-genre-17", u"", u"///00///17"},
      {"v2-new-genre-123", u"", none},

      {"v2-artist-of-255-bytes", u"", Text(254, u'a') + none},
      {"v2-artist-of-256-bytes", u"", u"/Title//00///0"},
      {"v2-artist-of-size-1", u"", none},
      {"v2-artist-of-size-0", u"", none},
      {"v2-frame-inside-a-frame", u"",
       u"inside/TPE1" + Text(3, u'\0') + u"\u0007" + Text(3, u'\0') + u"inside" + u"TP//00///0"},

      {"v2-genre-with-a-longer-comment", u"", u"///00/abcd//17"},
      {"v2-genre-cut-by-an-empty-comment", u"", none},
      {"v2-genre-without-a-comment", u"", none},
      {"v2-genre-empty", u"", u"///00/Note//0"},
      {"v2-genre-without-brackets", u"", u"///00/Note//0"},
      {"v2-genre-in-letters", u"", u"///00/Note//0"},
      {"v2-genre-behind-any-character", u"", u"///00/Note//17"},
      {"v2-genre-of-99999", u"", u"", 0, u"ReadID3v2"},

      {"v2-utf16-with-mark", u"", u"/AB/A/00///0 U"},
      {"v2-utf16-without-mark", u"", u"/AB//00///0"},
      {"v2-utf16-big-endian", u"", u"/\uFFFE\u4100\u4200//00///0"},
      {"v2-utf16-without-a-nul", u"", u"\u00E5e,g/\u65E5A//00///0 U"},
      {"v2-title-of-5-letters-and-nul", u"", u"/\u6548\u6C6C\u006F//00///0"},
      {"v2-title-of-4-letters-and-nul", u"", u"/Four" + nul + u"//00///0"},
      {"v2-track-3-of-12", u"", none},
      {"v2-track-123", u"", u"///123///0"},
      {"v2-comment-with-a-description", u"", u"///00/bc" + nul + u"text//0"},
      {"v2-characters-of-the-code-page", u"", u"\u00E4\u20AC\u0081/\u00FF//00///0"},

      {"frame-128-kbit", u"", u"", 128},
      {"frame-index-15", u"", u"", 0, u"GetKbit"},
      {"frame-cut-behind-two-bytes", u"", u""},
      {"frame-behind-12000-bytes", u"", u""},
      {"frame-of-variable-rate", u"", u"", 64},
      {"frame-pair-inside-a-tag", u"", u"a\u00FF\u00FBP///00///0", 64},
      {"frame-of-other-kinds", u"", u""},
      {"empty", u"", u""},
  };
}

TEST(ID3Corpus, EachFileGivesWhatItsNameSays) {
  PosixFileSystem files;
  for (const Expected& expected : Table()) {
    const Text path = TextFromBytes((Corpus / (std::string(expected.File) + ".mp3")).string());
    ASSERT_TRUE(PlainFileExists(files, path)) << expected.File;
    RecordingReport report;
    EXPECT_EQ(Summary(ReadID3v1(files, report, path)), expected.V1) << expected.File;
    EXPECT_EQ(Summary(ReadID3v2(files, report, path)), expected.V2) << expected.File;
    EXPECT_EQ(GetKbit(files, report, path), expected.Kbit) << expected.File;
    Text reporting;
    for (const auto& one : report.Reports) {
      reporting += one.Procedure;
    }
    EXPECT_EQ(reporting, expected.Reporting) << expected.File;
  }
}

TEST(ID3Corpus, EachFileIsInTheTable) {
  std::set<std::string> named;
  for (const Expected& expected : Table()) {
    named.insert(expected.File);
  }
  std::set<std::string> present;
  for (const auto& entry : std::filesystem::directory_iterator(Corpus)) {
    present.insert(entry.path().stem().string());
  }
  EXPECT_EQ(present, named);
}

TEST(ID3Corpus, IsWhatItsScriptMakes) {
  EXPECT_TRUE(MadeBy("make_id3_corpus.sh") == BytesOf(Corpus));
}

// Whatever a file holds, a write either goes through or leaves it alone.
TEST(ID3Corpus, EachFileCanBeWritten) {
  ID3Tag tag;
  tag.Present = true;
  tag.Artist = u"Someone";
  tag.Title = u"Something";
  tag.Track = u"09";
  tag.Genre = 12;
  for (const auto& [name, bytes] : BytesOf(Corpus)) {
    for (const bool removeID3v1 : {false, true}) {
      MemoryFileSystem files;
      RecordingReport report;
      RecordingPrompter boxes;
      RecordingStatusLine status;
      files.Write(u"/a.mp3", bytes);
      WriteID3v2({files, report, boxes, status}, u"/a.mp3", tag, removeID3v1);
      if (!boxes.Boxes.empty()) {
        EXPECT_TRUE(files.Read(u"/a.mp3") == bytes) << name;
        continue;
      }
      EXPECT_TRUE(ReadID3v2(files, report, u"/a.mp3").Present) << name;
      if (removeID3v1) {
        EXPECT_FALSE(ReadID3v1(files, report, u"/a.mp3").Present) << name;
      }
      EXPECT_TRUE(report.Reports.empty()) << name;
      WriteID3v1(files, report, u"/a.mp3", tag);
      EXPECT_EQ(ReadID3v1(files, report, u"/a.mp3").Title, tag.Title) << name;
    }
  }
}

}  // namespace
}  // namespace vorlane
