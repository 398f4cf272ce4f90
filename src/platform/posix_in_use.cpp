// Linux has no exclusive opening. A file counts as in use if it is open for writing or locked;
// somebody who merely reads it isn't hurt by a rename.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>

#include "platform/file_name_bytes.h"
#include "platform/posix_file_system.h"
#include "platform/posix_handle.h"

namespace vorlane {

namespace {

bool HasFlockLock(int descriptor) {
  return flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

bool HasFcntlLock(int descriptor) {
  struct flock lock {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  return fcntl(descriptor, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

// The system grants a read lease only while nobody has the file open for writing. Refusals for
// other reasons (not our file, a file system without leases) tell nothing.
bool IsOpenForWriting(int descriptor) {
  return fcntl(descriptor, F_SETLEASE, F_RDLCK) != 0 && errno == EAGAIN;
}

bool IsRegularFile(int descriptor) {
  struct stat status {};
  return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

}  // namespace

bool PosixFileSystem::IsFileInUse(TextView path) {
  const auto bytes = BytesFromText(path);
  if (!bytes) {
    return false;
  }
  const FileHandle file(open(bytes->c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (!file.IsOpen() || !IsRegularFile(file.Descriptor())) {
    return false;
  }
  // Closing the descriptor gives back what these take. The lease comes last, since a writer who
  // comes by has to wait as long as we have it.
  return HasFlockLock(file.Descriptor()) || HasFcntlLock(file.Descriptor()) ||
         IsOpenForWriting(file.Descriptor());
}

}  // namespace vorlane
