#include "platform/posix_handle.h"

#include <unistd.h>

#include <cerrno>

namespace vorlane {

int FileHandle::Close() {
  const int descriptor = std::exchange(descriptor_, -1);
  // The descriptor is gone even if the call was interrupted.
  return descriptor < 0 || close(descriptor) == 0 || errno == EINTR ? 0 : errno;
}

OpenedFile OpenRegularFile(const std::string& path, int flags) {
  OpenedFile file;
  const auto failed = [&file](int error) {
    file.Handle.Close();
    file.Error = error;
    return std::move(file);
  };
  const int follow = (flags & O_NOFOLLOW) != 0 ? AT_SYMLINK_NOFOLLOW : 0;
  if (fstatat(AT_FDCWD, path.c_str(), &file.Status, follow) != 0) {
    return failed(errno);
  }
  if (!S_ISREG(file.Status.st_mode)) {
    return failed(EINVAL);
  }
  file.Handle = FileHandle(open(path.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (!file.Handle.IsOpen() || fstat(file.Handle.Descriptor(), &file.Status) != 0) {
    return failed(errno);
  }
  if (!S_ISREG(file.Status.st_mode)) {
    return failed(EINVAL);
  }
  return file;
}

ErrorNumber FailureOfErrno(int error) {
  switch (error) {
    case ENOENT:
      return ErrorNumber::FileNotFound;
    case ENOTDIR:
      return ErrorNumber::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
      return ErrorNumber::PermissionDenied;
    case EEXIST:
      return ErrorNumber::FileExists;
    case ENOSPC:
    case EDQUOT:
      return ErrorNumber::DiskFull;
    case EIO:
      return ErrorNumber::DeviceError;
    case EMFILE:
    case ENFILE:
      return ErrorNumber::TooManyFiles;
    default:
      return ErrorNumber::PathAccess;
  }
}

void ThrowErrno(int error) {
  throw RunError(FailureOfErrno(error));
}

}  // namespace vorlane
