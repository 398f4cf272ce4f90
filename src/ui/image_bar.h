// imgTopBar, imgBottomBar: a picture, stretched to the place that the layout gives it. Without a
// picture there is nothing to see.
#pragma once

#include <QImage>
#include <QWidget>

namespace vorlane {

class ImageBar final : public QWidget {
 public:
  using QWidget::QWidget;

  void SetPicture(const QImage& picture);
  bool HasPicture() const { return !picture_.isNull(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage picture_;
};

}  // namespace vorlane
