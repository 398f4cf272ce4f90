// UNDORENAME.TXT, the journal of one run, in the folder that the run works on. It is opened and
// closed for each record, so that a crash loses nothing that was done.
#pragma once

#include <cstdint>

#include "batch/journal_text.h"
#include "platform/failure.h"
#include "platform/file_system.h"

namespace vorlane {

Text JournalPath(TextView folder);

// True if the folder holds a journal: a file of that name that reads as one. Somebody's own file
// that happens to have the name is no journal, and is never deleted as one. Throws RunError if the
// file can't be read.
bool JournalExists(FileSystem& files, TextView folder);

// What UpdateUndoFile appends.
enum class RecordKind : std::uint8_t {
  OpenTag,       // "<MP3TAG>|" tag text "|" folder "|" old name: the line stays open
  CloseTag,      // the line end of an open tag line
  Rename,        // "<VORL>|" folder "|" old name "|" new name
  CloseTagWith,  // "|" new name: closes an open tag line for a row that was renamed as well
  CreateFolder,  // "<CREATEFOLDER>|" levels "|" path
  Move,          // "<MOVE>|" folder "|" old name "|" destination "|" new name
};

struct JournalRecord {
  RecordKind Kind = RecordKind::Rename;
  Text Folder{};
  Text OldName{};
  Text NewName{};
  Text TagText{};           // OpenTag
  Text Destination{};       // Move
  std::int16_t Levels = 0;  // CreateFolder
};

class UndoJournal {
 public:
  UndoJournal(FileSystem& files, FailureReport& report, PathStyle paths)
      : files_(files), report_(report), paths_(paths) {}

  // Replaces the folder's journal by a new one that holds only the header. A failure is reported,
  // also that a file which is no journal has its name; the run then goes on without a journal.
  void CreateUndoFile(TextView folder);

  // Goes on with the journal that the folder has, or makes a new one if it has none with a whole
  // header.
  void ContinueUndoFile(TextView folder);

  bool IsOpen() const { return !path_.empty(); }

  // Appends a record. True if it is on the disk. A failure is reported and the record is lost;
  // without a journal there is nothing to report.
  bool UpdateUndoFile(const JournalRecord& record);

 private:
  std::string BytesOf(const JournalRecord& record) const;

  FileSystem& files_;
  FailureReport& report_;
  const PathStyle paths_;
  Text path_;  // empty while there is no journal
};

}  // namespace vorlane
