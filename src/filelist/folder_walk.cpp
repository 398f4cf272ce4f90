#include "filelist/folder_walk.h"

#include <algorithm>
#include <numeric>

#include "platform/letter_case.h"

namespace vorlane {

namespace {

void SortAsTheListDoes(std::vector<FolderEntry>& entries) {
  std::vector<Text> keys;
  keys.reserve(entries.size());
  for (const FolderEntry& entry : entries) {
    keys.push_back(FoldCase(entry.Name));
  }
  std::vector<std::size_t> order(entries.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    const int compared = keys[a].compare(keys[b]);
    return compared == 0 ? entries[a].Name < entries[b].Name : compared < 0;
  });
  std::vector<FolderEntry> sorted;
  sorted.reserve(entries.size());
  for (const std::size_t place : order) {
    sorted.push_back(std::move(entries[place]));
  }
  entries = std::move(sorted);
}

}  // namespace

std::vector<FolderEntry> FolderWalk::EntriesOf(const Text& folder) {
  std::vector<FolderEntry> entries;
  Attempt([&] { entries = services_.Files.ListFolder(folder); });
  return entries;
}

void FolderWalk::TakeEntries(std::vector<FolderEntry>& entries, const Text& folder) {
  SortAsTheListDoes(entries);
  for (const FolderEntry& entry : entries) {
    if (entry.Status.Kind == EntryKind::Folder) {
      TakeFolder(entry, folder);
    } else if (entry.Status.Kind == EntryKind::File) {
      TakeFile(entry, folder);
    }
  }
}

void FolderWalk::TakeFolder(const FolderEntry& entry, const Text& folder) {
  if (includeSubFolders_ && !entry.IsLink && IsFirstVisit(entry.Identity)) {
    queue_.push_back(folder + entry.Name + Separator(form_.Paths));
  }
  if (listFolders_ && !entry.Status.Hidden) {
    Record(entry, folder);
  }
}

void FolderWalk::TakeFile(const FolderEntry& entry, const Text& folder) {
  if (listFolders_ || entry.Status.Hidden) {
    return;
  }
  totals_.Size += static_cast<std::int32_t>(static_cast<std::uint32_t>(entry.Status.Size));
  Record(entry, folder);
}

void FolderWalk::Record(const FolderEntry& entry, const Text& folder) {
  ++totals_.Entries;
  found_.push_back({entry.Name, form_.Rows.IdOf(folder), entry.Status.ReadOnly});
}

void FolderWalk::Begin(TextView folder) {
  queue_.push_back(EnsureTrailingSeparator(folder, form_.Paths));
  if (const auto identity = services_.Files.IdentityOf(queue_.front())) {
    IsFirstVisit(*identity);
  }
}

bool FolderWalk::IsFirstVisit(const FileIdentity& identity) {
  return visited_.insert(identity).second;
}

}  // namespace vorlane
