// Collects the entries of a folder and, if asked, of the folders below it.
//
// The walk is breadth first: a folder's own entries, then those of its sub-folders in the order in
// which they were met, then the next level. The entries of one folder come in the order in which
// the list sorts, so that the result doesn't depend on the disk. Hidden entries aren't found, but
// hidden folders are walked. A link counts as what it leads to; a link to a folder isn't walked,
// nor is a folder that was walked before. A folder that can't be read contributes nothing.
#pragma once

#include <cstdint>
#include <deque>
#include <unordered_set>
#include <vector>

#include "form/form.h"
#include "platform/failure.h"

namespace vorlane {

struct FoundEntry {
  Text Name;
  FolderId Folder = 0;
  bool ReadOnly = false;
};

struct WalkTotals {
  std::int64_t Size = 0;  // of the files; each counts with the low 32 bits of its size, signed
  std::int32_t Entries = 0;
  std::int32_t Folders = 0;  // read below the first one
};

class FolderWalk {
 public:
  FolderWalk(Form& form, Services& services, bool includeSubFolders, bool listFolders)
      : form_(form),
        services_(services),
        includeSubFolders_(includeSubFolders),
        listFolders_(listFolders) {}

  // Reads `folder` and what follows from it. Yields once for each folder, between reading and
  // sorting it, the two that take long in a large one. Ends early when `isStopped` says so; the
  // form is left alone from then on. Cost: linear in the entries, apart from the sorts.
  template <typename IsStopped>
  WalkTotals SearchFolders(TextView folder, IsStopped&& isStopped) {
    Begin(folder);
    SearchOneFolder(isStopped);
    while (!queue_.empty() && !isStopped()) {
      ++totals_.Folders;
      SearchOneFolder(isStopped);
    }
    return totals_;
  }

  std::vector<FoundEntry>& Found() { return found_; }

 private:
  template <typename IsStopped>
  void SearchOneFolder(IsStopped& isStopped) {
    const Text folder = std::move(queue_.front());
    queue_.pop_front();
    std::vector<FolderEntry> entries = EntriesOf(folder);
    Attempt([&] { services_.Loop.Yield(); });
    if (!isStopped()) {
      TakeEntries(entries, folder);
    }
  }

  void Begin(TextView folder);
  std::vector<FolderEntry> EntriesOf(const Text& folder);
  void TakeEntries(std::vector<FolderEntry>& entries, const Text& folder);
  void TakeFolder(const FolderEntry& entry, const Text& folder);
  void TakeFile(const FolderEntry& entry, const Text& folder);
  void Record(const FolderEntry& entry, const Text& folder);
  bool IsFirstVisit(const FileIdentity& identity);

  Form& form_;
  Services& services_;
  const bool includeSubFolders_;
  const bool listFolders_;
  std::deque<Text> queue_;
  std::vector<FoundEntry> found_;
  WalkTotals totals_;

  struct IdentityHash {
    std::size_t operator()(const FileIdentity& identity) const {
      return static_cast<std::size_t>(identity.Device * 1099511628211ULL ^ identity.Number);
    }
  };
  std::unordered_set<FileIdentity, IdentityHash> visited_;
};

}  // namespace vorlane
