#include "platform/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace vorlane {
namespace {

bool IsDigit(char16_t c) {
  return c >= u'0' && c <= u'9';
}

// What may stand around the digits: spaces, one sign and one currency sign, in any order and on
// either side.
class Surroundings {
 public:
  // False if `c` is none of these, or one too many.
  bool Take(char16_t c) {
    if (c == u' ') {
      return true;
    }
    if (c == u'$' && !hasCurrency_) {
      hasCurrency_ = true;
      return true;
    }
    if ((c == u'+' || c == u'-') && !hasSign_) {
      hasSign_ = true;
      isNegative_ = c == u'-';
      return true;
    }
    return false;
  }

  bool IsNegative() const { return isNegative_; }

 private:
  bool hasCurrency_ = false;
  bool hasSign_ = false;
  bool isNegative_ = false;
};

// Moves the digits at the front of `text` to the end of `to`. With `separators`, commas among them
// are passed over, wherever they stand behind the first digit.
void MoveDigits(TextView& text, std::string& to, bool separators) {
  bool hasDigit = false;
  while (!text.empty() &&
         (IsDigit(text.front()) || (separators && hasDigit && text.front() == u','))) {
    if (IsDigit(text.front())) {
      to.push_back(static_cast<char>(text.front()));
      hasDigit = true;
    }
    text.remove_prefix(1);
  }
}

// Digits, point and exponent in the form that from_chars takes. Nothing if there is anything else.
std::optional<std::string> PlainDecimal(TextView text) {
  std::string plain;
  MoveDigits(text, plain, true);
  if (text.starts_with(u'.')) {
    plain.push_back('.');
    text.remove_prefix(1);
    MoveDigits(text, plain, false);
  }
  if (!text.empty() && TextView(u"EeDd").find(text.front()) != TextView::npos) {
    plain.push_back('e');
    text.remove_prefix(1);
    if (text.starts_with(u'+') || text.starts_with(u'-')) {
      plain.push_back(static_cast<char>(text.front()));
      text.remove_prefix(1);
    }
    MoveDigits(text, plain, false);
  }
  return text.empty() ? std::optional(plain) : std::nullopt;
}

std::optional<double> ReadDecimal(TextView text) {
  Surroundings surroundings;
  while (!text.empty() && surroundings.Take(text.front())) {
    text.remove_prefix(1);
  }
  while (!text.empty() && surroundings.Take(text.back())) {
    text.remove_suffix(1);
  }
  const auto plain = PlainDecimal(text);
  if (!plain) {
    return std::nullopt;
  }
  double number = 0;
  const char* const end = plain->data() + plain->size();
  const auto [stop, error] = std::from_chars(plain->data(), end, number);
  const bool tooSmall =
      error == std::errc::result_out_of_range && plain->find("e-") != std::string::npos;
  if ((error != std::errc() && !tooSmall) || stop != end) {
    return std::nullopt;
  }
  return surroundings.IsNegative() ? -number : number;
}

// Of up to 32 bits; the highest bit of 16 or 32 is the sign.
std::optional<double> ReadBits(TextView digits, int base) {
  std::string plain;
  for (const char16_t digit : digits) {
    plain.push_back(digit < 0x80 ? static_cast<char>(digit) : '?');
  }
  std::uint32_t bits = 0;
  const char* const end = plain.data() + plain.size();
  const auto [stop, error] = std::from_chars(plain.data(), end, bits, base);
  if (error != std::errc() || stop != end) {
    return std::nullopt;
  }
  if (bits <= std::numeric_limits<std::uint16_t>::max()) {
    return static_cast<std::int16_t>(bits);
  }
  return static_cast<std::int32_t>(bits);
}

template <typename Integer>
std::optional<Integer> ReadInteger(TextView text) {
  const auto number = ReadNumber(text);
  if (!number) {
    return std::nullopt;
  }
  // Ties go to the even number: the rounding mode that every program starts with.
  const double rounded = std::nearbyint(*number);
  if (rounded < std::numeric_limits<Integer>::min() ||
      rounded > std::numeric_limits<Integer>::max()) {
    return std::nullopt;
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

std::optional<double> ReadNumber(TextView text) {
  text = Trim(text);
  if (text.starts_with(u"&H") || text.starts_with(u"&h")) {
    return ReadBits(text.substr(2), 16);
  }
  if (text.starts_with(u"&O") || text.starts_with(u"&o")) {
    return ReadBits(text.substr(2), 8);
  }
  return ReadDecimal(text);
}

std::optional<std::int16_t> ReadInt16(TextView text) {
  return ReadInteger<std::int16_t>(text);
}

std::optional<std::int32_t> ReadInt32(TextView text) {
  return ReadInteger<std::int32_t>(text);
}

Text ShortestDecimal(double number) {
  // The longest is a number near the smallest: "-0.", 323 zeros and 17 digits.
  char digits[400];
  const double withoutSignOfZero = number == 0 ? 0 : number;
  const auto end = std::to_chars(std::begin(digits), std::end(digits), withoutSignOfZero,
                                 std::chars_format::fixed)
                       .ptr;
  return Text(std::begin(digits), end);
}

}  // namespace vorlane
