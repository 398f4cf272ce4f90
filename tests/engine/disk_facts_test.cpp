#include "engine/disk_facts.h"

#include <gtest/gtest.h>

#include "support/form_world.h"

namespace vorlane {
namespace {

TEST(DiskFacts, TellEachDateOfAFile) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a");
  const FileTimes times{*MakeDateTime(2001, 1, 1, 1, 0, 0), *MakeDateTime(2002, 2, 2, 2, 0, 0),
                        *MakeDateTime(2003, 3, 3, 3, 0, 0)};
  on.Disk.SetTimes(u"/R/a", times);
  EXPECT_EQ(on.World.Facts.FileDate(u"/R/a", WhichDate::Created), times.Created);
  EXPECT_EQ(on.World.Facts.FileDate(u"/R/a", WhichDate::Written), times.Written);
  EXPECT_EQ(on.World.Facts.FileDate(u"/R/a", WhichDate::Accessed), times.Accessed);
}

TEST(DiskFacts, WhatCannotBeOpenedHasTheZeroDateWithoutAWord) {
  MemoryWorld on;
  on.Disk.MakeFolder(u"/R");
  EXPECT_EQ(on.World.Facts.FileDate(u"/R", WhichDate::Created), DateTime());
  EXPECT_EQ(on.World.Facts.FileDate(u"/gone", WhichDate::Written), DateTime());
  EXPECT_TRUE(on.World.Boxes.Boxes.empty());
}

TEST(DiskFacts, ATimeThatCannotBeExpressedShowsABox) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a");
  on.Disk.BeforeCall = [](const CallInfo& call) {
    if (call.Method == u"TimesOf") {
      throw RunError(ErrorNumber::InvalidArgument);
    }
  };
  EXPECT_EQ(on.World.Facts.FileDate(u"/R/a", WhichDate::Created), DateTime());
  ASSERT_EQ(on.World.Boxes.Boxes.size(), 1U);
  EXPECT_EQ(on.World.Boxes.Boxes[0].Message,
            u"Error number 5\r\nInvalid procedure call or argument");
}

TEST(DiskFacts, LengthsEndAtTwoGibibytesAndFoldersHaveNone) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a", "12345");
  EXPECT_EQ(on.World.Facts.FileLength(u"/R/a"), 5);
  on.Disk.SetReportedSize(u"/R/a", 0x7FFFFFFF);
  EXPECT_EQ(on.World.Facts.FileLength(u"/R/a"), 0x7FFFFFFF);
  on.Disk.SetReportedSize(u"/R/a", 0x80000000);
  EXPECT_EQ(on.World.Facts.FileLength(u"/R/a"), std::nullopt);
  EXPECT_EQ(on.World.Facts.FileLength(u"/R"), std::nullopt);
  EXPECT_EQ(on.World.Facts.FileLength(u"/gone"), std::nullopt);
}

TEST(DiskFacts, TheTimeIsTheClocks) {
  MemoryWorld on;
  EXPECT_EQ(on.World.Facts.Now(), on.World.Time.Today);
}

}  // namespace
}  // namespace vorlane
