// The window's last visible act.
#pragma once

#include <QWidget>

namespace vorlane {

// Lets the window fade away within a second; nothing reaches it meanwhile. It is left out where it
// couldn't be seen or isn't wanted: on Wayland, and with VORLANE_NO_FADE=1.
void FadeOut(QWidget& window);

}  // namespace vorlane
