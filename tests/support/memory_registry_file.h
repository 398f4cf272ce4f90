// The registry's file in memory: counts how often it is read, and can refuse.
#pragma once

#include <string>

#include "platform/registry_file.h"

namespace vorlane {

class MemoryRegistryFile final : public RegistryFile {
 public:
  std::optional<RegistryBytes> ReadUnless(const std::optional<FileStamp>& known) override {
    if (known == stamp_) {
      return std::nullopt;
    }
    ++Reads;
    return RegistryBytes{bytes_, stamp_};
  }

  bool Update(const Change& change) override {
    if (Denied) {
      return false;
    }
    if (const auto changed = change(bytes_)) {
      Set(*changed);
      ++Saves;
    }
    return true;
  }

  // As another program or a person changes it.
  void Set(std::string bytes) {
    bytes_ = std::move(bytes);
    stamp_ = {true, stamp_.Modified + (StampStands ? 0 : 1), bytes_.size(), 1};
  }
  const std::string& Bytes() const { return bytes_; }

  bool Denied = false;
  bool StampStands = false;  // changes follow each other faster than a stamp can tell
  int Reads = 0;
  int Saves = 0;

 private:
  std::string bytes_;
  FileStamp stamp_;
};

}  // namespace vorlane
