// The commands of the script tool, one file each. Each adds its subcommand, whose callback leaves
// the exit status in the place that it was given.
#pragma once

#include <CLI/CLI.hpp>

#include "cli/exit_status.h"

namespace vorlane {

void AddOperationsCommand(CLI::App& app, ExitStatus& status);
void AddListCommand(CLI::App& app, ExitStatus& status);
void AddPreviewCommand(CLI::App& app, ExitStatus& status);
void AddApplyCommand(CLI::App& app, ExitStatus& status);
void AddUndoCommand(CLI::App& app, ExitStatus& status);
void AddEvalCommand(CLI::App& app, ExitStatus& status);
void AddTagsCommand(CLI::App& app, ExitStatus& status);
void AddTagWriteCommand(CLI::App& app, ExitStatus& status);
void AddTagRemoveV1Command(CLI::App& app, ExitStatus& status);
void AddExifCommand(CLI::App& app, ExitStatus& status);
void AddMatchCommand(CLI::App& app, ExitStatus& status);

}  // namespace vorlane
