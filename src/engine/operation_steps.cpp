#include "engine/operation_steps.h"

#include "platform/failure.h"

namespace vorlane {
namespace {

constexpr TextView stepKey = u"Step:";
constexpr std::size_t longestCode = 32767;

}  // namespace

std::optional<TextView> NextStep(TextView code, std::size_t& position) {
  if (code.size() > longestCode) {
    throw RunError(ErrorNumber::Overflow);
  }
  const auto key = code.find(stepKey, position);
  if (key == TextView::npos) {
    return std::nullopt;
  }
  const auto start = key + stepKey.size();
  auto end = code.find(u"\r\n", start);
  if (end == TextView::npos) {
    // The operations file ends its lines, so this is the CR that is left of the last line end.
    end = code.size() - 1;
  }
  if (end < start) {
    throw RunError(ErrorNumber::InvalidArgument);
  }
  position = end;
  return Trim(code.substr(start, end - start));
}

}  // namespace vorlane
