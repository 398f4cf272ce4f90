// Undo: replays a folder's journal from its last record to its first.
#pragma once

#include <cstdint>

#include "batch/file_routines.h"
#include "batch/undo_journal.h"
#include "filelist/file_list.h"
#include "form/form.h"

namespace vorlane {

enum class UndoOutcome : std::uint8_t {
  Done,
  Skipped,  // nothing was changed; the reason tells why
};

// Hears of each record as it is replayed. For a program that prints what happens.
class UndoListener {
 public:
  virtual ~UndoListener() = default;

  // `line` is the record as it stands in the journal, without its line end. `reason` is empty if
  // it was done.
  virtual void RecordReplayed(std::string_view line, UndoOutcome outcome, TextView reason) = 0;
};

class UndoRun {
 public:
  UndoRun(Form& form, Services& services, FileList& list)
      : UndoRun(form, services, list, nullptr) {}
  UndoRun(Form& form, Services& services, FileList& list, UndoListener* listener)
      : form_(form), services_(services), list_(list), listener_(listener) {}

  // Reverses what the journal of the form's CurrentPath records, deletes the journal and lists the
  // folder anew. Without a journal nothing happens, nor while a listing, a run or another undo is
  // at work. A record whose shape isn't known is passed over, and so is a rename whose way back is
  // barred. A failure is reported and ends the replay; the journal is deleted all the same. A
  // journal of over 32,767 lines is such a failure.
  void cmdUndo_Click();

 private:
  struct Reply {
    UndoOutcome Outcome = UndoOutcome::Done;
    TextView Reason;
  };

  void ReplayJournal();
  void Replay(std::string_view line);
  Reply ReplayRecord(const std::vector<std::string>& fields);
  Reply ReplayCreateFolder(const std::vector<std::string>& fields);
  Reply ReplayMove(const std::vector<std::string>& fields);
  RenameResult RenameBack(TextView folder, TextView oldName, TextView newName);
  static Reply ReplyTo(const RenameResult& renamed);
  Reply ReplayTag(const std::vector<std::string>& fields);

  Form& form_;
  Services& services_;
  FileList& list_;
  UndoListener* listener_;
  Text folder_;  // whose journal is replayed; the form's own may change meanwhile
};

}  // namespace vorlane
