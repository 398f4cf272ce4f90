#include "platform/dates.h"

#include <algorithm>
#include <chrono>

#include "platform/letter_case.h"

namespace vorlane {
namespace {

constexpr int FirstYear = 100;
constexpr int LastYear = 9999;
constexpr std::chrono::sys_days DayZero{std::chrono::year{1899} / 12 / 30};

constexpr TextView MonthNames[] = {u"January",   u"February", u"March",    u"April",
                                   u"May",       u"June",     u"July",     u"August",
                                   u"September", u"October",  u"November", u"December"};
constexpr std::size_t ShortNameLength = 3;

struct Number {
  int Value = 0;
  int Digits = 0;
};

// Takes a text apart from its beginning. Spaces in front of a piece are passed over. A copy marks
// a place to come back to.
class Scanner {
 public:
  explicit Scanner(TextView text) : rest_(text) {}

  bool AtEnd() {
    SkipSpaces();
    return rest_.empty();
  }

  bool TakeSymbol(char16_t symbol) {
    SkipSpaces();
    if (!rest_.starts_with(symbol)) {
      return false;
    }
    rest_.remove_prefix(1);
    return true;
  }

  // No number in a date or time has more than four digits.
  std::optional<Number> TakeNumber() {
    const TextView digits = TakeRun([](char16_t c) { return c >= u'0' && c <= u'9'; });
    if (digits.empty() || digits.size() > 4) {
      return std::nullopt;
    }
    Number number{0, static_cast<int>(digits.size())};
    for (const char16_t digit : digits) {
      number.Value = number.Value * 10 + (digit - u'0');
    }
    return number;
  }

  TextView TakeWord() {
    return TakeRun([](char16_t c) { return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z'); });
  }

 private:
  void SkipSpaces() { rest_.remove_prefix(std::min(rest_.find_first_not_of(u' '), rest_.size())); }

  template <typename Belongs>
  TextView TakeRun(Belongs&& belongs) {
    SkipSpaces();
    const auto end = std::find_if_not(rest_.begin(), rest_.end(), belongs);
    const TextView run = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
    rest_.remove_prefix(run.size());
    return run;
  }

  TextView rest_;
};

// 1 to 12, or nothing if the word names no month.
std::optional<int> MonthOfName(TextView word) {
  for (int i = 0; i < 12; ++i) {
    if (EqualIgnoringCase(word, MonthNames[i]) ||
        EqualIgnoringCase(word, MonthNames[i].substr(0, ShortNameLength))) {
      return i + 1;
    }
  }
  return std::nullopt;
}

// One of the three parts of a date.
struct Part {
  int Value = 0;
  int Digits = 0;  // 0 for the name of a month

  bool IsName() const { return Digits == 0; }
  bool CanBeOnlyAYear() const { return Digits > 2; }
};

std::optional<Part> TakePart(Scanner& scanner) {
  Scanner ahead = scanner;
  if (const auto month = MonthOfName(ahead.TakeWord())) {
    scanner = ahead;
    return Part{*month, 0};
  }
  if (const auto number = scanner.TakeNumber()) {
    return Part{number->Value, number->Digits};
  }
  return std::nullopt;
}

// 0 if there is none.
char16_t TakeSeparator(Scanner& scanner) {
  for (const char16_t separator : {u'/', u'-', u','}) {
    if (scanner.TakeSymbol(separator)) {
      return separator;
    }
  }
  return 0;
}

int FullYear(const Part& year) {
  if (year.CanBeOnlyAYear()) {
    return year.Value;
  }
  return year.Value + (year.Value < 30 ? 2000 : 1900);
}

std::optional<DateTime> DateOf(const Part& year, const Part& month, const Part& day) {
  if (year.IsName() || day.IsName() || month.CanBeOnlyAYear() || day.CanBeOnlyAYear()) {
    return std::nullopt;
  }
  return MakeDateTime(FullYear(year), month.Value, day.Value, 0, 0, 0);
}

std::optional<DateTime> TakeDate(Scanner& scanner) {
  const auto first = TakePart(scanner);
  const char16_t separator = TakeSeparator(scanner);
  const auto second = TakePart(scanner);
  const char16_t otherSeparator = TakeSeparator(scanner);
  const auto third = TakePart(scanner);
  if (!first || !second || !third) {
    return std::nullopt;
  }
  const bool hasName = first->IsName() || second->IsName();
  // Three numbers need "/" or "-" to be a date; beside a name, blanks and commas do.
  if (!hasName && (separator != otherSeparator || (separator != u'/' && separator != u'-'))) {
    return std::nullopt;
  }
  if (first->CanBeOnlyAYear()) {
    return DateOf(*first, *second, *third);
  }
  const bool dayFirst = second->IsName() || (!first->IsName() && first->Value > 12);
  return dayFirst ? DateOf(*third, *second, *first) : DateOf(*third, *first, *second);
}

enum class HalfOfDay { None, Am, Pm };

HalfOfDay TakeHalfOfDay(Scanner& scanner) {
  Scanner ahead = scanner;
  const TextView word = ahead.TakeWord();
  const bool isAm = EqualIgnoringCase(word, u"AM");
  if (!isAm && !EqualIgnoringCase(word, u"PM")) {
    return HalfOfDay::None;
  }
  scanner = ahead;
  return isAm ? HalfOfDay::Am : HalfOfDay::Pm;
}

// What stands there is a time if a ":" or a half of the day follows its first number; otherwise
// the scanner is left where it was.
std::optional<DateTime> TakeTime(Scanner& scanner) {
  Scanner ahead = scanner;
  const auto hour = ahead.TakeNumber();
  std::optional<Number> minute = Number{};
  std::optional<Number> second = Number{};
  const bool hasMinutes = ahead.TakeSymbol(u':');
  if (hasMinutes) {
    minute = ahead.TakeNumber();
    if (ahead.TakeSymbol(u':')) {
      second = ahead.TakeNumber();
    }
  }
  const HalfOfDay half = TakeHalfOfDay(ahead);
  if (!hour || !minute || !second || (!hasMinutes && half == HalfOfDay::None)) {
    return std::nullopt;
  }
  if (hour->Digits > 2 || minute->Digits > 2 || second->Digits > 2) {
    return std::nullopt;
  }
  int hours = hour->Value;
  if (half != HalfOfDay::None) {
    if (hours < 1 || hours > 12) {
      return std::nullopt;
    }
    hours = hours % 12 + (half == HalfOfDay::Pm ? 12 : 0);
  }
  if (hours > 23 || minute->Value > 59 || second->Value > 59) {
    return std::nullopt;
  }
  scanner = ahead;
  return DateTime{0, hours * 3600 + minute->Value * 60 + second->Value};
}

Text TwoDigits(int number) {
  return (number < 10 ? u"0" : u"") + DecimalText(number);
}

Text DateText(DateTime date) {
  const CalendarDay day = CalendarDayOf(date);
  return DecimalText(day.Month) + u"/" + DecimalText(day.Day) + u"/" + DecimalText(day.Year);
}

Text TimeText(std::int32_t seconds) {
  const int hour = seconds / 3600;
  return DecimalText(hour % 12 == 0 ? 12 : hour % 12) + u":" + TwoDigits(seconds / 60 % 60) + u":" +
         TwoDigits(seconds % 60) + (hour < 12 ? u" AM" : u" PM");
}

}  // namespace

std::optional<DateTime> MakeDateTime(int year, int month, int day, int hour, int minute,
                                     int second) {
  const auto isWithin = [](int value, int first, int last) {
    return value >= first && value <= last;
  };
  if (!isWithin(year, FirstYear, LastYear) || !isWithin(month, 1, 12) || !isWithin(day, 1, 31) ||
      !isWithin(hour, 0, 23) || !isWithin(minute, 0, 59) || !isWithin(second, 0, 59)) {
    return std::nullopt;
  }
  const auto date = std::chrono::year{year} / month / day;
  if (!date.ok()) {
    return std::nullopt;
  }
  const auto days = (std::chrono::sys_days(date) - DayZero).count();
  return DateTime{static_cast<std::int32_t>(days), hour * 3600 + minute * 60 + second};
}

CalendarDay CalendarDayOf(DateTime date) {
  const std::chrono::year_month_day day(DayZero + std::chrono::days(date.Days));
  return {int{day.year()}, static_cast<int>(unsigned{day.month()}),
          static_cast<int>(unsigned{day.day()})};
}

std::optional<DateTime> ReadDate(TextView text) {
  Scanner scanner(text);
  auto time = TakeTime(scanner);
  if (time && scanner.AtEnd()) {
    return time;
  }
  const auto date = TakeDate(scanner);
  if (!date) {
    return std::nullopt;
  }
  if (!time && !scanner.AtEnd()) {
    time = TakeTime(scanner);
    if (!time) {
      return std::nullopt;
    }
  }
  if (!scanner.AtEnd()) {
    return std::nullopt;
  }
  return DateTime{date->Days, time ? time->Seconds : 0};
}

Text GeneralDate(DateTime date) {
  if (date.Days == 0) {
    return TimeText(date.Seconds);
  }
  if (date.Seconds == 0) {
    return DateText(date);
  }
  return DateText(date) + u" " + TimeText(date.Seconds);
}

}  // namespace vorlane
