#include "form/form.h"

#include "platform/failure.h"
#include "platform/interface_texts.h"

namespace vorlane {

const Text& Form::SelectedCode() const {
  const auto index = static_cast<std::size_t>(SelectedOperation);
  if (SelectedOperation < 1 || index >= OperationCodes.size()) {
    throw RunError(ErrorNumber::SubscriptOutOfRange);
  }
  return OperationCodes[index];
}

void Form::SetStatus(TextView text, int percent) {
  SetStatusText(text);
  SetProgress(percent);
  loop_.Yield();
}

void Form::SetStatusText(TextView text) {
  Status = text;
  View.StatusChanged();
}

void Form::SetProgress(std::int32_t percent) {
  Progress = percent;
  View.ProgressChanged();
}

void Form::HoldStatus(TextView text) {
  HeldStatus = text;
  StartTimer(FormTimer::ProgramStatus);
}

void Form::SetListCounter(std::int32_t count) {
  HeldFileStatus = DecimalText(count).append(
      InterfaceText(ListFolders ? TextNumber::Folders : TextNumber::Files));
  StartTimer(FormTimer::FileStatus);
}

void Form::SetFileStatus(TextView text) {
  FileStatus = text;
  View.FileStatusChanged();
}

void Form::SetHelpToolTip(TextView text) {
  HelpToolTip = text;
  View.HelpChanged();
}

void Form::StartTimer(FormTimer timer) {
  if (!IsTimerRunning(timer)) {
    timerRunning_[static_cast<std::size_t>(timer)] = true;
    View.TimerStarted(timer);
  }
}

void Form::StopTimer(FormTimer timer) {
  timerRunning_[static_cast<std::size_t>(timer)] = false;
  View.TimerStopped(timer);
}

void Form::RestartTimer(FormTimer timer) {
  StopTimer(timer);
  StartTimer(timer);
}

bool Form::IsTimerRunning(FormTimer timer) const {
  return timerRunning_[static_cast<std::size_t>(timer)];
}

void Form::SetPointer(MousePointer pointer) {
  Pointer = pointer;
  View.PointerChanged();
}

void Form::LockControls() {
  View.ControlEnabled(FormControl::Browse, false);
  View.ControlEnabled(FormControl::OperationsTree, false);
  StopVisible = true;
  View.RunButtonsChanged();
  EnableUndo(false);
}

void Form::UnlockControls() {
  View.ControlEnabled(FormControl::Browse, true);
  View.ControlEnabled(FormControl::OperationsTree, true);
  View.ControlEnabled(FormControl::WildCard, true);
  StopVisible = false;
  View.RunButtonsChanged();
}

void Form::EnableUndo(bool enabled) {
  UndoEnabled = enabled;
  View.ControlEnabled(FormControl::Undo, enabled);
}

void Form::SetBoxText(int box, TextView text) {
  Boxes[static_cast<std::size_t>(box)].Content = text;
  View.BoxTextChanged(box);
}

const vorlane::BoxValues& Form::ShownBoxValues() {
  for (std::size_t box = 0; box < Boxes.size(); ++box) {
    BoxValues.Visible[box] = Boxes[box].Visible;
  }
  return BoxValues;
}

void Form::ReadBoxValues() {
  for (std::size_t box = 0; box < Boxes.size(); ++box) {
    BoxValues.Values[box] = Boxes[box].Content;
  }
}

void Form::ShowBoxValues() {
  for (int box = 0; box < OptionBoxCount; ++box) {
    SetBoxText(box, BoxValues.Values[static_cast<std::size_t>(box)]);
  }
}

void Form::SetProposedName(std::int32_t row, TextView name) {
  SetProposedCell(row, name);
  ProposedNames.Set(row - 1, name);
}

void Form::SetProposedCell(std::int32_t row, TextView text) {
  Rows.At(row).Proposed = text;
  View.CellChanged(row, Column::ProposedName);
}

void Form::SetName(std::int32_t row, TextView name) {
  Rows.At(row).Name = name;
  View.CellChanged(row, Column::CurrentName);
}

void Form::SetArtistAndTitle(std::int32_t row, const ID3Tag& tag) {
  FileRow& cells = Rows.At(row);
  cells.Artist = tag.Artist;
  cells.Title = tag.Title;
  View.CellChanged(row, Column::Artist);
  View.CellChanged(row, Column::Title);
}

void Form::SetTagPresence(std::int32_t row, Column column, bool present) {
  FileRow& cells = Rows.At(row);
  (column == Column::ID3v1 ? cells.ID3v1 : cells.ID3v2) = present ? YesNo::Yes : YesNo::No;
  View.CellChanged(row, column);
}

void Form::SelectRow(std::int32_t row) {
  Rows.Select(row);
  View.SelectionChanged();
}

void Form::DeselectRow() {
  Rows.Deselect();
  View.SelectionChanged();
}

void Form::SetSorted(bool sorted) {
  Rows.SetSorted(sorted);
  if (sorted) {
    View.RowsMoved();
  }
}

}  // namespace vorlane
