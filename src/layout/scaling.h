// On a screen smaller than the one for which the window is designed everything is made smaller by
// two factors.
#pragma once

#include "layout/twips.h"

namespace vorlane {

// The screen, in pixels, to which all designed places refer.
inline constexpr int ReferenceScreenWidth = 1400;
inline constexpr int ReferenceScreenHeight = 1050;

struct ScaleFactors {
  double X = 1;
  double Y = 1;

  bool operator==(const ScaleFactors&) const = default;
};

constexpr ScaleFactors FactorsFor(int resolutionX, int resolutionY) {
  return {static_cast<double>(resolutionX) / ReferenceScreenWidth,
          static_cast<double>(resolutionY) / ReferenceScreenHeight};
}

inline void ScaleControlPosition(TwipsRect& control, ScaleFactors factors) {
  control.Left *= factors.X;
  control.Top *= factors.Y;
}

// No control has a negative size: a factor below 0 leaves the size as it is.
inline void ScaleControlSize(TwipsRect& control, ScaleFactors factors) {
  if (factors.X >= 0) {
    control.Width *= factors.X;
  }
  if (factors.Y >= 0) {
    control.Height *= factors.Y;
  }
}

}  // namespace vorlane
