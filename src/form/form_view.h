// What the rules tell a window about its controls, and the two things that only a window knows.
// Every notification has an empty default: a program without a window takes what it needs.
#pragma once

#include <cstdint>

#include "form/file_rows.h"
#include "platform/text.h"

namespace vorlane {

// The one-shot timers that show a held text.
enum class FormTimer : std::uint8_t {
  ProgramStatus,  // the program status
  FileStatus,     // the row count
};

enum class FormControl : std::uint8_t {
  FileList,
  Browse,
  OperationsTree,
  WildCard,
  Undo,
};

class FormView {
 public:
  virtual ~FormView() = default;

  // Whole rows that fit into the list, and the first visible one (from 1).
  virtual std::int32_t GetCountPerPage() { return 0; }
  virtual std::int32_t FirstVisibleRow() { return 1; }

  virtual void StatusChanged() {}
  virtual void ProgressChanged() {}
  virtual void PointerChanged() {}
  virtual void ControlEnabled(FormControl, bool /*enabled*/) {}
  virtual void RunButtonsChanged() {}  // Go or Stop is visible
  virtual void BoxTextChanged(int /*box*/) {}
  virtual void TimerStarted(FormTimer) {}  // one that runs already runs on
  virtual void TimerStopped(FormTimer) {}

  virtual void RowsCleared() {}
  virtual void RowAdded(std::int32_t /*row*/) {}
  virtual void RowsMoved() {}
  virtual void CellChanged(std::int32_t /*row*/, Column) {}
  virtual void SelectionChanged() {}
  virtual void EnsureVisible(std::int32_t /*row*/) {}
  virtual void ListHidden(bool /*hidden*/) {}
};

}  // namespace vorlane
