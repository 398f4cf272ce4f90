#include "batch/file_routines.h"

#include <gtest/gtest.h>

#include "support/memory_file_system.h"
#include "support/recording_report.h"

namespace vorlane {
namespace {

struct Routines {
  explicit Routines(PathStyle paths = PathStyle::Posix, LetterCase letterCase = LetterCase::Matters)
      : Disk(paths, letterCase), Journal(Disk, Report, paths) {
    if (paths == PathStyle::Posix) {
      Disk.MakeFolder(u"/R/");
    }
  }

  RenameResult Rename(TextView oldName, TextView newName, RenameFor purpose = RenameFor::Run) {
    return RenameFile(Disk, u"/R/", oldName, newName, purpose, nullptr, false);
  }

  MemoryFileSystem Disk;
  RecordingReport Report;
  UndoJournal Journal;
};

TEST(CreatePath, MakesWhatIsMissingAndCountsIt) {
  Routines on(PathStyle::Windows);
  on.Disk.MakeFolder(u"C:\\A");
  Text path = u"C:\\A\\B";
  EXPECT_EQ(CreatePath(on.Disk, path, PathStyle::Windows), 1);
  EXPECT_EQ(path, u"C:\\A\\B\\");
  path = u"C:\\A\\B\\C\\D\\";
  EXPECT_EQ(CreatePath(on.Disk, path, PathStyle::Windows), 2);
  EXPECT_EQ(CreatePath(on.Disk, path, PathStyle::Windows), 0);
}

TEST(CreatePath, TheRootIsAPieceLikeAnyOther) {
  Routines on;
  Text path = u"/x/y";
  EXPECT_EQ(CreatePath(on.Disk, path, PathStyle::Posix), 2);
  EXPECT_TRUE(FolderExists(on.Disk, u"/x/y/"));
  path = u"/";
  EXPECT_EQ(CreatePath(on.Disk, path, PathStyle::Posix), 0);
}

TEST(CreatePath, ALevelThatCannotBeMadeIsNotCounted) {
  Routines on;
  on.Disk.Write(u"/R/file");
  Text path = u"/R/file/x/";
  EXPECT_EQ(CreatePath(on.Disk, path, PathStyle::Posix), 0);
  EXPECT_EQ(path, u"/R/file/x/");
}

TEST(RemoveFolder, TakesOnlyAnEmptyFolder) {
  Routines on;
  on.Disk.Write(u"/R/full/file");
  on.Disk.MakeFolder(u"/R/empty");
  RemoveFolder(on.Disk, u"/R/full/");
  RemoveFolder(on.Disk, u"/R/empty/");
  RemoveFolder(on.Disk, u"/R/gone/");
  EXPECT_TRUE(on.Disk.Exists(u"/R/full/file"));
  EXPECT_FALSE(on.Disk.Exists(u"/R/empty"));
}

TEST(MoveFile, MovesFilesAndFolders) {
  Routines on;
  on.Disk.Write(u"/R/a", "bytes");
  on.Disk.Write(u"/R/sub/b", "more");
  on.Disk.MakeFolder(u"/R/x");
  EXPECT_TRUE(MoveFile(on.Disk, u"/R/", u"a", u"/R/x/", u"a2"));
  EXPECT_TRUE(MoveFile(on.Disk, u"/R/", u"sub", u"/R/x/", u"sub"));
  EXPECT_EQ(on.Disk.Read(u"/R/x/a2"), "bytes");
  EXPECT_EQ(on.Disk.Read(u"/R/x/sub/b"), "more");
}

TEST(MoveFile, RefusesWithoutAChange) {
  Routines on;
  on.Disk.Write(u"/R/a", "bytes");
  on.Disk.Write(u"/R/x/a", "theirs");
  on.Disk.Write(u"/R/x/.hidden", "hidden");
  on.Disk.Write(u"/R/.b", "dot");
  on.Disk.MakeLink(u"/R/x/link", u"/gone");
  on.Disk.MakeFolder(u"/R/folder");
  on.Disk.MakeFolder(u"/R/x/empty");
  on.Disk.MakeVolume(u"/other");
  const auto before = on.Disk.Contents(u"/");
  const struct {
    Text name, folder, newName;
  } cases[] = {
      {u"", u"/R/x/", u"b"},        {u"a", u"/R/x/", u""},     {u"gone", u"/R/x/", u"b"},
      {u"a", u"/R/gone/", u"a"},    {u"a", u"/R/x/", u"a"},    {u".b", u"/R/x/", u"b"},
      {u"a", u"/R/x/", u".hidden"}, {u"a", u"/R/x/", u"link"}, {u"folder", u"/R/x/", u"empty"},
      {u"a", u"/other/", u"a"},
  };
  for (const auto& c : cases) {
    EXPECT_FALSE(MoveFile(on.Disk, u"/R/", c.name, c.folder, c.newName))
        << testing::PrintToString(c.name) << testing::PrintToString(c.newName);
    EXPECT_EQ(on.Disk.Contents(u"/"), before);
  }
}

TEST(RenameFile, RenamesAndJournals) {
  Routines on;
  on.Disk.Write(u"/R/a", "bytes");
  on.Journal.CreateUndoFile(u"/R/");
  const auto result = RenameFile(on.Disk, u"/R/", u"a", u"b", RenameFor::Run, &on.Journal, false);
  EXPECT_TRUE(result.Attempted);
  EXPECT_EQ(result.Outcome, RenameOutcome::Done);
  EXPECT_EQ(on.Disk.Read(u"/R/b"), "bytes");
  EXPECT_EQ(on.Disk.Read(u"/R/UNDORENAME.TXT"), JournalHeader() + "<VORL>|/R/|a|b\r\n");
}

TEST(RenameFile, ClosesAnOpenTagLine) {
  Routines on;
  on.Disk.Write(u"/R/a");
  on.Journal.CreateUndoFile(u"/R/");
  RenameFile(on.Disk, u"/R/", u"a", u"b", RenameFor::Run, &on.Journal, true);
  EXPECT_EQ(on.Disk.Read(u"/R/UNDORENAME.TXT"), JournalHeader() + "|b\r\n");
}

TEST(RenameFile, WhenTheChecksFailNothingIsTriedNorJournalled) {
  Routines on;
  on.Disk.Write(u"/R/a", "bytes");
  on.Disk.Write(u"/R/taken", "theirs");
  on.Disk.Write(u"/R/.dot", "dot");
  on.Disk.MakeFolder(u"/R/folder");
  on.Disk.MakeLink(u"/R/link", u"/gone");
  on.Disk.MakeOther(u"/R/pipe");
  on.Journal.CreateUndoFile(u"/R/");
  const auto before = on.Disk.Contents(u"/");
  const std::pair<Text, Text> cases[] = {
      {u"", u"b"},      {u"a", u""},      {u"gone", u"b"},  {u"a", u"taken"}, {u"a", u"folder"},
      {u"a", u"link"},  {u"a", u"pipe"},  {u".dot", u"b"},  {u"a", u"."},     {u"a", u".."},
      {u"pipe", u"p2"}, {u"link", u"l2"}, {u"taken", u"a"},
  };
  for (const auto& [oldName, newName] : cases) {
    const auto result =
        RenameFile(on.Disk, u"/R/", oldName, newName, RenameFor::Run, &on.Journal, false);
    EXPECT_FALSE(result.Attempted)
        << testing::PrintToString(oldName) << testing::PrintToString(newName);
    EXPECT_EQ(on.Disk.Contents(u"/"), before);
  }
}

TEST(RenameFile, WhatTheSystemRefusesCountsAsTriedAndIsJournalled) {
  Routines on;
  on.Disk.Write(u"/R/a", "bytes");
  on.Disk.Write(u"/R/.dot", "hidden");
  on.Disk.Write(u"/R/UNDORENAME.TXT", JournalHeader());
  UndoJournal& journal = on.Journal;
  journal.ContinueUndoFile(u"/R/");
  for (const Text& target :
       {Text(u".dot"), Text(u"UNDORENAME.TXT"), Text(300, u'x'), Text(u"a\0b", 3)}) {
    const auto result = RenameFile(on.Disk, u"/R/", u"a", target, RenameFor::Run, &journal, false);
    EXPECT_TRUE(result.Attempted) << testing::PrintToString(target);
    EXPECT_NE(result.Outcome, RenameOutcome::Done);
    EXPECT_EQ(on.Disk.Read(u"/R/a"), "bytes");
    EXPECT_EQ(on.Disk.Read(u"/R/.dot"), "hidden");
  }
  const std::string body = on.Disk.Read(u"/R/UNDORENAME.TXT").substr(JournalHeaderSize);
  EXPECT_EQ(std::count(body.begin(), body.end(), '\n'), 4);
}

TEST(RenameFile, ATargetThatAppearsBehindTheCheckIsNotReplaced) {
  Routines on;
  on.Disk.Write(u"/R/a", "mine");
  on.Disk.BeforeCall = [&](const CallInfo& call) {
    if (call.Method == u"RenameNoReplace") {
      on.Disk.Write(u"/R/b", "theirs");
    }
  };
  EXPECT_EQ(on.Rename(u"a", u"b").Outcome, RenameOutcome::TargetExists);
  EXPECT_EQ(on.Disk.Read(u"/R/a"), "mine");
  EXPECT_EQ(on.Disk.Read(u"/R/b"), "theirs");
}

TEST(RenameFile, CaseAloneChangesOnAnyDisk) {
  for (const LetterCase letterCase : {LetterCase::Matters, LetterCase::Ignored}) {
    Routines on(PathStyle::Posix, letterCase);
    on.Disk.Write(u"/R/A.txt", "bytes");
    EXPECT_EQ(on.Rename(u"A.txt", u"a.txt").Outcome, RenameOutcome::Done);
    EXPECT_EQ(on.Disk.Contents(u"/R/"), (std::map<std::string, std::string>{{"a.txt", "bytes"}}));
  }
}

TEST(RenameFile, TheOtherCaseTwinIsNotReplaced) {
  Routines on;
  on.Disk.Write(u"/R/A.txt", "upper");
  on.Disk.Write(u"/R/a.txt", "lower");
  EXPECT_FALSE(on.Rename(u"A.txt", u"a.txt").Attempted);
  EXPECT_EQ(on.Disk.Read(u"/R/A.txt"), "upper");
  EXPECT_EQ(on.Disk.Read(u"/R/a.txt"), "lower");
}

TEST(RenameFile, TwoHardLinksOfOneFileStayTwo) {
  Routines on;
  on.Disk.Write(u"/R/A.txt", "bytes");
  on.Disk.MakeHardLink(u"/R/a.txt", u"/R/A.txt");
  EXPECT_FALSE(on.Rename(u"A.txt", u"a.txt").Attempted);
  EXPECT_EQ(on.Disk.Contents(u"/R/").size(), 2U);
}

TEST(RenameFile, UndoSeesHiddenSources) {
  Routines on;
  on.Disk.Write(u"/R/.x", "bytes");
  EXPECT_FALSE(on.Rename(u".x", u"a").Attempted);
  EXPECT_EQ(on.Rename(u".x", u"a", RenameFor::Undo).Outcome, RenameOutcome::Done);
  EXPECT_FALSE(on.Rename(u".gone", u"b", RenameFor::Undo).Attempted);
}

}  // namespace
}  // namespace vorlane
