#include "platform/text.h"

#include <charconv>

namespace vorlane {

TextView Trim(TextView text) {
  const auto first = text.find_first_not_of(u' ');
  if (first == TextView::npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

bool Contains(TextView text, TextView part) {
  return text.find(part) != TextView::npos;
}

void ReplaceAll(Text& text, TextView from, TextView to) {
  auto hit = from.empty() ? Text::npos : text.find(from);
  if (hit == Text::npos) {
    return;
  }
  Text result;
  std::size_t start = 0;
  for (; hit != Text::npos; hit = text.find(from, start)) {
    result.append(text, start, hit - start).append(to);
    start = hit + from.size();
  }
  result.append(text, start);
  text = std::move(result);
}

std::vector<Text> Split(TextView text, TextView separator) {
  std::vector<Text> pieces;
  std::size_t start = 0;
  for (auto hit = text.find(separator); hit != TextView::npos; hit = text.find(separator, start)) {
    pieces.emplace_back(text.substr(start, hit - start));
    start = hit + separator.size();
  }
  pieces.emplace_back(text.substr(start));
  return pieces;
}

Text DecimalText(std::int64_t number) {
  char digits[24];
  const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
  return Text(std::begin(digits), end);
}

Text AsciiText(std::string_view ascii) {
  Text text;
  text.reserve(ascii.size());
  for (const char c : ascii) {
    text.push_back(static_cast<unsigned char>(c) < 0x80 ? static_cast<char16_t>(c) : u'?');
  }
  return text;
}

Text FormatElapsed(std::int32_t seconds) {
  const auto twoDigits = [](std::int32_t number) {
    return (number < 10 ? u"0" : u"") + DecimalText(number);
  };
  return twoDigits(seconds / 60) + u":" + twoDigits(seconds % 60);
}

}  // namespace vorlane
