#include "preview/used_numbers.h"

#include <numeric>

#include "platform/failure.h"

namespace vorlane {

void UsedNumbers::Reset(std::int32_t upperBound) {
  const auto slots = static_cast<std::size_t>(upperBound) + 1;
  // One more than there are slots, for the last of them to lead to.
  if (next_.size() != slots + 1) {
    next_.resize(slots + 1);
    std::iota(next_.begin(), next_.end(), 0);
  } else {
    for (const std::int32_t slot : taken_) {
      next_[static_cast<std::size_t>(slot)] = slot;
    }
  }
  taken_.clear();
}

void UsedNumbers::Take(std::int32_t number) {
  if (number < 1 || static_cast<std::size_t>(number) >= next_.size()) {
    throw RunError(ErrorNumber::SubscriptOutOfRange);
  }
  const std::int32_t slot = number - 1;
  if (next_[static_cast<std::size_t>(slot)] == slot) {
    next_[static_cast<std::size_t>(slot)] = number;
    taken_.push_back(slot);
  }
}

std::int32_t UsedNumbers::NextFreeAutoNumber(std::int32_t number) {
  const auto upperBound = static_cast<std::int32_t>(next_.size()) - 2;
  if (number >= upperBound) {
    return 1;
  }
  std::int32_t free = number;
  while (next_[static_cast<std::size_t>(free)] != free) {
    free = next_[static_cast<std::size_t>(free)];
  }
  for (std::int32_t slot = number; slot != free;) {  // the next search takes the short way
    const std::int32_t after = next_[static_cast<std::size_t>(slot)];
    next_[static_cast<std::size_t>(slot)] = free;
    slot = after;
  }
  return free < upperBound ? free + 1 : 1;
}

}  // namespace vorlane
