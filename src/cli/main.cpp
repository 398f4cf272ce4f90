// vorlane-cli: the window's operations from a script.
#include <exception>
#include <iostream>

#include "cli/command.h"

namespace {

int FailWith(vorlane::ExitStatus status, const std::string& message) {
  std::cerr << "vorlane-cli: " << message.substr(0, message.find('\n')) << '\n';
  return static_cast<int>(status);
}

}  // namespace

int main(int argc, char** argv) {
  using vorlane::ExitStatus;
  CLI::App app{"Renames files and folders by the operations of Vorlane.", "vorlane-cli"};
  app.require_subcommand(1);
  auto status = ExitStatus::Done;
  vorlane::AddOperationsCommand(app, status);
  vorlane::AddListCommand(app, status);
  vorlane::AddPreviewCommand(app, status);
  vorlane::AddApplyCommand(app, status);
  vorlane::AddUndoCommand(app, status);
  vorlane::AddEvalCommand(app, status);
  vorlane::AddMatchCommand(app, status);
  for (CLI::App* command : app.get_subcommands({})) {
    command->set_version_flag("--version", "vorlane-cli " VORLANE_VERSION);
  }
  app.set_version_flag("--version", "vorlane-cli " VORLANE_VERSION);
  try {
    app.parse(argc, argv);
    std::cout.flush();
    return static_cast<int>(std::cout ? status : ExitStatus::Refused);
  } catch (const CLI::Success& wanted) {  // --help, --version
    return app.exit(wanted);
  } catch (const CLI::ParseError& error) {
    return FailWith(ExitStatus::Usage, error.what());
  } catch (const vorlane::CommandError& error) {
    return FailWith(error.Status(), error.what());
  } catch (const std::exception& error) {
    return FailWith(ExitStatus::Refused, error.what());
  }
}
