#include "platform/failure.h"

#include <gtest/gtest.h>

#include "support/recording_report.h"

namespace vorlane {
namespace {

TEST(Failure, AttemptDropsTheFailureAndTellsOfIt) {
  bool reached = false;
  EXPECT_FALSE(Attempt([&] {
    throw RunError(ErrorNumber::Overflow);
    reached = true;
  }));
  EXPECT_FALSE(reached);
  EXPECT_TRUE(Attempt([&] { reached = true; }));
  EXPECT_TRUE(reached);
}

TEST(Failure, ReportingTellsNameAndNumber) {
  RecordingReport report;
  EXPECT_FALSE(ReportingFailures(report, u"frmMain", u"Work", u"a.mp3",
                                 [] { throw RunError(ErrorNumber::InvalidArgument); }));
  EXPECT_EQ(report.Reports,
            (std::vector<RecordingReport::Report>{{u"frmMain", u"Work", u"a.mp3", 5}}));
}

TEST(Failure, EveryNumberHasItsDescription) {
  EXPECT_EQ(RunError(ErrorNumber::InvalidArgument).Description(),
            u"Invalid procedure call or argument");
  EXPECT_EQ(RunError(ErrorNumber::DiskFull).Description(), u"Disk full");
  EXPECT_EQ(DescriptionOf(4711), u"Application-defined or object-defined error");
}

}  // namespace
}  // namespace vorlane
