// An entry that says what a test wants it to say, and counts how often it is asked.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "engine/entry_facts.h"
#include "platform/failure.h"

namespace vorlane {

class FakeFacts final : public EntryFacts {
 public:
  // A fact without a value can't be had: the length is nothing, the others throw.
  std::optional<std::int32_t> Length = 1536;
  std::optional<DateTime> Created = MakeDateTime(2026, 11, 15, 15, 45, 12);
  std::optional<DateTime> Written = MakeDateTime(2025, 1, 2, 9, 5, 7);
  std::optional<DateTime> Accessed = MakeDateTime(2024, 2, 29, 0, 0, 0);
  DateTime Time = *MakeDateTime(2027, 6, 30, 23, 59, 58);
  std::optional<std::int16_t> Kbit = std::int16_t{128};
  std::optional<Text> Make = Text(u"Acme");  // EXIF tag 271, the only one that has a number here
  std::map<Text, Text> ExifByName;
  bool ExifFails = false;
  std::optional<Text> ImageDate = Text(u"2004/05/06 12:34:56");

  // One entry a call: the fact's name and the path asked about.
  struct Call {
    Text Fact;
    Text Path;
    bool operator==(const Call&) const = default;
  };
  std::vector<Call> Calls;

  std::optional<std::int32_t> FileLength(TextView path) override {
    Note(u"FileLength", path);
    return Length;
  }

  DateTime FileDate(TextView path, WhichDate which) override {
    switch (which) {
      case WhichDate::Created:
        Note(u"Created", path);
        return ValueOf(Created);
      case WhichDate::Written:
        Note(u"Written", path);
        return ValueOf(Written);
      case WhichDate::Accessed:
        Note(u"Accessed", path);
        return ValueOf(Accessed);
    }
    return {};
  }

  DateTime Now() override {
    Note(u"Now", u"");
    return Time;
  }

  std::int16_t GetKbit(TextView path) override {
    Note(u"GetKbit", path);
    return ValueOf(Kbit);
  }

  Text ExifValue(TextView path, std::int32_t tagNumber) override {
    Note(u"ExifValue " + DecimalText(tagNumber), path);
    return ValueOf(Make);
  }

  Text ExifValueByName(TextView path, TextView tagName) override {
    Note(u"ExifValueByName " + Text(tagName), path);
    if (ExifFails) {
      throw RunError(ErrorNumber::DeviceError);
    }
    const auto found = ExifByName.find(Text(tagName));
    return found == ExifByName.end() ? Text() : found->second;
  }

  Text ImageDateOf(TextView path) override {
    Note(u"ImageDateOf", path);
    return ValueOf(ImageDate);
  }

 private:
  void Note(TextView fact, TextView path) { Calls.push_back({Text(fact), Text(path)}); }

  template <typename Value>
  static Value ValueOf(const std::optional<Value>& value) {
    if (!value) {
      throw RunError(ErrorNumber::FileNotFound);
    }
    return *value;
  }
};

}  // namespace vorlane
