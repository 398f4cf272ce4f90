// The steps that make folders and move entries, and their records in the journal.
#include <gtest/gtest.h>

#include "support/form_world.h"

namespace vorlane {
namespace {

using Reports = std::vector<RecordingReport::Report>;

TEST(FolderSteps, MakeAFolderMoveIntoItAndJournalBoth) {
  MemoryWorld on;
  on.ListFiles({u"a.txt"});
  on.World.SelectSteps(
      {u"<CREATEFOLDER>x\\<NAMEONLY></CREATEFOLDER>", u"<MOVE>x/<NAMEONLY></MOVE>"});
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"/R/x/a/a.txt"));
  EXPECT_EQ(JournalBody(on), "<CREATEFOLDER>|2|/R/x/a/\r\n<MOVE>|/R/|a.txt|/R/x/a/|a.txt\r\n");
}

TEST(FolderSteps, AFolderThatIsThereIsNotJournalled) {
  MemoryWorld on;
  on.Disk.MakeFolder(u"/R/x");
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"<CREATEFOLDER>x</CREATEFOLDER>"});
  on.World.RunAll();
  EXPECT_EQ(JournalBody(on), "no journal");
}

TEST(FolderSteps, AMoveIntoNoFolderDoesAndRecordsNothing) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"<MOVE>gone</MOVE>"});
  on.World.RunAll();
  EXPECT_EQ(JournalBody(on), "no journal");
  EXPECT_TRUE(on.Disk.Exists(u"/R/a"));
}

TEST(FolderSteps, ARenameBehindAMoveFindsNoSource) {
  MemoryWorld on;
  on.Disk.MakeFolder(u"/R/x");
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"<MOVE>x</MOVE>", u"new<FILENAME>"});
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"/R/x/a"));
  EXPECT_EQ(JournalBody(on), "<MOVE>|/R/|a|/R/x/|a\r\n<MOVE>|/R/|b|/R/x/|b\r\n");
}

TEST(FolderSteps, CreateFolderComesBeforeMoveInOneStep) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"<CREATEFOLDER><MOVE>x</MOVE></CREATEFOLDER>"});
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"/R/x"));
  EXPECT_TRUE(on.Disk.Exists(u"/R/a"));
}

TEST(FolderSteps, SeeTheSelectedRowsBoxesInBothModes) {
  for (const bool all : {true, false}) {
    MemoryWorld on;
    on.ListFiles({u"a", u"b"});
    on.World.SelectSteps({u"<CREATEFOLDER><BOX1></CREATEFOLDER>", u"<FILENAME>"});
    on.World.ShowBox(1, u"", u"<NAMEONLY>dir");
    on.World.State.DoAll = all;
    on.World.State.SelectRow(2);
    on.World.List.lstFileListItemClick();
    on.World.Batch.cmdGo_Click();
    EXPECT_TRUE(on.Disk.Exists(u"/R/bdir"));
    EXPECT_EQ(on.Disk.Exists(u"/R/adir"), all);
  }
}

TEST(FolderSteps, NeverWorkBelowTheFolderThatTheProcessIsIn) {
  for (const Text step : {u"<CREATEFOLDER>x", u"<MOVE>x", u"pre<CREATEFOLDER>x</CREATEFOLDER>",
                          u"<MOVE>C:\\x</MOVE>"}) {
    MemoryWorld on;
    on.Disk.MakeFolder(u"/x");
    on.ListFiles({u"a"});
    on.World.SelectSteps({step});
    on.Disk.ForgetCalls();
    on.World.RunAll();
    for (const Text& call : on.Disk.Calls) {
      EXPECT_NE(call.find(u" /"), Text::npos) << testing::PrintToString(call);
    }
    EXPECT_TRUE(on.Disk.Exists(u"/R/a"));
    EXPECT_EQ(JournalBody(on), "no journal");
  }
}

TEST(FolderSteps, KeywordsAreCaseSensitive) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.SelectSteps({u"<createfolder>x</createfolder>"});
  on.World.RunAll();
  EXPECT_EQ(on.Disk.Contents(u"/R/").count("x/"), 0U);
}

TEST(FolderSteps, UndoLeavesFoldersAloneThatWereThereBefore) {
  MemoryWorld on;
  on.Disk.MakeFolder(u"/R/old");
  on.ListFiles({u"a"});
  const auto before = on.Disk.Contents(u"/R/");
  on.World.SelectSteps({u"<CREATEFOLDER>new/../old/sub</CREATEFOLDER>"});
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"/R/old/sub"));
  EXPECT_FALSE(on.Disk.Exists(u"/R/new"));
  on.World.Undo.cmdUndo_Click();
  EXPECT_EQ(on.Disk.Contents(u"/R/"), before);
}

TEST(FolderSteps, UseTheRowNumber) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"<CREATEFOLDER>n<AUTONUMBER></CREATEFOLDER>"});
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"/R/n1"));
  EXPECT_TRUE(on.Disk.Exists(u"/R/n2"));
}

TEST(FolderSteps, OnWindowsPathsToTheLetter) {
  MemoryWorld on(PathStyle::Windows);
  on.Disk.Write(u"C:\\Music\\a.mp3");
  on.World.ListAll(u"C:\\Music\\");
  on.World.SelectSteps({u"<CREATEFOLDER>C:\\A\\B</CREATEFOLDER>", u"<MOVE>C:\\A\\B</MOVE>"});
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"C:\\A\\B\\a.mp3"));
  EXPECT_EQ(on.Disk.Read(u"C:\\Music\\UNDORENAME.TXT").substr(JournalHeaderSize),
            "<CREATEFOLDER>|2|C:\\A\\B\\\r\n<MOVE>|C:\\Music\\|a.mp3|C:\\A\\B\\|a.mp3\r\n");
}

// What was done stays done: a name or a folder can be had back by hand.
TEST(FolderSteps, ARecordThatCannotBeWrittenIsLostAndTheRunGoesOn) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  std::size_t records = 0;
  on.Disk.BeforeCall = [&](const CallInfo& call) {
    if (call.Method == u"AppendToFile" && ++records <= 2) {
      throw RunError(ErrorNumber::DiskFull);
    }
  };
  on.World.SelectSteps({u"<CREATEFOLDER>x<NAMEONLY></CREATEFOLDER>", u"<MOVE>x<NAMEONLY></MOVE>"});
  on.World.RunAll();
  EXPECT_TRUE(on.Disk.Exists(u"/R/xa/a"));
  EXPECT_TRUE(on.Disk.Exists(u"/R/xb/b"));
  EXPECT_EQ(on.World.Report.Reports,
            (Reports{{u"", u"UpdateUndoFile", u"", 61}, {u"", u"UpdateUndoFile", u"", 61}}));
  EXPECT_EQ(JournalBody(on), "<CREATEFOLDER>|1|/R/xb/\r\n<MOVE>|/R/|b|/R/xb/|b\r\n");
}

}  // namespace
}  // namespace vorlane
