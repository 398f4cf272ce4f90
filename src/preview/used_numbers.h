// Which automatic numbers are taken in the folder in hand.
#pragma once

#include <cstdint>
#include <vector>

namespace vorlane {

class UsedNumbers {
 public:
  // All numbers free again; slots 0 to `upperBound`.
  void Reset(std::int32_t upperBound);

  // A number past the slots is a failure (RunError 9).
  void Take(std::int32_t number);

  // The first free number above `number`, looked for up to the slot before the last; 1 if there is
  // none. Cost: constant over a run of rising numbers, since taken ones aren't looked at twice.
  std::int32_t NextFreeAutoNumber(std::int32_t number);

 private:
  std::vector<std::uint8_t> used_;  // slot n - 1 is 1 if the number n is taken
  std::int32_t firstFree_ = 1;      // all slots from 1 up to this one are taken
};

}  // namespace vorlane
