#include "layout/menu_sums.h"

namespace vorlane {

namespace {

constexpr Twips P = TwipsPerPixel;

}  // namespace

Twips MenuTextLeft(const MenuColumns& columns) {
  if (columns.UseIcons && columns.UseLeftImage) {
    return 40 * P;
  }
  return columns.UseIcons || columns.UseLeftImage ? 22 * P : 4 * P;
}

Twips MenuIconLeft(const MenuColumns& columns) {
  return columns.UseLeftImage ? 20 * P : 4 * P;
}

Twips MenuSeparatorLeft(const MenuColumns& columns) {
  return columns.UseLeftImage ? 20 * P : 4 * P;
}

Twips MenuHeight(int rows, Twips rowHeight) {
  return rowHeight * rows + 8 * P;
}

Twips MenuWidth(Twips widestText, const MenuColumns& columns, MenuStart start) {
  if (columns.UseIcons && columns.UseLeftImage) {
    return widestText + (start == MenuStart::StepByStep ? 64 * P : 48 * P);
  }
  return widestText + (columns.UseIcons || columns.UseLeftImage ? 28 * P : 8 * P);
}

int MenuRowAt(Twips y, Twips rowHeight) {
  return static_cast<int>(std::nearbyint((y + MenuRowsTop) / rowHeight));  // halves to the even row
}

Twips KeptBeforeEnd(Twips start, Twips length, Twips screenEnd) {
  return start + length > screenEnd ? screenEnd - length : start;
}

bool GrowMenu(TwipsRect& menu, const MenuGrowth& growth) {
  menu.Height += growth.Step;
  menu.Top = KeptBeforeEnd(menu.Top, menu.Height, growth.ScreenHeight);
  if (growth.Height - growth.Step < menu.Height) {
    menu.Height = growth.Height;
    return false;
  }
  menu.Width = growth.Width - growth.Step > menu.Width ? menu.Width + growth.Step : growth.Width;
  menu.Left = KeptBeforeEnd(menu.Left, menu.Width, growth.ScreenWidth);
  return true;
}

}  // namespace vorlane
