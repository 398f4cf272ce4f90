// What all windows of the program have in common.
#pragma once

namespace vorlane {

// Fonts in pixels, so that the arrangement doesn't depend on the screen's resolution. Once, when
// there is an application.
void SetApplicationLook();

}  // namespace vorlane
