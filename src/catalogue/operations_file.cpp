#include "catalogue/operations_file.h"

#include "catalogue/program_files.h"
#include "catalogue/text_file.h"
#include "platform/failure.h"

namespace vorlane {

OperationsTree LoadOperationsFileAt(FileSystem& files, TextView path) {
  try {
    return LoadOperationsTree(DecodeTextFile(files.ReadFileBytes(path)));
  } catch (const RunError& failure) {
    OperationsTree unread;
    unread.Failure = failure;
    return unread;
  }
}

std::optional<OperationsTree> LoadOperationsFile(FileSystem& files, TextView folder) {
  const auto path = FindProgramFile(files, folder, OperationsFileName);
  if (!path) {
    return std::nullopt;
  }
  return LoadOperationsFileAt(files, *path);
}

}  // namespace vorlane
