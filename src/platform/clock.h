// The time of day and a millisecond counter, asked for through a seam so that tests can set both.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/dates.h"

namespace vorlane {

class Clock {
 public:
  virtual ~Clock() = default;

  // Counts up steadily from an arbitrary start.
  virtual std::uint64_t Milliseconds() = 0;

  // The local date and time, whole seconds.
  virtual DateTime Now() = 0;
};

// The local date and time of a moment given in seconds since 1970-01-01 UTC, with the offset from
// UTC that holds at that moment. Nothing if the year is outside 100 to 9999.
std::optional<DateTime> LocalDateTime(std::int64_t unixSeconds);

class SystemClock final : public Clock {
 public:
  std::uint64_t Milliseconds() override;
  DateTime Now() override;
};

}  // namespace vorlane
