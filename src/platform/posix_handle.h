// What the posix_*.cpp files share: descriptors, the careful way to open a file, and errno as a
// failure.
#pragma once

#include <fcntl.h>
#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/failure.h"
#include "platform/file_system.h"

namespace vorlane {

// A descriptor, closed by its destructor.
class FileHandle {
 public:
  FileHandle() = default;
  explicit FileHandle(int descriptor) : descriptor_(descriptor) {}
  FileHandle(FileHandle&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  FileHandle& operator=(FileHandle&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }
  ~FileHandle() { Close(); }

  bool IsOpen() const { return descriptor_ >= 0; }
  int Descriptor() const { return descriptor_; }

  // 0, or the errno of a write that the system had put off until now.
  int Close();

 private:
  int descriptor_ = -1;
};

struct OpenedFile {
  FileHandle Handle{};     // not open after a failure
  bool WasThere = false;   // a regular file, by the look before it was opened
  std::uint64_t Size = 0;  // of the open file
  int Error = 0;           // the errno of a failure
};

// Opens what exists and is a regular file. It is looked at before it is opened, because opening a
// device or a pipe is an act in itself, and after, because it may have been exchanged meanwhile.
// With O_NOFOLLOW a link is refused. A read-only file isn't opened for writing, not even by the
// superuser, to whom the system would give it.
OpenedFile OpenRegularFile(const std::string& path, int flags);

// The same without the first look: for a file that has been seen to be regular.
OpenedFile OpenKnownFile(const std::string& path, int flags);

// A file that is open for reading.
std::unique_ptr<OpenFile> MakeReadableFile(FileHandle handle, std::uint64_t size);

// Writes all bytes by as many calls of `write` as it takes; it gets what is left and its place in
// the file, and answers as pwrite does. 0 or errno.
using WriteCall = std::function<ssize_t(std::string_view bytes, std::uint64_t position)>;
int WriteAll(std::uint64_t position, std::string_view bytes, const WriteCall& write);

// The failure that an errno of an operation on a file stands for.
ErrorNumber FailureOfErrno(int error);

[[noreturn]] void ThrowErrno(int error);

}  // namespace vorlane
