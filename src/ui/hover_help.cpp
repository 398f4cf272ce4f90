#include "ui/hover_help.h"

#include "ui/help_labels.h"

namespace vorlane {

HoverHelp::HoverHelp(FrmMain& window, FailureReport& report)
    : Tips(window.Controls(), report), window_(window) {
  InitHelpLabels(window.Controls());
  window.Controls().Help->OnMouseMove = [this] { ShowAll(); };
  window.OnHoverReset = [this] { ResetHoverState(); };
}

void HoverHelp::ShowAll() {
  ShowHelpLabels(window_.Controls());
  Tips.ShowAllBalloonLabels();
}

void HoverHelp::ResetHoverState() {
  window_.ShowMouseOnTitle(false);
  HideHelpLabels(window_.Controls());
  Tips.EndOnDemand();
}

// The labels alone tell it: balloons that a timer has taken down count as on demand still.
bool HoverHelp::IsShown() const {
  return !window_.Controls().HelpLabels.back()->isHidden();
}

void HoverHelp::Toggle() {
  if (IsShown()) {
    ResetHoverState();
  } else {
    Tips.EndOnDemand();
    ShowAll();
  }
}

}  // namespace vorlane
