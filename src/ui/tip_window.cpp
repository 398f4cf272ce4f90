#include "ui/tip_window.h"

#include <QBitmap>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QToolTip>
#include <algorithm>

namespace vorlane {

namespace {

constexpr int WidestTitle = 340;

// A long text would be a tall column if it had no more room than a short one.
constexpr int WidestShortText = 190;
constexpr int WidestLongText = 340;
constexpr int ShortTextLength = 120;

// Widths go in steps, so that of two tips with nearly the same text at one place the upper one
// covers the lower.
constexpr int WidthStep = 20;

constexpr int Margin = 8;
constexpr int RectangleMargin = 4;
constexpr int IconSize = 16;
constexpr int IconGap = 6;
constexpr int LineGap = 4;
constexpr int CornerRadius = 7;
constexpr int TextFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

QStyle::StandardPixmap PixmapOf(TipIcon icon) {
  switch (icon) {
    case TipIcon::Warning:
      return QStyle::SP_MessageBoxWarning;
    case TipIcon::Error:
      return QStyle::SP_MessageBoxCritical;
    case TipIcon::Information:
    case TipIcon::None:
      break;
  }
  return QStyle::SP_MessageBoxInformation;
}

QSize SizeOfText(const QFont& font, int widest, const QString& text) {
  return QFontMetrics(font).boundingRect(QRect(0, 0, widest, 0), TextFlags, text).size();
}

QRect ScreenAt(QPoint point, const QWidget& widget) {
  const QScreen* screen = QGuiApplication::screenAt(point);
  return (screen != nullptr ? screen : widget.screen())->availableGeometry();
}

}  // namespace

TipWindow::TipWindow(QWidget& control, bool balloon)
    : QWidget(&control, Qt::ToolTip | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus |
                            Qt::NoDropShadowWindowHint),
      balloon_(balloon) {
  setAttribute(Qt::WA_ShowWithoutActivating);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAttribute(Qt::WA_QuitOnClose, false);
  setFocusPolicy(Qt::NoFocus);
  setPalette(QToolTip::palette());
  setFont(QToolTip::font());
  setCursor(Qt::ArrowCursor);
}

void TipWindow::SetContent(const TipContent& content) {
  content_ = content;
  content_.Text.remove(u'\r');
  setWindowTitle(content_.Title);
  setAccessibleName(content_.Title);
  setAccessibleDescription(content_.Text);
}

void TipWindow::SetBackColor(const QColor& color) {
  QPalette colors = palette();
  colors.setColor(QPalette::ToolTipBase, color);
  setPalette(colors);
}

void TipWindow::SetForeColor(const QColor& color) {
  QPalette colors = palette();
  colors.setColor(QPalette::ToolTipText, color);
  setPalette(colors);
}

void TipWindow::SetTextFont(const QFont& font) {
  setFont(font);
}

QFont TipWindow::TitleFont() const {
  QFont bold = font();
  bold.setBold(true);
  return bold;
}

// Icon and title share a line, the text stands below.
TipWindow::Blocks TipWindow::Arrange() const {
  const int margin = balloon_ ? Margin : RectangleMargin;
  Blocks blocks;
  int top = margin;
  int right = margin;
  const bool hasIcon = content_.Icon != TipIcon::None;
  if (hasIcon || !content_.Title.isEmpty()) {
    const QSize title = SizeOfText(TitleFont(), WidestTitle, content_.Title);
    const int height = std::max(hasIcon ? IconSize : 0, title.height());
    const int left = margin + (hasIcon ? IconSize + IconGap : 0);
    if (hasIcon) {
      blocks.Icon = {margin, top + (height - IconSize) / 2, IconSize, IconSize};
    }
    blocks.Title = {QPoint(left, top + (height - title.height()) / 2), title};
    right = std::max(margin + IconSize, blocks.Title.right() + 1);
    top += height + LineGap;
  }
  const int widest = content_.Text.size() > ShortTextLength ? WidestLongText : WidestShortText;
  blocks.Text = {QPoint(margin, top), SizeOfText(font(), widest, content_.Text)};
  right = std::max(right, blocks.Text.right() + 1);
  blocks.Body = {(right + margin + WidthStep - 1) / WidthStep * WidthStep,
                 blocks.Text.bottom() + 1 + margin};
  return blocks;
}

void TipWindow::PlaceAt(QPoint anchor, TipSide side, bool centered) {
  const QSize body = Arrange().Body;
  const QRect screen = ScreenAt(anchor, *this);
  if (centered) {
    side = {.Above = false, .To = Lean::Middle};
  }
  place_ = balloon_ ? PlaceBalloon(body, anchor, side, screen)
                    : PlaceRectangle(body, anchor, centered, screen);
  setGeometry(place_.Window());
  TakeShape();
  update();
}

// In the window's own coordinates, through the pixels at its edge.
QPainterPath TipWindow::Outline() const {
  const QPoint corner = place_.Window().topLeft();
  const QRectF body = QRectF(place_.Body.translated(-corner)).adjusted(0, 0, -1, -1);
  QPainterPath path;
  if (!balloon_) {
    path.addRect(body);
    return path;
  }
  path.addRoundedRect(body, CornerRadius, CornerRadius);
  const bool down = place_.Stem == StemEdge::Bottom;
  const double middle = place_.StemRoot.x() - corner.x();
  const double root = down ? body.bottom() : body.top();
  const double point = down ? root + StemLength : root - StemLength;
  QPainterPath stem;
  stem.moveTo(middle - StemWidth / 2.0, root);
  stem.lineTo(middle, point);
  stem.lineTo(middle + StemWidth / 2.0, root);
  stem.closeSubpath();
  return path.united(stem);
}

void TipWindow::TakeShape() {
  if (!balloon_) {
    return;
  }
  QBitmap shape(size());
  shape.fill(Qt::color0);
  QPainter painter(&shape);
  painter.setPen(Qt::color1);
  painter.setBrush(Qt::color1);
  painter.drawPath(Outline());
  painter.end();
  setMask(shape);
}

void TipWindow::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor text = palette().color(QPalette::ToolTipText);
  painter.setPen(text);
  painter.setBrush(palette().color(QPalette::ToolTipBase));
  painter.drawPath(Outline());
  const Blocks blocks = Arrange();
  const QPoint body = place_.Body.topLeft() - place_.Window().topLeft();
  if (!blocks.Icon.isNull()) {
    const QIcon icon = style()->standardIcon(PixmapOf(content_.Icon), nullptr, this);
    icon.paint(&painter, blocks.Icon.translated(body));
  }
  painter.setFont(TitleFont());
  painter.drawText(blocks.Title.translated(body), TextFlags, content_.Title);
  painter.setFont(font());
  painter.drawText(blocks.Text.translated(body), TextFlags, content_.Text);
}

}  // namespace vorlane
