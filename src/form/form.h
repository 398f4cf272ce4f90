// The state of the main form: what its controls show and the fields that its rules share. There is
// one such object in a program; it is made by main and passed along. The view is told of changes.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "engine/box_values.h"
#include "form/file_rows.h"
#include "form/form_view.h"
#include "form/indexed_names.h"
#include "form/job_states.h"
#include "form/option_box.h"
#include "metadata/id3_tag.h"
#include "platform/failure.h"
#include "platform/file_system.h"
#include "platform/message_loop.h"
#include "platform/path_style.h"
#include "platform/prompter.h"
#include "platform/status_line.h"

namespace vorlane {

// The name by which reports call the form.
inline constexpr TextView FormName = u"frmMain";

// The outside world as the form's rules need it; owned by main.
struct Services {
  FileSystem& Files;
  Clock& Time;
  MessageLoop& Loop;
  FailureReport& Report;
  Prompter& Prompts;
};

enum class MousePointer : std::uint8_t { Default, ArrowHourglass, Hourglass };

class Form final : public StatusLine {
 public:
  explicit Form(FormView& view, MessageLoop& loop, PathStyle paths = HostPathStyle)
      : Paths(paths), View(view), loop_(loop) {}

  const PathStyle Paths;
  FormView& View;

  // Operations: the tree's selected node by index, 0 for none, and each node's code by index
  // from 1.
  std::int32_t SelectedOperation = 0;
  std::vector<Text> OperationCodes;
  const Text& SelectedCode() const;

  // Option boxes 1 to 6 at index 0 to 5, and the values that they stand for on the row in hand.
  std::array<OptionBox, OptionBoxCount> Boxes;
  vorlane::BoxValues BoxValues;
  bool SuppressBoxEvents() const { return quietBoxes_ > 0; }  // see QuietBoxes
  bool BoxEdited = false;  // the user has typed in a box since the last click on a row

  // Operation or boxes have changed since the last whole preview, so that a row may propose what
  // nobody asks for any more.
  bool ProposalsOutdated = false;

  // Modes: which of each pair of buttons is visible.
  bool DoAll = false;              // otherwise one selected row
  bool ListFolders = false;        // otherwise files
  bool IncludeSubFolders = false;  // otherwise this folder only

  // The list.
  Text CurrentPath;  // with its trailing separator
  Text WildCard = u"*.*";
  std::vector<Text> WildCardItems;  // what the wildcard's box offers
  FileRows Rows;
  IndexedNames CurrentNames;   // in finding order; empty where the wildcard didn't match
  IndexedNames ProposedNames;  // what SetProposedName wrote; markers don't go in
  std::int32_t LastFileCount = 0;

  JobStates Jobs;
  bool JournalInUse = false;  // a run or an undo is at work, its waits before and behind included
  // No job is at work, so that a handler may begin one.
  bool IsIdle() const { return Jobs.AllIdle() && !JournalInUse; }
  bool RunIsAtWork() const { return JournalInUse || Jobs.BatchState != JobState::Idle; }
  // Nothing else may begin then. A preview isn't in the way: a listing ends it.
  bool RunOrListingIsAtWork() const { return RunIsAtWork() || Jobs.ListingState != JobState::Idle; }

  // Status lines.
  Text Status;          // lblStatus
  Text HeldStatus;      // what the ProgramStatus timer will show
  Text FileStatus;      // lblFileStatus
  Text HeldFileStatus;  // what the FileStatus timer will show
  Text HelpToolTip;     // of the help button
  std::int32_t Progress = 0;

  MousePointer Pointer = MousePointer::Default;
  bool StopVisible = false;  // Stop in the place of Go
  bool UndoEnabled = false;

  // Writes the status line and the progress bar at once and yields.
  void SetStatus(TextView text, int percent) override;
  void SetStatusText(TextView text);
  void SetProgress(std::int32_t percent);
  // Shown when the timer next ticks; only the last text of each interval is seen.
  void HoldStatus(TextView text);
  void SetListCounter(std::int32_t count);
  void SetFileStatus(TextView text);
  void SetHelpToolTip(TextView text);

  // The one-shot timers. A start leaves one that runs already alone.
  void StartTimer(FormTimer timer);
  void StopTimer(FormTimer timer);
  void RestartTimer(FormTimer timer);
  bool IsTimerRunning(FormTimer timer) const;

  void SetPointer(MousePointer pointer);
  void LockControls();
  void UnlockControls();
  void EnableUndo(bool enabled);

  // Boxes.
  void SetBoxText(int box, TextView text);
  const vorlane::BoxValues& ShownBoxValues();  // BoxValues with its flags brought up to date
  void ReadBoxValues();
  void ShowBoxValues();

  // Rows; each tells the view.
  void SetProposedName(std::int32_t row, TextView name);
  // Column 1 alone, for the markers.
  void SetProposedCell(std::int32_t row, TextView text);
  void SetName(std::int32_t row, TextView name);
  void SetArtistAndTitle(std::int32_t row, const ID3Tag& tag);
  void SetTagPresence(std::int32_t row, Column column, bool present);
  void SelectRow(std::int32_t row);
  void DeselectRow();
  void SetSorted(bool sorted);

 private:
  friend class QuietBoxes;

  MessageLoop& loop_;
  int quietBoxes_ = 0;
  std::array<bool, FormTimerCount> timerRunning_ = {};
};

// Marks the journal as in use while it lives: no run and no undo may begin inside another one.
class JournalInUse {
 public:
  explicit JournalInUse(Form& form) : form_(form) { form_.JournalInUse = true; }
  ~JournalInUse() { form_.JournalInUse = false; }
  JournalInUse(const JournalInUse&) = delete;
  JournalInUse& operator=(const JournalInUse&) = delete;

 private:
  Form& form_;
};

// While one of these lives the option boxes' own events stay quiet: the program itself is changing
// boxes. They may lie inside each other, as a preview inside a listing does.
class QuietBoxes {
 public:
  explicit QuietBoxes(Form& form) : form_(form) { ++form_.quietBoxes_; }
  ~QuietBoxes() { --form_.quietBoxes_; }
  QuietBoxes(const QuietBoxes&) = delete;
  QuietBoxes& operator=(const QuietBoxes&) = delete;

 private:
  Form& form_;
};

}  // namespace vorlane
