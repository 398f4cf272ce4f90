// Where a program keeps its files for one user. Each folder comes with its trailing separator and
// needn't exist. By the XDG Base Directory Specification: a variable that isn't set, or isn't an
// absolute path, gives the folder's usual place in the user's home.
#pragma once

#include "platform/text.h"

namespace vorlane {

Text ConfigFolder();  // $XDG_CONFIG_HOME or ~/.config
Text DataFolder();    // $XDG_DATA_HOME or ~/.local/share
Text StateFolder();   // $XDG_STATE_HOME or ~/.local/state

// The folder in which the program was started; the root if it is gone.
Text WorkingFolder();

}  // namespace vorlane
