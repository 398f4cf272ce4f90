#include "cli/file_argument.h"

#include "cli/exit_status.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

Text FileArgument(FileSystem& files, const std::string& file) {
  Text path = TextFromBytes(file);
  const EntryStatus status = files.StatusOf(path);
  if (status.Kind != EntryKind::File) {
    throw CommandError(ExitStatus::NotFound, "no such file: " + file);
  }
  if (status.Hidden) {
    throw CommandError(ExitStatus::Refused, "hidden files are passed over: " + file);
  }
  return path;
}

}  // namespace vorlane
