// One frame of an ID3v2 tag gets a new text.
#pragma once

#include <string>
#include <string_view>

namespace vorlane {

// A frame that FindFrame finds gets this text; its flags and encoding byte become NULs, and the tag
// grows or shrinks with the text. A frame that isn't there goes into the first run of NULs behind
// the header that has room for it, and the tag keeps its length; without such a run nothing
// changes. So a frame of 256 bytes or more, which isn't found, stays in front of the new one.
// Throws RunError 5, with the tag unchanged: for a text of 255 bytes or more that has a place, and
// for a frame whose size byte lies behind the end of the tag.
// `tag` is changed and also returned. Linear in the tag.
std::string& ReplaceFrame(std::string& tag, std::string_view id, std::string_view text);

}  // namespace vorlane
