// One change to the tags of a file, by the writers of a run.
#pragma once

#include <functional>
#include <string>

#include "cli/command_world.h"
#include "cli/exit_status.h"

namespace vorlane {

// Makes the change; it may throw RunError. A failure that it throws or reports is a refusal, whose
// number and description are printed; with JSON as {"error":{...}}, otherwise the tags that the
// file has afterwards. A signal waits until the file is whole again. Throws CommandError if there
// is no such file.
ExitStatus ChangeTags(
    const std::string& file, bool asJson,
    const std::function<void(CommandWorld&, FailureReport&, TextView path)>& change);

}  // namespace vorlane
