// frmMenuCtl: the window of a pop-up menu, which draws its rows by itself. It has the mouse and the
// keyboard to itself while it is open, and closes at the next release of a mouse button, wherever
// that is.
#pragma once

#include <QWidget>
#include <functional>

#include "platform/prompter.h"
#include "ui/form_canvas.h"
#include "ui/menu_state.h"

namespace vorlane {

class FrmMenuCtl final : public QWidget {
 public:
  // For one showing of the menu, which isn't changed meanwhile but for its hot row and its end.
  FrmMenuCtl(MenuState& menu, QWidget& owner, Prompter& boxes);

  // Opens the menu with its upper left corner at that place, in twips. It may have closed again
  // when this returns.
  void Open(Twips left, Twips top);

  // Draws the menu whole, with its frame, or after a move of the pointer only the two rows that
  // have changed. `resizeMenu`: the window gets the size of its rows first; `openAnim`: step by
  // step, if the menu opens so.
  void DrawMenu(bool drawBorder, bool resizeMenu, bool drawIcons, bool openAnim);

  // Closes the menu with nothing chosen.
  void Dismiss();

  // True if it was closed by the user, not by what happened around it.
  bool WasAnswered() const { return answered_; }

  // The menu has closed.
  std::function<void()> OnClosed;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void TakeGeometry();
  void DrawLeftStrip();
  void TakePlainSize(Twips widest);
  void GrowStepByStep(Twips widest);
  void DrawFrame();
  void SetHotRow(int row);
  void AnnounceHotRow();
  void StepHotRow(int from, int direction);
  void Answer();
  void WatchOwner();

  MenuState& menu_;
  QWidget& owner_;
  Prompter& boxes_;
  FormCanvas canvas_;
  TwipsRect place_;
  bool answered_ = false;
};

}  // namespace vorlane
