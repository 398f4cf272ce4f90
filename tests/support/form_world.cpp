#include "support/form_world.h"

#include <algorithm>

namespace vorlane {

namespace {

Text NumberOf(auto value) {
  return DecimalText(static_cast<std::int64_t>(value));
}

}  // namespace

void RecordingView::StatusChanged() {
  Statuses.push_back(Watched->Status);
}

void RecordingView::ProgressChanged() {
  Percents.push_back(Watched->Progress);
}

void RecordingView::ControlEnabled(FormControl control, bool enabled) {
  Note(u"control " + NumberOf(control) + (enabled ? u" enabled" : u" disabled"));
}

void RecordingView::TimerStarted(FormTimer timer) {
  Note(u"timer " + NumberOf(timer) + u" started");
}

void RecordingView::TimerStopped(FormTimer timer) {
  Note(u"timer " + NumberOf(timer) + u" stopped");
}

void RecordingView::CellChanged(std::int32_t row, Column column) {
  Note(u"cell " + DecimalText(row) + u"," + NumberOf(column));
}

bool RecordingView::Has(TextView note) const {
  return std::find(Notes.begin(), Notes.end(), note) != Notes.end();
}

FormWorld::FormWorld(FileSystem& files, PathStyle paths)
    : Outside{files, Time, Loop, Report, Boxes},
      State(View, Loop, paths),
      Facts(files, Time, Report, Boxes),
      Previews(State, Outside, Facts),
      List(State, Outside, Previews),
      Batch(State, Outside, Facts, Previews, List),
      Undo(State, Outside, List) {
  View.Watched = &State;
}

void FormWorld::SelectSteps(const std::vector<Text>& steps) {
  Text code = u"\r\n";
  for (const Text& step : steps) {
    code += u"Step: " + step + u"\r\n";
  }
  State.OperationCodes = {Text(), code, Text()};
  State.SelectedOperation = 1;
}

OptionBox& FormWorld::ShowBox(int number, TextView content, TextView code) {
  OptionBox& box = State.Boxes[static_cast<std::size_t>(number) - 1];
  box.Visible = true;
  box.Content = content;
  box.BoxCode = code;
  return box;
}

void FormWorld::ListAll(TextView folder) {
  State.CurrentPath = folder;
  State.DoAll = true;
  List.PathChangedEvent();
}

std::vector<Text> FormWorld::Names() const {
  std::vector<Text> names;
  for (std::int32_t row = 1; row <= State.Rows.Count(); ++row) {
    names.push_back(State.Rows.At(row).Name);
  }
  return names;
}

std::vector<Text> FormWorld::Proposed() const {
  std::vector<Text> proposed;
  for (std::int32_t row = 1; row <= State.Rows.Count(); ++row) {
    proposed.push_back(State.Rows.At(row).Proposed);
  }
  return proposed;
}

void FormWorld::RunAll() {
  State.DoAll = true;
  Batch.cmdGo_Click();
}

void MemoryWorld::ListFiles(const std::vector<Text>& names) {
  const Text folder = World.State.Paths == PathStyle::Posix ? u"/R/" : u"C:\\R\\";
  Disk.MakeFolder(folder);
  for (const Text& name : names) {
    Disk.Write(folder + name);
  }
  World.ListAll(folder);
}

std::string JournalBody(const MemoryWorld& on) {
  return on.Disk.Exists(u"/R/UNDORENAME.TXT")
             ? on.Disk.Read(u"/R/UNDORENAME.TXT").substr(JournalHeaderSize)
             : "no journal";
}

}  // namespace vorlane
