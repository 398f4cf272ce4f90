#include "batch/undo_journal.h"

#include <gtest/gtest.h>

#include "support/memory_file_system.h"
#include "support/recording_report.h"

namespace vorlane {
namespace {

struct JournalWorld {
  explicit JournalWorld(PathStyle paths = PathStyle::Posix)
      : Disk(paths), Journal(Disk, Report, paths) {
    Disk.MakeFolder(paths == PathStyle::Posix ? u"/R/" : u"C:\\Music\\");
  }
  MemoryFileSystem Disk;
  RecordingReport Report;
  UndoJournal Journal;
  std::string Body() const { return Disk.Read(u"/R/UNDORENAME.TXT").substr(JournalHeaderSize); }
};

TEST(UndoJournal, ANewJournalHasOnlyItsHeaderAndReplacesAnOldOne) {
  JournalWorld on;
  on.Disk.Write(u"/R/UNDORENAME.TXT", JournalHeader() + "of an earlier run");
  on.Journal.CreateUndoFile(u"/R/");
  EXPECT_EQ(on.Disk.Read(u"/R/UNDORENAME.TXT"), JournalHeader());
  EXPECT_TRUE(on.Disk.StatusOf(u"/R/UNDORENAME.TXT").Hidden);
}

TEST(UndoJournal, EveryKindHasItsBytes) {
  const struct {
    JournalRecord record;
    std::string bytes;
  } cases[] = {
      {{.Kind = RecordKind::OpenTag, .Folder = u"/R/", .OldName = u"a.mp3", .TagText = u"1|-1|41"},
       "<MP3TAG>|1|-1|41|/R/|a.mp3"},
      {{.Kind = RecordKind::CloseTag}, "\r\n"},
      {{.Kind = RecordKind::Rename, .Folder = u"/R/", .OldName = u"a", .NewName = u"b"},
       "<VORL>|/R/|a|b\r\n"},
      {{.Kind = RecordKind::CloseTagWith, .NewName = u"b.mp3"}, "|b.mp3\r\n"},
      {{.Kind = RecordKind::CreateFolder, .Folder = u"/R/x/y/", .Levels = 2},
       "<CREATEFOLDER>|2|/R/x/y/\r\n"},
      {{.Kind = RecordKind::Move,
        .Folder = u"/R/",
        .OldName = u"a",
        .NewName = u"a",
        .Destination = u"/R/x/"},
       "<MOVE>|/R/|a|/R/x/|a\r\n"},
  };
  for (const auto& c : cases) {
    JournalWorld on;
    on.Journal.CreateUndoFile(u"/R/");
    on.Journal.UpdateUndoFile(c.record);
    EXPECT_EQ(on.Body(), c.bytes);
  }
}

TEST(UndoJournal, ARowWithTagAndRenameGivesOneLine) {
  JournalWorld on(PathStyle::Windows);
  on.Journal.CreateUndoFile(u"C:\\Music\\");
  on.Journal.UpdateUndoFile({.Kind = RecordKind::OpenTag,
                             .Folder = u"C:\\Music\\",
                             .OldName = u"a.mp3",
                             .TagText = u"1|-1|4142|4344||07||1999|0"});
  on.Journal.UpdateUndoFile({.Kind = RecordKind::CloseTagWith, .NewName = u"b.mp3"});
  EXPECT_EQ(on.Disk.Read(u"C:\\Music\\UNDORENAME.TXT").substr(JournalHeaderSize),
            "<MP3TAG>|1|-1|4142|4344||07||1999|0|C:\\Music\\|a.mp3|b.mp3\r\n");
}

TEST(UndoJournal, IsOpenedForEachRecord) {
  JournalWorld on;
  on.Journal.CreateUndoFile(u"/R/");
  on.Disk.ForgetCalls();
  on.Journal.UpdateUndoFile({.Kind = RecordKind::CloseTag});
  on.Journal.UpdateUndoFile({.Kind = RecordKind::CloseTag});
  EXPECT_EQ(on.Disk.Calls, (std::vector<Text>{u"AppendToFile /R/UNDORENAME.TXT",
                                              u"AppendToFile /R/UNDORENAME.TXT"}));
}

TEST(UndoJournal, WhenItCannotBeMadeTheRunGoesOnWithoutOne) {
  JournalWorld on;
  on.Disk.MakeFolder(u"/R/UNDORENAME.TXT");
  on.Journal.CreateUndoFile(u"/R/");
  EXPECT_EQ(on.Report.Reports,
            (std::vector<RecordingReport::Report>{{u"", u"CreateUndoFile", u"", 58}}));
  on.Journal.UpdateUndoFile({.Kind = RecordKind::CloseTag});
  EXPECT_EQ(on.Report.Reports.size(), 1U);
}

TEST(UndoJournal, ARecordThatCannotBeWrittenIsReportedAndLost) {
  JournalWorld on;
  on.Journal.CreateUndoFile(u"/R/");
  on.Disk.FreeBytes = 3;
  on.Journal.UpdateUndoFile(
      {.Kind = RecordKind::Rename, .Folder = u"/R/", .OldName = u"a", .NewName = u"b"});
  EXPECT_EQ(on.Report.Reports,
            (std::vector<RecordingReport::Report>{{u"", u"UpdateUndoFile", u"", 61}}));
  EXPECT_EQ(on.Body(), "");  // no half record stays
  on.Disk.FreeBytes.reset();
  on.Journal.UpdateUndoFile({.Kind = RecordKind::CloseTag});
  EXPECT_EQ(on.Body(), "\r\n");
}

TEST(UndoJournal, CanGoOnWithTheOneThatIsThere) {
  JournalWorld on;
  on.Journal.CreateUndoFile(u"/R/");
  on.Journal.UpdateUndoFile({.Kind = RecordKind::CreateFolder, .Folder = u"/R/x/", .Levels = 1});
  UndoJournal second(on.Disk, on.Report, PathStyle::Posix);
  second.ContinueUndoFile(u"/R/");
  second.UpdateUndoFile({.Kind = RecordKind::CreateFolder, .Folder = u"/R/y/", .Levels = 1});
  EXPECT_EQ(on.Body(), "<CREATEFOLDER>|1|/R/x/\r\n<CREATEFOLDER>|1|/R/y/\r\n");
  on.Disk.Remove(u"/R/UNDORENAME.TXT");
  second.ContinueUndoFile(u"/R/");
  EXPECT_EQ(on.Body(), "");
}

}  // namespace
}  // namespace vorlane
