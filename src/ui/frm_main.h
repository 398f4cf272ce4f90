// frmMain: the window. It places its controls and passes on what happens to it as a window.
#pragma once

#include <QWidget>
#include <functional>

#include "layout/main_form_layout.h"
#include "layout/window_placement.h"
#include "ui/form_background.h"
#include "ui/form_controls.h"
#include "ui/form_grip.h"

namespace vorlane {

class FrmMain final : public QWidget {
 public:
  explicit FrmMain(const EasyButtonServices& services);

  FormControls& Controls() { return controls_; }
  FormBackground& Background() { return background_; }

  // Where everything stands; to be changed before InitLayout alone, and shown by TakeLayout.
  MainFormLayout& Layout() { return layout_; }
  void TakeLayout();

  // The fonts of labels and text boxes.
  void ScaleFonts(double factor);

  // Measures what the layout keeps. Once, when the controls have their first places.
  void InitLayout();

  // Takes a stored place back. Only what it holds is changed.
  void RestorePlacement(const PlacementToApply& placement);

  // The frame's place and the client area's size, in twips; of the window as it is when it isn't
  // maximized.
  TwipsRect NormalPlacement() const;

  // Labels are as wide as their text; the status line ends at the window's edge.
  void ShowStatus(const QString& text);
  void ShowFileStatus(const QString& text);

  // The title is lit while the mouse is on it.
  void ShowMouseOnTitle(bool isThere);

  // May the window be closed now? Asked at each attempt.
  std::function<bool()> OnClose;
  std::function<void()> OnFirstActivation;
  std::function<void()> OnFileStatusDoubleClicked;
  std::function<void()> OnMaximized;
  std::function<void()> OnRestored;  // from maximized to normal

  // The right button went down on the form or one of the two bars.
  std::function<void()> OnRightPress;

  // The mouse moved over the form or one of the two bars: whatever was shown for a control that it
  // was over goes.
  std::function<void()> OnHoverReset;

  std::function<void()> OnTitleClicked;

  // The form's cursor has become the default one by a mouse move.
  std::function<void()> OnPointerReset;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void TakeWindowState();
  bool TakeBarEvent(const QWidget& bar, const QEvent& event);
  void MousePressed(const QMouseEvent& event);
  void MouseMoved(QPointF position);
  void MouseReleased(const QMouseEvent& event);
  void MoveFrame(const QPoint& corner);
  void ResizeIfChanged();
  void PlaceControls();
  void PlaceStatus();
  void TakeTitleEvent(const QEvent& event);

  FormControls controls_;
  FormBackground background_;
  MainFormLayout layout_;
  FormGrip grip_;
  std::vector<QWidget*> placed_;  // by the layout's order
  QString status_;
  bool measured_ = false;
  bool inResize_ = false;        // the program itself sets the size
  bool pendingRestore_ = false;  // the window has been maximized
  bool activated_ = false;
  bool mouseOnTitle_ = false;
};

}  // namespace vorlane
