// A form with everything around it, for tests of the rules that run over its rows: a disk, a clock
// that stands still unless told, a message loop that counts its yields and can act in one, a view
// that records, and a box that refuses unexpected questions.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "batch/batch_run.h"
#include "batch/undo_run.h"
#include "engine/disk_facts.h"
#include "filelist/file_list.h"
#include "form/form.h"
#include "preview/preview.h"
#include "support/memory_file_system.h"
#include "support/recording_prompter.h"
#include "support/recording_report.h"

namespace vorlane {

class SettableClock final : public Clock {
 public:
  std::uint64_t Milliseconds() override { return Ms += MsPerLook; }
  DateTime Now() override { return Today; }

  std::uint64_t Ms = 1000;
  std::uint64_t MsPerLook = 0;
  DateTime Today{46341, 43200};  // 11/15/2026 12:00:00 PM
};

class ScriptedLoop final : public MessageLoop {
 public:
  explicit ScriptedLoop(SettableClock& clock) : clock_(clock) {}

  void Yield() override {
    ++Yields;
    if (OnYield) {
      OnYield();
    }
  }
  void YieldBlocking(int milliseconds) override {
    clock_.Ms += static_cast<std::uint64_t>(milliseconds);
    Yield();
  }

  std::size_t Yields = 0;
  std::function<void()> OnYield;

 private:
  SettableClock& clock_;
};

class RecordingView final : public FormView {
 public:
  std::int32_t GetCountPerPage() override { return CountPerPage; }
  std::int32_t FirstVisibleRow() override { return FirstVisible; }
  void StatusChanged() override;
  void ProgressChanged() override;
  void PointerChanged() override { Note(u"pointer"); }
  void ControlEnabled(FormControl control, bool enabled) override;
  void RunButtonsChanged() override { Note(u"run buttons"); }
  void ModesChanged() override { Note(u"modes"); }
  void HelpChanged() override { Note(u"help"); }
  void WildCardChanged() override { Note(u"wildcard"); }
  void FileStatusChanged() override { Note(u"file status"); }
  void BoxShapeChanged(int box) override { Note(u"box shape " + DecimalText(box)); }
  void BoxTextChanged(int box) override { Note(u"box " + DecimalText(box)); }
  void TimerStarted(FormTimer timer) override;
  void TimerStopped(FormTimer timer) override;
  void RowsCleared() override { Note(u"rows cleared"); }
  void RowAdded(std::int32_t row) override { Note(u"row added " + DecimalText(row)); }
  void RowsMoved() override { Note(u"rows moved"); }
  void CellChanged(std::int32_t row, Column column) override;
  void SelectionChanged() override { Note(u"selection"); }
  void EnsureVisible(std::int32_t row) override { Note(u"visible " + DecimalText(row)); }
  void ListHidden(bool hidden) override { Note(hidden ? u"list hidden" : u"list shown"); }

  // Every notification in order, one line each; statuses and percentages apart.
  std::vector<Text> Notes;
  std::vector<Text> Statuses;
  std::vector<std::int32_t> Percents;
  bool Has(TextView note) const;

  std::int32_t CountPerPage = 1000;
  std::int32_t FirstVisible = 1;
  const Form* Watched = nullptr;

 private:
  void Note(TextView note) { Notes.emplace_back(note); }
};

struct FormWorld {
  explicit FormWorld(FileSystem& files, PathStyle paths = HostPathStyle);

  SettableClock Time;
  ScriptedLoop Loop{Time};
  RecordingReport Report;
  RecordingPrompter Boxes;
  RecordingView View;
  Services Outside;
  Form State;
  DiskFacts Facts;
  Preview Previews;
  FileList List;
  BatchRun Batch;
  UndoRun Undo;

  // Selects an operation of these steps, each a line of code; boxes stay as they are.
  void SelectSteps(const std::vector<Text>& steps);
  // Shows a box; `code` is its formula, empty for a plain box.
  OptionBox& ShowBox(int number, TextView content, TextView code = {});
  // Lists a folder with all rows to be done.
  void ListAll(TextView folder);

  // Names, or proposed names, from the first row to the last.
  std::vector<Text> Names() const;
  std::vector<Text> Proposed() const;
  void PreviewAll() { Previews.UpdateFilePreviewAll(true, 0); }
  // Go in All mode, with no failure expected.
  void RunAll();
};

// The same with a disk in memory.
struct MemoryWorld {
  explicit MemoryWorld(PathStyle paths = PathStyle::Posix,
                       LetterCase letterCase = LetterCase::Matters)
      : Disk(paths, letterCase), World(Disk, paths) {}

  // Lists "/R/" (or "C:\R\") with these files in it.
  void ListFiles(const std::vector<Text>& names);

  MemoryFileSystem Disk;
  FormWorld World;
};

// The records in the journal of "/R/"; "no journal" if there is none.
std::string JournalBody(const MemoryWorld& on);

}  // namespace vorlane
