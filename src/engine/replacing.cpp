#include "engine/replacing.h"

#include "platform/failure.h"

namespace vorlane {

bool ReplaceUpTo(Text& text, TextView from, TextView to, std::int32_t most) {
  std::size_t hit = from.empty() || most == 0 ? Text::npos : text.find(from);
  if (hit == Text::npos) {
    return false;
  }
  Text result;
  result.reserve(text.size() + to.size());
  const auto append = [&](TextView part) {
    if (to.size() > from.size() && result.size() + part.size() > LongestText) {
      throw RunError(ErrorNumber::OutOfMemory);
    }
    result.append(part);
  };
  const TextView whole = text;
  std::size_t start = 0;
  while (hit != Text::npos) {
    append(whole.substr(start, hit - start));
    append(to);
    start = hit + from.size();
    hit = --most == 0 ? Text::npos : text.find(from, start);
  }
  append(whole.substr(start));
  text = std::move(result);
  return true;
}

}  // namespace vorlane
