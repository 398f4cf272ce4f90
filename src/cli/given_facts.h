// Facts that a script gives instead of having the disk asked. What it doesn't give is asked.
#pragma once

#include <map>
#include <optional>

#include "cli/json_text.h"
#include "engine/entry_facts.h"

namespace vorlane {

class GivenFacts final : public EntryFacts {
 public:
  // `facts`: "size", "created", "modified" and "now" ("YYYY-MM-DDTHH:MM:SS", local), "kbit", and
  // "exif", an object of tag number to text. A fact given as null is one that can't be had.
  // Throws CommandError (Usage) for a value that can't be read.
  GivenFacts(const Json& facts, EntryFacts& disk);

  std::optional<std::int32_t> FileLength(TextView path) override;
  DateTime FileDate(TextView path, WhichDate which) override;
  DateTime Now() override;
  std::int16_t GetKbit(TextView path) override;
  Text ExifValue(TextView path, std::int32_t tagNumber) override;
  Text ExifValueByName(TextView path, TextView tagName) override;
  Text ImageDateOf(TextView path) override;

 private:
  // Given as a value, given as null, or not given.
  template <typename Value>
  struct Fact {
    bool Given = false;
    std::optional<Value> Known;
  };

  using ExifTexts = std::map<std::int32_t, Text>;

  Fact<DateTime> DateFact(const Json& facts, const char* name) const;
  const ExifTexts& Exif() const;

  EntryFacts& disk_;
  Fact<std::int32_t> size_;
  Fact<DateTime> created_;
  Fact<DateTime> modified_;
  Fact<DateTime> now_;
  Fact<std::int16_t> kbit_;
  Fact<ExifTexts> exif_;
};

}  // namespace vorlane
