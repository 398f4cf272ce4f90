// Finds the EXIF block in the head of a file and lists its entries.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "metadata/exif_tag.h"

namespace vorlane {

// How much of a file is read: more would make a preview of many images slow, and nearly every
// camera writes the block at the front.
inline constexpr std::size_t ExifHeadLength = 4096;

struct ExifContents {
  bool IntelByteAlignment = false;  // numbers have their low byte first
  std::vector<ExifTag> Tags;        // in the order in which they stand, equal ones behind the
                                    // head's end as one with its number of Times
};

// Lists the entries of the first directory, then those of the one that its last ExifOffset leads
// to. Without an ExifOffset the second list is the TIFF header taken for a directory: thousands of
// entries, nearly all of them empty. The surroundings aren't looked at: any file that holds "Exif"
// and a NUL is read in the same way. Thumbnail and interoperability directory aren't read.
//
// Only the first ExifHeadLength bytes count, and NULs stand behind the end of a shorter file. An
// entry is kept whatever is wrong with it: the fields that can't be read stay empty.
//
// Nothing if there is no "Exif" with a NUL behind it. Throws RunError 1 for a file without a byte,
// and if the block begins so late that the place of its first directory isn't in the head.
std::optional<ExifContents> ParseExif(std::string_view fileStart);

// The same entries, each one for itself.
std::vector<ExifTag> SingleEntries(const std::vector<ExifTag>& tags);

}  // namespace vorlane
