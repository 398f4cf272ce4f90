// Reading and writing the bytes of files.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <limits>
#include <tuple>

#include "platform/failure.h"
#include "platform/file_name_bytes.h"
#include "platform/posix_file_system.h"
#include "platform/posix_handle.h"
#include "platform/posix_status.h"

namespace vorlane {

namespace {

OpenedFile OpenOrThrow(TextView path, int flags) {
  const auto bytes = BytesFromText(path);
  if (!bytes) {
    throw RunError(ErrorNumber::FileNotFound);
  }
  auto file = OpenRegularFile(*bytes, flags);
  if (!file.Handle.IsOpen()) {
    ThrowErrno(file.Error);
  }
  return file;
}

// Runs a system call until no signal interrupts it.
template <typename Call>
ssize_t Uninterrupted(Call&& call) {
  ssize_t result = call();
  while (result < 0 && errno == EINTR) {
    result = call();
  }
  return result;
}

std::string Room(std::uint64_t length) {
  try {
    return std::string(length, '\0');
  } catch (const std::exception&) {
    throw RunError(ErrorNumber::OutOfMemory);
  }
}

std::string ReadBytes(int descriptor, std::uint64_t position, std::uint64_t length) {
  std::string bytes = Room(length);
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t count = Uninterrupted([&] {
      return pread(descriptor, bytes.data() + done, bytes.size() - done,
                   static_cast<off_t>(position + done));
    });
    if (count < 0) {
      ThrowErrno(errno);
    }
    if (count == 0) {
      break;
    }
    done += static_cast<std::size_t>(count);
  }
  bytes.resize(done);
  return bytes;
}

// 0 or errno.
int WriteBytes(int descriptor, std::uint64_t position, std::string_view bytes) {
  return WriteAll(position, bytes, [descriptor](std::string_view rest, std::uint64_t place) {
    return pwrite(descriptor, rest.data(), rest.size(), static_cast<off_t>(place));
  });
}

class PosixOpenFile final : public OpenFile {
 public:
  PosixOpenFile(FileHandle handle, OpenMode mode, std::uint64_t size)
      : handle_(std::move(handle)), mode_(mode), sizeAtFirst_(size) {}

  std::uint64_t Size() override {
    if (mode_ == OpenMode::Read) {
      return sizeAtFirst_;
    }
    struct stat status {};
    if (fstat(handle_.Descriptor(), &status) != 0) {
      ThrowErrno(errno);
    }
    return static_cast<std::uint64_t>(status.st_size);
  }

  std::string ReadAt(std::uint64_t position, std::size_t length) override {
    constexpr std::size_t tamed = std::size_t{1} << 16;
    constexpr std::uint64_t endOfAny = std::numeric_limits<off_t>::max();
    if (length > tamed) {
      // The size is asked first so that a wild length costs no memory.
      const std::uint64_t size = Size();
      length = static_cast<std::size_t>(
          std::min<std::uint64_t>(length, size - std::min(position, size)));
    }
    return position > endOfAny - tamed ? std::string()
                                       : ReadBytes(handle_.Descriptor(), position, length);
  }

  void WriteAt(std::uint64_t position, std::string_view bytes) override {
    const int error = WriteBytes(handle_.Descriptor(), position, bytes);
    if (error != 0) {
      ThrowErrno(error);
    }
  }

  void SetSize(std::uint64_t size) override {
    if (ftruncate(handle_.Descriptor(), static_cast<off_t>(size)) != 0) {
      ThrowErrno(errno);
    }
  }

  void Close() override {
    const int error = handle_.Close();
    if (error != 0) {
      ThrowErrno(error);
    }
  }

 private:
  FileHandle handle_;
  OpenMode mode_;
  std::uint64_t sizeAtFirst_;
};

}  // namespace

std::unique_ptr<OpenFile> MakeReadableFile(FileHandle handle, std::uint64_t size) {
  return std::make_unique<PosixOpenFile>(std::move(handle), OpenMode::Read, size);
}

std::string PosixFileSystem::ReadFileBytes(TextView path) {
  const auto file = OpenOrThrow(path, O_RDONLY);
  return ReadBytes(file.Handle.Descriptor(), 0, file.Size);
}

std::unique_ptr<OpenFile> PosixFileSystem::Open(TextView path, OpenMode mode) {
  auto file = OpenOrThrow(path, mode == OpenMode::Read ? O_RDONLY : O_RDWR);
  return std::make_unique<PosixOpenFile>(std::move(file.Handle), mode, file.Size);
}

std::unique_ptr<OpenFile> PosixFileSystem::OpenPlainFile(TextView path) {
  const auto bytes = BytesFromText(path);
  if (!bytes || IsHiddenPath(path)) {
    return nullptr;
  }
  auto file = OpenRegularFile(*bytes, O_RDONLY);
  if (!file.WasThere) {
    return nullptr;
  }
  if (!file.Handle.IsOpen()) {
    ThrowErrno(file.Error);
  }
  return MakeReadableFile(std::move(file.Handle), file.Size);
}

void PosixFileSystem::CreateFile(TextView path, std::string_view bytes) {
  const auto pathBytes = BytesFromText(path);
  if (!pathBytes) {
    throw RunError(ErrorNumber::BadFileName);
  }
  FileHandle file(
      open(pathBytes->c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644));
  if (!file.IsOpen()) {
    if (errno == ENOENT) {
      // The file was not meant to be there, so it is its folder that isn't.
      throw RunError(ErrorNumber::PathNotFound);
    }
    ThrowErrno(errno);
  }
  int error = WriteBytes(file.Descriptor(), 0, bytes);
  const int closeError = file.Close();
  error = error != 0 ? error : closeError;
  if (error != 0) {
    std::ignore = unlink(pathBytes->c_str());
    ThrowErrno(error);
  }
}

void PosixFileSystem::AppendToFile(TextView path, std::string_view bytes) {
  const auto pathBytes = BytesFromText(path);
  if (!pathBytes) {
    throw RunError(ErrorNumber::FileNotFound);
  }
  auto file = OpenKnownFile(*pathBytes, O_WRONLY | O_APPEND | O_NOFOLLOW);
  if (!file.Handle.IsOpen()) {
    ThrowErrno(file.Error);
  }
  const int descriptor = file.Handle.Descriptor();
  const auto oldSize = static_cast<off_t>(file.Size);
  const ssize_t count =
      Uninterrupted([&] { return write(descriptor, bytes.data(), bytes.size()); });
  if (count != static_cast<ssize_t>(bytes.size())) {
    // The system says why only if nothing at all was written; a part means that there was no room.
    const int error = count < 0 ? errno : ENOSPC;
    std::ignore = ftruncate(descriptor, oldSize);
    ThrowErrno(error);
  }
  const int error = file.Handle.Close();
  if (error != 0) {
    std::ignore = truncate(pathBytes->c_str(), oldSize);
    ThrowErrno(error);
  }
}

}  // namespace vorlane
