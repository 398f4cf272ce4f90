#include "platform/posix_handle.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/posix_status.h"

namespace vorlane {

int FileHandle::Close() {
  const int descriptor = std::exchange(descriptor_, -1);
  // The descriptor is gone even if the call was interrupted.
  return descriptor < 0 || close(descriptor) == 0 || errno == EINTR ? 0 : errno;
}

namespace {

// 0 or errno. Neither more nor less is asked than what is needed: once a program has asked for the
// times of a file, the next write to it costs the system more.
int LookAtRegularFile(int descriptor, const char* path, int lookFlags, int openFlags,
                      std::uint64_t& size) {
  struct statx status {};
  if (statx(descriptor, path, lookFlags, STATX_TYPE | STATX_MODE | STATX_SIZE, &status) != 0) {
    return errno;
  }
  size = status.stx_size;
  if (!S_ISREG(status.stx_mode)) {
    return EINVAL;
  }
  const bool forWriting = (openFlags & O_ACCMODE) != O_RDONLY;
  return forWriting && NobodyMayWrite(status.stx_mode) ? EACCES : 0;
}

}  // namespace

OpenedFile OpenRegularFile(const std::string& path, int flags) {
  std::uint64_t size = 0;
  const int follow = (flags & O_NOFOLLOW) != 0 ? AT_SYMLINK_NOFOLLOW : 0;
  const int error = LookAtRegularFile(AT_FDCWD, path.c_str(), follow, flags, size);
  if (error != 0) {
    return {.Error = error};
  }
  auto file = OpenKnownFile(path, flags);
  file.WasThere = true;
  return file;
}

OpenedFile OpenKnownFile(const std::string& path, int flags) {
  OpenedFile file;
  FileHandle handle(open(path.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  file.Error = handle.IsOpen()
                   ? LookAtRegularFile(handle.Descriptor(), "", AT_EMPTY_PATH, flags, file.Size)
                   : errno;
  if (file.Error == 0) {
    file.Handle = std::move(handle);
  }
  return file;
}

int WriteAll(std::uint64_t position, std::string_view bytes, const WriteCall& write) {
  while (!bytes.empty()) {
    const ssize_t count = write(bytes, position);
    if (count < 0 && errno == EINTR) {
      continue;
    }
    if (count <= 0) {
      // A call that does nothing and gives no reason would do nothing for ever.
      return count < 0 ? errno : EIO;
    }
    bytes.remove_prefix(static_cast<std::size_t>(count));
    position += static_cast<std::uint64_t>(count);
  }
  return 0;
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
