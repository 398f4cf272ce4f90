// The load of the main window, step by step: settings into controls, the catalogue into its tree.
#pragma once

#include "platform/text.h"
#include "ui/desktop_services.h"
#include "ui/program.h"

namespace vorlane {

// Everything up to the window's being ready to be shown. What fails is reported or passed over, and
// the steps behind it are done all the same. `programFolder` holds the catalogue.
void LoadMainWindow(Program& program, DesktopServices& services, const Text& programFolder);

// What is saved and cleared away at the end.
void UnloadMainWindow(Program& program, DesktopServices& services);

}  // namespace vorlane
