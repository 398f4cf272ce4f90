#include "metadata/exif_parser.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "metadata/exif_numbers.h"
#include "metadata/exif_tag_names.h"
#include "metadata/exif_value.h"
#include "platform/failure.h"

namespace vorlane {

namespace {

// Whatever goes wrong before the first directory has this number.
constexpr int ReadMetaInfoFailed = 1;

constexpr std::string_view Marker("Exif\0", 5);
constexpr std::int64_t BaseBehindMarker = 6;  // one more NUL stands between
constexpr double IntelMark = 0x4949;          // "II"
constexpr std::int64_t FirstOffset = 4;       // behind the byte order and the number 42

constexpr std::int64_t CountLength = 2;
constexpr std::int64_t EntryLength = 12;

void ReplaceFirstTwoColons(Text& date) {
  auto colon = date.find(u':');
  for (int replaced = 0; replaced < 2 && colon != Text::npos; ++replaced) {
    date[colon] = u'/';
    colon = date.find(u':', colon);
  }
}

bool IsDateTag(std::int32_t tag) {
  return tag == exif_tag::DateTimeOriginal || tag == exif_tag::DateTimeDigitized ||
         tag == exif_tag::DateTime;
}

// A field keeps what it has if the number isn't there or doesn't fit.
void Assign(std::int32_t& field, std::optional<double> number) {
  if (number && *number <= std::numeric_limits<std::int32_t>::max()) {
    field = static_cast<std::int32_t>(*number);
  }
}

ExifTag ReadEntry(const ExifBlock& block, std::int64_t place) {
  const auto number = [&](std::int64_t offset, std::int64_t size) {
    return GetUnsigned(block.Head, place + offset, size, block.Order);
  };
  ExifTag entry;
  Assign(entry.Tag, number(0, 2));
  Assign(entry.Format, number(2, 2));
  Assign(entry.Count, number(4, 4));
  entry.Value = number(8, 4).value_or(0);
  entry.Name = GetTagName(entry.Tag);
  entry.Text = FormatValue(block, place, entry).value_or(Text());
  if (IsDateTag(entry.Tag)) {
    ReplaceFirstTwoColons(entry.Text);
  }
  return entry;
}

// A text may hold any number; one past the head leads to no directory, however far it is.
std::int64_t OffsetIn(TextView text) {
  constexpr double Far = 1e12;
  return static_cast<std::int64_t>(std::nearbyint(std::clamp(NumberAtStart(text), -Far, Far)));
}

// Adds the entries of one directory to `tags`. The offset to which the last entry with the link's
// tag leads; 0 if there is none.
std::int64_t ReadIFD(const ExifBlock& block, std::int64_t offset, std::int32_t linkTag,
                     std::vector<ExifTag>& tags) {
  std::int64_t place = block.Base + offset;
  const auto count = GetUnsigned(block.Head, place, CountLength, block.Order);
  if (!count) {
    return 0;
  }
  auto left = static_cast<std::int32_t>(*count);
  place += CountLength;
  std::int64_t linked = 0;
  while (left > 0) {
    ExifTag& entry = tags.emplace_back(ReadEntry(block, place));
    if (entry.Tag == linkTag) {
      linked = OffsetIn(entry.Text);
    }
    // Behind the head one entry is like the other, and there may be tens of thousands.
    const bool isBehindHead = place >= static_cast<std::int64_t>(block.Head.size());
    entry.Times = isBehindHead ? left : 1;
    left -= entry.Times;
    place += EntryLength;
  }
  return linked;
}

}  // namespace

std::optional<ExifContents> ParseExif(std::string_view fileStart) {
  if (fileStart.empty()) {
    throw RunError(ReadMetaInfoFailed, u"File not found.");
  }
  std::string head(fileStart.substr(0, ExifHeadLength));
  head.resize(ExifHeadLength);
  const auto marker = head.find(Marker);
  if (marker == std::string::npos) {
    return std::nullopt;
  }
  ExifBlock block;
  block.Head = head;
  block.Base = static_cast<std::int64_t>(marker) + BaseBehindMarker;
  const bool isIntel = GetUnsigned(block.Head, block.Base, 2, ByteOrder::BigEndian) == IntelMark;
  block.Order = isIntel ? ByteOrder::LittleEndian : ByteOrder::BigEndian;
  const auto first = GetUnsigned(block.Head, block.Base + FirstOffset, 4, block.Order);
  if (!first) {
    throw RunError(ReadMetaInfoFailed,
                   DescriptionOf(static_cast<int>(ErrorNumber::InvalidArgument)));
  }
  ExifContents contents;
  contents.IntelByteAlignment = isIntel;
  const std::int64_t second =
      ReadIFD(block, static_cast<std::int64_t>(*first), exif_tag::ExifOffset, contents.Tags);
  ReadIFD(block, second, exif_tag::ExifInteroperabilityOffset, contents.Tags);
  return contents;
}

std::vector<ExifTag> SingleEntries(const std::vector<ExifTag>& tags) {
  std::vector<ExifTag> singles;
  for (const ExifTag& tag : tags) {
    ExifTag single = tag;
    single.Times = 1;
    singles.insert(singles.end(), static_cast<std::size_t>(tag.Times), single);
  }
  return singles;
}

}  // namespace vorlane
