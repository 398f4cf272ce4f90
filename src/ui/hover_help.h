// The main window explains itself: balloons over single controls, and balloons and labels for all
// of them at once while the pointer is on the help button.
#pragma once

#include "ui/balloon_tips.h"
#include "ui/frm_main.h"

namespace vorlane {

class HoverHelp {
 public:
  // Both have to outlive it. It takes the mouse moves over the help button and the form.
  HoverHelp(FrmMain& window, FailureReport& report);

  // All at once, as a move over the help button shows them.
  void ShowAll();

  // The pointer has moved over the form or one of its bars: back to single balloons.
  void ResetHoverState();

  // For the keyboard: shows everything, or ends it.
  void Toggle();

  BalloonTips Tips;

 private:
  bool IsShown() const;

  FrmMain& window_;
};

}  // namespace vorlane
