#include "preview/used_numbers.h"

#include <algorithm>

#include "platform/failure.h"

namespace vorlane {

void UsedNumbers::Reset(std::int32_t upperBound) {
  used_.assign(static_cast<std::size_t>(upperBound) + 1, 0);
  firstFree_ = 1;
}

void UsedNumbers::Take(std::int32_t number) {
  if (number < 1 || static_cast<std::size_t>(number) > used_.size()) {
    throw RunError(ErrorNumber::SubscriptOutOfRange);
  }
  used_[static_cast<std::size_t>(number) - 1] = 1;
}

std::int32_t UsedNumbers::NextFreeAutoNumber(std::int32_t number) {
  const auto end = static_cast<std::int32_t>(used_.size()) - 1;
  while (firstFree_ < end && used_[static_cast<std::size_t>(firstFree_)] != 0) {
    ++firstFree_;
  }
  for (std::int32_t slot = std::max(number, firstFree_); slot < end; ++slot) {
    if (used_[static_cast<std::size_t>(slot)] == 0) {
      return slot + 1;
    }
  }
  return 1;
}

}  // namespace vorlane
