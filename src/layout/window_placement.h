// The window's place as it is stored, and as it is taken back on a screen that may have become
// another one.
#pragma once

#include <cstdint>
#include <optional>

#include "layout/twips.h"

namespace vorlane {

// In twips. A value that isn't stored, or isn't a number, leaves that side of the window alone.
struct WindowPlacement {
  std::optional<std::int16_t> Left{};
  std::optional<std::int16_t> Top{};
  std::optional<std::int16_t> Width{};
  std::optional<std::int16_t> Height{};

  bool operator==(const WindowPlacement&) const = default;
};

// The least size of the window, on every screen.
inline constexpr Twips MinFormWidth = 996 * TwipsPerPixel;
inline constexpr Twips MinFormHeight = 453 * TwipsPerPixel;

struct SizeLimits {
  Twips MinWidth = MinFormWidth;
  Twips MinHeight = MinFormHeight;
  Twips ScreenWidth = 0;
  Twips ScreenHeight = 0;
};

struct PlacementToApply {
  std::optional<Twips> Left;
  std::optional<Twips> Top;
  std::optional<Twips> Width;
  std::optional<Twips> Height;
};

// A place outside the screen becomes its left or top edge; a size is kept between the least size of
// the window and the screen.
PlacementToApply RestoreWindowPlacement(const WindowPlacement& stored, const SizeLimits& limits);

}  // namespace vorlane
