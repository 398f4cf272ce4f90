// The controls of the main window as its layout sees them: where each stands by design, what kind
// of control it is and which edge of the form it keeps to.
#pragma once

#include <string_view>
#include <vector>

#include "layout/twips.h"

namespace vorlane {

enum class ControlKind : unsigned char {
  Other,
  Label,
  TextBox,
  Canvas,  // a picture box: the layout places it by rules of its own
  Image,
  Button,
};

enum class Anchor : unsigned char {
  None,    // stays where it is
  Bottom,  // keeps its distance from the bottom edge
  Right,   // keeps its distance from the right edge
};

struct FormControlPlace {
  std::string_view Name;
  int Index;  // within a group of controls of one name, otherwise -1
  ControlKind Kind;
  Anchor KeepsTo;
  bool VisibleAtFirst;
  TwipsRect Place;
};

// The client area for which the places are designed.
inline constexpr Twips DesignWidth = 15360;
inline constexpr Twips DesignHeight = 7830;

// Every placed control of the main window, from the lowest to the topmost.
std::vector<FormControlPlace> DesignedControls();

}  // namespace vorlane
