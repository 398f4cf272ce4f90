// Where things stand in an ID3v2 tag, as this program sees one: a text that begins with a header of
// ten bytes, is as long as the header says, counted from the first byte of the header, and is
// searched for frames, never parsed from frame to frame.
//
// A frame: four letters, the size in four bytes, two flag bytes, the encoding byte, the text. The
// size counts the encoding byte and the text. Only sizes of up to 255 are known, so the first three
// size bytes are NULs and help to find the frame.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vorlane {

inline constexpr std::size_t TagHeaderLength = 10;
inline constexpr std::int32_t MinimumTagSize = 257;

// From the first letter of a frame to its size byte and to its text.
inline constexpr std::size_t FrameSizeOffset = 7;
inline constexpr std::size_t FrameTextOffset = 11;

bool HasID3v2Header(std::string_view fileStart);

// The size in the header, 0 to 2^28 - 1. Bytes of the header that are missing count as NULs.
std::int32_t DeclaredTagSize(std::string_view header);

// The place (counted from 0) of the first frame with these four letters at `from` or behind it.
std::optional<std::size_t> FindFrame(std::string_view tag, std::string_view id,
                                     std::size_t from = TagHeaderLength);

// The length of a text as its size byte says: the byte at `place`, less 1 for the encoding, so -1
// to 254. Throws RunError 5 if the tag ends before that place.
int TextLengthAt(std::string_view tag, std::size_t place);

// A frame with this size byte, no flags, and NUL as encoding.
std::string FrameBytes(std::string_view id, std::string_view text, std::uint8_t size);

}  // namespace vorlane
