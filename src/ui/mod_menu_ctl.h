// Frames around anything that is drawn on a canvas: an etched line, a ramp of shades, a flat line,
// each with a caption in its upper line if wanted.
//
// Colours may be colours of the desktop. The one to be worked out stands for a light or a dark
// shade of the canvas's back colour. All of these measure in pixels and leave the canvas in its own
// scale.
#pragma once

#include "platform/prompter.h"
#include "ui/form_canvas.h"

namespace vorlane {

struct FrameCaption {
  QString Text{};
  int Left = 8;
  bool Underline = false;
};

struct FrameColors {
  ColorNumber Light = ColorToWorkOut;
  ColorNumber Dark = ColorToWorkOut;
};

// The number of the colour that a number of the desktop stands for.
ColorNumber OleTranslateColor(ColorNumber color);

// The light and dark shades of the canvas's back colour in the place of those to be worked out.
FrameColors CalcFrameColors(const FormCanvas& canvas, const FrameColors& colors = {});

// Makes the canvas measure in pixels. Returns the scale that it had.
ScaleMode PrepareCanvas(FormCanvas& canvas);

void DrawFrameEtched(FormCanvas& canvas, const FrameColors& colors, const FrameCaption& caption,
                     bool sunken);

// At least two layers; a box tells whoever asks for less, and there is no frame.
void DrawFrameLayered(FormCanvas& canvas, int layers, const FrameColors& colors,
                      const FrameCaption& caption, bool sunken, Prompter& boxes);

void DrawFrameFlat(FormCanvas& canvas, ColorNumber color, int width, const FrameCaption& caption);

// Blanks a gap in the upper line of a frame that is there and prints the caption into it.
void DrawFrameCaption(FormCanvas& canvas, const FrameCaption& caption);

}  // namespace vorlane
