// Reading a folder.
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <string_view>

#include "platform/failure.h"
#include "platform/file_name_bytes.h"
#include "platform/posix_file_system.h"
#include "platform/posix_handle.h"
#include "platform/posix_status.h"

namespace vorlane {

namespace {

class FolderReader {
 public:
  // Throws RunError 76 if the folder can't be read.
  explicit FolderReader(TextView folder) {
    const auto bytes = BytesFromText(folder);
    if (bytes) {
      const int descriptor = open(bytes->c_str(), O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC);
      if (descriptor >= 0) {
        stream_ = fdopendir(descriptor);
      }
    }
    if (stream_ == nullptr) {
      throw RunError(ErrorNumber::PathNotFound);
    }
  }
  FolderReader(const FolderReader&) = delete;
  FolderReader& operator=(const FolderReader&) = delete;
  ~FolderReader() { closedir(stream_); }

  int Descriptor() const { return dirfd(stream_); }

  // The next name, valid until the next call; null behind the last one.
  const char* NextName() {
    for (;;) {
      errno = 0;
      const dirent* entry = readdir(stream_);
      if (entry == nullptr) {
        if (errno != 0) {
          throw RunError(ErrorNumber::PathNotFound);
        }
        return nullptr;
      }
      const std::string_view name = entry->d_name;
      if (name != "." && name != "..") {
        return entry->d_name;
      }
    }
  }

 private:
  DIR* stream_ = nullptr;
};

// False if the entry has vanished.
bool LookAt(int folder, const char* name, FolderEntry& entry) {
  struct stat status {};
  if (fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
    // In a folder that may be read but not entered, a name is all that there is to know.
    return errno != ENOENT;
  }
  entry.IsLink = S_ISLNK(status.st_mode);
  if (entry.IsLink && fstatat(folder, name, &status, 0) != 0) {
    return true;
  }
  entry.Status = MakePresence(status, IsHiddenPath(entry.Name));
  entry.Status.ReadOnly = IsReadOnly(folder, name, status);
  entry.Identity = MakeIdentity(status);
  return true;
}

}  // namespace

std::vector<FolderEntry> PosixFileSystem::ListFolder(TextView folder) {
  FolderReader reader(folder);
  std::vector<FolderEntry> entries;
  while (const char* name = reader.NextName()) {
    FolderEntry entry;
    entry.Name = TextFromBytes(name);
    if (LookAt(reader.Descriptor(), name, entry)) {
      entries.push_back(std::move(entry));
    }
  }
  return entries;
}

std::vector<Text> PosixFileSystem::ListNames(TextView folder) {
  FolderReader reader(folder);
  std::vector<Text> names;
  while (const char* name = reader.NextName()) {
    names.push_back(TextFromBytes(name));
  }
  return names;
}

}  // namespace vorlane
