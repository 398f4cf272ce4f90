// The time of day and a millisecond counter, asked for through a seam so that tests can set both.
#pragma once

#include <cstdint>

#include "platform/dates.h"

namespace vorlane {

class Clock {
 public:
  virtual ~Clock() = default;

  // Counts up steadily from an arbitrary start.
  virtual std::uint64_t Milliseconds() = 0;

  // The local date and time.
  virtual DateTime Now() = 0;
};

class SystemClock final : public Clock {
 public:
  std::uint64_t Milliseconds() override;
  DateTime Now() override;
};

}  // namespace vorlane
