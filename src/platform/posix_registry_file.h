// The registry's file on the disk of a POSIX system.
#pragma once

#include <chrono>
#include <string>

#include "platform/registry_file.h"
#include "platform/text.h"

namespace vorlane {

// A change is written to a new file beside the old one and renamed over it. It is on its way to the
// disk by then; waiting until it is there would take several milliseconds, at each key that is
// pressed in a remembered box, so that is done once, when this object's life ends. A lock on a
// third file, NAME.lock, keeps other programs out from the reading to the renaming; it ends with
// the program that holds it, however that ends. The folder is made when it is needed. A file that
// can't be read or isn't writable is never replaced, and a link leads to the file that is.
class PosixRegistryFile final : public RegistryFile {
 public:
  // `patience` is how long a change waits for a program that holds the lock.
  explicit PosixRegistryFile(TextView path,
                             std::chrono::milliseconds patience = std::chrono::seconds(1));
  ~PosixRegistryFile() override;
  PosixRegistryFile(const PosixRegistryFile&) = delete;
  PosixRegistryFile& operator=(const PosixRegistryFile&) = delete;

  std::optional<RegistryBytes> ReadUnless(const std::optional<FileStamp>& known) override;

  bool Update(const Change& change) override;

 private:
  std::string path_;  // empty if no file can have that path
  std::chrono::milliseconds patience_;
  bool changed_ = false;
};

}  // namespace vorlane
