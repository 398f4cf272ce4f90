#include "ui/system_colors.h"

#include <QGuiApplication>
#include <QPalette>

namespace vorlane {

namespace {

struct PaletteColor {
  QPalette::ColorGroup Group;
  QPalette::ColorRole Role;
};

PaletteColor PaletteColorOf(int number) {
  switch (number) {
    case 0x02:
    case 0x0D:
      return {QPalette::Active, QPalette::Highlight};
    case 0x05:
      return {QPalette::Active, QPalette::Base};
    case 0x07:
    case 0x08:
      return {QPalette::Active, QPalette::WindowText};
    case 0x0E:
      return {QPalette::Active, QPalette::HighlightedText};
    case 0x11:
      return {QPalette::Disabled, QPalette::Text};
    case 0x12:
      return {QPalette::Active, QPalette::ButtonText};
    case 0x14:
      return {QPalette::Active, QPalette::Light};
    case 0x15:
      return {QPalette::Active, QPalette::Shadow};
    default:
      return {QPalette::Active, QPalette::Button};
  }
}

}  // namespace

QColor ToQColor(int color) {
  constexpr int Byte = 0xFF;
  if (color < 0) {
    const PaletteColor place = PaletteColorOf(color & Byte);
    return QGuiApplication::palette().color(place.Group, place.Role);
  }
  return {color & Byte, color >> 8 & Byte, color >> 16 & Byte};
}

}  // namespace vorlane
