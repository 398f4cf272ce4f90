// The writers on real files.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "metadata/tag_reading.h"
#include "metadata/tag_writing.h"
#include "platform/posix_file_system.h"
#include "support/id3_bytes.h"
#include "support/limited_memory.h"
#include "support/recording_prompter.h"
#include "support/recording_report.h"
#include "support/recording_status_line.h"
#include "support/temporary_folder.h"

namespace vorlane {
namespace {

using id3::Audio;
using id3::Frame;
using id3::Header;
using id3::Tag;
using id3::V1;

const std::string OldV1 = V1("old", "old", "old", "1999", "old", 1, 17);

ID3Tag Filled() {
  ID3Tag tag;
  tag.Present = true;
  tag.Artist = u"Artist";
  tag.Title = u"Title";
  tag.Track = u"07";
  tag.Genre = 17;
  return tag;
}

class TagWritingOnDisk : public testing::Test {
 protected:
  void Put(const std::string& bytes) {
    folder_.Write("a.mp3", bytes);
    // A time that no write of now can give.
    const timespec times[] = {{1000000000, 5}, {1000000000, 5}};
    ASSERT_EQ(utimensat(AT_FDCWD, FilePath().c_str(), times, 0), 0);
    before_ = Status();
  }

  std::string FilePath() const { return folder_.Path() + "a.mp3"; }
  Text Path() const { return folder_.TextPath() + u"a.mp3"; }

  struct stat Status() const {
    struct stat status = {};
    EXPECT_EQ(stat(FilePath().c_str(), &status), 0);
    return status;
  }

  bool IsSameFile() const {
    return Status().st_ino == before_.st_ino && folder_.Contents().size() == 1;
  }
  bool WasWritten() const {
    return Status().st_mtim.tv_sec != before_.st_mtim.tv_sec ||
           Status().st_mtim.tv_nsec != before_.st_mtim.tv_nsec;
  }

  void Write(bool removeID3v1) {
    WriteID3v2({files_, report_, boxes_, status_}, Path(), Filled(), removeID3v1);
    EXPECT_TRUE(boxes_.Boxes.empty());
  }

  TemporaryFolder folder_;
  struct stat before_ = {};
  PosixFileSystem files_;
  RecordingReport report_;
  RecordingPrompter boxes_;
  RecordingStatusLine status_;
};

TEST_F(TagWritingOnDisk, EveryWayKeepsTheFile) {
  const std::string audio = Audio(700000);
  for (const std::string& start : {std::string(), Tag(100, ""), Tag(1000, Frame("TIT2", "x"))}) {
    for (const bool removeID3v1 : {false, true}) {
      Put(start + audio + OldV1);
      Write(removeID3v1);
      EXPECT_TRUE(IsSameFile());
      EXPECT_TRUE(WasWritten());
      const std::string bytes = folder_.Read("a.mp3");
      const std::size_t tag = start.size() > 257 ? start.size() : 257;
      EXPECT_EQ(bytes.size(), tag + audio.size() + (removeID3v1 ? 0 : 128));
      EXPECT_TRUE(bytes.substr(tag, audio.size()) == audio);
      EXPECT_EQ(ReadID3v2(files_, report_, Path()).Title, u"Title");
    }
  }
  Put(audio);
  WriteID3v1(files_, report_, Path(), Filled());
  EXPECT_TRUE(IsSameFile());
  EXPECT_EQ(ReadID3v1(files_, report_, Path()).Title, u"Title");
  RemoveID3v1(files_, report_, Path());
  EXPECT_TRUE(IsSameFile());
  EXPECT_TRUE(folder_.Read("a.mp3") == audio);
  EXPECT_TRUE(report_.Reports.empty());
}

TEST_F(TagWritingOnDisk, UnchangedTagIsNotWritten) {
  Put(Audio(5000));
  Write(false);
  WriteID3v1(files_, report_, Path(), Filled());
  Put(folder_.Read("a.mp3"));
  Write(false);
  WriteID3v1(files_, report_, Path(), Filled());
  EXPECT_FALSE(WasWritten());
  ID3Tag other = Filled();
  other.Title = u"Other";
  WriteID3v1(files_, report_, Path(), other);
  EXPECT_TRUE(WasWritten());
}

TEST_F(TagWritingOnDisk, FailedWriteDoesNotTouchTheFile) {
  Put(Audio(5000));
  ID3Tag tag = Filled();
  tag.Comment = Text(300, u'x');
  WriteID3v1(files_, report_, Path(), tag);
  WriteID3v2({files_, report_, boxes_, status_}, Path(), tag, true);
  EXPECT_EQ(report_.Reports.size(), 1U);
  EXPECT_EQ(boxes_.Boxes.size(), 1U);
  EXPECT_FALSE(WasWritten());
}

TEST_F(TagWritingOnDisk, FileIsHeldInMemoryOnce) {
  constexpr std::size_t length = std::size_t{32} << 20;
  for (const std::string& start : {std::string(), Tag(100, ""), Header(length / 2)}) {
    Put(start + OldV1);
    ASSERT_EQ(truncate(FilePath().c_str(), length), 0);
    EXPECT_EXIT(RunWithLimitedMemory(length + length / 4,
                                     [&] {
                                       Write(false);
                                       return boxes_.Boxes.empty() && WasWritten();
                                     }),
                testing::ExitedWithCode(0), "");
  }
}

TEST_F(TagWritingOnDisk, LinkIsWrittenThrough) {
  Put(Audio(5000));
  ASSERT_EQ(symlink("a.mp3", (folder_.Path() + "link.mp3").c_str()), 0);
  WriteID3v2({files_, report_, boxes_, status_}, folder_.TextPath() + u"link.mp3", Filled(), false);
  EXPECT_EQ(Status().st_ino, before_.st_ino);
  EXPECT_EQ(folder_.Read("a.mp3").size(), 5257U);
  EXPECT_EQ(folder_.Contents().count("link.mp3@"), 1U);
}

}  // namespace
}  // namespace vorlane
