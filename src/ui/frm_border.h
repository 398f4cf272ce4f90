// frmBorder: the outline that follows the mouse while the main window is resized by its grip. A
// frame of one pixel on top of everything, with nothing inside; the mouse goes through it.
#pragma once

#include <QWidget>

namespace vorlane {

class FrmBorder final : public QWidget {
 public:
  explicit FrmBorder(QWidget& owner);

  // Cuts the inside out. After each change of the size.
  void DoResize();

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace vorlane
