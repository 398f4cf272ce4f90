#include "support/temporary_folder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace vorlane {
namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
  std::string pattern = (fs::temp_directory_path() / "vorlane-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) {
    throw std::runtime_error("no temporary folder");
  }
  path_ = pattern + "/";
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

Text TemporaryFolder::TextPath() const {
  return AsciiText(path_);
}

void TemporaryFolder::Write(const std::string& name, const std::string& bytes) const {
  const fs::path path = path_ + name;
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

void TemporaryFolder::MakeFolder(const std::string& name) const {
  fs::create_directories(path_ + name);
}

std::string TemporaryFolder::Read(const std::string& name) const {
  std::ifstream file(path_ + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

bool TemporaryFolder::Exists(const std::string& name) const {
  return fs::exists(fs::symlink_status(path_ + name));
}

std::map<std::string, std::string> TemporaryFolder::Contents() const {
  std::map<std::string, std::string> contents;
  for (const auto& entry : fs::recursive_directory_iterator(path_)) {
    const std::string name = entry.path().string().substr(path_.size());
    if (entry.is_symlink()) {
      contents[name + "@"] = fs::read_symlink(entry.path()).string();
    } else if (entry.is_directory()) {
      contents[name + "/"] = "";
    } else if (entry.is_regular_file()) {
      contents[name] = Read(name);
    } else {
      contents[name + "|"] = "";
    }
  }
  return contents;
}

}  // namespace vorlane
