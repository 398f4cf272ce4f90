// The picture behind everything. Its file is read anew whenever the form is laid out, so that a
// skin can be tried out while the program runs; what was shown stays while there is nothing better.
#pragma once

#include <QPainter>
#include <QPixmap>
#include <optional>

#include "platform/file_system.h"

namespace vorlane {

class FormBackground {
 public:
  explicit FormBackground(FileSystem& files) : files_(files) {}

  // The folder of the skin, with its trailing separator; it need not exist. Nothing is loaded yet.
  void SetSkinPath(const Text& path) { skinPath_ = path; }

  // Shows the file's picture from the top left corner of the form, stretched to a size or in its
  // own. A file that isn't there, or can't be loaded, changes nothing; false for the latter.
  bool Show(std::optional<QSize> stretchedTo);

  // The part of the form that it covers; empty if there is none.
  QRect Covered() const { return {QPoint(0, 0), picture_.isNull() ? QSize(0, 0) : size_}; }

  // Draws the part of the form that needs it.
  void Paint(QPainter& painter, const QRect& part);

 private:
  FileSystem& files_;
  Text skinPath_;
  QImage picture_;
  QSize size_;     // as it is shown
  QPixmap ready_;  // of that size, in the screen's points; null until it is needed
};

}  // namespace vorlane
