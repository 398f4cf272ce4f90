// An array of names that can tell quickly where a name stands, without regard to case and only
// among rows of one folder. It answers what the rules describe as a search through all slots.
#pragma once

#include <cstdint>
#include <vector>

#include "form/file_rows.h"
#include "platform/text.h"

namespace vorlane {

// Slots count from 0. Slot K belongs to row K + 1, whichever row stands there now; slots without a
// row (there may be more slots than rows) are never found.
class IndexedNames {
 public:
  std::int32_t Count() const { return static_cast<std::int32_t>(names_.size()); }
  const Text& operator[](std::int32_t slot) const { return names_[static_cast<std::size_t>(slot)]; }

  // Replaces all names. The index is built at the next Refresh.
  void Assign(std::vector<Text> names);

  // Writes one slot; a slot outside the array is a failure (RunError 9).
  void Set(std::int32_t slot, TextView name);

  // Brings the index up to the rows' present order. Cheap if no row has moved since.
  // Cost otherwise: linear in the slots.
  void Refresh(const FileRows& rows);

  // Calls `visit` with each slot that holds the name and whose row lies in that folder, in no
  // particular order, until it returns true. True if it did. Needs a Refresh since rows last moved.
  template <typename Visit>
  bool AnySlot(std::uint64_t key, TextView name, FolderId folder, Visit&& visit) const {
    for (std::int32_t slot = FirstOf(key); slot != NoSlot; slot = Link(slot).Next) {
      if (Link(slot).Key == key && Holds(slot, name, folder) && visit(slot)) {
        return true;
      }
    }
    return false;
  }

  // The key to pass to AnySlot; one computation serves several arrays.
  static std::uint64_t KeyOf(TextView name, FolderId folder);

 private:
  static constexpr std::int32_t NoSlot = -1;

  // What the index knows of a slot.
  struct SlotLink {
    std::uint64_t Key = 0;
    FolderId Folder = 0;         // of the slot's row
    std::int32_t Next = NoSlot;  // in the slot's chain
  };

  const SlotLink& Link(std::int32_t slot) const { return links_[static_cast<std::size_t>(slot)]; }
  std::int32_t FirstOf(std::uint64_t key) const {
    return chains_.empty() ? NoSlot : chains_[key & (chains_.size() - 1)];
  }
  bool IsIndexed(std::int32_t slot) const;
  bool Holds(std::int32_t slot, TextView name, FolderId folder) const;
  void Insert(std::int32_t slot);
  void Remove(std::int32_t slot);

  std::vector<Text> names_;
  std::uint64_t generation_ = ~std::uint64_t{0};

  // The index is a hash table whose chains run through the slots, so that neither building it nor
  // a change takes memory for each name.
  std::vector<std::int32_t> chains_;  // the first slot of each; their number is a power of two
  std::vector<SlotLink> links_;       // of the slots that had a row at the last Refresh
};

}  // namespace vorlane
