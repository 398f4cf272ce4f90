#include "ui/image_bar.h"

#include <QPainter>

namespace vorlane {

void ImageBar::SetPicture(const QImage& picture) {
  picture_ = picture;
  update();
}

void ImageBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(rect(), picture_);
}

}  // namespace vorlane
