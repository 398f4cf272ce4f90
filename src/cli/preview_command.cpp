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

std::vector<std::int32_t> PreviewRows(const OperationArguments& arguments, Session& session) {
  if (!arguments.Only.empty()) {
    return arguments.PreviewOnly(session);
  }
  session.Previews.UpdateFilePreviewAll(true, 0);
  std::vector<std::int32_t> all(static_cast<std::size_t>(session.State.Rows.Count()));
  std::iota(all.begin(), all.end(), 1);
  return all;
}

ExitStatus PrintPreview(const OperationArguments& arguments) {
  CatchStopSignals();
  Session session;
  arguments.Prepare(session);
  const auto rows = PreviewRows(arguments, session);
  session.Progress.Clear();

  const Form& form = session.State;
  if (arguments.AsJson) {
    JsonListPrinter printer;
    for (const std::int32_t row : rows) {
      printer.Add(RowJson(form, row));
    }
    printer.Finish();
    return session.Status();
  }
  std::size_t changes = 0;
  for (const std::int32_t row : rows) {
    const FileRow& cells = form.Rows.At(row);
    const bool changed = !cells.Proposed.empty() && cells.Proposed != cells.Name;
    changes += changed && !cells.Proposed.starts_with(u"<") ? 1 : 0;
    if (changed || arguments.All) {
      std::cout << PrintableName(cells.Name) << " -> "
                << PrintableName(cells.Proposed.empty() ? cells.Name : cells.Proposed) << '\n';
    }
  }
  std::cout.flush();
  std::cerr << changes << " of " << rows.size() << " would be renamed\n";
  return session.Status();
}

}  // namespace

void AddPreviewCommand(CLI::App& app, ExitStatus& status) {
  auto arguments = std::make_shared<OperationArguments>();
  CLI::App* command = app.add_subcommand("preview", "Print what an operation would do");
  arguments->AddTo(*command);
  command->callback([arguments, &status] { status = PrintPreview(*arguments); });
}

}  // namespace vorlane
