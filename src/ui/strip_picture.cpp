#include "ui/strip_picture.h"

#include <QBitmap>
#include <QPainter>

namespace vorlane {

StripPicture::StripPicture(const QImage& image) {
  if (image.width() < 1 || image.height() < 4) {
    return;
  }
  bitmap_ = image.convertToFormat(QImage::Format_RGB32);
  bitmap_.setDevicePixelRatio(1);
  strips_ = QPixmap::fromImage(bitmap_);
}

void StripPicture::Draw(QPainter& painter, Strip strip) const {
  painter.drawPixmap(QRect(QPoint(), Size()), strips_, QRect(QPoint(0, Top(strip)), Size()));
}

QRegion StripPicture::Outline() const {
  const QImage mask = bitmap_.copy(QRect(QPoint(0, Top(Strip::Mask)), Size()));
  return QRegion(
      QBitmap::fromImage(mask.createMaskFromColor(qRgb(255, 255, 255), Qt::MaskInColor)));
}

bool StripPicture::IsSolid(QPoint place) const {
  const QPoint pixel = place + QPoint(0, Top(Strip::Mask));
  return bitmap_.valid(pixel) && (bitmap_.pixel(pixel) & RGB_MASK) == 0;
}

}  // namespace vorlane
