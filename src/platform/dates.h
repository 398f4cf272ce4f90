// Dates and times by one stated locale, United States English, whatever the system's settings say.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>

#include "platform/text.h"

namespace vorlane {

// A local date and time of whole seconds. The zero value is "no date": a date part of zero with a
// time is a time alone.
struct DateTime {
  std::int32_t Days = 0;     // days since 1899-12-30; 0 means that there is no date part
  std::int32_t Seconds = 0;  // seconds since midnight, 0 to 86399

  // The check takes the 0 that a comparison is made with for a pointer.
  auto operator<=>(const DateTime&) const = default;  // NOLINT(modernize-use-nullptr)

  DateTime DatePart() const { return {Days, 0}; }
  DateTime TimePart() const { return {0, Seconds}; }
};

// Gregorian calendar; nothing for a day or time that doesn't exist or a year outside 100 to 9999.
std::optional<DateTime> MakeDateTime(int year, int month, int day, int hour, int minute,
                                     int second);

// The day of a date with a date part.
struct CalendarDay {
  int Year = 0;
  int Month = 0;
  int Day = 0;

  bool operator==(const CalendarDay&) const = default;
};
CalendarDay CalendarDayOf(DateTime date);

// Reads M/d/y and y/M/d with "/" or "-", English month names, times h:mm[:ss][ AM|PM], h AM|PM and
// 24 h; a date, a time, or both in either order. d/M if the first number is over 12; two-digit
// years 00 to 29 are 20xx, 30 to 99 are 19xx. A bare number or "1.5" is no date. Reads whatever
// GeneralDate writes.
std::optional<DateTime> ReadDate(TextView text);

// "11/15/2026 3:45:12 PM"; no date part if it is zero, no time part at midnight, "12:00:00 AM"
// alone for the zero value.
Text GeneralDate(DateTime date);

}  // namespace vorlane
