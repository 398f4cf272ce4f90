// What a button looks like.
#include <QPainter>
#include <QPainterPath>

#include "ui/caption_alignment.h"
#include "ui/easy_button.h"
#include "ui/qt_text.h"

namespace vorlane {

namespace {

constexpr FormColour NormalFrame = 0xCFCFCF;

bool IsBlank(const QString& text) {
  return Trim(ToText(text)).empty();
}

}  // namespace

void EasyButton::DrawStateNormal() {
  DrawState(State::Normal);
}

void EasyButton::DrawStateHover() {
  if (drawState_ != State::Hover) {
    DrawState(State::Hover);
  }
}

void EasyButton::DrawStateDown() {
  if (drawState_ != State::Down) {
    DrawState(State::Down);
  }
}

void EasyButton::DrawCurrentState() {
  switch (drawState_) {
    case State::Normal:
      return DrawStateNormal();
    case State::Hover:
      return DrawStateHover();
    case State::Down:
      return DrawStateDown();
  }
}

// A pressed button's text lies a pixel further to the lower right.
void EasyButton::DrawState(State state) {
  drawState_ = state;
  textRectangle_ = rect().translated(state == State::Down ? QPoint(1, 1) : QPoint());
  Draw(state == State::Normal  ? Strip::Normal
       : state == State::Hover ? Strip::Hover
                               : Strip::Pressed);
}

void EasyButton::Draw(Strip strip) {
  FitCanvas();
  if (!hasPicture_) {
    Clear();
  }
  QPainter painter(&canvas_);
  if (hasPicture_) {
    strips_.Draw(painter, strip);
  } else {
    DrawPlainFrame(painter, strip);
  }
  DrawCaption(painter);
  update();
}

void EasyButton::DrawPlainFrame(QPainter& painter, Strip strip) const {
  const int right = width() - 1;
  const int bottom = height() - 1;
  const bool isNormal = strip == Strip::Normal;
  const bool isRaised = strip == Strip::Hover;
  const QColor lit = ToQColor(isNormal   ? NormalFrame
                              : isRaised ? DesktopColour::Highlight3D
                                         : DesktopColour::DarkShadow3D,
                              palette());
  const QColor shaded = ToQColor(isNormal   ? NormalFrame
                                 : isRaised ? DesktopColour::DarkShadow3D
                                            : DesktopColour::Highlight3D,
                                 palette());
  painter.fillRect(0, 0, right, 1, lit);
  painter.fillRect(0, 0, 1, bottom, lit);
  painter.fillRect(0, bottom, width(), 1, shaded);
  painter.fillRect(right, 0, 1, bottom, shaded);
}

bool EasyButton::ShowsStandIn() const {
  return !hasPicture_ && IsBlank(caption_) && !standIn_.isEmpty();
}

void EasyButton::DrawCaption(QPainter& painter) const {
  const bool isStandIn = ShowsStandIn();
  if (IsBlank(caption_) && !isStandIn) {
    return;
  }
  painter.setFont(font());
  painter.setPen(ToQColor(isEnabled() ? foreColor_ : DesktopColour::DisabledText, palette()));
  const int flags = isStandIn ? Qt::AlignCenter | Qt::TextWordWrap
                              : ToToolkitFlags(AlignToDrawFlags(align_) | OneUncutLine);
  constexpr int StandInMargin = 3;
  const QRect room =
      isStandIn ? textRectangle_.adjusted(StandInMargin, 0, -StandInMargin, 0) : textRectangle_;
  painter.drawText(room, flags, isStandIn ? standIn_ : caption_);
}

void EasyButton::Clear() {
  canvas_.fill(ToQColor(ShowsStandIn() ? DesktopColour::ButtonFace : backColor_, palette()));
  update();
}

void EasyButton::FitCanvas() {
  const qreal ratio = devicePixelRatioF();
  const QSize pixels = (QSizeF(size()) * ratio).toSize().expandedTo({1, 1});
  if (canvas_.size() != pixels || canvas_.devicePixelRatio() != ratio) {
    canvas_ = QPixmap(pixels);
    canvas_.setDevicePixelRatio(ratio);
    Clear();
  }
}

void EasyButton::SizeChanged() {
  if (!hasPicture_) {
    Clear();
    DrawStateNormal();
  }
}

void EasyButton::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  SizeChanged();
}

void EasyButton::SetPicture(const QImage& picture) {
  picture_ = picture;
  PropertyChanged("Picture");
  StripPicture strips(picture);
  if (strips.IsNull()) {
    hasPicture_ = false;
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    return;
  }
  strips_ = std::move(strips);
  const QSize before = size();
  setFixedSize(strips_.Size());
  if (size() != before) {
    SizeChanged();  // a hidden button isn't told
  }
  // Without any outline a button would have the whole of its rectangle.
  const QRegion outline = strips_.Outline();
  setMask(outline.isEmpty() ? QRegion(-1, -1, 1, 1) : outline);
  hasPicture_ = true;
  textRectangle_ = rect().translated(drawState_ == State::Down ? QPoint(1, 1) : QPoint());
  Draw(Strip::Normal);
}

void EasyButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.drawPixmap(0, 0, canvas_);
  if (ShowsFocus()) {
    DrawFocus(painter);
  }
}

// Along the outline, dark with light dashes, so that it shows on any picture.
void EasyButton::DrawFocus(QPainter& painter) const {
  constexpr int Margin = 2;
  QPainterPath outline;
  if (mask().isEmpty()) {
    outline.addRect(rect().adjusted(Margin, Margin, -Margin, -Margin));
  } else {
    outline.addRegion(mask());
  }
  painter.setClipPath(outline);  // half of each line lies outside
  painter.setPen(QPen(Qt::black, 4));
  painter.drawPath(outline.simplified());
  painter.setPen(QPen(Qt::white, 2, Qt::DashLine));
  painter.drawPath(outline.simplified());
}

}  // namespace vorlane
