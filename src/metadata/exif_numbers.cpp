#include "metadata/exif_numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <string>

namespace vorlane {

namespace {

// Digits of a double that a division leaves correct.
constexpr int ReliableDigits = 15;

// Quotients of two 32-bit numbers, and their reciprocals, go no higher.
constexpr double LargestQuotient = 4294967295.0;

// A larger double has its last binary digit, and with it its last decimal one, here or before.
constexpr int DecimalsOfLargeNumber = 21;

// As many decimals as tell where a number lies between two values of a pattern: those that are free
// from the noise of a division; for a larger number, which comes from a power, all of them.
int DecimalsOf(double magnitude) {
  if (magnitude > LargestQuotient) {
    return DecimalsOfLargeNumber;
  }
  const Text beforePoint = DecimalText(static_cast<std::int64_t>(magnitude));
  return ReliableDigits - static_cast<int>(beforePoint.size());
}

std::string LongDecimal(double magnitude) {
  char text[400];  // the largest double has 309 digits before the point
  const auto end = std::to_chars(std::begin(text), std::end(text), magnitude,
                                 std::chars_format::fixed, DecimalsOf(magnitude))
                       .ptr;
  return {std::begin(text), end};
}

// Adds one to the last digit, with whatever that carries.
void CountUp(std::string& digits) {
  for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
    if (*digit != '9') {
      ++*digit;
      return;
    }
    *digit = '0';
  }
  digits.insert(0, 1, '1');
}

}  // namespace

std::optional<double> GetUnsigned(std::string_view bytes, std::int64_t place, std::int64_t size,
                                  ByteOrder order) {
  if (size == 0) {
    return 0;
  }
  if (place < 0 || place + size > static_cast<std::int64_t>(bytes.size())) {
    return std::nullopt;
  }
  double sum = 0;
  double weight = 1;
  for (std::int64_t significance = 0; significance < size; ++significance) {
    const auto at =
        order == ByteOrder::LittleEndian ? place + significance : place + size - 1 - significance;
    sum += weight * static_cast<unsigned char>(bytes[static_cast<std::size_t>(at)]);
    weight *= 256;
  }
  return sum;
}

std::optional<double> GetSigned(std::string_view bytes, std::int64_t place, std::int64_t size,
                                ByteOrder order) {
  const auto value = GetUnsigned(bytes, place, size, order);
  if (!value) {
    return std::nullopt;
  }
  const double max = std::exp2(static_cast<double>(size * 8 - 1));
  return *value > max - 1 ? max - *value - 1 : *value;
}

Text FormatNumber(double number, int decimals) {
  std::string digits = LongDecimal(std::abs(number));
  const std::size_t point = digits.find('.');
  const auto shown = static_cast<std::size_t>(decimals);
  const bool roundsUp = digits[point + 1 + shown] >= '5';
  digits.erase(point, 1);
  digits.resize(point + shown);
  if (roundsUp) {
    CountUp(digits);
  }
  const bool isZero = digits.find_first_not_of('0') == std::string::npos;
  if (decimals > 0) {
    digits.insert(digits.size() - shown, 1, '.');
  }
  return (number < 0 && !isZero ? u"-" : u"") + AsciiText(digits);
}

double NumberAtStart(TextView text) {
  text.remove_prefix(std::min(text.find_first_not_of(u' '), text.size()));
  const bool isNegative = text.starts_with(u'-');
  if (isNegative || text.starts_with(u'+')) {
    text.remove_prefix(1);
  }
  std::string plain;
  for (const char16_t c : text.substr(0, text.find_first_not_of(u"0123456789.eE+-"))) {
    plain.push_back(static_cast<char>(c));
  }
  double number = 0;
  // Reads as far as there is a number, and leaves 0 where there is none. It would take a "-" here,
  // which is a second sign.
  if (!plain.starts_with('-')) {
    std::from_chars(plain.data(), plain.data() + plain.size(), number);
  }
  return isNegative ? -number : number;
}

}  // namespace vorlane
