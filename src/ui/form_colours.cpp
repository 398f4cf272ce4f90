#include "ui/form_colours.h"

namespace vorlane {

namespace {

constexpr FormColour DesktopMark = 0x80000000;

QColor DesktopColourOf(FormColour number, const QPalette& palette) {
  const auto active = [&palette](QPalette::ColorRole role) {
    return palette.color(QPalette::Active, role);
  };
  switch (number) {
    case 0x02:
    case 0x0D:
      return active(QPalette::Highlight);
    case 0x05:
      return active(QPalette::Base);
    case 0x07:
    case 0x08:
      return active(QPalette::WindowText);
    case 0x0E:
      return active(QPalette::HighlightedText);
    case 0x0F:
      return active(QPalette::Button);
    case 0x11:
      return palette.color(QPalette::Disabled, QPalette::Text);
    case 0x12:
      return active(QPalette::ButtonText);
    case 0x14:
      return active(QPalette::Light);
    case 0x15:
      return active(QPalette::Shadow);
    default:
      return Qt::black;
  }
}

}  // namespace

QColor ToQColor(FormColour colour, const QPalette& palette) {
  if ((colour & DesktopMark) != 0) {
    return DesktopColourOf(colour & ~DesktopMark, palette);
  }
  const auto part = [colour](unsigned shift) { return static_cast<int>(colour >> shift & 0xFFU); };
  return QColor(part(0), part(8), part(16));
}

}  // namespace vorlane
