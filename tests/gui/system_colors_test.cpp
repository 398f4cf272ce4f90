#include "ui/system_colors.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QPalette>

namespace vorlane {
namespace {

TEST(SystemColors, PlainColorsAreBlueGreenRed) {
  EXPECT_EQ(ToQColor(0x000000), QColor(0, 0, 0));
  EXPECT_EQ(ToQColor(0x646400), QColor(0, 100, 100));
  EXPECT_EQ(ToQColor(0xFF8001), QColor(1, 128, 255));
}

TEST(SystemColors, NumbersOfTheSystemStandForThePalette) {
  const QPalette palette = QGuiApplication::palette();
  const auto color = [&](QPalette::ColorRole role) {
    return palette.color(QPalette::Active, role);
  };
  EXPECT_EQ(ToQColor(SystemColor(0x02)), color(QPalette::Highlight));
  EXPECT_EQ(ToQColor(SystemColor(0x05)), color(QPalette::Base));
  EXPECT_EQ(ToQColor(SystemColor(0x07)), color(QPalette::WindowText));
  EXPECT_EQ(ToQColor(SystemColor(0x08)), color(QPalette::WindowText));
  EXPECT_EQ(ToQColor(SystemColor(0x0D)), color(QPalette::Highlight));
  EXPECT_EQ(ToQColor(SystemColor(0x0E)), color(QPalette::HighlightedText));
  EXPECT_EQ(ToQColor(SystemColor(0x0F)), color(QPalette::Button));
  EXPECT_EQ(ToQColor(SystemColor(0x11)), palette.color(QPalette::Disabled, QPalette::Text));
  EXPECT_EQ(ToQColor(SystemColor(0x12)), color(QPalette::ButtonText));
  EXPECT_EQ(ToQColor(SystemColor(0x14)), color(QPalette::Light));
  EXPECT_EQ(ToQColor(SystemColor(0x15)), color(QPalette::Shadow));
}

}  // namespace
}  // namespace vorlane
