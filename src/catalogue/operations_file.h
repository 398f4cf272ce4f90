// Reading the operations file from disk.
#pragma once

#include <optional>

#include "catalogue/operations_tree.h"
#include "platform/file_system.h"
#include "platform/text.h"

namespace vorlane {

inline constexpr TextView OperationsFileName = u"Operations.ini";

// The tree of the operations file in that folder (with its trailing separator); nothing if there is
// no such file. A file that can't be read gives an empty tree with the failure.
std::optional<OperationsTree> LoadOperationsFile(FileSystem& files, TextView folder);

// The same for a file with a name of its own.
OperationsTree LoadOperationsFileAt(FileSystem& files, TextView path);

}  // namespace vorlane
