#include "shell/list_timers.h"

#include "batch/undo_journal.h"

namespace vorlane {

namespace {

// Counting the files of a folder with more rows than this every few seconds would be felt.
constexpr std::int32_t MostRowsCounted = 200;

}  // namespace

void ListTimers::tmrFileStatus_Timer() {
  form_.StopTimer(FormTimer::FileStatus);
  form_.SetFileStatus(form_.HeldFileStatus);
}

void ListTimers::tmrProgramStatus_Timer() {
  form_.StopTimer(FormTimer::ProgramStatus);
  form_.SetStatusText(form_.HeldStatus);
}

void ListTimers::tmrUpdateList_Timer() {
  form_.StopTimer(FormTimer::UpdateList);
  if (form_.IsIdle()) {
    list_.PathChangedEvent();
  } else {
    form_.StartTimer(FormTimer::UpdateList);
  }
}

void ListTimers::tmrAutoPreview_Timer() {
  form_.StopTimer(FormTimer::AutoPreview);
  if (form_.IsIdle()) {
    preview_.UpdateFilePreviewAll(false, 0);
  }
}

void ListTimers::tmrListScroll_Timer(bool leftButtonDown) {
  if (form_.Rows.Count() == 0) {
    return;
  }
  const std::int32_t top = form_.View.FirstVisibleRow();
  if (top == lastTopRow_ || leftButtonDown) {
    return;
  }
  lastTopRow_ = top;
  const Text status = form_.Status;
  if (form_.IsIdle()) {
    preview_.UpdateFilePreviewAll(false, 0);
  }
  form_.SetStatusText(status);
}

void ListTimers::tmrFileCounter_Timer() {
  if (!activated_ || counting_ || form_.IncludeSubFolders || !form_.IsIdle() ||
      form_.Rows.Count() > MostRowsCounted) {
    return;
  }
  Attempt([&] {
    if (JournalExists(services_.Files, form_.CurrentPath)) {
      return;
    }
    counting_ = true;
    const std::int32_t count = CountListedFiles();
    if (count != form_.LastFileCount) {
      form_.LastFileCount = count;
      list_.PathChangedEvent();
    }
  });
  counting_ = false;
}

void ListTimers::FirstActivation() {
  if (!activated_) {
    activated_ = true;
    form_.LastFileCount = CountListedFiles();
  }
}

std::int32_t ListTimers::CountListedFiles() {
  return list_.CountFiles(form_.CurrentPath + form_.WildCard);
}

}  // namespace vorlane
