// The C locale of the process, which a window toolkit sets from the user's settings, changes none
// of the rules for numbers, dates and case.
#include <gtest/gtest.h>

#include <clocale>
#include <iostream>
#include <string>

#include "platform/dates.h"
#include "platform/letter_case.h"
#include "platform/numbers.h"

namespace vorlane {
namespace {

// Sets the C locale for one test.
class ProcessLocale {
 public:
  ProcessLocale() : old_(std::setlocale(LC_ALL, nullptr)) {}
  ~ProcessLocale() { std::setlocale(LC_ALL, old_.c_str()); }
  ProcessLocale(const ProcessLocale&) = delete;
  ProcessLocale& operator=(const ProcessLocale&) = delete;

  // False if the system doesn't have it.
  static bool Set(const char* name) { return std::setlocale(LC_ALL, name) != nullptr; }

 private:
  std::string old_;
};

void ExpectTheRules() {
  EXPECT_EQ(ReadNumber(u"1,234.5"), 1234.5);
  EXPECT_EQ(ReadNumber(u"1.234,5"), std::nullopt);
  EXPECT_EQ(ReadInt16(u"2.5"), 2);
  EXPECT_EQ(ReadInt32(u"&H1F"), 31);
  EXPECT_EQ(ShortestDecimal(1234.57), u"1234.57");
  EXPECT_EQ(DecimalText(1234567), u"1234567");

  const auto date = MakeDateTime(2026, 11, 5, 15, 45, 12);
  EXPECT_EQ(GeneralDate(*date), u"11/5/2026 3:45:12 PM");
  EXPECT_EQ(ReadDate(u"11/5/2026 3:45:12 PM"), date);
  EXPECT_EQ(ReadDate(u"May 3, 2026"), MakeDateTime(2026, 5, 3, 0, 0, 0));
  EXPECT_EQ(ReadDate(u"3. Mai 2026"), std::nullopt);
  EXPECT_EQ(ReadDate(u"5.11.2026"), std::nullopt);

  EXPECT_EQ(UpperCase(u"title.mid é"), u"TITLE.MID É");
  EXPECT_EQ(LowerCase(u"TITLE.MID É"), u"title.mid é");
  EXPECT_TRUE(EqualIgnoringCase(u"title.MID", u"TITLE.mid"));
}

TEST(ProcessLocale, TheRulesAreTheSameInEveryLocale) {
  const ProcessLocale restored;
  ASSERT_TRUE(ProcessLocale::Set("C"));
  ExpectTheRules();
  for (const char* name : {"C.UTF-8", "de_DE.UTF-8", "tr_TR.UTF-8"}) {
    if (ProcessLocale::Set(name)) {
      SCOPED_TRACE(name);
      ExpectTheRules();
    } else {
      std::cout << "This system has no locale " << name << ".\n";
    }
  }
}

}  // namespace
}  // namespace vorlane
