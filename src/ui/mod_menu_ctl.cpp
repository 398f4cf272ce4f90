#include "ui/mod_menu_ctl.h"

#include <QGuiApplication>
#include <utility>

#include "platform/interface_texts.h"
#include "platform/vendor.h"
#include "ui/form_colours.h"

namespace vorlane {

namespace {

// Measures in pixels while it lives.
class PixelScale {
 public:
  explicit PixelScale(FormCanvas& canvas) : canvas_(canvas), before_(PrepareCanvas(canvas)) {}
  ~PixelScale() { canvas_.ScaleMode = before_; }
  PixelScale(const PixelScale&) = delete;
  PixelScale& operator=(const PixelScale&) = delete;

 private:
  FormCanvas& canvas_;
  ScaleMode before_;
};

// The upper line runs through the middle of the caption.
double UpperLine(const FormCanvas& canvas, const FrameCaption& caption) {
  return caption.Text.isEmpty() ? 0 : canvas.TextHeight() / 2;
}

}  // namespace

ColorNumber OleTranslateColor(ColorNumber color) {
  const QColor translated = ToQColor(color, QGuiApplication::palette());
  return ColorOf(translated.red(), translated.green(), translated.blue());
}

FrameColors CalcFrameColors(const FormCanvas& canvas, const FrameColors& colors) {
  FrameColors result = colors;
  CalcFrameColors(OleTranslateColor(canvas.BackColor), result.Light, result.Dark);
  return result;
}

ScaleMode PrepareCanvas(FormCanvas& canvas) {
  return std::exchange(canvas.ScaleMode, ScaleMode::InPixels);
}

void DrawFrameEtched(FormCanvas& canvas, const FrameColors& colors, const FrameCaption& caption,
                     bool sunken) {
  const PixelScale scale(canvas);
  double right = canvas.ScaleWidth() - 1;
  double bottom = canvas.ScaleHeight() - 1;
  double top = UpperLine(canvas, caption);
  FrameColors shades = CalcFrameColors(canvas, colors);
  if (sunken) {
    std::swap(shades.Light, shades.Dark);
  }
  canvas.Line({0, top}, {right, top}, shades.Dark);
  canvas.Line({0, top}, {0, bottom}, shades.Dark);
  canvas.Line({0, bottom}, {right, bottom}, shades.Light);
  canvas.Line({right, top}, {right, bottom}, shades.Light);
  --right;
  --bottom;
  ++top;
  canvas.Line({1, top}, {right, top}, shades.Light);
  canvas.Line({1, top}, {1, bottom}, shades.Light);
  canvas.Line({1, bottom}, {right, bottom}, shades.Dark);
  canvas.Line({right, top}, {right, bottom}, shades.Dark);
  DrawFrameCaption(canvas, caption);
}

void DrawFrameLayered(FormCanvas& canvas, int layers, const FrameColors& colors,
                      const FrameCaption& caption, bool sunken, Prompter& boxes) {
  if (layers == 0 || layers == 1) {
    boxes.Show(BoxIcon::None, ApplicationTitle, InterfaceText(TextNumber::TooFewLayers));
    return;
  }
  const PixelScale scale(canvas);
  double right = canvas.ScaleWidth() - 1;
  double bottom = canvas.ScaleHeight() - 1;
  const double upperLine = UpperLine(canvas, caption);
  const FrameColors outermost = CalcFrameColors(canvas, colors);
  for (int i = 0; i < layers; ++i) {
    RingColors ring = LayerColors(
        OleTranslateColor(canvas.BackColor),
        {OleTranslateColor(outermost.Light), OleTranslateColor(outermost.Dark)}, i, layers);
    if (sunken) {
      std::swap(ring.Light, ring.Dark);
    }
    const double left = i;
    const double top = i + upperLine;
    canvas.Line({left, top}, {right, top}, ring.Light);
    canvas.Line({left, top}, {left, bottom}, ring.Light);
    canvas.Line({left, bottom}, {right + 1, bottom}, ring.Dark);
    canvas.Line({right, top}, {right, bottom + 1}, ring.Dark);
    --right;
    --bottom;
  }
  DrawFrameCaption(canvas, caption);
}

void DrawFrameFlat(FormCanvas& canvas, ColorNumber color, int width, const FrameCaption& caption) {
  const PixelScale scale(canvas);
  const double top = UpperLine(canvas, caption);
  const CanvasPoint last{canvas.ScaleWidth() - 1, canvas.ScaleHeight() - 1};
  const ColorNumber line =
      color == ColorToWorkOut ? CalcFrameColors(canvas).Dark : OleTranslateColor(color);
  if (width < 2) {
    canvas.Box({0, top}, last, line);
  } else {
    const double inside = width;
    canvas.FilledBox({0, top}, last, line);
    canvas.FilledBox({inside, inside + top}, {last.X - inside, last.Y - inside}, canvas.BackColor);
  }
  DrawFrameCaption(canvas, caption);
}

void DrawFrameCaption(FormCanvas& canvas, const FrameCaption& caption) {
  if (caption.Text.isEmpty()) {
    return;
  }
  constexpr int Gap = 2;  // on each side of the text
  const PixelScale scale(canvas);
  const QFont before = canvas.Font;
  canvas.Font.setUnderline(caption.Underline);
  const double left = caption.Left;
  canvas.FilledBox({left - Gap, 0},
                   {left + canvas.TextWidth(caption.Text) + Gap - 1, canvas.TextHeight() - 1},
                   canvas.BackColor);
  canvas.Current = {left, 0};
  canvas.Print(caption.Text);
  canvas.Font = before;
}

}  // namespace vorlane
