#include "metadata/replace_frame.h"

#include <optional>

#include "metadata/id3v2_frame.h"
#include "platform/failure.h"

namespace vorlane {

namespace {

std::string CheckedFrame(std::string_view id, std::string_view text) {
  const std::size_t size = text.size() + 1;
  if (size > 255) {
    throw RunError(ErrorNumber::InvalidArgument);
  }
  return FrameBytes(id, text, static_cast<std::uint8_t>(size));
}

std::optional<std::size_t> FindNuls(std::string_view tag, std::size_t count) {
  std::size_t run = 0;
  for (std::size_t place = TagHeaderLength; place < tag.size(); ++place) {
    run = tag[place] == '\0' ? run + 1 : 0;
    if (run == count) {
      return place + 1 - count;
    }
  }
  return std::nullopt;
}

}  // namespace

std::string& ReplaceFrame(std::string& tag, std::string_view id, std::string_view text) {
  if (const auto found = FindFrame(tag, id)) {
    const int oldText = TextLengthAt(tag, *found + FrameSizeOffset);  // -1 takes a byte less
    const std::size_t oldFrame = FrameTextOffset + static_cast<std::size_t>(oldText + 1) - 1;
    tag.replace(*found, oldFrame, CheckedFrame(id, text));
  } else if (const auto room = FindNuls(tag, text.size() + FrameTextOffset)) {
    tag.replace(*room, text.size() + FrameTextOffset, CheckedFrame(id, text));
  }
  return tag;
}

}  // namespace vorlane
