#include "engine/mid.h"

namespace vorlane {
namespace {

// The place of the mark at or after `from`, or one behind the end of the text.
Position EndOfPiece(TextView text, TextView endMark, Position from) {
  const Position end = endMark.empty() ? Position{0} : PositionOf(text, endMark, from);
  return end > 0 ? end : ToPosition(static_cast<std::int64_t>(text.size()) + 1);
}

Text Piece(TextView text, Position start, Position end) {
  return Text(Trim(Slice(text, start, end - start)));
}

}  // namespace

Text MidFromPosition(TextView text, Position start, TextView endMark) {
  // From the character behind `start`, so that a mark just at `start` is passed over.
  const Position from = endMark.empty() ? start : ToPosition(start + 1);
  return Piece(text, start, EndOfPiece(text, endMark, from));
}

Text MidFromMarker(TextView text, TextView mark, std::int16_t count, TextView endMark) {
  Position begin = 0;
  Position from = 1;
  for (std::int16_t i = 0; i < count; ++i) {
    const Position hit = PositionOf(text, mark, from);
    if (hit == 0) {
      // The search would start over and only meet what lies before `begin`.
      break;
    }
    if (hit > begin) {
      begin = ToPosition(hit + static_cast<std::int64_t>(mark.size()));
    }
    from = ToPosition(hit + 1);
  }
  if (begin == 0 && count > 0) {
    begin = 1;
  }
  return Piece(text, begin, EndOfPiece(text, endMark, begin));
}

}  // namespace vorlane
