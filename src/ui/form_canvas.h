// A surface to draw on with the few plain primitives of a form that paints itself: a colour for
// each stroke, a place where the next text goes, a scale in twips or pixels.
//
// Lengths are measured from the upper left corner. A length that ends half way between two pixels
// belongs to the nearer one to the left or above. Strokes are one pixel wide. What lies outside of
// the surface isn't drawn.
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>

#include "layout/frame_colors.h"

namespace vorlane {

enum class ScaleMode { InTwips, InPixels };
enum class DrawStyle { Solid, Dots };

struct CanvasPoint {
  double X = 0;
  double Y = 0;
};

class FormCanvas {
 public:
  // A pixel of the canvas has that many of the screen on each side.
  explicit FormCanvas(double pixelRatio = 1);

  // What is drawn stays; new room has the back colour.
  void Resize(QSize pixels);

  // Paints everything in the back colour, and goes back to the corner.
  void Cls();

  double ScaleWidth() const;
  double ScaleHeight() const;

  double TextWidth(const QString& text) const;
  // The font's, also for an empty text.
  double TextHeight() const;

  // A line leaves its last point out.
  void Line(CanvasPoint from, CanvasPoint to, ColorNumber color);
  // Both corners are part of a box; any two that lie opposite.
  void Box(CanvasPoint from, CanvasPoint to, ColorNumber color);
  void FilledBox(CanvasPoint from, CanvasPoint to, ColorNumber color);
  // All of these leave the current point where they end.

  // One line of text at the current point, which then is at the beginning of the next line.
  void Print(const QString& text);

  // At its own size; an empty picture draws nothing. Moves nothing.
  void PaintPicture(const QImage& picture, CanvasPoint corner);

  const QImage& Picture() const { return picture_; }

  ColorNumber BackColor = 0xFFFFFF;
  ColorNumber ForeColor = 0;
  vorlane::ScaleMode ScaleMode = vorlane::ScaleMode::InTwips;
  vorlane::DrawStyle DrawStyle = vorlane::DrawStyle::Solid;
  CanvasPoint Current;
  QFont Font;

 private:
  QPoint PixelOf(CanvasPoint point) const;
  double LengthOf(int pixels) const;
  void Stroke(QPoint from, QPoint to, const QColor& color);

  double pixelRatio_;
  QImage picture_;
};

}  // namespace vorlane
