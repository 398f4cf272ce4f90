// The balloons of the main window: one for each button of the modes, the wildcard and the run, and
// one for the keyword list. They appear under a resting pointer or, all eleven at once, on demand.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/failure.h"
#include "ui/cls_tooltip.h"
#include "ui/form_controls.h"

namespace vorlane {

inline constexpr std::size_t BalloonTipCount = 11;

struct BalloonSetUp {
  vorlane::Text Title = {};
  vorlane::Text Text = {};
  std::int32_t Style = ClsTooltip::BalloonStyle;
  std::int32_t Icon = ClsTooltip::InformationIcon;
  bool PopupOnDemand = false;
  std::int16_t Seconds = 6;  // at most 32, or their milliseconds overflow
};

// Sets the tip's members one by one, in this order, and makes it for that control. What fails is
// reported and leaves the members behind it, and the tip, as they were.
void SetBalloonToolTip(ClsTooltip& tip, QWidget& control, const BalloonSetUp& setUp,
                       FailureReport& report);

class BalloonTips {
 public:
  // Both have to outlive it.
  BalloonTips(FormControls& controls, FailureReport& report);

  // Makes all eleven anew as tips that appear under the pointer, the keyword list's only once.
  void InitBalloonToolTips();

  // Makes all eleven anew on demand and shows them, those of visible controls above the others.
  // Nothing while they are on demand already.
  void ShowAllBalloonLabels();

  // Back from on demand to the pointer. Nothing otherwise.
  void EndOnDemand();

  bool BalloonsOnDemand() const { return balloonsOnDemand_; }

  // Made by the first call, if not before.
  ClsTooltip& KeywordTip();

  // All tips go, for good.
  void Unload();

 private:
  struct Row;

  QWidget& ControlOf(const Row& row) const;
  void SetUp(std::size_t index, bool popupOnDemand);

  static const std::array<Row, BalloonTipCount> Table;

  FormControls& controls_;
  FailureReport& report_;
  std::array<ClsTooltip, BalloonTipCount> tips_;
  ClsTooltip keywordTip_;
  bool hasKeywordTip_ = false;
  bool balloonsOnDemand_ = false;
  bool unloaded_ = false;
};

}  // namespace vorlane
