// vorlane-cli match: tries a wildcard on names.
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "cli/command.h"
#include "cli/message.h"
#include "cli/remaining_arguments.h"
#include "filelist/wildcard.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

namespace {

struct MatchCommandArguments {
  std::string Wildcard;
  std::vector<std::string> Names;
};

ExitStatus PrintMatches(const MatchCommandArguments& arguments) {
  bool any = false;
  for (const std::string& name : arguments.Names) {
    if (MatchesWildcard(TextFromBytes(name), TextFromBytes(arguments.Wildcard))) {
      std::cout << ForOutput(name) << '\n';
      any = true;
    }
  }
  return any ? ExitStatus::Done : ExitStatus::Refused;
}

}  // namespace

void AddMatchCommand(CLI::App& app, ExitStatus& status) {
  auto arguments = std::make_shared<MatchCommandArguments>();
  CLI::App* command = app.add_subcommand("match", "Print the names that a wildcard accepts");
  command->add_option("WILDCARD", arguments->Wildcard, "The wildcard, as the list uses it")
      ->type_name("")
      ->required();
  AddRemainingArguments(*command, "NAME", arguments->Names, "Names to try");
  command->callback([arguments, &status] { status = PrintMatches(*arguments); });
}

}  // namespace vorlane
