#include "cli/given_facts.h"

#include <charconv>
#include <limits>

#include "cli/exit_status.h"
#include "cli/json_fields.h"
#include "metadata/exif.h"
#include "platform/failure.h"

namespace vorlane {

namespace {

// "YYYY-MM-DDTHH:MM:SS".
std::optional<DateTime> ReadTimestamp(TextView text) {
  constexpr TextView pattern = u"0000-00-00T00:00:00";
  if (text.size() != pattern.size()) {
    return std::nullopt;
  }
  int parts[6] = {};
  std::size_t part = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isDigit = text[i] >= u'0' && text[i] <= u'9';
    if (pattern[i] == u'0' ? !isDigit : text[i] != pattern[i]) {
      return std::nullopt;
    }
    if (isDigit) {
      parts[part] = parts[part] * 10 + (text[i] - u'0');
    } else {
      ++part;
    }
  }
  return MakeDateTime(parts[0], parts[1], parts[2], parts[3], parts[4], parts[5]);
}

std::int32_t ReadTagNumber(const std::string& text) {
  std::int32_t number = 0;
  const char* end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc() || read.ptr != end) {
    throw CommandError(ExitStatus::Usage, "exif: expected a tag number, not " + text);
  }
  return number;
}

bool IsKnown(const Json& facts, const char* name) {
  return facts.contains(name) && !facts.at(name).is_null();
}

// No fact: the reader failed.
[[noreturn]] void ThrowUnknown() {
  throw RunError(ErrorNumber::FileNotFound);
}

}  // namespace

GivenFacts::GivenFacts(const Json& facts, EntryFacts& disk) : disk_(disk) {
  created_ = DateFact(facts, "created");
  modified_ = DateFact(facts, "modified");
  now_ = DateFact(facts, "now");
  size_.Given = facts.contains("size");
  if (IsKnown(facts, "size")) {
    // The length of a file of 2 GiB and more can't be had either.
    const auto bytes = NumberField(facts, "size", 0, std::numeric_limits<std::int64_t>::max());
    if (*bytes <= std::numeric_limits<std::int32_t>::max()) {
      size_.Known = static_cast<std::int32_t>(*bytes);
    }
  }
  kbit_.Given = facts.contains("kbit");
  if (IsKnown(facts, "kbit")) {
    kbit_.Known = NumberField<std::int16_t>(facts, "kbit");
  }
  exif_.Given = facts.contains("exif");
  if (IsKnown(facts, "exif")) {
    exif_.Known.emplace();
    for (const auto& [number, text] : ObjectField(facts, "exif")->items()) {
      exif_.Known->emplace(ReadTagNumber(number), TextOfValue(text, "exif " + number));
    }
  }
}

GivenFacts::Fact<DateTime> GivenFacts::DateFact(const Json& facts, const char* name) const {
  Fact<DateTime> fact;
  fact.Given = facts.contains(name);
  if (IsKnown(facts, name)) {
    fact.Known = ReadTimestamp(TextOfValue(facts.at(name), name));
    if (!fact.Known) {
      throw CommandError(ExitStatus::Usage, std::string(name) + ": expected YYYY-MM-DDTHH:MM:SS");
    }
  }
  return fact;
}

std::optional<std::int32_t> GivenFacts::FileLength(TextView path) {
  return size_.Given ? size_.Known : disk_.FileLength(path);
}

// A date that can't be had is the zero date, as for an entry that can't be opened.
DateTime GivenFacts::FileDate(TextView path, WhichDate which) {
  const auto& fact = which == WhichDate::Created ? created_ : modified_;
  return fact.Given ? fact.Known.value_or(DateTime()) : disk_.FileDate(path, which);
}

DateTime GivenFacts::Now() {
  return now_.Given ? now_.Known.value_or(DateTime()) : disk_.Now();
}

std::int16_t GivenFacts::GetKbit(TextView path) {
  return kbit_.Given ? kbit_.Known.value_or(std::int16_t{0}) : disk_.GetKbit(path);
}

const GivenFacts::ExifTexts& GivenFacts::Exif() const {
  if (!exif_.Known) {
    ThrowUnknown();
  }
  return *exif_.Known;
}

Text GivenFacts::ExifValue(TextView path, std::int32_t tagNumber) {
  if (!exif_.Given) {
    return disk_.ExifValue(path, tagNumber);
  }
  const auto found = Exif().find(tagNumber);
  return found == Exif().end() ? Text() : found->second;
}

Text GivenFacts::ExifValueByName(TextView path, TextView tagName) {
  if (!exif_.Given) {
    return disk_.ExifValueByName(path, tagName);
  }
  return vorlane::ExifValueByName([&](std::int32_t tag) { return ExifValue(path, tag); }, tagName);
}

Text GivenFacts::ImageDateOf(TextView path) {
  if (!exif_.Given) {
    return disk_.ImageDateOf(path);
  }
  return vorlane::ImageDateOf([&](std::int32_t tag) { return ExifValue(path, tag); });
}

}  // namespace vorlane
