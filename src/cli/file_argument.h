// A file that a command is given.
#pragma once

#include <string>

#include "platform/file_system.h"

namespace vorlane {

// Its path as text. Throws CommandError: NotFound if there is no such regular file, Refused for a
// hidden one, which the readers would take for missing.
Text FileArgument(FileSystem& files, const std::string& file);

}  // namespace vorlane
