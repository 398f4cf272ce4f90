#include <gtest/gtest.h>

#include "metadata/id3v2_writer.h"
#include "metadata/in_place.h"
#include "metadata/tag_reading.h"
#include "metadata/tag_writing.h"
#include "support/id3_bytes.h"
#include "support/memory_file_system.h"
#include "support/one_file.h"
#include "support/recording_prompter.h"
#include "support/recording_report.h"
#include "support/recording_status_line.h"

namespace vorlane {
namespace {

using id3::Audio;
using id3::Comment;
using id3::Frame;
using id3::Header;
using id3::NewHeader;
using id3::Nuls;
using id3::Padded;
using id3::Tag;
using id3::V1;

const TextView Path = u"/m/a.mp3";
const std::string OldV1 = V1("old", "old", "old", "1999", "old", 1, 17);

const std::vector<Text> UpdatedOnly = {
    u"50 ID3v2 exists, ID3v1 kept or does not exist, updating file...", u"100 Ready"};
const std::vector<Text> UpdatedRemoving = {u"33 ID3v2 exists, ID3v1 exists, loading file...",
                                           u"66 ID3v2 exists, ID3v1 removed, rewriting file...",
                                           u"100 Ready"};
const std::vector<Text> Grown = {
    u"50 ID3v2 exists but is too small, incresing size of ID3v2, ID3v1 kept or does not exist, "
    u"rewriting file...",
    u"100 Ready"};
const std::vector<Text> Added = {
    u"33 ID3v2 does not exist, ID3v1 kept or does not exist, loading file...",
    u"66 ID3v2 does not exist, ID3v1 kept or does not exist, rewriting file...", u"100 Ready"};
const std::vector<Text> AddedRemoving = {
    u"33 ID3v2 does not exist, ID3v1 exists, loading file...",
    u"66 ID3v2 does not exist, ID3v1 removed, rewriting file...", u"100 Ready"};

ID3Tag Filled() {
  ID3Tag tag;
  tag.Artist = u"Artist";
  tag.Title = u"Title";
  tag.Album = u"Album";
  tag.Track = u"07";
  tag.Comment = u"Note";
  tag.Year = u"1999";
  tag.Genre = 17;
  return tag;
}

std::string Frames() {
  return Frame("TPE1", "Artist") + Frame("TIT2", "Title") + Frame("TALB", "Album") +
         Comment("Note") + Frame("TYER", "1999") + Frame("TRCK", "07") + Frame("TCON", "(17)");
}

std::string NewTag() {
  return Padded(NewHeader() + Frames(), 257);
}

class ID3v2Writing : public testing::Test {
 protected:
  std::string After(const std::string& bytes, const ID3Tag& tag, bool removeID3v1) {
    files_.Write(Path, bytes);
    Forget();
    WriteID3v2(services_, Path, tag, removeID3v1);
    return files_.Read(Path);
  }

  void Forget() {
    files_.ForgetCalls();
    status_.Stages.clear();
    boxes_.Boxes.clear();
  }

  MemoryFileSystem files_;
  RecordingReport report_;
  RecordingPrompter boxes_;
  RecordingStatusLine status_;
  ID3v2Services services_{files_, report_, boxes_, status_};
};

TEST_F(ID3v2Writing, NewTagGoesInFrontOfTheFile) {
  EXPECT_EQ(After(Audio(500), Filled(), false), NewTag() + Audio(500));
  EXPECT_EQ(status_.Stages, Added);
  EXPECT_EQ(After(Audio(500) + OldV1, Filled(), false), NewTag() + Audio(500) + OldV1);
  EXPECT_EQ(status_.Stages, Added);
  EXPECT_EQ(After("", Filled(), false), NewTag());
  EXPECT_EQ(After("ID", Filled(), true), NewTag() + "ID");
  EXPECT_TRUE(boxes_.Boxes.empty());
}

TEST_F(ID3v2Writing, NewTagWithRemovalOfTheOther) {
  EXPECT_EQ(After(Audio(500) + OldV1, Filled(), true), NewTag() + Audio(500));
  EXPECT_EQ(status_.Stages, AddedRemoving);
  EXPECT_EQ(After(Audio(500), Filled(), true), NewTag() + Audio(500));
  EXPECT_EQ(status_.Stages, Added);
  EXPECT_EQ(After(OldV1, Filled(), true), NewTag());
  EXPECT_EQ(status_.Stages, AddedRemoving);
  EXPECT_TRUE(boxes_.Boxes.empty());
}

TEST_F(ID3v2Writing, EmptyFieldsThenTheSameAgain) {
  ID3Tag tag;
  tag.Genre = 17;
  const std::string written = After(Audio(500), tag, false);
  EXPECT_EQ(written,
            Padded(NewHeader() + Frame("TPE1", "") + Frame("TIT2", "") + Frame("TALB", "") +
                       Comment("") + Frame("TYER", "") + Frame("TRCK", "") + Frame("TCON", "(17)"),
                   257) +
                Audio(500));
  EXPECT_EQ(After(written, tag, false), written);
  EXPECT_EQ(status_.Stages, UpdatedOnly);
  EXPECT_EQ(files_.MutationCount, 0U);
}

TEST_F(ID3v2Writing, GenreOfOneDigitIsPutRightByTheSecondWrite) {
  ID3Tag tag;
  tag.Genre = 5;
  const std::string first = After(Audio(500), tag, false);
  EXPECT_EQ(ReadID3v2(files_, report_, Path).Genre, 5);
  const std::string second = After(first, tag, false);
  EXPECT_EQ(files_.MutationCount, 1U);
  EXPECT_EQ(first.substr(80, 8), "TCON" + Nuls(3) + "\x05");
  EXPECT_EQ(second.substr(80, 8), "TCON" + Nuls(3) + "\x04");
  EXPECT_EQ(After(second, tag, false), second);
  EXPECT_EQ(files_.MutationCount, 0U);
}

TEST_F(ID3v2Writing, GenreOfThreeDigitsInANewTagReadsBackAsZero) {
  ID3Tag tag;
  tag.Genre = 123;
  After(Audio(500), tag, false);
  EXPECT_EQ(ReadID3v2(files_, report_, Path).Genre, 0);
}

TEST_F(ID3v2Writing, TagOf257OrMoreIsUpdatedInPlace) {
  for (const unsigned size : {257U, 1000U}) {
    EXPECT_EQ(After(Tag(size, "") + Audio(500) + OldV1, Filled(), false),
              Tag(size, Frames()) + Audio(500) + OldV1);
    EXPECT_EQ(status_.Stages, UpdatedOnly);
    EXPECT_EQ(files_.MutationCount, 1U);
    EXPECT_EQ(After(Tag(size, "") + Audio(500), Filled(), true), Tag(size, Frames()) + Audio(500));
    EXPECT_EQ(status_.Stages, UpdatedOnly);
  }
}

TEST_F(ID3v2Writing, TagOf257OrMoreWithRemovalOfTheOther) {
  EXPECT_EQ(After(Tag(1000, "") + Audio(500) + OldV1, Filled(), true),
            Tag(1000, Frames()) + Audio(500));
  EXPECT_EQ(status_.Stages, UpdatedRemoving);
  // The other tag goes even if nothing else changes.
  EXPECT_EQ(After(Tag(1000, Frames()) + Audio(500) + OldV1, Filled(), true),
            Tag(1000, Frames()) + Audio(500));
  EXPECT_EQ(status_.Stages, UpdatedRemoving);
  EXPECT_EQ(files_.MutationCount, 1U);
}

TEST_F(ID3v2Writing, SmallTagGrows) {
  const std::string updated = Padded(NewHeader() + Frame("XXXX", "kept") + Frames(), 257);
  for (const unsigned size : {25U, 100U, 256U}) {
    const std::string old = Tag(size, Frame("XXXX", "kept"));
    EXPECT_EQ(After(old + Audio(500) + OldV1, Filled(), false), updated + Audio(500) + OldV1);
    EXPECT_EQ(status_.Stages, Grown);
    EXPECT_EQ(After(old + Audio(500) + OldV1, Filled(), true), updated + Audio(500));
    EXPECT_EQ(status_.Stages, UpdatedRemoving);
    EXPECT_EQ(After(old + Audio(500), Filled(), true), updated + Audio(500));
    EXPECT_EQ(status_.Stages, Grown);
    EXPECT_EQ(After(old, Filled(), false), updated);
    EXPECT_EQ(After(old + OldV1, Filled(), true), updated);
  }
  EXPECT_TRUE(boxes_.Boxes.empty());
}

TEST_F(ID3v2Writing, SizeSmallerThanTheHeaderMovesTheRestOfTheHeader) {
  const std::string file = Header(4) + Audio(50);
  EXPECT_EQ(After(file, Filled(), false), NewTag() + file.substr(4));
}

// By the standard the size doesn't count the header; here it does.
TEST_F(ID3v2Writing, LastTenBytesOfAStandardTagStayInFrontOfTheAudio) {
  const std::string frames = Frame("TIT2", "x") + Padded("", 180) + "0123456789";
  ASSERT_EQ(frames.size(), 202U);
  const std::string standard = Header(202) + frames;
  EXPECT_EQ(After(standard + Audio(500), Filled(), false),
            UpdatedID3v2(standard.substr(0, 202), Filled()) + "0123456789" + Audio(500));
}

TEST_F(ID3v2Writing, EndOfTheTagIsCutOffWhenATextGrows) {
  const std::string filler(958, 'f');
  const std::string old = Header(1000) + Frame("TIT2", "x") + filler + "0123456789ABCDEFGHIJ";
  ASSERT_EQ(old.size(), 1000U);
  EXPECT_EQ(After(old + Audio(500), Filled(), false),
            Header(1000) + Frame("TIT2", "Title") + filler + "0123456789ABCDEF" + Audio(500));
  EXPECT_TRUE(boxes_.Boxes.empty());
}

TEST_F(ID3v2Writing, FrameWithoutRoomIsQuietlyLeftOut) {
  const std::string full = Header(300) + std::string(290, 'f') + Audio(500);
  EXPECT_EQ(After(full, Filled(), false), full);
  EXPECT_EQ(files_.MutationCount, 0U);
  EXPECT_TRUE(boxes_.Boxes.empty());
  EXPECT_EQ(status_.Stages, UpdatedOnly);
}

TEST_F(ID3v2Writing, PresentIsNotRead) {
  // Undo of a write to a file that had no tag: the tag stays, with empty fields.
  const std::string written = After(Audio(500), Filled(), false);
  const std::string undone = After(written, ID3Tag{}, false);
  EXPECT_EQ(undone.substr(257), Audio(500));
  const ID3Tag read = ReadID3v2(files_, report_, Path);
  EXPECT_TRUE(read.Present);
  EXPECT_EQ(read.Artist, u"");
  EXPECT_EQ(read.Title, u"");
}

TEST_F(ID3v2Writing, TextTooLongIsShownAndNothingIsTouched) {
  ID3Tag artist = Filled();
  artist.Artist = Text(255, u'a');
  ID3Tag comment = Filled();
  comment.Comment = Text(251, u'c');
  const std::vector<RecordingPrompter::Box> expected = {
      {BoxIcon::Exclamation, u"Error number: 5",
       u"Invalid procedure call or argument\r\n\r\nThe ID3 Tag is probably invalid"}};
  for (const std::string& bytes : {Tag(1000, "") + Audio(500) + OldV1, Audio(500) + OldV1}) {
    for (const ID3Tag* tag : {&artist, &comment}) {
      for (const bool remove : {false, true}) {
        EXPECT_EQ(After(bytes, *tag, remove), bytes);
        EXPECT_EQ(boxes_.Boxes, expected);
        EXPECT_TRUE(status_.Stages.empty());
        EXPECT_EQ(files_.MutationCount, 0U);
      }
    }
  }
  EXPECT_TRUE(report_.Reports.empty());
}

TEST_F(ID3v2Writing, LongestTextsFit) {
  ID3Tag tag = Filled();
  tag.Artist = Text(254, u'a');
  tag.Comment = Text(250, u'c');
  After(Tag(1000, "") + Audio(500), tag, false);
  EXPECT_TRUE(boxes_.Boxes.empty());
  EXPECT_EQ(ReadID3v2(files_, report_, Path).Artist, tag.Artist);
  EXPECT_EQ(ReadID3v2(files_, report_, Path).Comment, tag.Comment);
}

TEST_F(ID3v2Writing, OtherErrorsAreShownWithTheirDescriptionAlone) {
  EXPECT_EQ(After(Header(0) + Audio(500), Filled(), false), Header(0) + Audio(500));
  const std::vector<RecordingPrompter::Box> expected = {
      {BoxIcon::Exclamation, u"Error number: 9", u"Subscript out of range"}};
  EXPECT_EQ(boxes_.Boxes, expected);
  EXPECT_TRUE(status_.Stages.empty());
  // A file of three letters has a header whose size is missing, and so 0.
  EXPECT_EQ(After("ID3", Filled(), false), "ID3");
  EXPECT_EQ(boxes_.Boxes, expected);
}

TEST_F(ID3v2Writing, MissingOrReadOnlyFileIsShownAndNoneIsMade) {
  WriteID3v2(services_, u"/m/none.mp3", Filled(), false);
  EXPECT_FALSE(files_.Exists(u"/m/none.mp3"));
  ASSERT_EQ(boxes_.Boxes.size(), 1U);
  EXPECT_EQ(boxes_.Boxes[0].Title, u"Error number: 53");
  files_.Write(Path, Audio(500));
  files_.SetReadOnly(Path);
  WriteID3v2(services_, Path, Filled(), false);
  EXPECT_EQ(files_.Read(Path), Audio(500));
  EXPECT_EQ(boxes_.Boxes.size(), 2U);
  EXPECT_TRUE(status_.Stages.empty());
}

TEST_F(ID3v2Writing, SizeBeyondTheEndOfTheFileIsFilledWithNuls) {
  const std::string file = Header(1000) + Frame("XXXX", "kept");
  EXPECT_EQ(After(file, Filled(), false),
            Padded(Header(1000) + Frame("XXXX", "kept") + Frames(), 1000));
  // Nothing to write: the file isn't made longer either.
  const std::string full = Header(1000) + std::string(500, 'f');
  ID3Tag tag = Filled();
  const std::string once = After(full, tag, false);
  EXPECT_EQ(once.size(), 1000U);
  const std::string cut = once.substr(0, 900);
  EXPECT_EQ(After(cut, tag, false), cut);
  EXPECT_EQ(files_.MutationCount, 0U);
  // A small tag that isn't all there.
  EXPECT_EQ(After(Header(200) + "0123456789", Filled(), false),
            Padded(NewHeader() + "0123456789" + Frames(), 257));
}

TEST_F(ID3v2Writing, SizeOverOneMebibyteBeyondTheEndIsAnError) {
  const std::string rest = Audio(500) + OldV1;
  const auto length = static_cast<unsigned>(10 + rest.size());
  constexpr unsigned mebibyte = 1U << 20;
  for (const bool remove : {false, true}) {
    const std::string file = Header(length + mebibyte + 1) + rest;
    EXPECT_EQ(After(file, Filled(), remove), file);
    ASSERT_EQ(boxes_.Boxes.size(), 1U);
    EXPECT_EQ(boxes_.Boxes[0].Title, u"Error number: 62");
  }
  After(Header(length + mebibyte) + rest, Filled(), false);
  EXPECT_TRUE(boxes_.Boxes.empty());
  EXPECT_EQ(files_.Read(Path).size(), length + mebibyte);
}

TEST_F(ID3v2Writing, SmallTagThatOverlapsTheOtherIsAnErrorWhenThatShouldGo) {
  const std::string file = Header(200) + "x" + OldV1;  // 139 bytes
  EXPECT_EQ(After(file, Filled(), true), file);
  ASSERT_EQ(boxes_.Boxes.size(), 1U);
  EXPECT_EQ(boxes_.Boxes[0].Title, u"Error number: 5");
}

TEST_F(ID3v2Writing, LargeTagThatOverlapsTheOtherLosesTheLast128BytesAllTheSame) {
  const std::string file = Header(1000) + "x" + OldV1;  // 139 bytes
  const std::string updated = UpdatedID3v2(Padded(file, 1000), Filled());
  EXPECT_EQ(After(file, Filled(), true), updated.substr(0, 872));
  EXPECT_EQ(status_.Stages, UpdatedRemoving);
}

TEST_F(ID3v2Writing, OtherTagOfAHiddenFileIsNotFound) {
  files_.Write(u"/m/.a.mp3", Audio(500) + OldV1);
  WriteID3v2(services_, u"/m/.a.mp3", Filled(), true);
  EXPECT_EQ(files_.Read(u"/m/.a.mp3"), NewTag() + Audio(500) + OldV1);
  EXPECT_EQ(status_.Stages, Added);
}

TEST_F(ID3v2Writing, StagesAreShownBeforeAnythingIsWritten) {
  std::vector<int> percents;
  status_.OnStatus = [&](int percent) {
    percents.push_back(percent);
    EXPECT_EQ(files_.MutationCount > 0, percent == 100) << percent;
  };
  for (const std::string& start : {std::string(), Tag(100, ""), Tag(1000, "")}) {
    for (const bool remove : {false, true}) {
      After(start + Audio(500) + OldV1, Filled(), remove);
    }
  }
  EXPECT_EQ(percents, (std::vector<int>{33, 66, 100, 33, 66, 100, 50, 100, 33, 66, 100, 50, 100, 33,
                                        66, 100}));
}

TEST_F(ID3v2Writing, TagOfSeveralBlocksIsExchangedInOneWrite) {
  const std::string picture = Frame("APIC", "picture") + Audio(2 * InPlaceBlock);
  const auto size = static_cast<unsigned>(2 * InPlaceBlock + 1000);
  for (const std::size_t oldLength : {1, 5, 200}) {
    const std::string title = Frame("TIT2", std::string(oldLength, 't'));
    const std::string before = Tag(size, title + picture) + Audio(500) + OldV1;
    const std::string tag =
        Padded(Header(size) + Frame("TIT2", "Title") + picture + Frame("TPE1", "Artist") +
                   Frame("TALB", "Album") + Comment("Note") + Frame("TYER", "1999") +
                   Frame("TRCK", "07") + Frame("TCON", "(17)"),
               size);
    EXPECT_TRUE(After(before, Filled(), false) == tag + Audio(500) + OldV1) << oldLength;
    EXPECT_EQ(files_.MutationCount, 1U);
    EXPECT_TRUE(After(before, Filled(), true) == tag + Audio(500)) << oldLength;
    EXPECT_EQ(files_.MutationCount, 2U);
    for (const bool remove : {false, true}) {
      files_.Failure = FailurePlan{.At = remove ? 2U : 1U, .OnlyMutating = true};
      EXPECT_TRUE(After(before, Filled(), remove) == before) << oldLength;
      EXPECT_EQ(boxes_.Boxes.size(), 1U);
      files_.Failure.reset();
    }
  }
}

TEST_F(ID3v2Writing, FailureInTheStagesKeepsTheStatusLine) {
  files_.FreeBytes = 0;
  EXPECT_EQ(After(Audio(500), Filled(), false), Audio(500));
  ASSERT_EQ(boxes_.Boxes.size(), 1U);
  EXPECT_EQ(boxes_.Boxes[0].Title, u"Error number: 61");
  EXPECT_EQ(boxes_.Boxes[0].Message, u"Disk full");
  EXPECT_EQ(status_.Stages.size(), 2U);
}

TEST_F(ID3v2Writing, FileThatDoesNotFitInMemoryIsAnError) {
  OneFile large(Audio(5000));
  large.LargestRead = 4999;
  WriteID3v2({large, report_, boxes_, status_}, Path, Filled(), false);
  ASSERT_EQ(boxes_.Boxes.size(), 1U);
  EXPECT_EQ(boxes_.Boxes[0].Title, u"Error number: 7");
}

TEST_F(ID3v2Writing, FailureCanGoToTheCaller) {
  files_.Write(Path, Header(0));
  EXPECT_THROW(WriteID3v2OrFail(files_, report_, status_, Path, Filled(), false), RunError);
  files_.Write(Path, Audio(10));
  WriteID3v2OrFail(files_, report_, status_, Path, Filled(), false);
  EXPECT_EQ(files_.Read(Path), NewTag() + Audio(10));
}

}  // namespace
}  // namespace vorlane
