#include "ui/form_canvas.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "layout/twips.h"
#include "ui/form_colours.h"

namespace vorlane {

namespace {

int NearestPixel(double pixels) {
  return static_cast<int>(std::ceil(pixels - 0.5));
}

QColor Shown(ColorNumber color) {
  return ToQColor(color, QGuiApplication::palette());
}

}  // namespace

FormCanvas::FormCanvas(double pixelRatio) : pixelRatio_(pixelRatio) {}

QPoint FormCanvas::PixelOf(CanvasPoint point) const {
  const double unit = ScaleMode == vorlane::ScaleMode::InTwips ? TwipsPerPixel : 1;
  return {NearestPixel(point.X / unit), NearestPixel(point.Y / unit)};
}

double FormCanvas::LengthOf(int pixels) const {
  return ScaleMode == vorlane::ScaleMode::InTwips ? TwipsOf(pixels) : pixels;
}

void FormCanvas::Resize(QSize pixels) {
  const QImage before = picture_;
  picture_ = QImage((QSizeF(pixels) * pixelRatio_).toSize(), QImage::Format_RGB32);
  picture_.setDevicePixelRatio(pixelRatio_);
  picture_.fill(Shown(BackColor));
  if (!before.isNull()) {
    QPainter(&picture_).drawImage(0, 0, before);
  }
}

void FormCanvas::Cls() {
  picture_.fill(Shown(BackColor));
  Current = {};
}

double FormCanvas::ScaleWidth() const {
  return LengthOf(qRound(picture_.deviceIndependentSize().width()));
}

double FormCanvas::ScaleHeight() const {
  return LengthOf(qRound(picture_.deviceIndependentSize().height()));
}

double FormCanvas::TextWidth(const QString& text) const {
  return LengthOf(QFontMetrics(Font).horizontalAdvance(text));
}

double FormCanvas::TextHeight() const {
  return LengthOf(QFontMetrics(Font).height());
}

// Point by point, the last one left out; of dots every second one.
void FormCanvas::Stroke(QPoint from, QPoint to, const QColor& color) {
  QPainter painter(&picture_);
  const QPoint way = to - from;
  const int points = std::max(std::abs(way.x()), std::abs(way.y()));
  const int step = DrawStyle == vorlane::DrawStyle::Dots ? 2 : 1;
  for (int i = 0; i < points; i += step) {
    const QPoint point = from + QPoint(way.x() * i / points, way.y() * i / points);
    painter.fillRect(QRect(point, QSize(1, 1)), color);
  }
}

void FormCanvas::Line(CanvasPoint from, CanvasPoint to, ColorNumber color) {
  Stroke(PixelOf(from), PixelOf(to), Shown(color));
  Current = to;
}

void FormCanvas::Box(CanvasPoint from, CanvasPoint to, ColorNumber color) {
  const QPoint first = PixelOf(from);
  const QPoint last = PixelOf(to);
  const QColor pen = Shown(color);
  if (first.x() == last.x() || first.y() == last.y()) {
    Stroke(first, last, pen);
    Stroke(last, last + QPoint(1, 0), pen);
  } else {
    const QPoint right(last.x(), first.y());
    const QPoint below(first.x(), last.y());
    Stroke(first, right, pen);
    Stroke(right, last, pen);
    Stroke(last, below, pen);
    Stroke(below, first, pen);
  }
  Current = to;
}

void FormCanvas::FilledBox(CanvasPoint from, CanvasPoint to, ColorNumber color) {
  const QPoint first = PixelOf(from);
  const QPoint last = PixelOf(to);
  const QPoint upperLeft(std::min(first.x(), last.x()), std::min(first.y(), last.y()));
  const QPoint lowerRight(std::max(first.x(), last.x()), std::max(first.y(), last.y()));
  QPainter(&picture_).fillRect(QRect(upperLeft, lowerRight), Shown(color));
  Current = to;
}

void FormCanvas::Print(const QString& text) {
  QPainter painter(&picture_);
  painter.setFont(Font);
  painter.setPen(Shown(ForeColor));
  painter.drawText(PixelOf(Current) + QPoint(0, QFontMetrics(Font).ascent()), text);
  Current = {0, Current.Y + TextHeight()};
}

void FormCanvas::PaintPicture(const QImage& picture, CanvasPoint corner) {
  QPainter(&picture_).drawImage(PixelOf(corner), picture);
}

}  // namespace vorlane
