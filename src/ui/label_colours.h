// The colours of the main window's labels. White belongs to a dark picture behind it: a label that
// stands on none has the desktop's colours, so that it can be read without a skin too.
#pragma once

#include "ui/form_controls.h"

namespace vorlane {

// The labels with an opaque ground of their own, yellow under black. Once.
void ShowHelpLabelColours(const FormControls& controls);

// All others, by what they stand on. `background` is the part of the form that the background
// picture covers. The title has the colour of the desktop's text, and is white only while the mouse
// is over it.
void ShowLabelColours(const FormControls& controls, const QRect& background, bool mouseOnTitle);

}  // namespace vorlane
