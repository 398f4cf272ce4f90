#include "preview/time_estimate.h"

#include <cmath>

namespace vorlane {

TimeEstimate::TimeEstimate(std::int32_t rows) : rows_(rows) {
  if (rows > 50) {
    // A tenth of the rows; halves go to the even number.
    times_.resize(static_cast<std::size_t>(std::nearbyint(rows / 10.0)));
  }
}

std::int32_t TimeEstimate::SecondsLeft(std::int32_t row, std::int32_t duration) {
  std::int32_t& slot = times_[count_ % times_.size()];
  sum_ += duration - slot;
  slot = duration;
  ++count_;
  const auto samples =
      count_ >= times_.size() ? static_cast<double>(times_.size()) : static_cast<double>(row);
  const double average = std::nearbyint(static_cast<double>(sum_) / samples);
  return static_cast<std::int32_t>(std::nearbyint(average * (rows_ - row) / 1000));
}

}  // namespace vorlane
