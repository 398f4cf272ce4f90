// Which version of the program this is.
#pragma once

#include "platform/text.h"

namespace vorlane {

// Major version, ".", minor version and revision with nothing between them: "1.20" is 1.2.0.
Text VersionText();

}  // namespace vorlane
