#include "ui/frm_border.h"

#include <QPainter>

namespace vorlane {

FrmBorder::FrmBorder(QWidget& owner)
    : QWidget(&owner, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                          Qt::WindowTransparentForInput | Qt::NoDropShadowWindowHint) {
  setObjectName(QStringLiteral("frmBorder"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void FrmBorder::DoResize() {
  const QRegion outer(rect());
  const QRegion inner(rect().adjusted(1, 1, -1, -1));
  setMask(outer.xored(inner));
}

void FrmBorder::paintEvent(QPaintEvent* /*event*/) {
  QPainter(this).fillRect(rect(), palette().color(QPalette::Active, QPalette::Highlight));
}

}  // namespace vorlane
