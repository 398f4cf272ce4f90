// The picture of a button: four strips of one height, one below the other. Normal, under the
// pointer, pressed, and the mask, which gives the button its outline. Rows that remain when the
// height isn't divisible by four belong to no strip.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QRegion>

class QPainter;

namespace vorlane {

enum class Strip { Normal, Hover, Pressed, Mask };

class StripPicture {
 public:
  StripPicture() = default;

  // An image too small for four strips is no picture.
  explicit StripPicture(const QImage& image);

  bool IsNull() const { return strips_.isNull(); }

  // Of one strip.
  QSize Size() const { return {bitmap_.width(), bitmap_.height() / 4}; }

  // Copies a strip to the top left corner.
  void Draw(QPainter& painter, Strip strip) const;

  // What isn't white in the mask.
  QRegion Outline() const;

  // True if the bitmap is exactly black at that place of the mask. A place outside a strip falls
  // into its neighbours, and one outside the bitmap is never solid.
  bool IsSolid(QPoint place) const;

 private:
  int Top(Strip strip) const { return static_cast<int>(strip) * Size().height(); }

  QImage bitmap_;   // to ask for a pixel
  QPixmap strips_;  // to draw from
};

}  // namespace vorlane
