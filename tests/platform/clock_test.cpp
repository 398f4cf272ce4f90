#include "platform/clock.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <limits>
#include <string>

namespace vorlane {
namespace {

// Sets the time zone of the process for one test.
class TimeZone {
 public:
  explicit TimeZone(const char* zone) {
    if (const char* old = std::getenv("TZ")) {
      old_ = old;
    }
    setenv("TZ", zone, 1);
    tzset();
  }
  ~TimeZone() {
    if (old_) {
      setenv("TZ", old_->c_str(), 1);
    } else {
      unsetenv("TZ");
    }
    tzset();
  }
  TimeZone(const TimeZone&) = delete;
  TimeZone& operator=(const TimeZone&) = delete;

 private:
  std::optional<std::string> old_;
};

constexpr std::int64_t NoonOfJanuary15 = 1768478400;  // 2026, UTC
constexpr std::int64_t NoonOfJuly15 = 1784116800;     // 2026, UTC

TEST(Clock, LocalTimeHasTheOffsetOfItsOwnDate) {
  const TimeZone zone("EST5EDT,M3.2.0,M11.1.0");
  EXPECT_EQ(LocalDateTime(NoonOfJanuary15), MakeDateTime(2026, 1, 15, 7, 0, 0));
  EXPECT_EQ(LocalDateTime(NoonOfJuly15), MakeDateTime(2026, 7, 15, 8, 0, 0));
}

TEST(Clock, LocalTimeMayBeOnAnotherDay) {
  const TimeZone zone("XXX-14");
  EXPECT_EQ(LocalDateTime(NoonOfJuly15), MakeDateTime(2026, 7, 16, 2, 0, 0));
}

TEST(Clock, TimesBefore1970AreTimesToo) {
  const TimeZone zone("UTC0");
  EXPECT_EQ(LocalDateTime(-1), MakeDateTime(1969, 12, 31, 23, 59, 59));
  EXPECT_EQ(LocalDateTime(0), MakeDateTime(1970, 1, 1, 0, 0, 0));
}

TEST(Clock, YearsThatNoDateCanHoldGiveNothing) {
  const TimeZone zone("UTC0");
  constexpr std::int64_t endOfYear9999 = 253402300799;
  EXPECT_EQ(LocalDateTime(endOfYear9999), MakeDateTime(9999, 12, 31, 23, 59, 59));
  EXPECT_EQ(LocalDateTime(endOfYear9999 + 1), std::nullopt);
  EXPECT_EQ(LocalDateTime(std::numeric_limits<std::int64_t>::max()), std::nullopt);
  EXPECT_EQ(LocalDateTime(std::numeric_limits<std::int64_t>::min()), std::nullopt);
}

TEST(Clock, NowLiesBetweenTheMomentsBeforeAndAfter) {
  SystemClock clock;
  const auto before = LocalDateTime(std::time(nullptr));
  const DateTime now = clock.Now();
  const auto after = LocalDateTime(std::time(nullptr));
  EXPECT_LE(*before, now);
  EXPECT_LE(now, *after);
}

TEST(Clock, MillisecondsCountUp) {
  SystemClock clock;
  const std::uint64_t start = clock.Milliseconds();
  const std::clock_t cpuStart = std::clock();
  while (std::clock() - cpuStart < CLOCKS_PER_SEC / 50) {
  }
  const std::uint64_t passed = clock.Milliseconds() - start;
  // 20 milliseconds of this process's own work; other processes can only make it more.
  EXPECT_GE(passed, 19U);
}

}  // namespace
}  // namespace vorlane
