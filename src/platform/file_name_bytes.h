// File names are bytes on Linux and text in the core. Valid UTF-8 becomes the characters that it
// stands for; each byte of an invalid sequence (overlong, surrogate, past U+10FFFF, cut short)
// becomes one lone surrogate U+DC80 to U+DCFF and comes back as that byte. So bytes -> text ->
// bytes is exact for any byte sequence. Nothing is normalised.
//
// UTF-8: RFC 3629. The escape by lone surrogates is the one known as "surrogateescape".
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/text.h"

namespace vorlane {

// Any bytes as text; never fails.
Text TextFromBytes(std::string_view bytes);

// The bytes that a path or name stands for on disk, or nothing if no file can have that name: it
// holds U+0000, or a lone surrogate outside U+DC80 to U+DCFF (half of a pair).
std::optional<std::string> BytesFromText(TextView text);

// The name as a terminal shows it: what BytesFromText refuses becomes U+FFFD, an escaped byte is
// that byte again, so that a name reads as other programs print it.
std::string DisplayUtf8(TextView text);

// True if all bytes are valid UTF-8.
bool IsValidUtf8(std::string_view bytes);

// "_" for each lone surrogate that no file name on disk can hold (half of a pair); escaped bytes
// U+DC80 to U+DCFF stay.
Text ReplaceUnpairedSurrogates(TextView text);

}  // namespace vorlane
