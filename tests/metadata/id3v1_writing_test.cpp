#include <gtest/gtest.h>

#include "metadata/tag_reading.h"
#include "metadata/tag_writing.h"
#include "support/id3_bytes.h"
#include "support/memory_file_system.h"
#include "support/recording_report.h"

namespace vorlane {
namespace {

using id3::Audio;
using id3::V1;

const TextView Path = u"/m/a.mp3";
const std::string OldTag = V1("old", "old", "old", "1999", "old", 1, 17);
const std::string NewTag = V1("Title", "Artist", "Album", "", "Comment", 7, 0);

ID3Tag Filled() {
  ID3Tag tag;
  tag.Present = true;
  tag.Artist = u"Artist";
  tag.Title = u"Title";
  tag.Album = u"Album";
  tag.Track = u"07";
  tag.Comment = u"Comment";
  tag.Year = u"1999";
  tag.Genre = 17;
  return tag;
}

class ID3v1Writing : public testing::Test {
 protected:
  std::string AfterWriting(const std::string& bytes, const ID3Tag& tag) {
    files_.Write(Path, bytes);
    WriteID3v1(files_, report_, Path, tag);
    return files_.Read(Path);
  }

  std::string AfterRemoving(const std::string& bytes) {
    files_.Write(Path, bytes);
    RemoveID3v1(files_, report_, Path);
    return files_.Read(Path);
  }

  MemoryFileSystem files_;
  RecordingReport report_;
};

TEST_F(ID3v1Writing, ReplacesATag) {
  EXPECT_EQ(AfterWriting(Audio(500) + OldTag, Filled()), Audio(500) + NewTag);
  EXPECT_EQ(AfterWriting(OldTag, Filled()), NewTag);
  EXPECT_TRUE(report_.Reports.empty());
}

TEST_F(ID3v1Writing, AppendsATag) {
  EXPECT_EQ(AfterWriting(Audio(500), Filled()), Audio(500) + NewTag);
  EXPECT_EQ(AfterWriting(Audio(128), Filled()), Audio(128) + NewTag);
  EXPECT_EQ(AfterWriting(OldTag + "x", Filled()), OldTag + "x" + NewTag);
}

TEST_F(ID3v1Writing, OverwritesTheStartOfAShortFile) {
  EXPECT_EQ(AfterWriting(Audio(100), Filled()), NewTag);
  EXPECT_EQ(AfterWriting(Audio(127), Filled()), NewTag);
  EXPECT_EQ(AfterWriting("TAG", Filled()), NewTag);
  EXPECT_EQ(AfterWriting("", Filled()), NewTag);
  EXPECT_TRUE(report_.Reports.empty());
}

TEST_F(ID3v1Writing, EqualTagIsNotWritten) {
  EXPECT_EQ(AfterWriting(Audio(500) + NewTag, Filled()), Audio(500) + NewTag);
  EXPECT_EQ(files_.MutationCount, 0U);
}

TEST_F(ID3v1Writing, ReadBackYearIsEmptyAndGenreZero) {
  AfterWriting(Audio(500) + OldTag, Filled());
  const ID3Tag read = ReadID3v1(files_, report_, Path);
  EXPECT_EQ(read.Artist, u"Artist");
  EXPECT_EQ(read.Year, u"");
  EXPECT_EQ(read.Genre, 0);
}

TEST_F(ID3v1Writing, RecordThatIsNotPresentRemovesTheTag) {
  ID3Tag absent = Filled();
  absent.Present = false;
  absent.Comment = Text(30, u'c');
  EXPECT_EQ(AfterWriting(Audio(500) + OldTag, absent), Audio(500));
  EXPECT_EQ(AfterWriting(Audio(500), absent), Audio(500));
  EXPECT_TRUE(report_.Reports.empty());
  EXPECT_EQ(AfterWriting(OldTag, absent), OldTag);
  ASSERT_EQ(report_.Reports.size(), 1U);
  EXPECT_EQ(report_.Reports[0].Procedure, u"RemoveID3v1");
}

TEST_F(ID3v1Writing, FieldThatCannotBeWrittenIsReportedAndTheFileStays) {
  ID3Tag comment = Filled();
  comment.Comment = Text(30, u'c');
  ID3Tag track = Filled();
  track.Track = u"3/12";
  ID3Tag large = Filled();
  large.Track = u"256";
  for (const std::string& bytes : {Audio(500) + OldTag, Audio(500), Audio(100)}) {
    for (const auto& [tag, error] : {std::pair{&comment, 5}, {&track, 13}, {&large, 5}}) {
      report_.Reports.clear();
      EXPECT_EQ(AfterWriting(bytes, *tag), bytes);
      const std::vector<RecordingReport::Report> expected = {{u"", u"WriteID3v1", u"a.mp3", error}};
      EXPECT_EQ(report_.Reports, expected);
    }
  }
  EXPECT_EQ(files_.MutationCount, 0U);
  comment.Comment = Text(29, u'c');
  EXPECT_EQ(AfterWriting(Audio(500), comment),
            Audio(500) + V1("Title", "Artist", "Album", "", std::string(29, 'c'), 7, 0));
}

TEST_F(ID3v1Writing, RemoveCutsTheTagOff) {
  EXPECT_EQ(AfterRemoving(Audio(500) + OldTag), Audio(500));
  EXPECT_EQ(AfterRemoving("x" + OldTag), "x");
  // One tag for each call.
  EXPECT_EQ(AfterRemoving(Audio(500) + OldTag + OldTag), Audio(500) + OldTag);
  EXPECT_TRUE(report_.Reports.empty());
}

TEST_F(ID3v1Writing, RemoveWithoutATagChangesNothing) {
  for (const std::string& bytes : {std::string(), std::string("TAG"), OldTag.substr(0, 127),
                                   Audio(128), OldTag + "x", Audio(500)}) {
    EXPECT_EQ(AfterRemoving(bytes), bytes);
  }
  EXPECT_TRUE(report_.Reports.empty());
  EXPECT_EQ(files_.MutationCount, 0U);
}

TEST_F(ID3v1Writing, RemoveFromAFileThatIsOnlyATagIsAnError) {
  EXPECT_EQ(AfterRemoving(OldTag), OldTag);
  const std::vector<RecordingReport::Report> expected = {{u"", u"RemoveID3v1", u"a.mp3", 9}};
  EXPECT_EQ(report_.Reports, expected);
}

TEST_F(ID3v1Writing, MissingOrReadOnlyFileIsReportedAndNoneIsMade) {
  WriteID3v1(files_, report_, u"/m/none.mp3", Filled());
  RemoveID3v1(files_, report_, u"/m/none.mp3");
  EXPECT_FALSE(files_.Exists(u"/m/none.mp3"));
  files_.Write(Path, Audio(500) + OldTag);
  files_.SetReadOnly(Path);
  WriteID3v1(files_, report_, Path, Filled());
  RemoveID3v1(files_, report_, Path);
  EXPECT_EQ(files_.Read(Path), Audio(500) + OldTag);
  EXPECT_EQ(report_.Reports.size(), 4U);
}

TEST_F(ID3v1Writing, HiddenFileIsWritten) {
  files_.Write(u"/m/.a.mp3", Audio(500));
  WriteID3v1(files_, report_, u"/m/.a.mp3", Filled());
  EXPECT_EQ(files_.Read(u"/m/.a.mp3"), Audio(500) + NewTag);
}

TEST_F(ID3v1Writing, OneWriteOrOneCut) {
  AfterWriting(Audio(500) + OldTag, Filled());
  EXPECT_EQ(files_.MutationCount, 1U);
  files_.ForgetCalls();
  AfterRemoving(Audio(500) + OldTag);
  EXPECT_EQ(files_.MutationCount, 1U);
}

}  // namespace
}  // namespace vorlane
