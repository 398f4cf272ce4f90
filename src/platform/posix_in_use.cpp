// Linux has no exclusive opening. A file counts as in use if it is open for writing or locked;
// somebody who merely reads it isn't hurt by a rename.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>

#include "platform/file_name_bytes.h"
#include "platform/posix_file_system.h"
#include "platform/posix_handle.h"
#include "platform/posix_status.h"

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

// The lease comes last, since a writer who comes by has to wait as long as we have it.
bool IsHeldByOthers(int descriptor) {
  return HasFlockLock(descriptor) || HasFcntlLock(descriptor) || IsOpenForWriting(descriptor);
}

// What the tests above took. Closing the descriptor does the same.
void GiveBack(int descriptor) {
  fcntl(descriptor, F_SETLEASE, F_UNLCK);
  flock(descriptor, LOCK_UN);
}

// `entry` is open afterwards if it can be.
EntryUse LookAtUse(PosixFileSystem& files, TextView path, FileHandle& entry) {
  const auto bytes = BytesFromText(path);
  if (!bytes || IsHiddenPath(path)) {
    return {files.StatusOf(path)};
  }
  entry = FileHandle(open(bytes->c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  struct stat status {};
  if (!entry.IsOpen() || fstat(entry.Descriptor(), &status) != 0) {
    return {files.StatusOf(path)};
  }
  EntryUse use{MakePresence(status, false)};
  use.Status.ReadOnly = IsOpenedReadOnly(entry.Descriptor(), bytes->c_str(), status);
  use.InUse = use.Status.Kind == EntryKind::File && !use.Status.ReadOnly &&
              IsHeldByOthers(entry.Descriptor());
  return use;
}

}  // namespace

EntryUse PosixFileSystem::UseOf(TextView path) {
  FileHandle entry;
  return LookAtUse(*this, path, entry);
}

EntryUse PosixFileSystem::UseAndOpen(TextView path) {
  FileHandle entry;
  EntryUse use = LookAtUse(*this, path, entry);
  const bool isFree = use.Status.Kind == EntryKind::File && !use.Status.ReadOnly && !use.InUse;
  if (isFree && entry.IsOpen()) {
    GiveBack(entry.Descriptor());
    use.File = MakeReadableFile(std::move(entry), use.Status.Size);
  }
  return use;
}

}  // namespace vorlane
