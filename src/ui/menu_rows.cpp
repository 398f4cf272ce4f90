#include "ui/menu_rows.h"

#include "ui/mod_menu_ctl.h"
#include "ui/qt_text.h"

namespace vorlane {

namespace {

constexpr Twips P = TwipsPerPixel;
constexpr Twips RoomOnTheRight = 5 * P;

}  // namespace

QString ShownCaption(const MenuItem& item) {
  return ToLine(ToText(item.Caption));
}

Twips MenuRowHeight(const FormCanvas& canvas, const MenuState& menu) {
  return menu.Items.empty() ? 0 : canvas.TextHeight();
}

Twips WidestCaption(const FormCanvas& canvas, const MenuState& menu) {
  Twips widest = 0;
  for (const MenuItem& item : menu.Items) {
    widest = std::max(widest, canvas.TextWidth(ShownCaption(item)));
  }
  return widest;
}

void MenuRows::Draw(Extent extent, bool drawIcons) {
  drawIcons_ = drawIcons && menu_.Properties.UseIcons;
  at_ = {MenuTextLeft(menu_.Properties.Columns()), canvas_.Current.Y};
  int row = 1;
  for (const MenuItem& item : menu_.Items) {
    DrawRow(row++, item, extent);
    at_.Y += canvas_.TextHeight();
  }
  canvas_.Current = {0, at_.Y};
}

// A disabled row looks the same under the pointer, so that a move doesn't draw it anew: its smooth
// letters would get fatter each time.
void MenuRows::DrawRow(int row, const MenuItem& item, Extent extent) {
  const bool isWhole = extent == Extent::Everything;
  if (!item.Enabled) {
    if (isWhole) {
      DrawDisabled(item);
    }
  } else if (row == menu_.SelectedIndex) {
    DrawHot(item);
  } else if (isWhole) {
    DrawCold(item);
  } else if (row == menu_.PreviousIndex) {
    CleanAndDrawCold(item);
  }
}

void MenuRows::PrintAt(CanvasPoint place, const MenuItem& item, ColorNumber color) {
  canvas_.Current = place;
  canvas_.ForeColor = color;
  canvas_.Print(ShownCaption(item));
}

void MenuRows::DrawCold(const MenuItem& item) {
  if (drawIcons_) {
    canvas_.PaintPicture(item.ItemIcon, {MenuIconLeft(menu_.Properties.Columns()), at_.Y});
  }
  PrintAt(at_, item, item.ItemForeColor);
}

// The box goes one pixel into the next row, as the bar of the hot row does.
void MenuRows::CleanAndDrawCold(const MenuItem& item) {
  if (item.ItemHotBackColor != menu_.Properties.BackColor) {
    canvas_.FilledBox({at_.X - P, at_.Y}, {width_ - RoomOnTheRight, at_.Y + canvas_.TextHeight()},
                      menu_.Properties.BackColor);
  }
  PrintAt(at_, item, item.ItemForeColor);
}

void MenuRows::DrawHot(const MenuItem& item) {
  if (drawIcons_) {
    canvas_.PaintPicture(item.ItemIcon, {MenuIconLeft(menu_.Properties.Columns()), at_.Y});
  }
  const CanvasPoint corner{at_.X - P, at_.Y};
  const Twips height = canvas_.TextHeight();
  if (item.ItemHotBackColor != menu_.Properties.BackColor) {
    if (menu_.Properties.MouseOverSelectionType == FilledBar) {
      canvas_.FilledBox(corner, {width_ - RoomOnTheRight, at_.Y + height}, item.ItemHotBackColor);
    } else {
      const bool isDotted = menu_.Properties.MouseOverSelectionType == DottedBox;
      canvas_.DrawStyle = isDotted ? DrawStyle::Dots : DrawStyle::Solid;
      canvas_.Box(corner, {at_.X + canvas_.TextWidth(ShownCaption(item)), at_.Y + height - P},
                  item.ItemHotBackColor);
      canvas_.DrawStyle = DrawStyle::Solid;
    }
  }
  PrintAt(at_, item, item.ItemHotForeColor);
}

// Text that looks engraved, or a line that does.
void MenuRows::DrawDisabled(const MenuItem& item) {
  if (item.IsSeparator()) {
    DrawSeparator();
    return;
  }
  if (drawIcons_) {
    canvas_.PaintPicture(item.ItemIcon, {MenuIconLeft(menu_.Properties.Columns()), at_.Y});
  }
  const FrameColors colors = CalcFrameColors(canvas_);
  PrintAt({at_.X + P, at_.Y + P}, item, colors.Light);
  PrintAt(at_, item, colors.Dark);
}

void MenuRows::DrawSeparator() {
  constexpr Twips Deeper = 10;
  const FrameColors colors = CalcFrameColors(canvas_);
  const Twips left = MenuSeparatorLeft(menu_.Properties.Columns());
  const Twips right = width_ - RoomOnTheRight;
  const Twips middle = at_.Y + canvas_.TextHeight() / 2;
  canvas_.Line({left, middle + Deeper}, {right, middle + Deeper}, colors.Light);
  canvas_.Line({left, middle}, {right, middle}, colors.Dark);
}

}  // namespace vorlane
