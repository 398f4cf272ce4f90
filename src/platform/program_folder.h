// Where the files that stand beside the program are.
#pragma once

#include "platform/text.h"

namespace vorlane {

// The folder of the program's data, with its trailing separator: $VORLANE_HOME; else the folder of
// the running binary if it holds Operations.ini; else ../share/vorlane from there.
Text ProgramFolder();

}  // namespace vorlane
