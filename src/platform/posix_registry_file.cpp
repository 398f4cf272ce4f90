#include "platform/posix_registry_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <thread>

#include "platform/file_name_bytes.h"
#include "platform/posix_handle.h"

namespace vorlane {

namespace {

constexpr mode_t FolderMode = 0700;  // of the user alone
constexpr mode_t FileMode = 0600;

FileStamp StampOf(const struct stat& status) {
  constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;
  return {true, status.st_mtim.tv_sec * nanosecondsPerSecond + status.st_mtim.tv_nsec,
          static_cast<std::uint64_t>(status.st_size), static_cast<std::uint64_t>(status.st_ino)};
}

// Nothing if it can't be read.
std::optional<std::string> ReadAll(int descriptor) {
  std::string bytes;
  char buffer[8192];
  for (;;) {
    const ssize_t count = read(descriptor, buffer, sizeof buffer);
    if (count == 0) {
      return bytes;
    }
    if (count > 0) {
      bytes.append(buffer, static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      return std::nullopt;
    }
  }
}

void MakeFoldersAbove(const std::string& path) {
  for (auto end = path.find('/', 1); end != std::string::npos; end = path.find('/', end + 1)) {
    mkdir(path.substr(0, end).c_str(), FolderMode);
  }
}

// False where the disk knows no locks: there is nothing to wait for then, and a program that runs
// alone needs none.
bool MeansHeldByOthers(int error) {
  return error == EWOULDBLOCK || error == EINTR;
}

// A descriptor that holds the lock, or a closed one if it was held by others all the time.
FileHandle Lock(const std::string& path, std::chrono::milliseconds patience) {
  constexpr std::chrono::milliseconds pause(5);
  const auto attempts = 1 + patience / pause;
  FileHandle lock(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, FileMode));
  for (auto attempt = attempts; lock.IsOpen() && attempt > 0; --attempt) {
    if (flock(lock.Descriptor(), LOCK_EX | LOCK_NB) == 0 || !MeansHeldByOthers(errno)) {
      return lock;
    }
    std::this_thread::sleep_for(pause);
  }
  return {};
}

// What a link leads to; the path itself if there is nothing yet.
std::string ResolvedPath(const std::string& path) {
  char resolved[PATH_MAX];
  return realpath(path.c_str(), resolved) != nullptr ? resolved : path;
}

struct OldFile {
  std::string Bytes;
  mode_t Mode = FileMode;
};

// Nothing if the file is there but can't be read or may not be written to.
std::optional<OldFile> ReadOldFile(const std::string& path) {
  const OpenedFile file = OpenRegularFile(path, O_RDWR);
  if (!file.Handle.IsOpen()) {
    return file.Error == ENOENT ? std::optional<OldFile>(OldFile()) : std::nullopt;
  }
  struct stat status {};
  auto bytes = ReadAll(file.Handle.Descriptor());
  if (!bytes || fstat(file.Handle.Descriptor(), &status) != 0) {
    return std::nullopt;
  }
  return OldFile{std::move(*bytes), status.st_mode & 0777};
}

// Has the disk take the bytes now, so that the file that replaces another isn't an empty one after
// a loss of power. Not every file system knows how.
bool StartWriteOut(int descriptor) {
  return sync_file_range(descriptor, 0, 0, SYNC_FILE_RANGE_WRITE) == 0 || errno != EIO;
}

bool WriteNewFile(const std::string& path, std::string_view bytes, mode_t mode) {
  unlink(path.c_str());  // left by a program that ended in the middle
  FileHandle file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, FileMode));
  const auto write = [&](std::string_view part, std::uint64_t position) {
    return pwrite(file.Descriptor(), part.data(), part.size(), static_cast<off_t>(position));
  };
  return file.IsOpen() && fchmod(file.Descriptor(), mode) == 0 && WriteAll(0, bytes, write) == 0 &&
         StartWriteOut(file.Descriptor()) && file.Close() == 0;
}

}  // namespace

PosixRegistryFile::PosixRegistryFile(TextView path, std::chrono::milliseconds patience)
    : path_(BytesFromText(path).value_or(std::string())), patience_(patience) {}

PosixRegistryFile::~PosixRegistryFile() {
  if (changed_) {
    const FileHandle file(open(path_.c_str(), O_RDONLY | O_CLOEXEC));
    fsync(file.Descriptor());
  }
}

std::optional<RegistryBytes> PosixRegistryFile::ReadUnless(const std::optional<FileStamp>& known) {
  struct stat status {};
  FileStamp stamp = stat(path_.c_str(), &status) == 0 ? StampOf(status) : FileStamp();
  if (known == stamp) {
    return std::nullopt;
  }
  const OpenedFile file = OpenRegularFile(path_, O_RDONLY);
  if (!file.Handle.IsOpen()) {
    return RegistryBytes{{}, stamp};
  }
  if (fstat(file.Handle.Descriptor(), &status) == 0) {
    stamp = StampOf(status);
  }
  return RegistryBytes{ReadAll(file.Handle.Descriptor()).value_or(std::string()), stamp};
}

bool PosixRegistryFile::Update(const Change& change) {
  if (path_.empty()) {
    return false;
  }
  MakeFoldersAbove(path_);
  const FileHandle lock = Lock(path_ + ".lock", patience_);
  if (!lock.IsOpen()) {
    return false;
  }
  const std::string target = ResolvedPath(path_);
  const auto old = ReadOldFile(target);
  if (!old) {
    return false;
  }
  const auto bytes = change(old->Bytes);
  if (!bytes) {
    return true;
  }
  const std::string newFile = target + ".new";
  if (WriteNewFile(newFile, *bytes, old->Mode) && rename(newFile.c_str(), target.c_str()) == 0) {
    changed_ = true;
    return true;
  }
  unlink(newFile.c_str());
  return false;
}

}  // namespace vorlane
