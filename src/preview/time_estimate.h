// How long a preview will still take, from the recent speed: the durations of a tenth of the rows
// are kept in a ring.
#pragma once

#include <cstdint>
#include <vector>

namespace vorlane {

class TimeEstimate {
 public:
  // For a pass over `rows` rows. Lists of 50 rows or fewer get no estimate.
  explicit TimeEstimate(std::int32_t rows);

  bool IsWanted() const { return !times_.empty(); }

  // Adds the duration of a row in milliseconds; `row` is its number. Returns the seconds that the
  // rows after it are expected to take.
  std::int32_t SecondsLeft(std::int32_t row, std::int32_t duration);

 private:
  std::int32_t rows_;
  std::vector<std::int32_t> times_;
  std::size_t count_ = 0;
  std::int64_t sum_ = 0;  // of what the ring holds, or of all rows so far while it isn't full
};

}  // namespace vorlane
