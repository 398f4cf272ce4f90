// The files and folders that stand beside the program.
#pragma once

#include <optional>

#include "platform/file_system.h"
#include "platform/text.h"

namespace vorlane {

// The path of the file of that name in the folder (given with its trailing separator): the exact
// name, or else the only file there whose name differs by case alone. Nothing if there is no such
// file or the folder can't be read.
std::optional<Text> FindProgramFile(FileSystem& files, TextView folder, TextView name);

// The same for a folder; its path has a trailing separator.
std::optional<Text> FindProgramFolder(FileSystem& files, TextView folder, TextView name);

}  // namespace vorlane
