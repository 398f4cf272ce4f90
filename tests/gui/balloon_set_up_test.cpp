// What the making of a balloon sets, one member after the other.
#include "gui/tips.h"
#include "support/recording_report.h"
#include "ui/balloon_tips.h"

namespace vorlane {
namespace {

struct SetUpTest : testing::Test {
  SetUpTest() { Tip.setObjectName("tip"); }
  void MakeTip(std::int16_t seconds) {
    SetBalloonToolTip(Tip, Control,
                      {.Title = u"T", .Text = u"x", .PopupOnDemand = true, .Seconds = seconds},
                      Report);
  }
  QWidget Control;
  ClsTooltip Tip;
  RecordingReport Report;
};

TEST_F(SetUpTest, SetsEveryMember) {
  MakeTip(32);
  EXPECT_TRUE(Report.Reports.empty());
  EXPECT_EQ(Tip.Style(), 1);
  EXPECT_EQ(Tip.Icon(), 1);
  EXPECT_EQ(Tip.Title(), u"T");
  EXPECT_EQ(Tip.TipText(), u"x");
  EXPECT_TRUE(Tip.PopupOnDemand());
  EXPECT_EQ(Tip.DelayTime(), 100);
  EXPECT_EQ(Tip.VisibleTime(), 32000);
  EXPECT_NE(TipNamed("tip"), nullptr);
}

TEST_F(SetUpTest, SecondsThatOverflowAreReportedAndMakeNoTip) {
  for (const int seconds : {33, 32767, -33}) {
    Report.Reports.clear();
    MakeTip(static_cast<std::int16_t>(seconds));
    ASSERT_EQ(Report.Reports.size(), 1u) << seconds;
    EXPECT_EQ(Report.Reports[0],
              (RecordingReport::Report{u"frmMain", u"SetBalloonToolTip", u"", 6}));
    EXPECT_EQ(Tip.DelayTime(), 100);
    EXPECT_EQ(Tip.VisibleTime(), 5000);
    EXPECT_EQ(TipNamed("tip"), nullptr);
    // What stands before it is the new one already.
    EXPECT_EQ(Tip.Title(), u"T");
    EXPECT_EQ(Tip.TipText(), u"x");
    EXPECT_EQ(Tip.Style(), ClsTooltip::BalloonStyle);
    EXPECT_EQ(Tip.Icon(), ClsTooltip::InformationIcon);
    EXPECT_TRUE(Tip.PopupOnDemand());
  }
}

TEST_F(SetUpTest, SixSecondsIfNoneAreGiven) {
  SetBalloonToolTip(Tip, Control, {.Title = u"T", .Text = u"x"}, Report);
  EXPECT_EQ(Tip.VisibleTime(), 6000);
}

}  // namespace
}  // namespace vorlane
