#include "metadata/tag_reading.h"

#include <gtest/gtest.h>

#include "support/id3_bytes.h"
#include "support/memory_file_system.h"
#include "support/one_file.h"
#include "support/recording_report.h"

namespace vorlane {
namespace {

using id3::Audio;
using id3::Comment;
using id3::Frame;
using id3::Header;
using id3::Nuls;
using id3::Tag;
using id3::V1;

const std::string Whole = Tag(300, Frame("TPE1", "two")) + "\xFF\xFB\x94\x64" + Audio(500) +
                          V1("t", "one", "l", "1999", "c", 7, 17);

class TagReading : public testing::Test {
 protected:
  MemoryFileSystem files_;
  RecordingReport report_;
};

TEST_F(TagReading, AllThree) {
  files_.Write(u"/m/a.mp3", Whole);
  EXPECT_EQ(ReadID3v1(files_, report_, u"/m/a.mp3").Artist, u"one");
  EXPECT_EQ(ReadID3v2(files_, report_, u"/m/a.mp3").Artist, u"two");
  EXPECT_EQ(GetKbit(files_, report_, u"/m/a.mp3"), 128);
  EXPECT_TRUE(report_.Reports.empty());
  EXPECT_EQ(files_.Read(u"/m/a.mp3"), Whole);
  EXPECT_EQ(files_.MutationCount, 0U);
}

TEST_F(TagReading, ExtensionIsNotLookedAt) {
  files_.Write(u"/m/a.txt", Whole);
  EXPECT_TRUE(ReadID3v1(files_, report_, u"/m/a.txt").Present);
  EXPECT_TRUE(ReadID3v2(files_, report_, u"/m/a.txt").Present);
  EXPECT_EQ(GetKbit(files_, report_, u"/m/a.txt"), 128);
}

TEST_F(TagReading, WhatIsNoPlainFileGivesTheEmptyResultSilently) {
  files_.Write(u"/m/.hidden.mp3", Whole);
  files_.Write(u"/m/UNDORENAME.TXT", Whole);
  files_.MakeFolder(u"/m/folder.mp3");
  files_.MakeOther(u"/m/pipe.mp3");
  files_.MakeLink(u"/m/lost.mp3", u"nowhere");
  for (const TextView path : {u"", u"/m/none.mp3", u"/m/.hidden.mp3", u"/m/UNDORENAME.TXT",
                              u"/m/folder.mp3", u"/m/pipe.mp3", u"/m/lost.mp3"}) {
    EXPECT_EQ(ReadID3v1(files_, report_, path), ID3Tag{});
    EXPECT_EQ(ReadID3v2(files_, report_, path), ID3Tag{});
    EXPECT_EQ(ReadID3Tags(files_, report_, path).V1, ID3Tag{});
    EXPECT_EQ(GetKbit(files_, report_, path), 0);
  }
  EXPECT_TRUE(report_.Reports.empty());
}

TEST_F(TagReading, FileWithoutTagOrFrameGivesTheEmptyResultSilently) {
  for (const std::string& bytes : {std::string(), std::string("x"), Nuls(20000), Audio(1000)}) {
    files_.Write(u"/m/a.mp3", bytes);
    EXPECT_EQ(ReadID3v1(files_, report_, u"/m/a.mp3"), ID3Tag{});
    EXPECT_EQ(ReadID3v2(files_, report_, u"/m/a.mp3"), ID3Tag{});
    EXPECT_EQ(GetKbit(files_, report_, u"/m/a.mp3"), 0);
  }
  EXPECT_TRUE(report_.Reports.empty());
}

TEST_F(TagReading, ID3v1NeedsAFileOf128Bytes) {
  const std::string tag = V1("t", "a", "l", "1999", "c", 7, 17);
  files_.Write(u"/127.mp3", "TAG" + tag.substr(4));
  files_.Write(u"/128.mp3", tag);
  files_.Write(u"/129.mp3", "x" + tag);
  files_.Write(u"/early.mp3", tag + "x");
  EXPECT_FALSE(ReadID3v1(files_, report_, u"/127.mp3").Present);
  EXPECT_TRUE(ReadID3v1(files_, report_, u"/128.mp3").Present);
  EXPECT_TRUE(ReadID3v1(files_, report_, u"/129.mp3").Present);
  EXPECT_FALSE(ReadID3v1(files_, report_, u"/early.mp3").Present);
}

TEST_F(TagReading, FailureIsReportedWithTheProcedureAndTheFilesName) {
  files_.Write(u"/m/a.mp3", Whole);
  files_.SetUnreadable(u"/m/a.mp3");
  EXPECT_EQ(ReadID3v1(files_, report_, u"/m/a.mp3"), ID3Tag{});
  EXPECT_EQ(ReadID3v2(files_, report_, u"/m/a.mp3"), ID3Tag{});
  EXPECT_EQ(GetKbit(files_, report_, u"/m/a.mp3"), 0);
  ASSERT_EQ(report_.Reports.size(), 3U);
  const TextView procedures[] = {u"ReadID3v1", u"ReadID3v2", u"GetKbit"};
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(report_.Reports[i].Module, u"");
    EXPECT_EQ(report_.Reports[i].Procedure, procedures[i]);
    EXPECT_EQ(report_.Reports[i].Extra, u"a.mp3");
  }
}

TEST_F(TagReading, EachCallThatFailsGivesTheEmptyResult) {
  files_.Write(u"/m/a.mp3", Whole);
  const std::function<bool()> readers[] = {
      [&] { return ReadID3v1(files_, report_, u"/m/a.mp3") == ID3Tag{}; },
      [&] { return ReadID3v2(files_, report_, u"/m/a.mp3") == ID3Tag{}; },
      [&] { return GetKbit(files_, report_, u"/m/a.mp3") == 0; }};
  for (const auto& readsNothing : readers) {
    files_.Failure.reset();
    files_.ForgetCalls();
    EXPECT_FALSE(readsNothing());
    const std::size_t calls = files_.CallCount;
    EXPECT_GE(calls, 3U);
    for (std::size_t call = 1; call <= calls; ++call) {
      files_.ForgetCalls();
      report_.Reports.clear();
      files_.Failure = FailurePlan{.At = call};
      EXPECT_TRUE(readsNothing()) << call;
      // The first is the test of existence, where a failure means "not there".
      EXPECT_EQ(report_.Reports.size(), call == 1 ? 0U : 1U) << call;
    }
  }
}

TEST_F(TagReading, ErrorsOfTheParsersAreReported) {
  files_.Write(u"/genre.mp3",
               Tag(300, Frame("TPE1", "a") + Comment("comment") + Frame("TCON", "(99999)")));
  EXPECT_EQ(ReadID3v2(files_, report_, u"/genre.mp3"), ID3Tag{});
  files_.Write(u"/index.mp3", "\xFF\xFA\xF0");
  EXPECT_EQ(GetKbit(files_, report_, u"/index.mp3"), 0);
  const std::vector<RecordingReport::Report> expected = {{u"", u"ReadID3v2", u"genre.mp3", 6},
                                                         {u"", u"GetKbit", u"index.mp3", 9}};
  EXPECT_EQ(report_.Reports, expected);
}

TEST_F(TagReading, EachOpensTheFileOnceAndReadsNoFurtherThanItMust) {
  const std::string end = Audio(50000) + V1("t", "a", "l", "", "c", 7, 17);
  const struct {
    std::string Bytes;
    std::size_t Reads;
    std::size_t ReadUpTo;
  } cases[] = {
      {end, 1, 258},
      {Tag(20, "") + end, 1, 258},
      {Tag(257, "") + end, 1, 258},
      {Tag(258, "") + end, 2, 259},
      {Tag(1000, "") + end, 2, 1001},
      {Tag(1000, "").substr(0, 700), 2, 700},
  };
  for (const auto& [bytes, reads, readUpTo] : cases) {
    OneFile one(bytes);
    EXPECT_EQ(ReadID3v2(one, report_, u"/a.mp3").Present, bytes.starts_with("ID3"));
    EXPECT_EQ(one.Opened, 1U);
    EXPECT_EQ(one.Reads, reads) << readUpTo;
    EXPECT_EQ(one.ReadUpTo, readUpTo);
  }
  OneFile one(end);
  EXPECT_TRUE(ReadID3v1(one, report_, u"/a.mp3").Present);
  EXPECT_EQ(one.Opened, 1U);
  EXPECT_EQ(one.Reads, 1U);
  OneFile none(Audio(50000));
  EXPECT_EQ(GetKbit(none, report_, u"/a.mp3"), 0);
  EXPECT_EQ(none.Opened, 1U);
  EXPECT_EQ(none.Reads, 1U);
  EXPECT_EQ(none.ReadUpTo, 10003U);
}

TEST_F(TagReading, BothTagsTakeOneOpening) {
  OneFile one(Whole);
  const ID3Tags tags = ReadID3Tags(one, report_, u"/a.mp3");
  EXPECT_EQ(tags.V1, ReadID3v1(one, report_, u"/a.mp3"));
  EXPECT_EQ(tags.V2, ReadID3v2(one, report_, u"/a.mp3"));
  EXPECT_TRUE(tags.V1.Present && tags.V2.Present);
  one.Opened = 0;
  one.Reads = 0;
  ReadID3Tags(one, report_, u"/a.mp3");
  EXPECT_EQ(one.Opened, 1U);
  EXPECT_EQ(one.Reads, 3U);
}

TEST_F(TagReading, EachOfBothTagsFailsByItself) {
  files_.Write(u"/m/a.mp3", Whole);
  const std::pair<TextView, bool> reads[] = {{u"ReadID3v1", false}, {u"ReadID3v2", true}};
  for (const auto& [procedure, firstIsRead] : reads) {
    int before = 0;
    files_.BeforeCall = [&, first = firstIsRead](const CallInfo& call) {
      // The first of the reads is that of the ID3v1 tag.
      if (call.Method == u"ReadAt" && before++ == (first ? 1 : 0)) {
        throw RunError(ErrorNumber::DeviceError);
      }
    };
    report_.Reports.clear();
    const ID3Tags tags = ReadID3Tags(files_, report_, u"/m/a.mp3");
    EXPECT_EQ(tags.V1.Present, firstIsRead);
    EXPECT_EQ(tags.V2.Present, !firstIsRead);
    EXPECT_EQ(report_.Reports,
              (std::vector<RecordingReport::Report>{{u"", Text(procedure), u"a.mp3", 57}}));
  }
  files_.BeforeCall = nullptr;
  report_.Reports.clear();
  files_.SetUnreadable(u"/m/a.mp3");
  EXPECT_EQ(ReadID3Tags(files_, report_, u"/m/a.mp3").V2, ID3Tag{});
  EXPECT_EQ(report_.Reports,
            (std::vector<RecordingReport::Report>{{u"", u"ReadID3v1", u"a.mp3", 70},
                                                  {u"", u"ReadID3v2", u"a.mp3", 70}}));
}

TEST_F(TagReading, HeaderThatClaimsMoreThanTheFileHoldsIsNotBelieved) {
  OneFile one(Header(268435455) + Frame("TPE1", "a"));
  EXPECT_EQ(ReadID3v2(one, report_, u"/a.mp3").Artist, u"a");
  EXPECT_EQ(one.ReadUpTo, one.Bytes.size());
  EXPECT_TRUE(report_.Reports.empty());
}

}  // namespace
}  // namespace vorlane
