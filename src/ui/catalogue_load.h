// The two text files beside the program, into their controls: the operations into the tree, the
// keywords into the list.
#pragma once

#include "platform/text.h"
#include "ui/program.h"

namespace vorlane {

// `folder` has its trailing separator. A file that isn't there is told in a message box; Go is
// barred without operations. One that can't be read, or is damaged, is reported and shown as far as
// it was read.
void LoadOperations(Program& program, const ProgramServices& services, const Text& folder);
void LoadKeywords(Program& program, const ProgramServices& services, const Text& folder);

}  // namespace vorlane
