#include "ui/form_colours.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(FormColours, PlainColoursAreBlueGreenRed) {
  const QPalette palette;
  EXPECT_EQ(ToQColor(0x000000, palette), QColor(0, 0, 0));
  EXPECT_EQ(ToQColor(0x646400, palette), QColor(0, 100, 100));
  EXPECT_EQ(ToQColor(0xFF8001, palette), QColor(1, 128, 255));
}

TEST(FormColours, NumbersOfTheDesktopStandForThePalette) {
  struct Case {
    FormColour Colour;
    QPalette::ColorRole Role;
  };
  const Case cases[] = {{0x80000002, QPalette::Highlight},  {0x80000005, QPalette::Base},
                        {0x80000007, QPalette::WindowText}, {0x80000008, QPalette::WindowText},
                        {0x8000000D, QPalette::Highlight},  {0x8000000E, QPalette::HighlightedText},
                        {0x8000000F, QPalette::Button},     {0x80000012, QPalette::ButtonText},
                        {0x80000014, QPalette::Light},      {0x80000015, QPalette::Shadow}};
  for (const Case& one : cases) {
    QPalette palette(Qt::black);
    palette.setColor(QPalette::Active, one.Role, QColor(1, 2, 3));
    EXPECT_EQ(ToQColor(one.Colour, palette), QColor(1, 2, 3)) << std::hex << one.Colour;
  }
  QPalette palette;
  palette.setColor(QPalette::Disabled, QPalette::Text, QColor(4, 5, 6));
  EXPECT_EQ(ToQColor(DesktopColour::DisabledText, palette), QColor(4, 5, 6));
}

}  // namespace
}  // namespace vorlane
