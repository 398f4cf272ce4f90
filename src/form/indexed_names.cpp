#include "form/indexed_names.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "platform/failure.h"
#include "platform/letter_case.h"

namespace vorlane {

namespace {
constexpr std::uint64_t NeverRefreshed = ~std::uint64_t{0};
}

std::uint64_t IndexedNames::KeyOf(TextView name, FolderId folder) {
  return HashIgnoringCase(name) ^ (std::uint64_t{folder} * 0x9E3779B97F4A7C15ULL);
}

void IndexedNames::Assign(std::vector<Text> names) {
  names_ = std::move(names);
  chains_.clear();
  links_.clear();
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
  const std::int32_t count = std::min(Count(), rows.Count());
  links_.resize(static_cast<std::size_t>(count));
  chains_.assign(std::bit_ceil(links_.size() + 1), NoSlot);
  for (std::int32_t slot = 0; slot < count; ++slot) {
    links_[static_cast<std::size_t>(slot)].Folder = rows.At(slot + 1).Folder;
    Insert(slot);
  }
}

bool IndexedNames::IsIndexed(std::int32_t slot) const {
  const auto place = static_cast<std::size_t>(slot);
  return place < links_.size() && !names_[place].empty();
}

void IndexedNames::Insert(std::int32_t slot) {
  if (!IsIndexed(slot)) {
    return;
  }
  const auto place = static_cast<std::size_t>(slot);
  SlotLink& link = links_[place];
  link.Key = KeyOf(names_[place], link.Folder);
  std::int32_t& first = chains_[link.Key & (chains_.size() - 1)];
  link.Next = std::exchange(first, slot);
}

void IndexedNames::Remove(std::int32_t slot) {
  if (!IsIndexed(slot)) {
    return;
  }
  const SlotLink& link = Link(slot);
  std::int32_t* leading = &chains_[link.Key & (chains_.size() - 1)];
  while (*leading != slot) {
    leading = &links_[static_cast<std::size_t>(*leading)].Next;
  }
  *leading = link.Next;
}

bool IndexedNames::Holds(std::int32_t slot, TextView name, FolderId folder) const {
  return Link(slot).Folder == folder &&
         EqualIgnoringCase(names_[static_cast<std::size_t>(slot)], name);
}

}  // namespace vorlane
