// Draws the rows of a pop-up menu.
#pragma once

#include "ui/form_canvas.h"
#include "ui/menu_state.h"

namespace vorlane {

// The text of an item as it shows: one line.
QString ShownCaption(const MenuItem& item);

// All rows have the height of the font. 0 if there are none.
Twips MenuRowHeight(const FormCanvas& canvas, const MenuState& menu);
Twips WidestCaption(const FormCanvas& canvas, const MenuState& menu);

class MenuRows {
 public:
  // The menu is drawn whole, or only the rows that lose and gain the highlight are.
  enum class Extent { Everything, Highlight };

  MenuRows(FormCanvas& canvas, const MenuState& menu, Twips width)
      : canvas_(canvas), menu_(menu), width_(width) {}

  // From the canvas's current point downwards.
  void Draw(Extent extent, bool drawIcons);

 private:
  void DrawRow(int row, const MenuItem& item, Extent extent);
  void DrawCold(const MenuItem& item);
  void CleanAndDrawCold(const MenuItem& item);
  void DrawHot(const MenuItem& item);
  void DrawDisabled(const MenuItem& item);
  void DrawSeparator();
  void PrintAt(CanvasPoint place, const MenuItem& item, ColorNumber color);

  FormCanvas& canvas_;
  const MenuState& menu_;
  Twips width_;
  CanvasPoint at_;  // of the row in hand
  bool drawIcons_ = false;
};

}  // namespace vorlane
