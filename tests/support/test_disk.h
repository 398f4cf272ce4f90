// A folder on some kind of disk, so that one test can run on all of them.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/file_system.h"

namespace vorlane {

// Names are relative to the disk's folder and may hold "/" on any disk.
class TestDisk {
 public:
  virtual ~TestDisk() = default;

  virtual FileSystem& Files() = 0;

  // The full path of a name. Of no name: the folder with its separator.
  virtual Text Path(TextView name = {}) const = 0;

  virtual void MakeLink(TextView name, TextView target) = 0;
  virtual void MakeHardLink(TextView name, TextView existing) = 0;
  // Neither file nor folder.
  virtual void MakeOther(TextView name) = 0;
  virtual void SetReadOnly(TextView name) = 0;

  // All that is there, as TemporaryFolder and MemoryFileSystem tell it; with "/" on any disk.
  virtual std::map<std::string, std::string> Contents() const = 0;

  virtual bool IgnoresCase() const { return false; }

  // Makes a file.
  void Write(TextView name, std::string_view bytes = {}) { Files().CreateFile(Path(name), bytes); }
  void MakeFolder(TextView name) { Files().CreateFolder(Path(name)); }
};

// The disk of this machine.
std::unique_ptr<TestDisk> MakeRealDisk();
// The same as if the kernel could not rename without replacing.
std::unique_ptr<TestDisk> MakeRealDiskWithoutAtomicRename();
// The same as if there were no hard links either.
std::unique_ptr<TestDisk> MakeRealDiskWithoutLinks();

std::unique_ptr<TestDisk> MakeMemoryDisk();
std::unique_ptr<TestDisk> MakeMemoryDiskIgnoringCase();
std::unique_ptr<TestDisk> MakeWindowsMemoryDisk();

}  // namespace vorlane
