#include "ui/hover_help.h"

#include <QEvent>

#include "ui/help_labels.h"

namespace vorlane {

HoverHelp::HoverHelp(FrmMain& window, FailureReport& report)
    : Tips(window.Controls(), report), window_(window) {
  FormControls& controls = window.Controls();
  InitHelpLabels(controls);
  for (QWidget* ground : {static_cast<QWidget*>(&window), static_cast<QWidget*>(controls.TopBar),
                          static_cast<QWidget*>(controls.BottomBar)}) {
    ground->setMouseTracking(true);
    ground->installEventFilter(this);
  }
  controls.Help->setAttribute(Qt::WA_Hover);
  controls.Help->installEventFilter(this);
}

void HoverHelp::ShowAll() {
  ShowHelpLabels(window_.Controls());
  Tips.ShowAllBalloonLabels();
}

void HoverHelp::ResetHoverState() {
  QLabel& title = *window_.Controls().Title;
  QPalette colors = title.palette();
  colors.setColor(QPalette::WindowText, window_.palette().color(QPalette::WindowText));
  title.setPalette(colors);
  HideHelpLabels(window_.Controls());
  Tips.EndOnDemand();
}

bool HoverHelp::IsShown() const {
  return Tips.BalloonsOnDemand() || !window_.Controls().HelpLabels.back()->isHidden();
}

void HoverHelp::Toggle() {
  if (IsShown()) {
    ResetHoverState();
  } else {
    ShowAll();
  }
}

bool HoverHelp::eventFilter(QObject* watched, QEvent* event) {
  if (watched == window_.Controls().Help) {
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverMove) {
      ShowAll();
    }
  } else if (event->type() == QEvent::MouseMove) {
    ResetHoverState();
  }
  return false;
}

}  // namespace vorlane
