#include "engine/auto_number.h"

namespace vorlane {

Text FormatAutoNumber(std::int32_t number, std::int32_t rows) {
  Text text = DecimalText(number);
  const std::size_t width = DecimalText(rows).size();
  if (width > text.size()) {
    text.insert(0, width - text.size(), u'0');
  }
  return text;
}

}  // namespace vorlane
