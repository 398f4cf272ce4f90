// Renaming without ever replacing anything.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <tuple>

#include "platform/file_name_bytes.h"
#include "platform/posix_file_system.h"

namespace vorlane {

namespace {

RenameOutcome OutcomeOf(int error) {
  if (error == 0) {
    return RenameOutcome::Done;
  }
  return error == EEXIST || error == ENOTEMPTY ? RenameOutcome::TargetExists
                                               : RenameOutcome::Refused;
}

bool IsNotOffered(int error) {
  return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP;
}

// Hard links: refused by the file system as a whole, or to this user for this file, or there are
// too many already. A rename may still work.
bool IsLinkNotOffered(int error) {
  return IsNotOffered(error) || error == EPERM || error == EMLINK;
}

RenameOutcome RenameAfterLook(const char* from, const char* to) {
  struct stat status {};
  if (lstat(to, &status) == 0) {
    return RenameOutcome::TargetExists;
  }
  if (errno != ENOENT) {
    return RenameOutcome::Refused;
  }
  return OutcomeOf(std::rename(from, to) == 0 ? 0 : errno);
}

}  // namespace

int PosixFileSystem::AtomicRename(const char* from, const char* to) {
  return renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0 ? 0 : errno;
}

int PosixFileSystem::HardLink(const char* from, const char* to) {
  return link(from, to) == 0 ? 0 : errno;
}

RenameOutcome PosixFileSystem::RenameNoReplace(TextView from, TextView to) {
  const auto fromBytes = BytesFromText(from);
  const auto toBytes = BytesFromText(to);
  if (!fromBytes || !toBytes) {
    return RenameOutcome::Refused;
  }
  const int error = AtomicRename(fromBytes->c_str(), toBytes->c_str());
  return IsNotOffered(error) ? RenameByLink(fromBytes->c_str(), toBytes->c_str())
                             : OutcomeOf(error);
}

RenameOutcome PosixFileSystem::RenameByLink(const char* from, const char* to) {
  struct stat status {};
  if (lstat(from, &status) != 0) {
    return RenameOutcome::Refused;
  }
  if (S_ISDIR(status.st_mode)) {
    return RenameAfterLook(from, to);
  }
  const int error = HardLink(from, to);
  if (IsLinkNotOffered(error)) {
    return RenameAfterLook(from, to);
  }
  if (error == 0 && unlink(from) != 0) {
    std::ignore = unlink(to);
    return RenameOutcome::Refused;
  }
  return OutcomeOf(error);
}

}  // namespace vorlane
