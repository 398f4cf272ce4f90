// What assistive programs, such as a screen reader, see of an EasyButton: a button that they can
// press.
#pragma once

namespace vorlane {

// For all buttons of the program; a second call does nothing.
void LetAssistivePressEasyButtons();

}  // namespace vorlane
