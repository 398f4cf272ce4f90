// What all windows of the program have in common.
#pragma once

#include <QFont>

namespace vorlane {

// What everything is written in that has no font of its own: "MS Sans Serif" of 8.25 points, or
// what takes its place.
QFont StandardFont();

// Fonts in pixels, so that the arrangement doesn't depend on the screen's resolution. Once, when
// there is an application.
void SetApplicationLook();

}  // namespace vorlane
