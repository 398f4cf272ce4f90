// The size of screen for which the window is laid out, and the layout that follows from it.
#pragma once

#include "shell/settings.h"

namespace vorlane {

// In pixels.
struct ScreenSize {
  std::int16_t Width = 0;
  std::int16_t Height = 0;

  bool operator==(const ScreenSize&) const = default;
};

// The measured size, changed by the setting "Resolution", by which a user has the window laid out
// for another screen. "800x600" gives both numbers; a piece that isn't one leaves the measured
// one. The "x" counts from the second character on, and a height needs two characters, so "1280x9"
// gives the width alone.
ScreenSize WithResolution(ScreenSize measured, TextView resolution);

struct LayoutChoice {
  bool Compact = false;  // everything is scaled to the size
  ScreenSize Size;       // for which the layout is made

  bool operator==(const LayoutChoice&) const = default;
};

// Compact on a screen under 1024 by 768. A size of exactly 800 by 600 is laid out as 990 by 990.
LayoutChoice ChooseLayout(ScreenSize measured, Settings& settings);

}  // namespace vorlane
