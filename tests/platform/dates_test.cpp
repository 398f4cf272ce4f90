#include "platform/dates.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

constexpr int Afternoon = (15 * 60 + 45) * 60 + 12;  // 3:45:12 PM

std::optional<DateTime> Time(int hour, int minute, int second) {
  return DateTime{0, hour * 3600 + minute * 60 + second};
}

std::optional<DateTime> Date(int year, int month, int day) {
  return MakeDateTime(year, month, day, 0, 0, 0);
}

std::string Shown(TextView text) {
  return std::string(text.begin(), text.end());
}

TEST(Dates, DaysAreCountedFromTheEndOf1899) {
  EXPECT_EQ(MakeDateTime(1899, 12, 30, 0, 0, 0), (DateTime{0, 0}));
  EXPECT_EQ(MakeDateTime(1899, 12, 31, 0, 0, 1), (DateTime{1, 1}));
  EXPECT_EQ(MakeDateTime(1900, 1, 1, 23, 59, 59), (DateTime{2, 86399}));
  EXPECT_EQ(MakeDateTime(1970, 1, 1, 0, 0, 0), (DateTime{25569, 0}));
  EXPECT_EQ(MakeDateTime(2026, 11, 15, 15, 45, 12), (DateTime{46341, Afternoon}));
  EXPECT_EQ(MakeDateTime(1899, 12, 29, 0, 0, 0), (DateTime{-1, 0}));
  EXPECT_EQ(MakeDateTime(100, 1, 1, 0, 0, 0), (DateTime{-657434, 0}));
  EXPECT_EQ(MakeDateTime(9999, 12, 31, 0, 0, 0), (DateTime{2958465, 0}));
}

TEST(Dates, DaysAndTimesThatDoNotExistAreRefused) {
  const struct {
    int year, month, day, hour, minute, second;
  } cases[] = {
      {99, 12, 31, 0, 0, 0},  {10000, 1, 1, 0, 0, 0},  {2026, 0, 1, 0, 0, 0},
      {2026, 13, 1, 0, 0, 0}, {2026, 257, 1, 0, 0, 0}, {2026, 1, 0, 0, 0, 0},
      {2026, 1, 32, 0, 0, 0}, {2026, 1, 257, 0, 0, 0}, {2026, 4, 31, 0, 0, 0},
      {2026, 2, 29, 0, 0, 0}, {1900, 2, 29, 0, 0, 0},  {2026, -1, 1, 0, 0, 0},
      {2026, 1, -1, 0, 0, 0}, {2026, 1, 1, 24, 0, 0},  {2026, 1, 1, -1, 0, 0},
      {2026, 1, 1, 0, 60, 0}, {2026, 1, 1, 0, -1, 0},  {2026, 1, 1, 0, 0, 60},
      {2026, 1, 1, 0, 0, -1},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(MakeDateTime(c.year, c.month, c.day, c.hour, c.minute, c.second), std::nullopt)
        << c.year << "-" << c.month << "-" << c.day << " " << c.hour << ":" << c.minute;
  }
  EXPECT_TRUE(Date(2000, 2, 29).has_value());
  EXPECT_TRUE(Date(2024, 2, 29).has_value());
}

TEST(Dates, TheGeneralFormLeavesOutWhatIsZero) {
  const struct {
    std::optional<DateTime> date;
    Text text;
  } cases[] = {
      {MakeDateTime(2026, 11, 15, 15, 45, 12), u"11/15/2026 3:45:12 PM"},
      {MakeDateTime(2026, 1, 2, 3, 4, 5), u"1/2/2026 3:04:05 AM"},
      {MakeDateTime(2026, 11, 15, 12, 0, 0), u"11/15/2026 12:00:00 PM"},
      {MakeDateTime(2026, 11, 15, 0, 0, 1), u"11/15/2026 12:00:01 AM"},
      {Date(2026, 11, 15), u"11/15/2026"},
      {Date(100, 1, 1), u"1/1/100"},
      {Date(9999, 12, 31), u"12/31/9999"},
      {Time(15, 45, 12), u"3:45:12 PM"},
      {Time(23, 59, 59), u"11:59:59 PM"},
      {DateTime{}, u"12:00:00 AM"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(GeneralDate(*c.date), c.text) << Shown(c.text);
    EXPECT_EQ(ReadDate(c.text), c.date) << Shown(c.text);
  }
}

TEST(Dates, PartsAreCutOff) {
  const DateTime date = *MakeDateTime(2026, 11, 15, 15, 45, 12);
  EXPECT_EQ(GeneralDate(date.DatePart()), u"11/15/2026");
  EXPECT_EQ(GeneralDate(date.TimePart()), u"3:45:12 PM");
  EXPECT_EQ(GeneralDate(Date(2026, 11, 15)->TimePart()), u"12:00:00 AM");
}

TEST(Dates, ADateHasItsDayOfTheCalendar) {
  const CalendarDay days[] = {
      {2006, 3, 7}, {1899, 12, 31}, {100, 1, 1}, {9999, 12, 31}, {2024, 2, 29}};
  for (const CalendarDay& day : days) {
    EXPECT_EQ(CalendarDayOf(*MakeDateTime(day.Year, day.Month, day.Day, 23, 59, 59)), day);
  }
}

TEST(Dates, DatesAreRead) {
  const struct {
    Text text;
    std::optional<DateTime> date;
  } cases[] = {
      {u"11/15/2026", Date(2026, 11, 15)},
      {u"11-15-2026", Date(2026, 11, 15)},
      {u"  11 / 15 / 2026  ", Date(2026, 11, 15)},
      {u"1/2/2026", Date(2026, 1, 2)},
      {u"01/02/2026", Date(2026, 1, 2)},
      {u"12/12/2026", Date(2026, 12, 12)},
      // Day first, because there is no month 15.
      {u"15/11/2026", Date(2026, 11, 15)},
      {u"13/12/2026", Date(2026, 12, 13)},
      {u"2026-11-15", Date(2026, 11, 15)},
      {u"2026/1/2", Date(2026, 1, 2)},
      {u"0100/1/2", Date(100, 1, 2)},
      {u"1/1/100", Date(100, 1, 1)},
      // Two digits: the years from 1930 to 2029.
      {u"1/2/00", Date(2000, 1, 2)},
      {u"1/2/3", Date(2003, 1, 2)},
      {u"1/2/29", Date(2029, 1, 2)},
      {u"1/2/30", Date(1930, 1, 2)},
      {u"1/2/99", Date(1999, 1, 2)},
      {u"2/29/2024", Date(2024, 2, 29)},
      {u"29/2/2024", Date(2024, 2, 29)},
      {u"15 Nov 2026", Date(2026, 11, 15)},
      {u"15-Nov-2026", Date(2026, 11, 15)},
      {u"15 november, 2026", Date(2026, 11, 15)},
      {u"November 15, 2026", Date(2026, 11, 15)},
      {u"NOV 15 2026", Date(2026, 11, 15)},
      {u"Nov 15 26", Date(2026, 11, 15)},
      {u"2026-Nov-15", Date(2026, 11, 15)},
      {u"May 1, 2026", Date(2026, 5, 1)},
      {u"12/30/1899", DateTime{}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ReadDate(c.text), c.date) << Shown(c.text);
  }
}

TEST(Dates, EveryMonthHasALongAndAShortName) {
  const struct {
    Text longName, shortName;
  } names[] = {{u"January", u"Jan"}, {u"February", u"Feb"}, {u"March", u"Mar"},
               {u"April", u"Apr"},   {u"May", u"May"},      {u"June", u"Jun"},
               {u"July", u"Jul"},    {u"August", u"Aug"},   {u"September", u"Sep"},
               {u"October", u"Oct"}, {u"November", u"Nov"}, {u"December", u"Dec"}};
  for (int month = 1; month <= 12; ++month) {
    EXPECT_EQ(ReadDate(names[month - 1].longName + u" 9, 2026"), Date(2026, month, 9)) << month;
    EXPECT_EQ(ReadDate(u"9 " + names[month - 1].shortName + u" 2026"), Date(2026, month, 9))
        << month;
  }
}

TEST(Dates, TimesAreRead) {
  const struct {
    Text text;
    std::optional<DateTime> time;
  } cases[] = {
      {u"3:45:12 PM", Time(15, 45, 12)}, {u"3:45:12 pm", Time(15, 45, 12)},
      {u"3:45PM", Time(15, 45, 0)},      {u"03:45 AM", Time(3, 45, 0)},
      {u"3:4", Time(3, 4, 0)},           {u"12:00 AM", Time(0, 0, 0)},
      {u"12:30 PM", Time(12, 30, 0)},    {u"1:00 PM", Time(13, 0, 0)},
      {u"0:00", Time(0, 0, 0)},          {u"15:45", Time(15, 45, 0)},
      {u"23:59:59", Time(23, 59, 59)},   {u"3 PM", Time(15, 0, 0)},
      {u"12am", Time(0, 0, 0)},          {u" 3:45 ", Time(3, 45, 0)},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ReadDate(c.text), c.time) << Shown(c.text);
  }
}

TEST(Dates, ADateAndATimeAreReadInEitherOrder) {
  const struct {
    Text text;
    std::optional<DateTime> date;
  } cases[] = {
      {u"2004/05/06 12:34:56", MakeDateTime(2004, 5, 6, 12, 34, 56)},
      {u"2004-05-06 0:00:00", MakeDateTime(2004, 5, 6, 0, 0, 0)},
      {u"11/15/2026 3:45:12 PM", MakeDateTime(2026, 11, 15, 15, 45, 12)},
      {u"15 Nov 2026 15:45", MakeDateTime(2026, 11, 15, 15, 45, 0)},
      {u"November 15, 2026 3 PM", MakeDateTime(2026, 11, 15, 15, 0, 0)},
      {u"3:45:12 PM 11/15/2026", MakeDateTime(2026, 11, 15, 15, 45, 12)},
      {u"15:45 Nov 15, 2026", MakeDateTime(2026, 11, 15, 15, 45, 0)},
      {u"3 PM 15 Nov 2026", MakeDateTime(2026, 11, 15, 15, 0, 0)},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ReadDate(c.text), c.date) << Shown(c.text);
  }
}

TEST(Dates, OtherTextIsNoDate) {
  const Text cases[] = {
      u"",
      u" ",
      u"abc",
      u"0",
      u"1",
      u"1.5",
      u"1,5",
      u"2026",
      u"20261115",
      u"-1",
      u"$1",
      u"PM",
      u"Nov",
      u"November 2026",
      u"11/15",
      u"11/2026",
      u"11/15/",
      u"11/15-2026",
      u"11,15,2026",
      u"11 15 2026",
      u"11.15.2026",
      u"0000/00/00 00:00:00",
      u"0000:00:00 00:00:00",
      u"2004:05:06 12:34:56",
      u"13/13/2026",
      u"0/1/2026",
      u"1/0/2026",
      u"1/32/2026",
      u"2/29/2026",
      u"2/29/1900",
      u"4/31/2026",
      u"1/2/099",
      u"1/2/0000",
      u"1/2/10000",
      u"1/2/02026",
      u"1/002/2026",
      u"2026/001/15",
      u"2026/13/15",
      u"2026/15/11",
      u"2026/1/2003",
      u"2026 15 Nov",
      u"Nov Nov 2026",
      u"Nov 15 Dec",
      u"Nove 15 2026",
      u"No 15 2026",
      u"Nov 31 2026",
      u"24:00",
      u"25:00",
      u"12:60",
      u"12:00:60",
      u"12:",
      u":30",
      u"12:30:",
      u"1:2:3:4",
      u"012:30",
      u"12:030",
      u"12:30:001",
      u"0:30 AM",
      u"13:00 PM",
      u"13 PM",
      u"3 XM",
      u"3 A",
      u"3:45:12.5",
      u"11/15/2026 25:00",
      u"11/15/2026 3",
      u"11/15/2026 x",
      u"11/15/2026x",
      u"11/15/2026 3:45 x",
      u"11/15/2026 3:45 PM PM",
      u"11/15/2026 11/15/2026",
      u"3:45 3:45",
      u"3:45 11/15/2026 3:45",
      u"3:45 x",
      u"\t11/15/2026",
      u"11/15/2026\u00A0",
      u"１１/15/2026",
      Text(u"11/15/2026\0", 11),
  };
  for (const Text& text : cases) {
    EXPECT_EQ(ReadDate(text), std::nullopt) << Shown(text);
  }
}

TEST(Dates, WhatIsWrittenIsReadBack) {
  const int firstDay = Date(100, 1, 1)->Days;
  const int lastDay = Date(9999, 12, 31)->Days;
  int seconds = 0;
  for (int day = firstDay; day <= lastDay; day += 13) {
    seconds = (seconds + 12347) % 86400;
    for (const int time : {0, seconds}) {
      const DateTime date{day, time};
      ASSERT_EQ(ReadDate(GeneralDate(date)), date) << day << " " << time;
    }
  }
  for (int time = 0; time < 86400; ++time) {
    ASSERT_EQ(ReadDate(GeneralDate({0, time})), (DateTime{0, time})) << time;
    ASSERT_EQ(ReadDate(GeneralDate({46341, time})), (DateTime{46341, time})) << time;
  }
}

}  // namespace
}  // namespace vorlane
