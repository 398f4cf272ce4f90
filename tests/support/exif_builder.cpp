#include "support/exif_builder.h"

#include <algorithm>

namespace vorlane {

namespace {

constexpr int ExifOffsetTag = 0x8769;
constexpr int LongFormat = 4;
constexpr std::size_t HeaderLength = 8;

}  // namespace

std::string ExifBuilder::Number(std::int64_t number, int size) const {
  std::string bytes;
  for (int i = 0; i < size; ++i) {
    bytes.push_back(static_cast<char>(number >> (8 * i) & 0xFF));
  }
  if (byteOrder_ != "II") {
    std::reverse(bytes.begin(), bytes.end());
  }
  return bytes;
}

ExifBuilder& ExifBuilder::Add(int tag, int format, std::uint32_t count, std::string_view value) {
  first_.push_back({tag, format, count, std::string(value)});
  return *this;
}

ExifBuilder& ExifBuilder::AddExif(int tag, int format, std::uint32_t count,
                                  std::string_view value) {
  exif_.push_back({tag, format, count, std::string(value)});
  return *this;
}

std::string ExifBuilder::Directory(const std::vector<Entry>& entries, int count,
                                   std::size_t offset) const {
  std::string directory = Short(count);
  std::string behind;
  const std::size_t endOfDirectory = offset + 2 + entries.size() * 12 + 4;
  for (const Entry& entry : entries) {
    directory += Short(entry.Tag) + Short(entry.Format) + Long(entry.Count);
    if (entry.Value.size() <= 4) {
      directory += entry.Value + std::string(4 - entry.Value.size(), '\0');
    } else {
      directory += Long(static_cast<std::int64_t>(endOfDirectory + behind.size()));
      behind += entry.Value;
    }
  }
  return directory + Long(0) + behind;
}

std::string ExifBuilder::Tiff() const {
  std::vector<Entry> first = first_;
  if (!exif_.empty()) {
    first.push_back({ExifOffsetTag, LongFormat, 1, Long(0)});
  }
  const int count = claimedEntries_ >= 0 ? claimedEntries_ : static_cast<int>(first.size());
  std::string directory = Directory(first, count, HeaderLength);
  std::string exif;
  if (!exif_.empty()) {
    const std::size_t place = HeaderLength + directory.size();
    first.back().Value = Long(static_cast<std::int64_t>(place));
    directory = Directory(first, count, HeaderLength);
    exif = Directory(exif_, static_cast<int>(exif_.size()), place);
  }
  return byteOrder_ + Short(42) + Long(HeaderLength) + directory + exif;
}

std::string ExifBuilder::Marked() const {
  return std::string("Exif\0\0", 6) + Tiff();
}

std::string ExifBuilder::Jpeg() const {
  const std::string segment = Marked();
  const std::size_t length = segment.size() + 2;
  return "\xFF\xD8\xFF\xE1" + std::string(1, static_cast<char>(length >> 8)) +
         static_cast<char>(length & 0xFF) + segment + "\xFF\xD9";
}

}  // namespace vorlane
