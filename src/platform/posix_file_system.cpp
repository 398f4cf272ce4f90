#include "platform/posix_file_system.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "platform/file_name_bytes.h"
#include "platform/posix_status.h"

namespace vorlane {

PosixFileSystem::PosixFileSystem() {
  std::signal(SIGIO, SIG_IGN);
}

EntryStatus PosixFileSystem::StatusOf(TextView path) {
  const auto bytes = BytesFromText(path);
  struct stat status {};
  if (!bytes || stat(bytes->c_str(), &status) != 0) {
    return {};
  }
  auto result = MakePresence(status, IsHiddenPath(path));
  result.ReadOnly = IsReadOnly(AT_FDCWD, bytes->c_str(), status);
  return result;
}

EntryStatus PosixFileSystem::PresenceOf(TextView path) {
  const auto bytes = BytesFromText(path);
  struct stat status {};
  if (!bytes || stat(bytes->c_str(), &status) != 0) {
    return {};
  }
  return MakePresence(status, IsHiddenPath(path));
}

bool PosixFileSystem::NameExists(TextView path) {
  return IdentityOf(path).has_value();
}

std::optional<FileIdentity> PosixFileSystem::IdentityOf(TextView path) {
  const auto bytes = BytesFromText(path);
  struct stat status {};
  if (!bytes || lstat(bytes->c_str(), &status) != 0) {
    return std::nullopt;
  }
  FileIdentity identity = MakeIdentity(status);
  identity.HasOneName = S_ISDIR(status.st_mode) || status.st_nlink == 1;
  return identity;
}

bool PosixFileSystem::CreateFolder(TextView path) {
  const auto bytes = BytesFromText(path);
  return bytes && mkdir(bytes->c_str(), 0777) == 0;
}

bool PosixFileSystem::RemoveFolder(TextView path) {
  const auto bytes = BytesFromText(path);
  return bytes && rmdir(bytes->c_str()) == 0;
}

bool PosixFileSystem::MakeExecutable(TextView path) {
  const auto bytes = BytesFromText(path);
  struct stat status {};
  if (!bytes || stat(bytes->c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
    return false;
  }
  constexpr mode_t maskOfPermissions = 07777;
  const mode_t readers = status.st_mode & (S_IRUSR | S_IRGRP | S_IROTH);
  const mode_t mode = (status.st_mode & maskOfPermissions) | readers >> 2;
  return chmod(bytes->c_str(), mode) == 0;
}

bool PosixFileSystem::RemoveFile(TextView path) {
  const auto bytes = BytesFromText(path);
  return bytes && unlink(bytes->c_str()) == 0;
}

}  // namespace vorlane
