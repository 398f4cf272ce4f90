#include "batch/undo_run.h"

#include <limits>

#include "batch/file_routines.h"
#include "metadata/tag_text.h"
#include "metadata/tag_writing.h"
#include "platform/code_page.h"
#include "platform/interface_texts.h"
#include "platform/numbers.h"

namespace vorlane {

namespace {

// Places of the fields in a tag record.
constexpr std::size_t TagTextFields = 9;
constexpr std::size_t TagFolder = 10;
constexpr std::size_t TagOldName = 11;
constexpr std::size_t TagNewName = 12;

// A folder's parent, both with a trailing separator.
TextView ParentOf(TextView path, PathStyle style) {
  if (path.size() < 2) {
    return {};
  }
  const auto last = path.rfind(Separator(style), path.size() - 2);
  return last == TextView::npos ? TextView() : path.substr(0, last + 1);
}

}  // namespace

void UndoRun::cmdUndo_Click() {
  if (form_.RunOrListingIsAtWork()) {
    return;
  }
  const JournalInUse inUse(form_);
  form_.EnableUndo(false);
  folder_ = form_.CurrentPath;
  bool exists = false;
  const bool looked = ReportingFailures(services_.Report, FormName, u"cmdUndo_Click", u"",
                                        [&] { exists = JournalExists(services_.Files, folder_); });
  if (looked && !exists) {
    return;
  }
  form_.SetPointer(MousePointer::Hourglass);
  if (exists) {
    ReportingFailures(services_.Report, FormName, u"cmdUndo_Click", u"", [&] { ReplayJournal(); });
    services_.Files.RemoveFile(JournalPath(folder_));
  }
  list_.PathChangedEvent();
  form_.SetStatusText(InterfaceText(TextNumber::UndoComplete));
  form_.SetPointer(MousePointer::Default);
}

void UndoRun::ReplayJournal() {
  const auto lines = JournalLines(services_.Files.ReadFileBytes(JournalPath(folder_)));
  if (lines.size() > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
    throw RunError(ErrorNumber::Overflow);
  }
  for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
    Replay(*line);
  }
}

void UndoRun::Replay(std::string_view line) {
  const Reply reply = ReplayRecord(SplitRecord(line));
  if (listener_ != nullptr) {
    listener_->RecordReplayed(line, reply.Outcome, reply.Reason);
  }
}

UndoRun::Reply UndoRun::ReplayRecord(const std::vector<std::string>& fields) {
  const std::string& word = fields.front();
  switch (fields.size() - 1) {
    case 2:
      if (word == "<CREATEFOLDER>") {
        return ReplayCreateFolder(fields);
      }
      break;
    case 3:
      if (word == "<VORL>") {
        return ReplyTo(RenameBack(TextOfJournalField(fields[1]), TextOfJournalField(fields[2]),
                                  TextOfJournalField(fields[3])));
      }
      break;
    case 4:
      if (word == "<MOVE>") {
        return ReplayMove(fields);
      }
      break;
    case TagOldName:
    case TagNewName:
      if (word == "<MP3TAG>") {
        return ReplayTag(fields);
      }
      break;
    default:
      break;
  }
  return {UndoOutcome::Skipped, u"not a record that can be undone"};
}

UndoRun::Reply UndoRun::ReplayCreateFolder(const std::vector<std::string>& fields) {
  const auto levels = ReadInt32(TextFromCodePage(fields[1]));
  if (!levels) {
    throw RunError(ErrorNumber::TypeMismatch);
  }
  const Text path = TextOfJournalField(fields[2]);
  TextView folder = path;
  bool removed = true;
  for (std::int32_t level = 0; level < *levels && !folder.empty(); ++level) {
    RemoveFolder(services_.Files, folder);
    removed = removed && !FolderExists(services_.Files, folder);
    folder = ParentOf(folder, form_.Paths);
  }
  return removed ? Reply{} : Reply{UndoOutcome::Skipped, u"a folder isn't empty"};
}

UndoRun::Reply UndoRun::ReplayMove(const std::vector<std::string>& fields) {
  const Text folder = TextOfJournalField(fields[1]);
  const Text name = TextOfJournalField(fields[2]);
  const Text destination = TextOfJournalField(fields[3]);
  const Text nameThere = TextOfJournalField(fields[4]);
  return MoveFile(services_.Files, destination, nameThere, folder, name, RenameFor::Undo)
             ? Reply{}
             : Reply{UndoOutcome::Skipped, u"the entry has gone or its old place is taken"};
}

RenameResult UndoRun::RenameBack(TextView folder, TextView oldName, TextView newName) {
  // A run can't have renamed an entry to its own journal, whatever a record says.
  if (Text(folder).append(newName) == JournalPath(folder_)) {
    return {};
  }
  return RenameFile(services_.Files, folder, newName, oldName, RenameFor::Undo, nullptr, false);
}

UndoRun::Reply UndoRun::ReplyTo(const RenameResult& renamed) {
  if (!renamed.Attempted) {
    return {UndoOutcome::Skipped, u"the entry has gone or its old name is taken"};
  }
  return renamed.Outcome == RenameOutcome::Done
             ? Reply{}
             : Reply{UndoOutcome::Skipped, u"the system refused the rename"};
}

UndoRun::Reply UndoRun::ReplayTag(const std::vector<std::string>& fields) {
  std::string tagText = fields[1];
  for (std::size_t field = 2; field <= TagTextFields; ++field) {
    tagText.append("|").append(fields[field]);
  }
  const auto [tag, version] = StringToTag(TextOfJournalTagFields(tagText));
  const Text folder = TextOfJournalField(fields[TagFolder]);
  const Text oldName = TextOfJournalField(fields[TagOldName]);
  if (fields.size() > TagNewName) {
    // The tag belongs to the old name: where that can't be had back, another file may have it.
    const auto renamed = RenameBack(folder, oldName, TextOfJournalField(fields[TagNewName]));
    if (!renamed.Attempted) {
      return ReplyTo(renamed);
    }
  }
  // A run tags MP3 files only. The last line of a journal that was cut off may name another file.
  const Text path = folder + oldName;
  if (!HasMp3Extension(oldName) || !PlainFileExists(services_.Files, path)) {
    return {UndoOutcome::Skipped, u"the file has gone"};
  }
  if (version == 1) {
    WriteID3v1(services_.Files, services_.Report, path, tag);
  } else {
    WriteID3v2({services_.Files, services_.Report, services_.Prompts, form_}, path, tag, false);
  }
  return {};
}

}  // namespace vorlane
