// Where everything stands in a pop-up menu that draws itself: a column of rows of one height, with
// icons and a strip with a picture on their left if wanted. All lengths in twips, rows from 1.
#pragma once

#include "layout/twips.h"

namespace vorlane {

struct MenuColumns {
  bool UseIcons = false;
  bool UseLeftImage = false;
};

// Above the first row. Below the last one and its frame is as much.
inline constexpr Twips MenuRowsTop = 4 * TwipsPerPixel;

Twips MenuTextLeft(const MenuColumns& columns);
Twips MenuIconLeft(const MenuColumns& columns);
Twips MenuSeparatorLeft(const MenuColumns& columns);

Twips MenuHeight(int rows, Twips rowHeight);

// A menu with icons and a picture that opens step by step comes out 16 pixels wider than one that
// is there at once.
enum class MenuStart { AtOnce, StepByStep };
Twips MenuWidth(Twips widestText, const MenuColumns& columns, MenuStart start);

// The row under a pointer that stands so far below the menu's upper edge. It may be 0, or one that
// the menu doesn't have. A row reaches from a little above its own place: the distance of the first
// row from the edge counts the wrong way round, and menus are used to it.
int MenuRowAt(Twips y, Twips rowHeight);

// The upper or left edge of a menu that would go past the end of the screen is moved so that it
// ends there. It may leave the screen on the other side.
Twips KeptBeforeEnd(Twips start, Twips length, Twips screenEnd);

// A menu that opens step by step.
struct MenuGrowth {
  Twips Height = 0;  // to come to
  Twips Width = 0;
  Twips Step = 0;
  Twips ScreenWidth = 0;
  Twips ScreenHeight = 0;
};

inline constexpr Twips MenuGrowsFrom = 10;  // height and width

// One step. False if it was the last one: the height is complete; the width stays where it has come
// to.
bool GrowMenu(TwipsRect& menu, const MenuGrowth& growth);

}  // namespace vorlane
