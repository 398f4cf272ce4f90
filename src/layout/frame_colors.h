// The colours of frames that are drawn line by line: light and dark edges, worked out from the
// colour of the surface that they stand on.
//
// A colour is one number, blue, green and red from the highest byte to the lowest.
#pragma once

#include <cstdint>

namespace vorlane {

using ColorNumber = std::uint32_t;

// In the place of a colour.
inline constexpr ColorNumber ColorToWorkOut = 0xFFFFFFFF;

struct ColorChannels {
  std::int16_t Red = 0;
  std::int16_t Green = 0;
  std::int16_t Blue = 0;

  bool operator==(const ColorChannels&) const = default;
};

// Of a colour that is no system colour. Green comes out up to one step too high, and full green as
// 256; frames are shaded with that.
ColorChannels ColorToRGB(ColorNumber color);

// A channel counts from 0 to 255; what lies outside is taken as the nearer end.
ColorNumber ColorOf(int red, int green, int blue);

// Fills in the edges that are to be worked out for a surface of that colour. If both are, the dark
// one is worked out from the light one.
void CalcFrameColors(ColorNumber surface, ColorNumber& light, ColorNumber& dark);

// One ring of a frame that is shaded across its width.
struct RingColors {
  ColorNumber Light = 0;
  ColorNumber Dark = 0;
};

// From ring 0, the outermost, which has the full contrast, to the innermost, which has reached the
// surface's colour. At least two layers.
RingColors LayerColors(ColorNumber surface, const RingColors& outermost, int ring, int layers);

}  // namespace vorlane
