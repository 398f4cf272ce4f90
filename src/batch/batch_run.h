// The run: what happens when Go is pressed. Each row's entry is put through the steps of the
// selected operation that do something other than rename, then renamed to what column 1 says.
// Everything is recorded in the undo journal. The one word shown is the status line: an entry that
// can't be renamed simply stays as it was.
//
// Cost: linear in the rows. The journal is opened and closed for each record.
#pragma once

#include <cstdint>

#include "batch/file_routines.h"
#include "batch/row_steps.h"
#include "batch/undo_journal.h"
#include "filelist/file_list.h"
#include "form/form.h"
#include "metadata/tag_reading.h"
#include "preview/preview.h"

namespace vorlane {

// What became of one row. `Name` is its name before the run, `Proposed` what column 1 held.
struct RowOutcome {
  std::int32_t Row = 0;
  Text Name{};
  Text Proposed{};
  bool RenameTried = false;  // the proposal was a new name
  RenameResult Rename{};
  StepResults Steps{};
};

// Hears of each row as it is begun and finished. For a program that prints what happens.
class RunListener {
 public:
  virtual ~RunListener() = default;
  virtual void RowStarted(std::int32_t /*row*/) {}
  virtual void RowFinished(const RowOutcome& outcome) = 0;
};

// Whether a run replaces the journal of the run before it, or adds to it.
enum class JournalStart : std::uint8_t { New, Continue };

class BatchRun {
 public:
  BatchRun(Form& form, Services& services, EntryFacts& facts, Preview& preview, FileList& list,
           RunListener* listener = nullptr)
      : form_(form),
        services_(services),
        preview_(preview),
        list_(list),
        listener_(listener),
        journal_(services.Files, services.Report, form.Paths),
        steps_(form, services, facts, journal_) {}

  // In All mode every row, in order; otherwise one selected row. A failure is reported and ends the
  // run; what was done stays done and the journal stays on disk. So it does after a stop, and when
  // another folder has been listed in the middle. Does nothing while a listing, a run or an undo is
  // at work.
  void cmdGo_Click(JournalStart start = JournalStart::New);

 private:
  void RunRows();
  bool IsListReplaced() const;
  bool FindRowToRun(std::int32_t& row, bool& fallback, std::int32_t rowsPerPage) const;
  void ProcessRow(std::int32_t row, std::int32_t rowsPerPage);
  void ScrollTo(std::int32_t row, std::int32_t rowsPerPage);
  void RenameRow(std::int32_t row, const Text& path, RowOutcome& outcome);
  void FinishOneMode();
  void FinishJournal();
  std::int32_t SecondsTaken() const;

  Form& form_;
  Services& services_;
  Preview& preview_;
  FileList& list_;
  RunListener* listener_;
  UndoJournal journal_;
  RowSteps steps_;
  std::uint64_t start_ = 0;
  Text folder_;                   // that the run works on; the form's own may change meanwhile
  std::uint64_t generation_ = 0;  // of the list that the run began with
  std::int32_t renamedCount_ = 0;
  // The records of the last MP3 row; not cleared from row to row.
  ID3Tags tags_;
};

}  // namespace vorlane
