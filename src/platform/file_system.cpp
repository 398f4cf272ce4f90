#include "platform/file_system.h"

namespace vorlane {

std::unique_ptr<OpenFile> FileSystem::OpenPlainFile(TextView path) {
  return PlainFileExists(*this, path) ? Open(path, OpenMode::Read) : nullptr;
}

bool PlainFileExists(FileSystem& files, TextView path) {
  const auto status = files.PresenceOf(path);
  return status.Kind == EntryKind::File && !status.Hidden;
}

bool EntryExists(FileSystem& files, TextView path) {
  const auto status = files.PresenceOf(path);
  return (status.Kind == EntryKind::File || status.Kind == EntryKind::Folder) && !status.Hidden;
}

bool FolderExists(FileSystem& files, TextView path) {
  return files.PresenceOf(path).Kind == EntryKind::Folder;
}

bool HiddenFileExists(FileSystem& files, TextView path) {
  return files.PresenceOf(path).Kind == EntryKind::File;
}

}  // namespace vorlane
