// vorlane-cli list: what the window's list would show.
#include <iostream>
#include <memory>

#include "cli/command.h"
#include "cli/list_arguments.h"
#include "cli/row_output.h"

namespace vorlane {

namespace {

struct ListCommandArguments {
  ListArguments Entries;
  bool AsJson = false;
};

ExitStatus ListEntries(const ListCommandArguments& arguments) {
  CommandWorld world;
  arguments.Entries.List(world, u"*.*");
  const Form& form = world.State;
  if (arguments.AsJson) {
    JsonListPrinter printer;
    for (std::int32_t row = 1; row <= form.Rows.Count(); ++row) {
      printer.Add(RowJson(form, row));
    }
    printer.Finish();
  } else {
    for (std::int32_t row = 1; row <= form.Rows.Count(); ++row) {
      const bool below = form.Rows.PathOf(row) != form.CurrentPath;
      std::cout << (below ? PrintableName(form.Rows.PathOf(row)) : "")
                << PrintableName(form.Rows.At(row).Name) << '\n';
    }
  }
  return world.Status();
}

}  // namespace

void AddListCommand(CLI::App& app, ExitStatus& status) {
  auto arguments = std::make_shared<ListCommandArguments>();
  CLI::App* command = app.add_subcommand("list", "Print what the list of a folder would show");
  arguments->Entries.AddTo(*command);
  command->add_flag("--json", arguments->AsJson, "Print JSON");
  command->callback([arguments, &status] { status = ListEntries(*arguments); });
}

}  // namespace vorlane
