// The small yellow labels that name the controls of the main window while its help is shown.
#pragma once

#include "ui/form_controls.h"

namespace vorlane {

// Gives them their captions. They stay hidden.
void InitHelpLabels(FormControls& controls);

// Shows the labels, those of option boxes only for the boxes that are shown.
void ShowHelpLabels(FormControls& controls);

void HideHelpLabels(FormControls& controls);

}  // namespace vorlane
