#include "ui/form_background.h"

#include "catalogue/program_files.h"
#include "layout/skin_files.h"
#include "ui/picture_file.h"

namespace vorlane {

bool FormBackground::Show(std::optional<QSize> stretchedTo) {
  const auto path = FindProgramFile(files_, skinPath_, BackgroundFile.FileName);
  if (!path) {
    return true;
  }
  const QImage picture = LoadPicture(files_, *path);
  if (picture.isNull()) {
    return false;
  }
  picture_ = picture;
  size_ = stretchedTo.value_or(picture.size());
  ready_ = {};
  return true;
}

// Stretched once for all drawing, in the screen's own points.
void FormBackground::Paint(QPainter& painter, const QRect& part) {
  const QRect covered = part & Covered();
  if (covered.isEmpty()) {
    return;
  }
  const qreal ratio = painter.device()->devicePixelRatioF();
  if (ready_.isNull() || ready_.devicePixelRatio() != ratio) {
    ready_ = QPixmap::fromImage(
        picture_.scaled(size_ * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    ready_.setDevicePixelRatio(ratio);
  }
  const QRectF source(QPointF(covered.topLeft()) * ratio, QSizeF(covered.size()) * ratio);
  painter.drawPixmap(QRectF(covered), ready_, source);
}

}  // namespace vorlane
