// The run that takes the program's traces away.
#pragma once

namespace vorlane {

// Asks on the screen if there is one, otherwise at the terminal.
int RunUninstall(int argc, char** argv);

}  // namespace vorlane
