#include "layout/frame_colors.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace vorlane {

namespace {

constexpr int FullChannel = 255;

// To the nearest whole number, halves to the even one.
int Rounded(double number) {
  return static_cast<int>(std::nearbyint(number));
}

int Lightened(int channel) {
  constexpr int Step = 50;
  constexpr int BrightFrom = 200;
  return channel < BrightFrom ? channel + Step : FullChannel;
}

int Darkened(int channel) {
  constexpr int Step = 140;
  return channel > Step ? channel - Step : 0;
}

template <typename Change>
void ChangeEach(ColorChannels& channels, Change change) {
  for (std::int16_t* channel : {&channels.Red, &channels.Green, &channels.Blue}) {
    *channel = static_cast<std::int16_t>(change(*channel));
  }
}

ColorNumber Joined(const ColorChannels& channels) {
  return ColorOf(channels.Red, channels.Green, channels.Blue);
}

}  // namespace

ColorChannels ColorToRGB(ColorNumber color) {
  constexpr ColorNumber Full = 0xFF;
  return {static_cast<std::int16_t>(color & Full),
          static_cast<std::int16_t>(Rounded((color & Full << 8) / 255.0)),
          static_cast<std::int16_t>(color >> 16 & Full)};
}

ColorNumber ColorOf(int red, int green, int blue) {
  const auto limited = [](int channel) {
    return static_cast<ColorNumber>(std::clamp(channel, 0, FullChannel));
  };
  return limited(red) | limited(green) << 8 | limited(blue) << 16;
}

void CalcFrameColors(ColorNumber surface, ColorNumber& light, ColorNumber& dark) {
  ColorChannels channels = ColorToRGB(surface);
  if (light == ColorToWorkOut) {
    ChangeEach(channels, Lightened);
    light = Joined(channels);
  }
  if (dark == ColorToWorkOut) {
    ChangeEach(channels, Darkened);
    dark = Joined(channels);
  }
}

RingColors LayerColors(ColorNumber surface, const RingColors& outermost, int ring, int layers) {
  const double depth = static_cast<double>(ring) / (layers - 1);
  const ColorChannels back = ColorToRGB(surface);
  const auto shaded = [&](ColorNumber edge, double direction) {
    const ColorChannels from = ColorToRGB(edge);
    const auto channel = [&](int value, int goal) {
      return Rounded(value + direction * depth * std::abs(value - goal));
    };
    return ColorOf(channel(from.Red, back.Red), channel(from.Green, back.Green),
                   channel(from.Blue, back.Blue));
  };
  return {shaded(outermost.Light, -1), shaded(outermost.Dark, 1)};
}

}  // namespace vorlane
