// Texts of the status line that several jobs share.
#pragma once

#include <cstdint>

#include "platform/text.h"

namespace vorlane {

// "Time taken: MM:SS" of a job that runs, and "Ready - Time taken: MM:SS" of one that has ended.
Text TimeTakenText(std::int32_t seconds);
Text ReadyAfterText(std::int32_t seconds);

}  // namespace vorlane
