#include "batch/batch_run.h"

#include <algorithm>

#include "form/status_texts.h"

namespace vorlane {

void BatchRun::cmdGo_Click(JournalStart start) {
  if (form_.Rows.Count() == 0 || form_.RunOrListingIsAtWork()) {
    return;
  }
  const JournalInUse inUse(form_);
  form_.SetPointer(MousePointer::ArrowHourglass);
  form_.View.ControlEnabled(FormControl::FileList, false);
  WaitForStop(form_.Jobs.PreviewState, 3, services_.Time, services_.Loop);
  form_.View.ControlEnabled(FormControl::FileList, true);
  start_ = services_.Time.Milliseconds();
  form_.LockControls();
  form_.Jobs.BatchState = JobState::Running;
  form_.SetPointer(MousePointer::ArrowHourglass);
  folder_ = form_.CurrentPath;
  ReportingFailures(services_.Report, FormName, u"cmdGo_Click", u"", [&] {
    if (start == JournalStart::New) {
      journal_.CreateUndoFile(folder_);
    } else {
      journal_.ContinueUndoFile(folder_);
    }
    RunRows();
  });
  form_.SetSorted(true);
  form_.View.ControlEnabled(FormControl::FileList, true);
  form_.SetPointer(MousePointer::Default);
  form_.Jobs.BatchState = JobState::Idle;
  form_.UnlockControls();
  form_.SetStatus(ReadyAfterText(SecondsTaken()), 100);
}

void BatchRun::RunRows() {
  form_.SetSorted(false);  // a changed name must not move its row during the run
  generation_ = form_.Rows.Generation();
  if (form_.DoAll) {
    form_.View.EnsureVisible(1);
    preview_.UpdateFilePreviewAll(true, 0);
  }
  renamedCount_ = 0;
  tags_ = {};
  const std::int32_t rowsPerPage = form_.View.GetCountPerPage() + 1;
  const std::int32_t count = form_.Rows.Count();
  bool fallback = false;
  for (std::int32_t row = 1; row <= count; ++row) {
    if (form_.Jobs.BatchState == JobState::StopRequested || IsListReplaced()) {
      return;
    }
    if (!form_.DoAll && !FindRowToRun(row, fallback, rowsPerPage)) {
      break;
    }
    form_.SetStatus(TimeTakenText(SecondsTaken()),
                    static_cast<int>(std::int64_t{row} * 100 / count));
    if (!form_.DoAll && form_.Rows.Selected() != row) {
      // A marked row that isn't selected is tried again until it is, or until Stop.
      services_.Loop.YieldBlocking(fallback ? 0 : 20);
      continue;
    }
    ProcessRow(row, rowsPerPage);
    if (!form_.DoAll) {
      break;
    }
    if (row == form_.Rows.Count()) {
      form_.DeselectRow();
      form_.SelectRow(1);
      form_.View.EnsureVisible(1);
      list_.lstFileListItemClick();
    }
    services_.Loop.Yield();
  }
  if (!form_.DoAll) {
    FinishOneMode();
  }
  FinishJournal();
}

// True if another list stands in the place of the one that the run began with. Its rows are
// nobody's wish to rename.
bool BatchRun::IsListReplaced() const {
  return form_.Rows.Generation() != generation_;
}

// In One mode the row under the selection mark is the one to run; without a mark the rows are gone
// through from the first. False if the list shows no rows.
bool BatchRun::FindRowToRun(std::int32_t& row, bool& fallback, std::int32_t rowsPerPage) const {
  if (fallback) {
    return true;
  }
  if (form_.Rows.SelectionMark() >= 0) {
    row = form_.Rows.SelectionMark() + 1;
    return true;
  }
  row = 1;
  fallback = true;
  return rowsPerPage - 1 >= 1;
}

void BatchRun::ProcessRow(std::int32_t row, std::int32_t rowsPerPage) {
  if (IsListReplaced()) {
    return;
  }
  if (listener_ != nullptr) {
    listener_->RowStarted(row);
  }
  ScrollTo(row, rowsPerPage);
  if (form_.DoAll) {
    form_.SelectRow(row);
  } else if (form_.IsTimerRunning(FormTimer::AutoPreview) || form_.ProposalsOutdated) {
    // What was typed or picked a moment ago counts, though its preview hasn't come to its end.
    form_.StopTimer(FormTimer::AutoPreview);
    preview_.UpdateFilePreviewAll(false, row);
  }
  if (IsListReplaced()) {
    return;
  }
  const Text path = form_.Rows.PathOf(row);
  RowOutcome outcome{.Row = row, .Name = form_.Rows.At(row).Name};
  if (HasMp3Extension(outcome.Name)) {
    tags_ = ReadID3Tags(services_.Files, services_.Report, path + outcome.Name);
  }
  if (form_.DoAll) {
    preview_.UpdateBoxValues(row, tags_.V1, tags_.V2, true, false);
  }
  if (IsListReplaced()) {
    return;
  }
  outcome.Steps = steps_.Run(row, tags_.V1, tags_.V2);
  if (form_.DoAll && !IsListReplaced()) {
    preview_.UpdateBoxValues(row, tags_.V1, tags_.V2, true, false);
  } else if (!form_.DoAll && form_.Rows.At(row).Proposed == FileInUseMarker()) {
    preview_.UpdateFilePreviewAll(false, row);  // it may be free by now
  }
  if (!IsListReplaced()) {
    RenameRow(row, path, outcome);
  }
  if (listener_ != nullptr) {
    listener_->RowFinished(outcome);
  }
}

void BatchRun::ScrollTo(std::int32_t row, std::int32_t rowsPerPage) {
  if (row - form_.View.FirstVisibleRow() >= rowsPerPage) {
    form_.View.EnsureVisible(std::min(rowsPerPage + row, form_.Rows.Count()));
  }
}

void BatchRun::RenameRow(std::int32_t row, const Text& path, RowOutcome& outcome) {
  outcome.Proposed = form_.Rows.At(row).Proposed;
  const Text& proposed = outcome.Proposed;
  outcome.RenameTried =
      !proposed.starts_with(u"<") && proposed != outcome.Name && !proposed.empty();
  if (outcome.RenameTried) {
    // A refused rename leaves an open tag line open: the next record is glued to it, and undo
    // passes over both.
    outcome.Rename = RenameFile(services_.Files, path, outcome.Name, proposed, RenameFor::Run,
                                &journal_, outcome.Steps.StepTagPresent);
    if (outcome.Rename.Attempted) {
      form_.SetName(row, proposed);
      ++renamedCount_;
    }
  } else if (outcome.Steps.StepTagPresent) {
    journal_.UpdateUndoFile({.Kind = RecordKind::CloseTag});
  }
}

void BatchRun::FinishOneMode() {
  if (renamedCount_ < 2 && form_.Rows.Count() > 0) {
    const std::int32_t selected = form_.Rows.Selected();
    const std::int32_t next = selected < form_.Rows.Count() ? selected + 1 : 1;
    form_.DeselectRow();
    form_.SelectRow(next);
    if (next == 1) {
      form_.View.EnsureVisible(1);
    }
  }
  form_.BoxEdited = false;
  list_.lstFileListItemClick();
}

// A journal without records has nothing to undo. What another run left in a folder where this one
// could make no journal isn't this run's to undo.
void BatchRun::FinishJournal() {
  const Text journal = JournalPath(folder_);
  if (journal_.IsOpen() && services_.Files.StatusOf(journal).Size == JournalHeaderSize) {
    services_.Files.RemoveFile(journal);
  }
  form_.EnableUndo(journal_.IsOpen() && HiddenFileExists(services_.Files, journal));
}

std::int32_t BatchRun::SecondsTaken() const {
  return static_cast<std::int32_t>((services_.Time.Milliseconds() - start_) / 1000);
}

}  // namespace vorlane
