#include "platform/posix_status.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace vorlane {

namespace {

EntryKind KindOf(mode_t mode) {
  if (S_ISREG(mode)) {
    return EntryKind::File;
  }
  return S_ISDIR(mode) ? EntryKind::Folder : EntryKind::Other;
}

}  // namespace

bool IsHiddenPath(TextView path) {
  const auto last = path.find_last_not_of(u'/');
  if (last == TextView::npos) {
    return false;
  }
  path = path.substr(0, last + 1);
  const auto name = path.substr(path.rfind(u'/') + 1);
  return name == JournalName || (name.front() == u'.' && name != u"." && name != u"..");
}

EntryStatus MakePresence(const struct stat& status, bool hidden) {
  EntryStatus result;
  result.Kind = KindOf(status.st_mode);
  result.Hidden = hidden;
  result.Size = S_ISREG(status.st_mode) ? static_cast<std::uint64_t>(status.st_size) : 0;
  return result;
}

bool NobodyMayWrite(mode_t mode) {
  return (mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
}

bool IsReadOnly(int folder, const char* name, const struct stat& status) {
  return NobodyMayWrite(status.st_mode) || faccessat(folder, name, W_OK, AT_EACCESS) != 0;
}

bool IsOpenedReadOnly(int descriptor, const char* path, const struct stat& status) {
  if (NobodyMayWrite(status.st_mode)) {
    return true;
  }
  const bool refused = faccessat(descriptor, "", W_OK, AT_EACCESS | AT_EMPTY_PATH) != 0;
  return refused && (errno != EINVAL || IsReadOnly(AT_FDCWD, path, status));
}

FileIdentity MakeIdentity(const struct stat& status) {
  return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino)};
}

}  // namespace vorlane
