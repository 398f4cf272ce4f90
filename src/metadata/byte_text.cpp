#include "metadata/byte_text.h"

namespace vorlane {

std::string_view TrimSpaces(std::string_view bytes) {
  const auto first = bytes.find_first_not_of(' ');
  if (first == std::string_view::npos) {
    return {};
  }
  return bytes.substr(first, bytes.find_last_not_of(' ') - first + 1);
}

std::string WithoutAll(std::string_view bytes, std::string_view part) {
  std::string result;
  std::size_t from = 0;
  for (auto at = bytes.find(part); at != std::string_view::npos; at = bytes.find(part, from)) {
    result.append(bytes, from, at - from);
    from = at + part.size();
  }
  result.append(bytes, from);
  return result;
}

std::string PaddedWithNuls(std::string_view bytes, std::size_t length) {
  std::string padded(bytes.substr(0, length));
  padded.resize(length);
  return padded;
}

}  // namespace vorlane
