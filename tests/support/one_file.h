// A file system of one file at any path, which notes how it is read and can run out of memory.
#pragma once

#include <algorithm>
#include <new>
#include <stdexcept>
#include <string>

#include "platform/file_system.h"

namespace vorlane {

class OneFile final : public FileSystem {
 public:
  explicit OneFile(std::string bytes) : Bytes(std::move(bytes)) {}

  std::string Bytes;
  std::size_t LargestRead = static_cast<std::size_t>(-1);  // a longer one runs out of memory
  std::size_t Opened = 0;
  std::size_t Reads = 0;
  std::size_t ReadUpTo = 0;  // the end of the furthest read

  EntryStatus StatusOf(TextView) override { return {EntryKind::File, false, false, Bytes.size()}; }

  std::unique_ptr<OpenFile> Open(TextView, OpenMode) override {
    ++Opened;
    return std::make_unique<Handle>(*this);
  }

  bool NameExists(TextView) override { throw std::logic_error("NameExists"); }
  std::optional<FileIdentity> IdentityOf(TextView) override {
    throw std::logic_error("IdentityOf");
  }
  std::vector<FolderEntry> ListFolder(TextView) override { throw std::logic_error("ListFolder"); }
  std::vector<Text> ListNames(TextView) override { throw std::logic_error("ListNames"); }
  std::optional<FileTimes> TimesOf(TextView) override { throw std::logic_error("TimesOf"); }
  EntryUse UseOf(TextView) override { throw std::logic_error("UseOf"); }
  std::string ReadFileBytes(TextView) override { throw std::logic_error("ReadFileBytes"); }
  RenameOutcome RenameNoReplace(TextView, TextView) override { throw std::logic_error("Rename"); }
  bool CreateFolder(TextView) override { throw std::logic_error("CreateFolder"); }
  bool RemoveFolder(TextView) override { throw std::logic_error("RemoveFolder"); }
  void CreateFile(TextView, std::string_view) override { throw std::logic_error("CreateFile"); }
  void AppendToFile(TextView, std::string_view) override { throw std::logic_error("Append"); }
  bool RemoveFile(TextView) override { throw std::logic_error("RemoveFile"); }

 private:
  class Handle final : public OpenFile {
   public:
    explicit Handle(OneFile& owner) : owner_(owner) {}
    std::uint64_t Size() override { return owner_.Bytes.size(); }
    std::string ReadAt(std::uint64_t position, std::size_t length) override {
      if (length > owner_.LargestRead) {
        throw std::bad_alloc();
      }
      ++owner_.Reads;
      owner_.ReadUpTo =
          std::max(owner_.ReadUpTo,
                   std::min(owner_.Bytes.size(), static_cast<std::size_t>(position) + length));
      return owner_.Bytes.substr(std::min<std::size_t>(position, owner_.Bytes.size()), length);
    }
    void WriteAt(std::uint64_t, std::string_view) override { throw std::logic_error("WriteAt"); }
    void SetSize(std::uint64_t) override { throw std::logic_error("SetSize"); }
    void Close() override { throw std::logic_error("Close"); }

   private:
    OneFile& owner_;
  };
};

}  // namespace vorlane
