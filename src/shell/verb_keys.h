// The verb "Open with Vorlane" on folders as the program writes it to a registry: once for the
// whole system, which mostly refuses, and once for the user.
#pragma once

#include "shell/registry.h"

namespace vorlane {

// The verb's key under the root. Its last name is what the menu shows.
Text VerbKey(RegistryRoot root);

// The key below it whose default value is the command: the program's path in quotes, a blank and
// "%L", where the folder will stand.
Text VerbCommandKey(RegistryRoot root);
Text VerbCommand(TextView programPath);

// Under both roots. What is refused is passed over.
void WriteVerb(Registry& registry, TextView programPath);
void RemoveVerb(Registry& registry);

}  // namespace vorlane
