#include "ui/window_keys.h"

#include <QApplication>
#include <QContextMenuEvent>

namespace vorlane {

namespace {

bool Call(const std::function<void()>& handler) {
  if (handler) {
    handler();
  }
  return true;
}

// A text box takes its own typing back first.
bool IsEditingUndoable() {
  const QWidget* focus = QApplication::focusWidget();
  const auto* list = qobject_cast<const QComboBox*>(focus);
  const auto* box = list != nullptr ? list->lineEdit() : qobject_cast<const QLineEdit*>(focus);
  return box != nullptr && box->isUndoAvailable();
}

bool IsMenuByKey(const QEvent& event) {
  return event.type() == QEvent::ContextMenu &&
         static_cast<const QContextMenuEvent&>(event).reason() == QContextMenuEvent::Keyboard;
}

}  // namespace

WindowKeys::WindowKeys(FrmMain& window) : window_(window) {
  qApp->installEventFilter(this);
}

bool WindowKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress && !IsMenuByKey(*event)) {
    return false;
  }
  // Menus, the lists of combo boxes and message boxes have their keys to themselves.
  const auto* widget = qobject_cast<const QWidget*>(watched);
  const bool isOurs = widget != nullptr && widget->window() == &window_ &&
                      QApplication::activePopupWidget() == nullptr &&
                      QApplication::activeModalWidget() == nullptr;
  if (event->type() != QEvent::KeyPress) {
    return isOurs;  // a text box would open its own menu at the key that opens the window's
  }
  return isOurs && TakeKey(*static_cast<QKeyEvent*>(event));
}

bool WindowKeys::TakeKey(const QKeyEvent& key) {
  const bool plain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      // A key that is held down must not start one run after another.
      return plain && (key.isAutoRepeat() || Call(OnGo));
    case Qt::Key_Escape:
      return plain && Call(OnStop);
    case Qt::Key_Tab:
      return plain && OnTab && OnTab();
    case Qt::Key_F1:
      return plain && (key.isAutoRepeat() || Call(OnHelp));
    case Qt::Key_F5:
      return plain && Call(OnListAnew);
    case Qt::Key_Menu:
      return plain && (key.isAutoRepeat() || Call(OnMenu));
    case Qt::Key_F10:
      return key.modifiers() == Qt::ShiftModifier && (key.isAutoRepeat() || Call(OnMenu));
    case Qt::Key_F6:
      if (OnNextPane) {
        OnNextPane((key.modifiers() & Qt::ShiftModifier) != 0);
      }
      return true;
    case Qt::Key_Z:
      return key.modifiers() == Qt::ControlModifier && !IsEditingUndoable() && Call(OnUndo);
    case Qt::Key_Q:
      return key.modifiers() == Qt::ControlModifier && Call(OnClose);
    default:
      return false;
  }
}

}  // namespace vorlane
