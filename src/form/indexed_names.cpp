#include "form/indexed_names.h"

#include "platform/failure.h"
#include "platform/letter_case.h"

namespace vorlane {

namespace {
constexpr std::uint64_t NeverRefreshed = ~std::uint64_t{0};
}

std::uint64_t IndexedNames::KeyOf(TextView name, FolderId folder) {
  // FNV-1a over the folded units.
  std::uint64_t hash = 14695981039346656037ULL ^ folder;
  for (const char16_t unit : name) {
    hash = (hash ^ UpperCase(unit)) * 1099511628211ULL;
  }
  return hash;
}

void IndexedNames::Assign(std::vector<Text> names) {
  names_ = std::move(names);
  folders_.clear();
  slotsByKey_.clear();
  generation_ = NeverRefreshed;
}

void IndexedNames::Set(std::int32_t slot, TextView name) {
  if (slot < 0 || slot >= Count()) {
    throw RunError(ErrorNumber::SubscriptOutOfRange);
  }
  Remove(slot);
  names_[static_cast<std::size_t>(slot)] = name;
  Insert(slot);
}

void IndexedNames::Refresh(const FileRows& rows) {
  if (generation_ == rows.Generation()) {
    return;
  }
  generation_ = rows.Generation();
  slotsByKey_.clear();
  folders_.resize(static_cast<std::size_t>(std::min(Count(), rows.Count())));
  slotsByKey_.reserve(folders_.size());
  for (std::int32_t slot = 0; slot < static_cast<std::int32_t>(folders_.size()); ++slot) {
    folders_[static_cast<std::size_t>(slot)] = rows.At(slot + 1).Folder;
    Insert(slot);
  }
}

void IndexedNames::Insert(std::int32_t slot) {
  const auto place = static_cast<std::size_t>(slot);
  if (place < folders_.size() && !names_[place].empty()) {
    slotsByKey_.emplace(KeyOf(names_[place], folders_[place]), slot);
  }
}

void IndexedNames::Remove(std::int32_t slot) {
  const auto place = static_cast<std::size_t>(slot);
  if (place >= folders_.size() || names_[place].empty()) {
    return;
  }
  const auto [first, last] = slotsByKey_.equal_range(KeyOf(names_[place], folders_[place]));
  const auto found =
      std::find_if(first, last, [slot](const auto& entry) { return entry.second == slot; });
  if (found != last) {
    slotsByKey_.erase(found);
  }
}

bool IndexedNames::Holds(std::int32_t slot, TextView name, FolderId folder) const {
  const auto place = static_cast<std::size_t>(slot);
  return folders_[place] == folder && EqualIgnoringCase(names_[place], name);
}

}  // namespace vorlane
