// A label that is clicked like a link, by the mouse or by the keyboard.
#pragma once

#include <QLabel>
#include <functional>

namespace vorlane {

class LinkLabel final : public QLabel {
 public:
  explicit LinkLabel(QWidget* parent);

  std::function<void()> OnClick;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool pressed_ = false;
};

}  // namespace vorlane
