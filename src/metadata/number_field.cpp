#include "metadata/number_field.h"

#include "platform/failure.h"
#include "platform/numbers.h"

namespace vorlane {

std::int16_t Int16Of(TextView text) {
  if (!IsNumeric(text)) {
    throw RunError(ErrorNumber::TypeMismatch);
  }
  const auto number = ReadInt16(text);
  if (!number) {
    throw RunError(ErrorNumber::Overflow);
  }
  return *number;
}

}  // namespace vorlane
