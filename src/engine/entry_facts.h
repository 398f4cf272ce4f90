// What an entry and the clock can say to a keyword. The engine asks for a fact only when a keyword
// that needs it occurs, since most of them open the file.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/dates.h"
#include "platform/text.h"

namespace vorlane {

enum class WhichDate { Created, Written, Accessed };

// Paths are full paths of the entry.
class EntryFacts {
 public:
  virtual ~EntryFacts() = default;

  // Length in bytes; nothing if it can't be read or is over 2^31 - 1.
  virtual std::optional<std::int32_t> FileLength(TextView path) = 0;

  // The zero date if the entry can't be opened. Throws RunError if there is no such fact at all.
  virtual DateTime FileDate(TextView path, WhichDate which) = 0;

  virtual DateTime Now() = 0;

  // Bit rate in kbit/s of an MP3 file, 0 when there is none. Throws RunError if it can't be had.
  virtual std::int16_t GetKbit(TextView path) = 0;

  // The text of one EXIF tag, empty if the image has none. Throws RunError if the reader fails.
  virtual Text ExifValue(TextView path, std::int32_t tagNumber) = 0;

  // The same by the tag's name; empty if the name is unknown.
  virtual Text ExifValueByName(TextView path, TextView tagName) = 0;

  // The date of the picture as EXIF tells it, or whatever stands there instead of a date.
  virtual Text ImageDateOf(TextView path) = 0;
};

}  // namespace vorlane
