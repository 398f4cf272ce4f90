// The mouse and the keyboard on a button.
#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QShortcutEvent>

#include "ui/easy_button.h"

namespace vorlane {

namespace {

constexpr int LeftButton = 1;

int NumberOf(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return LeftButton;
    case Qt::RightButton:
      return 2;
    case Qt::MiddleButton:
      return 4;
    default:
      return 0;
  }
}

int ShiftOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) +
         (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) +
         (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

// A move tells of the buttons that are held.
int ButtonsOf(const QMouseEvent& event) {
  if (event.type() != QEvent::MouseMove) {
    return NumberOf(event.button());
  }
  int held = 0;
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    held += event.buttons().testFlag(button) ? NumberOf(button) : 0;
  }
  return held;
}

MouseArguments ArgumentsOf(const QMouseEvent& event) {
  return {.Button = ButtonsOf(event),
          .Shift = ShiftOf(event.modifiers()),
          .X = event.position().toPoint().x(),
          .Y = event.position().toPoint().y()};
}

// A program on Wayland doesn't hear of the pointer outside its windows: the last place that it
// knows may lie in a button that the pointer has left.
bool LosesThePointer() {
  return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

}  // namespace

bool EasyButton::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::Shortcut:
      // Where several controls have one key it only goes from one to the next.
      if (static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
        setFocus(Qt::ShortcutFocusReason);
      } else {
        Fire();
      }
      return true;
    case QEvent::ContextMenu:
      // What the mouse does on a button is no business of the form's.
      if (static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Mouse) {
        event->accept();
        return true;
      }
      break;
    default:
      break;
  }
  return (!isEnabled() && TakeWhileDisabled(*event)) || QWidget::event(event);
}

// The toolkit would hand a disabled control's mouse events to the form.
bool EasyButton::TakeWhileDisabled(QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonRelease:
      pressedButton_ = 0;  // pressed before it was disabled
      clickBegun_ = false;
      [[fallthrough]];
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
      event.accept();
      return true;
    default:
      return false;
  }
}

void EasyButton::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
  PointerMoved(ArgumentsOf(*event));
}

void EasyButton::PointerMoved(const MouseArguments& arguments) {
  lastMove_ = QPoint(arguments.X, arguments.Y);
  pointerIsIn_ = true;
  overOpaque_ = !hasPicture_ || strips_.IsSolid(lastMove_);
  if (overOpaque_ && !tmrMain_->isActive()) {
    tmrMain_->start();
  }
  if (OnMouseMoveAt) {
    OnMouseMoveAt(arguments);
  }
  if (OnMouseMove) {
    OnMouseMove();
  }
}

void EasyButton::tmrMain_Timer() {
  // A menu or a message box may have taken the release.
  if (pressedButton_ == LeftButton && !QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)) {
    pressedButton_ = 0;
    clickBegun_ = false;
  }
  const bool isHeld = pressedButton_ == LeftButton;
  if (IsPointerOver()) {
    isHeld ? DrawStateDown() : DrawStateHover();
  } else if (isHeld) {
    DrawStateHover();
  } else {
    tmrMain_->stop();
    DrawStateNormal();
  }
}

// The rectangle with its far edges. The mask is asked only when the pointer moves.
bool EasyButton::IsPointerOver() const {
  if ((hasPicture_ && !overOpaque_) || (!pointerIsIn_ && LosesThePointer())) {
    return false;
  }
  const QPoint place = mapFromGlobal(QCursor::pos());
  return place.x() >= 0 && place.y() >= 0 && place.x() <= width() && place.y() <= height();
}

void EasyButton::enterEvent(QEnterEvent* event) {
  QWidget::enterEvent(event);
  pointerIsIn_ = true;
}

void EasyButton::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  pointerIsIn_ = false;
  wasPressedHere_ = false;
}

// Nobody sees a hidden button pressed, and it may never hear of the release.
void EasyButton::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  tmrMain_->stop();
  pressedButton_ = 0;
  clickBegun_ = false;
  wasPressedHere_ = false;
  pointerIsIn_ = false;
  DrawStateNormal();
}

void EasyButton::mousePressEvent(QMouseEvent* event) {
  event->accept();
  ButtonPressed(*event);
}

// A pointer that comes down where it hasn't been before, such as a finger's, has moved there first.
void EasyButton::ButtonPressed(const QMouseEvent& event) {
  const MouseArguments arguments = ArgumentsOf(event);
  if (!pointerIsIn_ || QPoint(arguments.X, arguments.Y) != lastMove_) {
    MouseArguments move = arguments;
    move.Button = 0;
    PointerMoved(move);
  }
  wasPressedHere_ = true;
  clickBegun_ = true;
  pressedButton_ = arguments.Button;
  if (OnMouseDown) {
    OnMouseDown(arguments);
  }
}

// The second press in a short time takes the place of a press, and no click follows it. It is the
// first one here if the other went to a button that has made room for this one.
void EasyButton::mouseDoubleClickEvent(QMouseEvent* event) {
  event->accept();
  if (!wasPressedHere_) {
    ButtonPressed(*event);
  } else if (OnDblClick) {
    OnDblClick();
  }
}

void EasyButton::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  const MouseArguments arguments = ArgumentsOf(*event);
  leftReleased_ = arguments.Button == LeftButton;
  if (overOpaque_ && pressedButton_ == LeftButton) {
    DrawStateHover();
  }
  pressedButton_ = 0;
  const bool isClick = std::exchange(clickBegun_, false) && rect().contains(event->pos());
  if (OnMouseUp) {
    OnMouseUp(arguments);
  }
  if (isClick) {
    Click();
  }
}

void EasyButton::Click() {
  if ((hasPicture_ && !overOpaque_) || !leftReleased_) {
    return;
  }
  PlayButtonSound();
  if (OnClick) {
    OnClick();
  }
}

void EasyButton::Fire() {
  if (!isEnabled()) {
    return;
  }
  PlayButtonSound();
  if (OnClick) {
    OnClick();
  }
}

void EasyButton::keyPressEvent(QKeyEvent* event) {
  if (OnKeyDown) {
    OnKeyDown(event->key(), ShiftOf(event->modifiers()));
  }
  if (OnKeyPress && !event->text().isEmpty()) {
    OnKeyPress(event->text().at(0).unicode());
  }
  if (event->key() != Qt::Key_Space || event->modifiers() != Qt::NoModifier) {
    QWidget::keyPressEvent(event);
  } else if (!event->isAutoRepeat()) {
    Fire();
  }
}

void EasyButton::keyReleaseEvent(QKeyEvent* event) {
  if (OnKeyUp) {
    OnKeyUp(event->key(), ShiftOf(event->modifiers()));
  }
  QWidget::keyReleaseEvent(event);
}

// The focus that a click brings doesn't show, nor does it after another window was in front.
void EasyButton::focusInEvent(QFocusEvent* event) {
  const Qt::FocusReason reason = event->reason();
  if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
    showsFocus_ = reason != Qt::MouseFocusReason;
  }
  QWidget::focusInEvent(event);
}

void EasyButton::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

}  // namespace vorlane
