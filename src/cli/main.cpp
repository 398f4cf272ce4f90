// vorlane-cli: the window's operations from a script.
#include <exception>
#include <iostream>

#include "cli/command.h"
#include "cli/message.h"
#include "platform/failure.h"

namespace {

using vorlane::ExitStatus;

template <typename Message>
int FailWith(ExitStatus status, const Message& message) {
  vorlane::PrintMessage(message);
  return static_cast<int>(status);
}

// Throws CommandError for a first word that is neither a command nor an option.
void RequireCommand(const CLI::App& app, int argc, char** argv) {
  if (argc < 2) {
    throw vorlane::CommandError(ExitStatus::Usage, "a command is required; --help lists them");
  }
  const std::string first = argv[1];
  const auto isCalled = [&](const CLI::App* command) { return command->get_name() == first; };
  if (!first.starts_with("-") && app.get_subcommands(isCalled).empty()) {
    throw vorlane::CommandError(ExitStatus::Usage, "no such command: " + first);
  }
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app{"Renames files and folders by the operations of Vorlane.", "vorlane-cli"};
  app.require_subcommand(1);
  auto status = ExitStatus::Done;
  vorlane::AddOperationsCommand(app, status);
  vorlane::AddListCommand(app, status);
  vorlane::AddPreviewCommand(app, status);
  vorlane::AddApplyCommand(app, status);
  vorlane::AddUndoCommand(app, status);
  vorlane::AddEvalCommand(app, status);
  vorlane::AddTagsCommand(app, status);
  vorlane::AddTagWriteCommand(app, status);
  vorlane::AddTagRemoveV1Command(app, status);
  vorlane::AddExifCommand(app, status);
  vorlane::AddMatchCommand(app, status);
  for (CLI::App* command : app.get_subcommands({})) {
    command->set_version_flag("--version", "vorlane-cli " VORLANE_VERSION);
  }
  app.set_version_flag("--version", "vorlane-cli " VORLANE_VERSION);
  try {
    RequireCommand(app, argc, argv);
    app.parse(argc, argv);
    if (!std::cout.flush()) {
      return FailWith(ExitStatus::Refused, "can't write to standard output");
    }
    return static_cast<int>(status);
  } catch (const CLI::Success& wanted) {  // --help, --version
    return app.exit(wanted);
  } catch (const CLI::ParseError& error) {
    return FailWith(ExitStatus::Usage, error.what());
  } catch (const vorlane::CommandError& error) {
    return FailWith(error.Status(), error.what());
  } catch (const vorlane::RunError& error) {
    return FailWith(ExitStatus::Refused, error.Description());
  } catch (const std::exception& error) {
    return FailWith(ExitStatus::Refused, error.what());
  }
}
