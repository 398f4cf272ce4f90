// The bytes of a text file that stands beside the program and that a person may edit (the
// operations file, the keyword list) as text.
#pragma once

#include <string_view>

#include "platform/text.h"

namespace vorlane {

// The text of such a file. UTF-8 if it starts with a byte-order mark (which is dropped) or holds
// characters beyond ASCII and is valid UTF-8 throughout; Windows-1252 otherwise. In a file without
// any CR LF each LF becomes CR LF. Takes any bytes.
Text DecodeTextFile(std::string_view bytes);

}  // namespace vorlane
