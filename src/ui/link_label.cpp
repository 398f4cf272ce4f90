#include "ui/link_label.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <utility>

namespace vorlane {

LinkLabel::LinkLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::StrongFocus);
  setForegroundRole(QPalette::Link);
  setMargin(2);
  QFont underlined = font();
  underlined.setUnderline(true);
  setFont(underlined);
}

void LinkLabel::mousePressEvent(QMouseEvent* event) {
  event->accept();
  pressed_ = event->button() == Qt::LeftButton;
}

// The second press of a double click is no press of its own: the link was followed by the first.
void LinkLabel::mouseDoubleClickEvent(QMouseEvent* event) {
  event->accept();
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  const bool clicked = std::exchange(pressed_, false) && event->button() == Qt::LeftButton;
  if (clicked && rect().contains(event->pos()) && OnClick) {
    OnClick();
  }
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool click = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
  if (!click) {
    QLabel::keyPressEvent(event);
  } else if (!event->isAutoRepeat() && OnClick) {
    OnClick();
  }
}

void LinkLabel::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  if (hasFocus()) {
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
  }
}

}  // namespace vorlane
