// What the EXIF block of an image says, by tag.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "metadata/exif_parser.h"
#include "metadata/exif_tag.h"
#include "platform/file_system.h"
#include "platform/text.h"

namespace vorlane {

enum class ExifReadStatus : std::uint8_t {
  Read = 0,
  NotExif = 1,
  CouldNotOpen = 2,  // known to readers of the status; a file that can't be opened gives NotExif
};

// What there is to say about a file with that status and these entries: a line "Name: Text" with
// CR LF for each, or a sentence if there is nothing to list.
Text ListInfo(ExifReadStatus status, const std::vector<ExifTag>& tags);

// The reader of one image. Opens the file once and reads its head, nothing more, when it is given
// the path; every answer comes from that.
class clsEXIF {
 public:
  // The file system outlives the reader.
  explicit clsEXIF(FileSystem& files) : files_(files) {}

  const Text& ImageFile() const { return imageFile_; }

  // Reads that file in place of the one before. Any regular file will do; one that holds no EXIF
  // block, is missing or can't be opened or read has the status NotExif. Throws RunError 1 for an
  // empty file and as ParseExif does; the status and the entries then are those of the file before.
  void SetImageFile(TextView path);

  ExifReadStatus ReadStatus() const { return readStatus_; }
  bool IntelByteAlignment() const { return contents_.IntelByteAlignment; }

  // Each entry for itself; there may be tens of thousands.
  std::vector<ExifTag> Tags() const { return SingleEntries(contents_.Tags); }

  // As the functions of exif_tag_names.h.
  static std::int32_t GetTagID(TextView name);
  static Text GetTagName(std::int32_t tag);

  Text ListInfo() const { return vorlane::ListInfo(readStatus_, contents_.Tags); }

  // Puts the Text of the first entry with that number into `text` and returns its Value, a fraction
  // rounded to the nearest whole number, ties to the even one. An empty text and 0 if there is no
  // such entry. Throws RunError 6 if the Value is above 2^31 - 1 or below -2^31; `text` has been
  // set by then.
  std::int32_t MetaInfo(std::int32_t tag, Text& text) const;

  // That text alone, whatever the Value is.
  Text TextOf(std::int32_t tag) const;

 private:
  const ExifTag* Find(std::int32_t tag) const;
  std::string LoadFileHead(TextView path, std::size_t length);
  ExifReadStatus ReadMetaInfo();

  FileSystem& files_;
  Text imageFile_;
  ExifReadStatus readStatus_ = ExifReadStatus::Read;
  ExifContents contents_;
};

// Where the text of a tag comes from, empty for one that isn't there: an image, or a table.
using ExifLookup = std::function<Text(std::int32_t tag)>;

// The date on which the picture was taken, put on disk or changed: the first of the three tags
// whose text is a date, otherwise whatever the last one holds.
Text ImageDateOf(const ExifLookup& textOf);

// Empty if no tag has that name; the lookup isn't used then.
Text ExifValueByName(const ExifLookup& textOf, TextView name);

// The same of a file, which is opened once, and not at all for an unknown name. They throw what
// clsEXIF::SetImageFile throws.
Text ImageDateOf(FileSystem& files, TextView path);
Text ExifValueByName(FileSystem& files, TextView path, TextView name);
Text ExifValue(FileSystem& files, TextView path, std::int32_t tag);

}  // namespace vorlane
