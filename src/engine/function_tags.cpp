#include "engine/function_tags.h"

#include "engine/occurring_tags.h"

namespace vorlane {

std::uint32_t OccurringFunctionTags(TextView text) {
  static constexpr TagFinder finder(FunctionTags, &FunctionTag::Opening);
  return finder.Occurring(text);
}

int CountOpeningTags(TextView text, const FunctionTag& tag) {
  int count = 0;
  for (auto hit = text.find(tag.Opening); hit != TextView::npos;
       hit = text.find(tag.Opening, hit + tag.Opening.size())) {
    ++count;
  }
  return count;
}

Position FindClosingTag(TextView code, const FunctionTag& tag, MessageLoop& loop) {
  int opens = 0;
  int closes = 0;
  Position from = 1;
  while (true) {
    const Position closing = PositionOf(code, tag.Closing, from);
    if (closing == 0) {
      return 0;
    }
    opens += CountOpeningTags(Slice(code, from, closing - from), tag);
    closes += closing > 1 ? 1 : 0;
    from = ToPosition(closing + 1);
    loop.Yield();
    if (opens == closes) {
      return closing;
    }
  }
}

}  // namespace vorlane
