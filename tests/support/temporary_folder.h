// A folder of a test's own, removed with all that it holds when the test ends.
#pragma once

#include <map>
#include <string>

#include "platform/text.h"

namespace vorlane {

class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  // With a trailing separator.
  const std::string& Path() const { return path_; }
  Text TextPath() const;

  // Makes a file with these bytes, and the folders above it; the name may hold "/".
  void Write(const std::string& name, const std::string& bytes = "") const;
  void MakeFolder(const std::string& name) const;
  std::string Read(const std::string& name) const;
  bool Exists(const std::string& name) const;

  // Every file below, by its path from here, with its bytes; a folder ends in "/" and has none; a
  // link ends in "@" and has its target; any other kind ends in "|".
  std::map<std::string, std::string> Contents() const;

 private:
  std::string path_;
};

}  // namespace vorlane
