// vorlane-cli preview: what apply would do, with nothing done.
#include <iostream>
#include <memory>
#include <numeric>

#include "cli/command.h"
#include "cli/operation_arguments.h"
#include "cli/row_output.h"
#include "platform/console.h"

namespace vorlane {

namespace {

// Rows that a stopped preview didn't get to have no proposal and are left out.
std::vector<std::int32_t> PreviewRows(const OperationArguments& arguments, CommandWorld& world) {
  std::vector<std::int32_t> rows;
  if (!arguments.Only.empty()) {
    rows = arguments.PreviewOnly(world);
  } else {
    world.Previews.UpdateFilePreviewAll(true, 0);
    rows.resize(static_cast<std::size_t>(world.State.Rows.Count()));
    std::iota(rows.begin(), rows.end(), 1);
  }
  if (StopSignalled()) {
    std::erase_if(rows,
                  [&](std::int32_t row) { return world.State.Rows.At(row).Proposed.empty(); });
  }
  return rows;
}

// Prints rows one by one, and how many of them would be renamed.
class PreviewPrinter {
 public:
  PreviewPrinter(const OperationArguments& arguments, const Form& form)
      : arguments_(arguments), form_(form) {}

  void Print(std::int32_t row) {
    const FileRow& cells = form_.Rows.At(row);
    const bool changed = !cells.Proposed.empty() && cells.Proposed != cells.Name;
    changes_ += changed && !cells.Proposed.starts_with(u"<") ? 1 : 0;
    ++rows_;
    if (arguments_.AsJson) {
      json_.Add(RowJson(form_, row));
    } else if (changed || arguments_.All) {
      std::cout << PrintableName(cells.Name) << " -> "
                << PrintableName(cells.Proposed.empty() ? cells.Name : cells.Proposed) << '\n';
    }
  }

  // A summary goes to standard error, with JSON only if the preview was stopped.
  void Finish(bool stopped) {
    if (arguments_.AsJson) {
      json_.Finish();
    }
    std::cout.flush();
    if (!arguments_.AsJson || stopped) {
      std::cerr << changes_ << " of " << rows_ << " would be renamed"
                << (stopped ? ", stopped\n" : "\n");
    }
  }

 private:
  const OperationArguments& arguments_;
  const Form& form_;
  JsonListPrinter json_;
  std::size_t rows_ = 0;
  std::size_t changes_ = 0;
};

ExitStatus PrintPreview(const OperationArguments& arguments) {
  CatchStopSignals();
  CommandWorld world;
  arguments.Prepare(world);
  const auto rows = PreviewRows(arguments, world);
  world.Progress.Clear();

  // What a stopped preview got to is printed; a signal that comes only now stops the printing.
  const bool previewStopped = StopSignalled();
  PreviewPrinter printer(arguments, world.State);
  for (const std::int32_t row : rows) {
    if (StopSignalled() != previewStopped) {
      break;
    }
    printer.Print(row);
  }
  const bool stopped = StopSignalled();
  printer.Finish(stopped);
  return stopped ? ExitStatus::Refused : world.Status();
}

}  // namespace

void AddPreviewCommand(CLI::App& app, ExitStatus& status) {
  auto arguments = std::make_shared<OperationArguments>();
  CLI::App* command = app.add_subcommand("preview", "Print what an operation would do");
  arguments->AddTo(*command);
  command->callback([arguments, &status] { status = PrintPreview(*arguments); });
}

}  // namespace vorlane
