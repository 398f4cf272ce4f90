// The form's unit of length: 15 twips to a pixel. Places and sizes are kept in twips and turned
// into pixels only to be shown, so that rounding never adds up.
#pragma once

#include <cmath>

namespace vorlane {

using Twips = double;

inline constexpr Twips TwipsPerPixel = 15;

struct TwipsRect {
  Twips Left = 0;
  Twips Top = 0;
  Twips Width = 0;
  Twips Height = 0;

  bool operator==(const TwipsRect&) const = default;
};

struct TwipsSize {
  Twips Width = 0;
  Twips Height = 0;

  bool operator==(const TwipsSize&) const = default;
};

inline int PixelsOf(Twips length) {
  return static_cast<int>(std::lround(length / TwipsPerPixel));
}

inline Twips TwipsOf(int pixels) {
  return pixels * TwipsPerPixel;
}

}  // namespace vorlane
