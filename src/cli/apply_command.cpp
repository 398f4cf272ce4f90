// vorlane-cli apply: carries an operation out and leaves the journal for undo.
#include <limits>
#include <memory>

#include "batch/batch_run.h"
#include "cli/command.h"
#include "cli/message.h"
#include "cli/operation_arguments.h"
#include "cli/run_printer.h"
#include "platform/console.h"

namespace vorlane {

namespace {

// The row of an entry, 0 if it isn't listed any more.
std::int32_t FindRow(const FileRows& rows, TextView folder, TextView name) {
  for (std::int32_t row = 1; row <= rows.Count(); ++row) {
    if (rows.At(row).Name == name && rows.PathOf(row) == folder) {
      return row;
    }
  }
  return 0;
}

// What --only asks for, as the preview shows it.
struct WantedRow {
  Text Folder;
  Text Name;
  Text Proposed;
};

// One row after the other, each as a run of its own that adds to the same journal. A run may move
// rows, so each is found again by its folder and name. All are previewed before the first is
// renamed, so that each gets the name that the preview command shows.
void RunOnly(const OperationArguments& arguments, CommandWorld& world, BatchRun& run,
             RunPrinter& printer) {
  Form& form = world.State;
  std::vector<WantedRow> wanted;
  for (const std::int32_t row : arguments.PreviewOnly(world)) {
    wanted.push_back({form.Rows.PathOf(row), form.Rows.At(row).Name, form.Rows.At(row).Proposed});
  }
  auto start = JournalStart::New;
  for (const WantedRow& entry : wanted) {
    if (StopSignalled()) {
      return;
    }
    const std::int32_t row = FindRow(form.Rows, entry.Folder, entry.Name);
    if (row == 0) {
      printer.RowVanished(entry.Name);
      continue;
    }
    arguments.SelectRow(world, row);
    form.SetProposedCell(row, entry.Proposed);
    run.cmdGo_Click(start);
    start = JournalStart::Continue;
  }
}

void WarnOfLongJournal(CommandWorld& world) {
  constexpr auto mostLines = static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max());
  const Text& folder = world.State.CurrentPath;
  if (JournalExists(world.Files, folder) &&
      JournalLines(world.Files.ReadFileBytes(JournalPath(folder))).size() > mostLines) {
    PrintMessage(u"over 32767 records in the journal: undo can't take this run back");
  }
}

ExitStatus Apply(const OperationArguments& arguments) {
  CatchStopSignals();
  CommandWorld world;
  arguments.Prepare(world);
  RunPrinter printer(world, arguments.AsJson, arguments.All);
  BatchRun run(world.State, world.Outside, world.Facts, world.Previews, world.List, &printer);
  if (arguments.Only.empty()) {
    run.cmdGo_Click();
  } else {
    RunOnly(arguments, world, run, printer);
  }
  world.Progress.Clear();
  const bool stopped = StopSignalled();
  const bool nothingRefused = printer.Finish(stopped);
  WarnOfLongJournal(world);
  return nothingRefused && !stopped ? world.Status() : ExitStatus::Refused;
}

}  // namespace

void AddApplyCommand(CLI::App& app, ExitStatus& status) {
  auto arguments = std::make_shared<OperationArguments>();
  CLI::App* command = app.add_subcommand("apply", "Carry an operation out; undo takes it back");
  arguments->AddTo(*command);
  command->callback([arguments, &status] { status = Apply(*arguments); });
}

}  // namespace vorlane
