// EXIF blocks for tests, put together by hand and not by the code under test.
//
// A block is a TIFF header, the first directory with its longer values behind it, and, if there is
// one, the EXIF directory with its own. Every entry may be as wrong as a test likes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vorlane {

class ExifBuilder {
 public:
  // "II" or "MM"; any other two characters stand in the header as they are and count as "MM".
  explicit ExifBuilder(std::string byteOrder = "II") : byteOrder_(std::move(byteOrder)) {}

  // Numbers as the bytes of this byte order; negative ones in two's complement.
  std::string Short(std::int64_t number) const { return Number(number, 2); }
  std::string Long(std::int64_t number) const { return Number(number, 4); }
  std::string Rational(std::int64_t numerator, std::int64_t denominator) const {
    return Long(numerator) + Long(denominator);
  }

  // An entry of the first directory. A value of up to four bytes stands in the entry, with NULs
  // behind it; a longer one behind the directory.
  ExifBuilder& Add(int tag, int format, std::uint32_t count, std::string_view value);

  // An entry of the EXIF directory. The first one of these makes that directory and the link to it,
  // which is the last entry of the first directory.
  ExifBuilder& AddExif(int tag, int format, std::uint32_t count, std::string_view value);

  // An entry of the first directory whose four value bytes are this number, whatever is there.
  ExifBuilder& AddOffset(int tag, int format, std::uint32_t count, std::uint32_t offset) {
    return Add(tag, format, count, Long(offset));
  }

  // What counts as the number of entries of the first directory, instead of the true one.
  ExifBuilder& ClaimEntries(int count) {
    claimedEntries_ = count;
    return *this;
  }

  // The block; offsets count from its first byte.
  std::string Tiff() const;

  // "Exif", two NULs, the block.
  std::string Marked() const;

  // A JPEG file that holds nothing else.
  std::string Jpeg() const;

 private:
  struct Entry {
    int Tag;
    int Format;
    std::uint32_t Count;
    std::string Value;
  };

  std::string Number(std::int64_t number, int size) const;
  std::string Directory(const std::vector<Entry>& entries, int count, std::size_t offset) const;

  std::string byteOrder_;
  std::vector<Entry> first_;
  std::vector<Entry> exif_;
  int claimedEntries_ = -1;
};

}  // namespace vorlane
