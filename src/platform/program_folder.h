// Where the program is, and the files that stand beside it.
#pragma once

#include "platform/text.h"

namespace vorlane {

// The folder of the program's data, with its trailing separator: $VORLANE_HOME; else the folder of
// the running binary if it holds Operations.ini, in any case; else ../share/vorlane from there.
Text ProgramFolder();

// The path by which the user's system starts this program: $APPIMAGE, if that is set; else the
// running binary. Whether the file is still there is not looked at. Empty if the system can't tell.
Text ProgramFile();

}  // namespace vorlane
