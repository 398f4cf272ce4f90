// The small file that holds a user's settings, as several running programs share it: read by one
// look at a stamp, changed by all of them one after the other.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vorlane {

// Tells one state of the file from another.
struct FileStamp {
  bool Exists = false;
  std::int64_t Modified = 0;  // nanoseconds
  std::uint64_t Size = 0;
  std::uint64_t Number = 0;  // inode, or what stands for it

  bool operator==(const FileStamp&) const = default;
};

struct RegistryBytes {
  std::string Bytes;  // empty if there is no file, or it can't be read
  FileStamp Stamp;
};

class RegistryFile {
 public:
  virtual ~RegistryFile() = default;

  // What the file holds; nothing if it still has the stamp that is known.
  virtual std::optional<RegistryBytes> ReadUnless(const std::optional<FileStamp>& known) = 0;

  // Gets the bytes that the file holds (none if there is no file) and returns those that it is to
  // hold, or nothing if it is to stay as it is.
  using Change = std::function<std::optional<std::string>(std::string_view bytes)>;

  // Runs the change while no other program can make one, and saves its result. Another program
  // sees the file as it was before or as it is after, never a part of it. False if the file
  // couldn't be locked, read or saved: it is then as it was.
  virtual bool Update(const Change& change) = 0;
};

}  // namespace vorlane
