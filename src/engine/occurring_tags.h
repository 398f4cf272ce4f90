// Which tags of a list occur in a text, found in one go: the lists are long, the codes short, and
// most tags of a list don't occur at all.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "platform/text.h"

namespace vorlane {

// Looks for the tags of a list of entries, of which `tag` is the member that holds the tag. Every
// tag begins with "<" and an ASCII character. The list has to outlive the finder.
template <typename Entry, std::size_t Count>
class TagFinder {
 public:
  static_assert(Count <= 32);

  constexpr TagFinder(const std::array<Entry, Count>& entries, TextView Entry::*tag)
      : entries_(entries), tag_(tag) {
    for (std::size_t i = 0; i < Count; ++i) {
      candidates_[(entries[i].*tag)[1]] |= std::uint32_t{1} << i;
    }
  }

  // Bit i is set if the tag of entry i occurs.
  std::uint32_t Occurring(TextView text) const {
    std::uint32_t occurring = 0;
    for (auto at = text.find(u'<'); at != TextView::npos; at = text.find(u'<', at + 1)) {
      const TextView rest = text.substr(at);
      std::uint32_t candidates =
          rest.size() > 1 && rest[1] < candidates_.size() ? candidates_[rest[1]] : 0;
      for (; candidates != 0; candidates &= candidates - 1) {
        const int i = std::countr_zero(candidates);
        if (rest.starts_with(entries_[static_cast<std::size_t>(i)].*tag_)) {
          occurring |= std::uint32_t{1} << i;
        }
      }
    }
    return occurring;
  }

 private:
  const std::array<Entry, Count>& entries_;
  TextView Entry::*tag_;
  std::array<std::uint32_t, 128> candidates_ = {};  // by the tag's second character
};

}  // namespace vorlane
