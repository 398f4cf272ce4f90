// What the rules tell a window about its controls, and the two things that only a window knows.
// Every notification has an empty default: a program without a window takes what it needs.
#pragma once

#include <cstddef>
#include <cstdint>

#include "form/file_rows.h"
#include "platform/text.h"

namespace vorlane {

// The one-shot timers of the form.
enum class FormTimer : std::uint8_t {
  ProgramStatus,  // shows the held program status
  FileStatus,     // shows the held row count
  UpdateList,     // lists anew behind a pause in the typing of a wildcard
  AutoPreview,    // previews behind a pause in the typing of a box
};
inline constexpr std::size_t FormTimerCount = 4;

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
  virtual void ModesChanged() {}       // All or One, files or folders, with sub-folders or not
  virtual void HelpChanged() {}        // the tool tip of the help button
  virtual void WildCardChanged() {}    // the wildcard's text or its items
  virtual void BoxTextChanged(int /*box*/) {}
  virtual void BoxShapeChanged(int /*box*/) {}  // anything about a box but its text
  virtual void FileStatusChanged() {}           // the row count that is shown
  virtual void TimerStarted(FormTimer) {}       // only when it isn't running
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
