#include "engine/positions.h"

#include <limits>

#include "platform/failure.h"

namespace vorlane {
namespace {

Position PositionOfIndex(std::size_t index) {
  return index == TextView::npos ? Position{0} : ToPosition(static_cast<std::int64_t>(index) + 1);
}

}  // namespace

Position ToPosition(std::int64_t position) {
  if (position > std::numeric_limits<Position>::max()) {
    throw RunError(ErrorNumber::Overflow);
  }
  return static_cast<Position>(position);
}

Position PositionOf(TextView text, TextView part, Position from) {
  if (from < 1) {
    throw RunError(ErrorNumber::InvalidArgument);
  }
  return PositionOfIndex(text.find(part, static_cast<std::size_t>(from) - 1));
}

Position LastPositionOf(TextView text, TextView part) {
  return PositionOfIndex(text.rfind(part));
}

TextView Slice(TextView text, Position start, int length) {
  if (start < 1 || length < 0) {
    throw RunError(ErrorNumber::InvalidArgument);
  }
  const auto index = static_cast<std::size_t>(start) - 1;
  return index >= text.size() ? TextView() : text.substr(index, static_cast<std::size_t>(length));
}

}  // namespace vorlane
