#include "ui/balloon_tips.h"

#include <limits>

#include "form/form.h"
#include "platform/interface_texts.h"

namespace vorlane {

namespace {

constexpr std::int32_t DelayMilliseconds = 100;
constexpr std::int16_t KeywordTipSeconds = 32;  // as long as can be
constexpr TextView Blank = u" ";

std::int16_t MillisecondsOf(std::int16_t seconds) {
  const std::int32_t milliseconds = std::int32_t{seconds} * 1000;
  if (milliseconds > std::numeric_limits<std::int16_t>::max() ||
      milliseconds < std::numeric_limits<std::int16_t>::min()) {
    throw RunError(ErrorNumber::Overflow);
  }
  return static_cast<std::int16_t>(milliseconds);
}

}  // namespace

void SetBalloonToolTip(ClsTooltip& tip, QWidget& control, const BalloonSetUp& setUp,
                       FailureReport& report) {
  ReportingFailures(report, FormName, u"SetBalloonToolTip", u"", [&] {
    tip.SetStyle(setUp.Style);
    tip.SetIcon(setUp.Icon);
    tip.SetTitle(setUp.Title);
    tip.SetTipText(setUp.Text);
    tip.SetPopupOnDemand(setUp.PopupOnDemand);
    tip.SetDelayTime(DelayMilliseconds);
    tip.SetVisibleTime(MillisecondsOf(setUp.Seconds));
    tip.CreateToolTip(control);
  });
}

// A tip's control, the numbers of its title and text (0 for a blank), and where it is shown.
struct BalloonTips::Row {
  EasyButton* FormControls::*Button;  // none: the wildcard
  int TitleNumber;
  int TextNumber;
  std::int32_t Position;
};

constexpr std::array<BalloonTips::Row, BalloonTipCount> BalloonTips::Table = {{
    {&FormControls::Go, 1200, 1201, 7},
    {&FormControls::Stop, 1200, 1201, 7},
    {&FormControls::ListFiles, 1202, 1203, 3},
    {&FormControls::ListFolders, 1202, 1204, 3},
    {&FormControls::ThisFolderOnly, 1205, 1206, 7},
    {&FormControls::IncludeSubFolders, 1205, 1207, 7},
    {&FormControls::DoOne, 1208, 1209, 2},
    {&FormControls::DoAll, 1208, 1210, 2},
    {nullptr, 1211, 1212, 8},
    {&FormControls::Exit, 1213, 0, 5},
    {&FormControls::Undo, 1215, 1216, 7},
}};

BalloonTips::BalloonTips(FormControls& controls, FailureReport& report)
    : controls_(controls), report_(report) {
  for (std::size_t i = 0; i < tips_.size(); ++i) {
    tips_[i].setObjectName(NameInGroup("BalloonTips", static_cast<int>(i)));
  }
  keywordTip_.setObjectName(QStringLiteral("KeywordTip"));
}

QWidget& BalloonTips::ControlOf(const Row& row) const {
  return row.Button != nullptr ? static_cast<QWidget&>(*(controls_.*row.Button))
                               : *controls_.WildCard;
}

void BalloonTips::SetUp(std::size_t index, bool popupOnDemand) {
  const Row& row = Table[index];
  SetBalloonToolTip(tips_[index], ControlOf(row),
                    {.Title = Text(InterfaceText(row.TitleNumber)),
                     .Text = Text(row.TextNumber == 0 ? Blank : InterfaceText(row.TextNumber)),
                     .PopupOnDemand = popupOnDemand},
                    report_);
}

void BalloonTips::InitBalloonToolTips() {
  ReportingFailures(report_, FormName, u"InitBalloonToolTips", u"", [&] {
    if (unloaded_) {
      return;
    }
    for (std::size_t i = 0; i < tips_.size(); ++i) {
      SetUp(i, false);
    }
    KeywordTip();
  });
}

ClsTooltip& BalloonTips::KeywordTip() {
  if (!hasKeywordTip_ && !unloaded_) {
    hasKeywordTip_ = true;
    SetBalloonToolTip(
        keywordTip_, *controls_.Keywords,
        {.Title = Text(InterfaceText(TextNumber::KeywordList)), .Seconds = KeywordTipSeconds},
        report_);
  }
  return keywordTip_;
}

void BalloonTips::ShowAllBalloonLabels() {
  ReportingFailures(report_, FormName, u"ShowAllBalloonLabels", u"", [&] {
    if (balloonsOnDemand_ || unloaded_) {
      return;
    }
    for (std::size_t i = 0; i < tips_.size(); ++i) {
      SetUp(i, true);
      tips_[i].ShowBalloonToolTip(ControlOf(Table[i]), Table[i].Position);
    }
    // The tips of two buttons that share a place lie on each other: the right one has to be on top.
    for (std::size_t i = 0; i < tips_.size(); ++i) {
      if (!ControlOf(Table[i]).isHidden()) {
        tips_[i].Raise();
      }
    }
    balloonsOnDemand_ = true;
  });
}

void BalloonTips::EndOnDemand() {
  if (balloonsOnDemand_) {
    balloonsOnDemand_ = false;
    InitBalloonToolTips();
  }
}

void BalloonTips::Unload() {
  unloaded_ = true;
  for (ClsTooltip& tip : tips_) {
    tip.Destroy();
  }
  keywordTip_.Destroy();
}

}  // namespace vorlane
