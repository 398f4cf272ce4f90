#include "layout/window_placement.h"

namespace vorlane {

namespace {

std::optional<Twips> Position(std::optional<std::int16_t> stored, Twips screen) {
  if (!stored) {
    return std::nullopt;
  }
  return *stored < 0 || *stored >= screen ? 0 : *stored;
}

std::optional<Twips> Size(std::optional<std::int16_t> stored, Twips least, Twips screen) {
  if (!stored) {
    return std::nullopt;
  }
  const Twips size = *stored < least ? least : *stored;
  return size > screen ? screen : size;
}

}  // namespace

PlacementToApply RestoreWindowPlacement(const WindowPlacement& stored, const SizeLimits& limits) {
  return {Position(stored.Left, limits.ScreenWidth), Position(stored.Top, limits.ScreenHeight),
          Size(stored.Width, limits.MinWidth, limits.ScreenWidth),
          Size(stored.Height, limits.MinHeight, limits.ScreenHeight)};
}

}  // namespace vorlane
