#pragma once

#include "platform/text.h"

namespace vorlane {

// The text without the spaces at its ends, each word beginning in upper case and going on in lower
// case. A word begins at the start and behind "_", "-", ".", "(" and a space, and nowhere else: not
// behind a digit, "'", "[" or "&".
Text ProperCase(TextView text);

}  // namespace vorlane
