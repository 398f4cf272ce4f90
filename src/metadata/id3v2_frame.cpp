#include "metadata/id3v2_frame.h"

#include <array>

#include "metadata/id3_bits.h"
#include "platform/failure.h"

namespace vorlane {

bool HasID3v2Header(std::string_view fileStart) {
  return fileStart.starts_with("ID3");
}

std::int32_t DeclaredTagSize(std::string_view header) {
  constexpr std::size_t sizePlace = 6;
  std::array<std::uint8_t, 4> bytes{};
  for (std::size_t i = 0; i < bytes.size() && sizePlace + i < header.size(); ++i) {
    bytes.at(i) = static_cast<std::uint8_t>(header[sizePlace + i]);
  }
  return BitsToLong(BytesToBits(bytes, 6));
}

std::optional<std::size_t> FindFrame(std::string_view tag, std::string_view id, std::size_t from) {
  std::string needle(id);
  needle.append(FrameSizeOffset - id.size(), '\0');
  const auto place = tag.find(needle, from);
  if (place == std::string_view::npos) {
    return std::nullopt;
  }
  return place;
}

int TextLengthAt(std::string_view tag, std::size_t place) {
  if (place >= tag.size()) {
    throw RunError(ErrorNumber::InvalidArgument);
  }
  return static_cast<std::uint8_t>(tag[place]) - 1;
}

std::string FrameBytes(std::string_view id, std::string_view text, std::uint8_t size) {
  std::string frame(id);
  frame += std::string(3, '\0');
  frame += static_cast<char>(size);
  frame += std::string(3, '\0');
  frame += text;
  return frame;
}

}  // namespace vorlane
