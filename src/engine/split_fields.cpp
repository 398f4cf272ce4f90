#include "engine/split_fields.h"

#include "engine/positions.h"

namespace vorlane {

std::vector<Text> SplitFields(TextView text, std::int16_t count) {
  if (count < 2) {
    return {};
  }
  std::vector<Text> fields(static_cast<std::size_t>(count) + 1);
  const auto length = static_cast<std::int64_t>(text.size());
  Position start = 1;
  for (int i = 0; i < count; ++i) {
    Position bar = PositionOf(text, u"|", start);
    if (bar == 0 && i == count - 2) {
      bar = ToPosition(length);
    }
    if (bar == 0 && i == count - 1) {
      bar = ToPosition(length + 1);
    }
    if (bar < start) {
      break;
    }
    fields[static_cast<std::size_t>(i)] = Slice(text, start, bar - start);
    start = ToPosition(bar + 1);
  }
  return fields;
}

}  // namespace vorlane
