#include <chrono>
#include <ctime>

#include "platform/clock.h"

namespace vorlane {

std::optional<DateTime> LocalDateTime(std::int64_t unixSeconds) {
  const auto moment = static_cast<std::time_t>(unixSeconds);
  std::tm local = {};
  if (localtime_r(&moment, &local) == nullptr) {
    return std::nullopt;
  }
  // Some systems count leap seconds.
  const int second = local.tm_sec > 59 ? 59 : local.tm_sec;
  return MakeDateTime(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                      local.tm_min, second);
}

std::uint64_t SystemClock::Milliseconds() {
  const auto since = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint64_t>(
      std::chrono::duration_cast<std::chrono::milliseconds>(since).count());
}

DateTime SystemClock::Now() {
  return LocalDateTime(std::time(nullptr)).value_or(DateTime{});
}

}  // namespace vorlane
