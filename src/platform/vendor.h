// Who makes the program. The journal's first line is built from these two texts, and its length is
// part of the journal's format: title, " - " and address have 43 characters together.
#pragma once

#include "platform/text.h"

namespace vorlane {

inline constexpr TextView ApplicationTitle = u"Vorlane 2006";
inline constexpr TextView VendorAddress = u"https://www.vorlane.example/";

// The host that is asked for newer versions; an empty one switches the check off.
inline constexpr TextView VendorHost = u"www.vorlane.example";

// The text on that host that tells of the newest version.
inline constexpr TextView VendorUpdateFile = u"vorl.txt";

}  // namespace vorlane
