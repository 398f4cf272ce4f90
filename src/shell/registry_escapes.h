// How names and texts stand in a line of registry.conf, which ends at its line end and has its name
// before the first "=".
#pragma once

#include <cstdint>
#include <optional>

#include "platform/text.h"

namespace vorlane {

// Any text without line breaks and valid as UTF-8: "\\", "\n" and "\r" for a backslash and the line
// breaks, "\u" and four hex digits for U+0000, the byte-order mark and half of a surrogate pair.
Text Escape(TextView text);

// The same for a name: "=", and "[" or "#" at its beginning, get a backslash in front.
Text EscapeName(TextView name);

// The text that was escaped. A backslash that begins none of these is an ordinary character.
Text Unescape(TextView escaped);

// Where the "=" behind an escaped name is; npos if there is none.
std::size_t EndOfName(TextView line);

// Nothing if a character is no hex digit. 0 for an empty text.
std::optional<std::uint32_t> ReadHex(TextView digits);
void AppendHex(Text& text, std::uint32_t number, int digits);

}  // namespace vorlane
