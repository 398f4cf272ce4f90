// Which automatic numbers are taken in the folder in hand.
#pragma once

#include <cstdint>
#include <vector>

namespace vorlane {

class UsedNumbers {
 public:
  // All numbers free again; slots 0 to `upperBound`. Cost: the numbers taken since the last time.
  void Reset(std::int32_t upperBound);

  // A number past the slots is a failure (RunError 9).
  void Take(std::int32_t number);

  // The first free number above `number`, looked for up to the slot before the last; 1 if there is
  // none. Cost: next to constant, since runs of taken numbers are stepped over as one.
  std::int32_t NextFreeAutoNumber(std::int32_t number);

 private:
  // Slot n - 1 stands for the number n. A free slot leads to itself, a taken one to a later slot
  // that no free one lies before.
  std::vector<std::int32_t> next_;
  std::vector<std::int32_t> taken_;
};

}  // namespace vorlane
