// What is decided when the program starts, before and while its window is made.
#pragma once

#include <vector>

#include "platform/file_system.h"
#include "platform/path_style.h"
#include "shell/settings.h"

namespace vorlane {

// The whole command line: the arguments behind the program's name, joined by a blank.
Text CommandLineOf(const std::vector<Text>& arguments);

// "/Uninstall", in just these letters and alone, or "--uninstall". The window isn't shown then.
bool IsUninstall(TextView commandLine);

// Removes the verb on folders, and all settings if the user says Yes. Nobody there to ask is a No.
void Uninstall(Registry& registry, Prompter& prompts);

// The path of the program's file, for the verb's command; empty if there is no file at that place.
Text FullProgramPath(FileSystem& files, TextView programFile);

// The folder of a file, with its trailing separator.
Text FolderOf(TextView path, PathStyle style = HostPathStyle);

struct StartPlaces {
  Text WorkingFolder;  // where the program was started; a relative command line starts there
  Text ProgramFolder;  // of the program's file
};

// The folder that is shown first, rooted and with its trailing separator: the command line if it
// names a folder, else the one of the last exit if it is still there, else the program's.
Text ChooseStartFolder(FileSystem& files, Settings& settings, TextView commandLine,
                       const StartPlaces& places, PathStyle style = HostPathStyle);

}  // namespace vorlane
