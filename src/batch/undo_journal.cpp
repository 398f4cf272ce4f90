#include "batch/undo_journal.h"

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
  if (exists && files_.StatusOf(JournalPath(folder)).Size >= JournalHeaderSize) {
    path_ = JournalPath(folder);
  } else {
    CreateUndoFile(folder);
  }
}

bool UndoJournal::UpdateUndoFile(const JournalRecord& record) {
  return IsOpen() && ReportingFailures(report_, u"", u"UpdateUndoFile", u"",
                                       [&] { files_.AppendToFile(path_, BytesOf(record)); });
}

std::string UndoJournal::BytesOf(const JournalRecord& record) const {
  const auto name = [](TextView text) { return JournalNameField(text); };
  const auto folder = [this](TextView text) { return JournalFolderField(text, paths_); };
  switch (record.Kind) {
    case RecordKind::OpenTag:
      return "<MP3TAG>|" + JournalTagFields(record.TagText) + "|" + folder(record.Folder) + "|" +
             name(record.OldName);
    case RecordKind::CloseTag:
      return "\r\n";
    case RecordKind::Rename:
      return "<VORL>|" + folder(record.Folder) + "|" + name(record.OldName) + "|" +
             name(record.NewName) + "\r\n";
    case RecordKind::CloseTagWith:
      return "|" + name(record.NewName) + "\r\n";
    case RecordKind::CreateFolder:
      return "<CREATEFOLDER>|" + std::to_string(record.Levels) + "|" + folder(record.Folder) +
             "\r\n";
    case RecordKind::Move:
      return "<MOVE>|" + folder(record.Folder) + "|" + name(record.OldName) + "|" +
             folder(record.Destination) + "|" + name(record.NewName) + "\r\n";
  }
  return {};
}

}  // namespace vorlane
