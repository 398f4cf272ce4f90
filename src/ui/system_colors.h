// Colours as the controls keep them in numbers: blue, green and red from the highest byte to the
// lowest, or, with the topmost bit set, the number of a colour of the system.
#pragma once

#include <QColor>

namespace vorlane {

constexpr int SystemColor(int number) {
  return static_cast<int>(0x80000000U | static_cast<unsigned>(number));
}

// A colour of the system is what the program's palette has in its place; one that it doesn't know
// is the button's.
QColor ToQColor(int color);

}  // namespace vorlane
