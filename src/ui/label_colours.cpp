#include "ui/label_colours.h"

namespace vorlane {

namespace {

// A label's text may run on past the picture; its beginning tells, as far as the window shows it.
bool BeginsOn(const QLabel& label, const QRect& ground) {
  const QRect beginning(label.pos(), QSize(1, label.height()));
  const QRect seen = beginning & label.parentWidget()->rect();
  return !seen.isEmpty() && ground.contains(seen);
}

void ShowWhite(QLabel& label, bool white) {
  if (label.testAttribute(Qt::WA_SetPalette) == white) {
    return;
  }
  QPalette colours;
  colours.setResolveMask(0);
  if (white) {
    colours.setColor(QPalette::WindowText, Qt::white);
  }
  label.setPalette(colours);
}

}  // namespace

void ShowHelpLabelColours(const FormControls& controls) {
  for (QLabel* label : controls.HelpLabels) {
    QPalette colours;
    colours.setColor(QPalette::Window, Qt::yellow);
    colours.setColor(QPalette::WindowText, Qt::black);
    label->setPalette(colours);
    label->setAutoFillBackground(true);
  }
}

void ShowLabelColours(const FormControls& controls, const QRect& background, bool mouseOnTitle) {
  const QRect bar = controls.BottomBar->HasPicture() ? controls.BottomBar->geometry() : QRect();
  for (const BoxControls& box : controls.Boxes) {
    ShowWhite(*box.Caption, BeginsOn(*box.Caption, bar) || BeginsOn(*box.Caption, background));
  }
  for (QLabel* label : {controls.Status, controls.FileStatus}) {
    ShowWhite(*label, BeginsOn(*label, background));
  }
  ShowWhite(*controls.Title, mouseOnTitle && BeginsOn(*controls.Title, background));
}

}  // namespace vorlane
