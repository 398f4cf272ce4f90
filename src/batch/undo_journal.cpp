#include "batch/undo_journal.h"

#include "platform/code_page.h"

namespace vorlane {

Text JournalPath(TextView folder) {
  return Text(folder).append(JournalName);
}

bool JournalExists(FileSystem& files, TextView folder) {
  const Text path = JournalPath(folder);
  if (!HiddenFileExists(files, path)) {
    return false;
  }
  return IsJournalText(files.Open(path, OpenMode::Read)->ReadAt(0, JournalHeaderSize));
}

void UndoJournal::CreateUndoFile(TextView folder) {
  path_.clear();
  ReportingFailures(report_, u"", u"CreateUndoFile", u"", [&] {
    const Text path = JournalPath(folder);
    if (JournalExists(files_, folder)) {
      files_.RemoveFile(path);
    }
    files_.CreateFile(path, JournalHeader());
    path_ = path;
  });
}

void UndoJournal::ContinueUndoFile(TextView folder) {
  bool exists = false;
  ReportingFailures(report_, u"", u"CreateUndoFile", u"",
                    [&] { exists = JournalExists(files_, folder); });
  if (exists) {
    path_ = JournalPath(folder);
  } else {
    CreateUndoFile(folder);
  }
}

void UndoJournal::UpdateUndoFile(const JournalRecord& record) {
  if (path_.empty()) {
    return;
  }
  ReportingFailures(report_, u"", u"UpdateUndoFile", u"",
                    [&] { files_.AppendToFile(path_, BytesOf(record)); });
}

std::string UndoJournal::BytesOf(const JournalRecord& record) const {
  const std::string folder = JournalFolderField(record.Folder, paths_);
  const std::string oldName = JournalNameField(record.OldName);
  const std::string newName = JournalNameField(record.NewName);
  switch (record.Kind) {
    case RecordKind::OpenTag:
      return "<MP3TAG>|" + CodePageBytes(record.TagText) + "|" + folder + "|" + oldName;
    case RecordKind::CloseTag:
      return "\r\n";
    case RecordKind::Rename:
      return "<VORL>|" + folder + "|" + oldName + "|" + newName + "\r\n";
    case RecordKind::CloseTagWith:
      return "|" + newName + "\r\n";
    case RecordKind::CreateFolder:
      return "<CREATEFOLDER>|" + std::to_string(record.Levels) + "|" + folder + "\r\n";
    case RecordKind::Move:
      return "<MOVE>|" + folder + "|" + oldName + "|" +
             JournalFolderField(record.Destination, paths_) + "|" + newName + "\r\n";
  }
  return {};
}

}  // namespace vorlane
