#include "ui/frm_main.h"

#include <QCloseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QWindow>

#include "platform/vendor.h"
#include "ui/label_colours.h"
#include "ui/qt_text.h"

namespace vorlane {

namespace {

constexpr int LabelPixels = 11;

QFont LabelFont(bool bold) {
  QFont font(QStringLiteral("Trebuchet MS"));
  font.setPixelSize(LabelPixels);
  font.setBold(bold);
  return font;
}

bool IsAutosized(const FormControlPlace& control) {
  return control.Kind == ControlKind::Label;
}

QString NameOf(const FormControlPlace& control) {
  const std::string name(control.Name);
  return control.Index < 0 ? QString::fromLatin1(name.c_str())
                           : NameInGroup(name.c_str(), control.Index);
}

// To the toolkit a maximized window that has been minimized is still maximized.
bool ShowsMaximized(const QWidget& window) {
  return window.isMaximized() && !window.isMinimized();
}

}  // namespace

FrmMain::FrmMain(const EasyButtonServices& services)
    : controls_(*this, services), background_(services.Files), grip_(*this) {
  setObjectName(QStringLiteral("frmMain"));
  setWindowTitle(ToQString(ApplicationTitle));
  setMouseTracking(true);
  for (const FormControlPlace& control : layout_.Controls()) {
    auto* widget = findChild<QWidget*>(NameOf(control), Qt::FindDirectChildrenOnly);
    widget->setVisible(control.VisibleAtFirst);
    if (control.Kind == ControlKind::Label) {
      widget->setFont(LabelFont(control.Name == "lblTitle"));
    }
    // What a control leaves of the mouse isn't the form's: a right press on it opens no menu there.
    widget->setAttribute(Qt::WA_NoMousePropagation);
    widget->installEventFilter(this);
    widget->raise();
    placed_.push_back(widget);
  }
  QWidget* before = nullptr;
  for (QWidget* next : controls_.TabChain()) {
    if (before != nullptr) {
      setTabOrder(before, next);
    }
    before = next;
  }
  for (QWidget* bar : {controls_.TopBar, controls_.BottomBar}) {
    bar->setMouseTracking(true);
  }
  controls_.Title->setMouseTracking(true);
  grip_.OnPointerReset = [this] {
    if (OnPointerReset) {
      OnPointerReset();
    }
  };
  ShowHelpLabelColours(controls_);
  TakeLayout();
  ShowFileStatus({});
}

void FrmMain::TakeLayout() {
  const QScopedValueRollback resizing(inResize_, true);
  resize(PixelsOf(layout_.Width()), PixelsOf(layout_.Height()));
  PlaceControls();
}

void FrmMain::ScaleFonts(double factor) {
  for (std::size_t i = 0; i < placed_.size(); ++i) {
    const ControlKind kind = layout_.Controls()[i].Kind;
    if (kind == ControlKind::Label || kind == ControlKind::TextBox) {
      QFont font = placed_[i]->font();
      font.setPixelSize(std::max(1, qRound(font.pixelSize() * factor)));
      placed_[i]->setFont(font);
    }
  }
}

void FrmMain::InitLayout() {
  layout_.InitResizeTags({TwipsOf(width()), TwipsOf(height())});
  measured_ = true;
}

void FrmMain::RestorePlacement(const PlacementToApply& placement) {
  const QScopedValueRollback resizing(inResize_, true);
  resize(placement.Width ? PixelsOf(*placement.Width) : width(),
         placement.Height ? PixelsOf(*placement.Height) : height());
  if (placement.Left || placement.Top) {
    MoveFrame({placement.Left ? PixelsOf(*placement.Left) : x(),
               placement.Top ? PixelsOf(*placement.Top) : y()});
  }
  ResizeIfChanged();
}

void FrmMain::MoveFrame(const QPoint& corner) {
  move(corner);
  if (windowHandle()) {
    // Just back from maximized, `move` reckons with the frame that the maximized window had. The
    // window manager knows the right one.
    windowHandle()->setFramePosition(corner);
  }
}

TwipsRect FrmMain::NormalPlacement() const {
  const QSize client = isMinimized() ? normalGeometry().size() : size();
  const QPoint frame =
      isMinimized() ? normalGeometry().topLeft() - (geometry().topLeft() - pos()) : pos();
  return {TwipsOf(frame.x()), TwipsOf(frame.y()), TwipsOf(client.width()),
          TwipsOf(client.height())};
}

void FrmMain::ResizeIfChanged() {
  if (measured_ && layout_.ResizeIfChanged(TwipsOf(width()), TwipsOf(height()))) {
    background_.Show(size());
    PlaceControls();
    update();
  }
}

void FrmMain::PlaceControls() {
  for (std::size_t i = 0; i < placed_.size(); ++i) {
    const FormControlPlace& control = layout_.Controls()[i];
    const TwipsRect& place = control.Place;
    const QPoint corner(PixelsOf(place.Left), PixelsOf(place.Top));
    if (IsAutosized(control)) {
      placed_[i]->move(corner);
      placed_[i]->adjustSize();
    } else {
      placed_[i]->setGeometry({corner, QSize(PixelsOf(place.Width), PixelsOf(place.Height))});
    }
  }
  PlaceStatus();
  ShowLabelColours(controls_, background_.Covered(), mouseOnTitle_);
}

void FrmMain::ShowStatus(const QString& text) {
  status_ = text;
  PlaceStatus();
}

void FrmMain::PlaceStatus() {
  QLabel& label = *controls_.Status;
  const int room = std::max(0, width() - 2 * label.x());
  label.setText(label.fontMetrics().elidedText(status_, Qt::ElideRight, room));
  label.setAccessibleDescription(status_);
  label.adjustSize();
}

void FrmMain::ShowFileStatus(const QString& text) {
  QLabel& label = *controls_.FileStatus;
  label.setText(text);
  label.adjustSize();
  layout_.SetFileStatusWidth(TwipsOf(label.width()));
  const TwipsRect& place = layout_.PlaceOf("lblFileStatus");
  label.move(PixelsOf(place.Left), PixelsOf(place.Top));
}

void FrmMain::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  background_.Paint(painter, event->rect());
}

void FrmMain::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (ShowsMaximized(*this) && OnMaximized) {
    OnMaximized();
  }
  TakeWindowState();
}

// The size and the state of the window may come in either order.
void FrmMain::TakeWindowState() {
  if (ShowsMaximized(*this)) {
    pendingRestore_ = true;
    grip_.Disarm();
  }
  if (isMinimized() || inResize_) {
    return;
  }
  if (!isMaximized() && std::exchange(pendingRestore_, false) && OnRestored) {
    OnRestored();
  }
  ResizeIfChanged();
}

void FrmMain::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) {
    if (ShowsMaximized(*this) && OnMaximized) {
      OnMaximized();
    }
    TakeWindowState();
  }
  if (event->type() == QEvent::ActivationChange && isActiveWindow() && !activated_) {
    activated_ = true;
    if (OnFirstActivation) {
      OnFirstActivation();
    }
  }
}

void FrmMain::closeEvent(QCloseEvent* event) {
  event->setAccepted(!OnClose || OnClose());
}

// The form and the two bars share what follows.
// A right press in the middle of a drag is none: a menu would take the release that ends the drag.
void FrmMain::MousePressed(const QMouseEvent& event) {
  if (event.button() == Qt::RightButton && event.buttons() == Qt::RightButton && OnRightPress) {
    OnRightPress();
  }
}

void FrmMain::MouseMoved(QPointF position) {
  grip_.HitTestResizeGrip(position);
  ShowMouseOnTitle(false);
  if (OnHoverReset) {
    OnHoverReset();
  }
}

// The size changes once, and only then everything is laid out.
void FrmMain::MouseReleased(const QMouseEvent& event) {
  const auto size = grip_.FinishDragResize(event.globalPosition().toPoint());
  if (!size) {
    return;
  }
  {
    const QScopedValueRollback resizing(inResize_, true);
    resize(*size);
  }
  ResizeIfChanged();
}

void FrmMain::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && !KnowsPlaces()) {
    grip_.PressedWithoutPlaces();
  }
  MousePressed(*event);
}

void FrmMain::mouseMoveEvent(QMouseEvent* event) {
  const QPoint cursor = event->globalPosition().toPoint();
  MouseMoved(event->position());
  grip_.DragStep(cursor);
}

void FrmMain::mouseReleaseEvent(QMouseEvent* event) {
  MouseReleased(*event);
}

bool FrmMain::TakeBarEvent(const QWidget& bar, const QEvent& event) {
  const auto mouse = [&event]() -> const QMouseEvent& {
    return static_cast<const QMouseEvent&>(event);
  };
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      MousePressed(mouse());
      return true;
    case QEvent::MouseMove:
      MouseMoved(bar.mapToParent(mouse().position()));
      return true;
    case QEvent::MouseButtonRelease:
      MouseReleased(mouse());
      return true;
    default:
      return false;
  }
}

void FrmMain::TakeTitleEvent(const QEvent& event) {
  const auto isInside = [&] {
    return controls_.Title->rect().contains(static_cast<const QMouseEvent&>(event).pos());
  };
  // A key may have darkened it under the mouse, which lights it again as soon as it moves.
  if (event.type() == QEvent::Enter || (event.type() == QEvent::MouseMove && isInside())) {
    ShowMouseOnTitle(true);
  } else if (event.type() == QEvent::MouseButtonRelease && isInside()) {
    if (static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton && OnTitleClicked) {
      OnTitleClicked();
    }
  }
}

void FrmMain::ShowMouseOnTitle(bool isThere) {
  if (mouseOnTitle_ != isThere) {
    mouseOnTitle_ = isThere;
    ShowLabelColours(controls_, background_.Covered(), mouseOnTitle_);
  }
}

bool FrmMain::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Enter) {
    grip_.Disarm();  // a quick mouse leaves the strip unseen
  }
  if (watched == controls_.TopBar || watched == controls_.BottomBar) {
    return TakeBarEvent(*static_cast<QWidget*>(watched), *event) ||
           QWidget::eventFilter(watched, event);
  }
  if (watched == controls_.Title) {
    TakeTitleEvent(*event);
  }
  if (watched == controls_.FileStatus && event->type() == QEvent::MouseButtonDblClick &&
      OnFileStatusDoubleClicked) {
    OnFileStatusDoubleClicked();
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace vorlane
