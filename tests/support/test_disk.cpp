#include "support/test_disk.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <stdexcept>

#include "platform/file_name_bytes.h"
#include "platform/posix_file_system.h"
#include "support/memory_file_system.h"
#include "support/temporary_folder.h"

namespace vorlane {

namespace {

class WithoutAtomicRename : public PosixFileSystem {
  int AtomicRename(const char*, const char*) override { return EINVAL; }
};

class WithoutLinks final : public WithoutAtomicRename {
  int HardLink(const char*, const char*) override { return EPERM; }
};

void Require(int result) {
  if (result != 0) {
    throw std::runtime_error("the disk can't be prepared");
  }
}

template <typename RealFileSystem>
class RealDisk final : public TestDisk {
 public:
  FileSystem& Files() override { return files_; }
  Text Path(TextView name) const override { return folder_.TextPath() + Text(name); }
  void MakeLink(TextView name, TextView target) override {
    Require(symlink(BytesFromText(target)->c_str(), Bytes(name).c_str()));
  }
  void MakeHardLink(TextView name, TextView existing) override {
    Require(link(Bytes(existing).c_str(), Bytes(name).c_str()));
  }
  void MakeOther(TextView name) override { Require(mkfifo(Bytes(name).c_str(), 0644)); }
  void SetReadOnly(TextView name) override { Require(chmod(Bytes(name).c_str(), 0555)); }
  std::map<std::string, std::string> Contents() const override { return folder_.Contents(); }

 private:
  std::string Bytes(TextView name) const { return *BytesFromText(Path(name)); }

  TemporaryFolder folder_;
  RealFileSystem files_;
};

class MemoryDisk final : public TestDisk {
 public:
  MemoryDisk(PathStyle style, LetterCase letterCase)
      : style_(style), letterCase_(letterCase), files_(style, letterCase) {
    files_.MakeFolder(folder_);
  }

  FileSystem& Files() override { return files_; }
  Text Path(TextView name) const override { return folder_ + Native(name); }
  void MakeLink(TextView name, TextView target) override {
    files_.MakeLink(Path(name), Native(target));
  }
  void MakeHardLink(TextView name, TextView existing) override {
    files_.MakeHardLink(Path(name), Path(existing));
  }
  void MakeOther(TextView name) override { files_.MakeOther(Path(name)); }
  void SetReadOnly(TextView name) override { files_.SetReadOnly(Path(name)); }
  std::map<std::string, std::string> Contents() const override {
    std::map<std::string, std::string> contents;
    for (const auto& [name, bytes] : files_.Contents(folder_)) {
      std::string portable = name;
      std::replace(portable.begin(), portable.end(), static_cast<char>(Separator(style_)), '/');
      contents[portable] = bytes;
    }
    return contents;
  }
  bool IgnoresCase() const override { return letterCase_ == LetterCase::Ignored; }

 private:
  Text Native(TextView name) const {
    Text text(name);
    std::replace(text.begin(), text.end(), u'/', Separator(style_));
    return text;
  }

  PathStyle style_;
  LetterCase letterCase_;
  MemoryFileSystem files_;
  Text folder_ = style_ == PathStyle::Windows ? u"C:\\Test\\" : u"/test/";
};

}  // namespace

std::unique_ptr<TestDisk> MakeRealDisk() {
  return std::make_unique<RealDisk<PosixFileSystem>>();
}

std::unique_ptr<TestDisk> MakeRealDiskWithoutAtomicRename() {
  return std::make_unique<RealDisk<WithoutAtomicRename>>();
}

std::unique_ptr<TestDisk> MakeRealDiskWithoutLinks() {
  return std::make_unique<RealDisk<WithoutLinks>>();
}

std::unique_ptr<TestDisk> MakeMemoryDisk() {
  return std::make_unique<MemoryDisk>(PathStyle::Posix, LetterCase::Matters);
}

std::unique_ptr<TestDisk> MakeMemoryDiskIgnoringCase() {
  return std::make_unique<MemoryDisk>(PathStyle::Posix, LetterCase::Ignored);
}

std::unique_ptr<TestDisk> MakeWindowsMemoryDisk() {
  return std::make_unique<MemoryDisk>(PathStyle::Windows, LetterCase::Ignored);
}

}  // namespace vorlane
