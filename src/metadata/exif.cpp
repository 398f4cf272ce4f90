#include "metadata/exif.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "metadata/exif_tag_names.h"
#include "platform/dates.h"
#include "platform/failure.h"

namespace vorlane {

namespace {

std::int32_t WholeNumber(double value) {
  const double rounded = std::nearbyint(value);
  if (rounded < std::numeric_limits<std::int32_t>::min() ||
      rounded > std::numeric_limits<std::int32_t>::max()) {
    throw RunError(ErrorNumber::Overflow);
  }
  return static_cast<std::int32_t>(rounded);
}

bool IsEmptyFile(FileSystem& files, TextView path) {
  const EntryStatus status = files.StatusOf(path);
  return status.Kind == EntryKind::File && status.Size == 0;
}

clsEXIF ReadImage(FileSystem& files, TextView path) {
  clsEXIF reader(files);
  reader.SetImageFile(path);
  return reader;
}

}  // namespace

Text ListInfo(ExifReadStatus status, const std::vector<ExifTag>& tags) {
  switch (status) {
    case ExifReadStatus::NotExif:
      return u"File is not in EXIF format.";
    case ExifReadStatus::CouldNotOpen:
      return u"Could not open the file.";
    case ExifReadStatus::Read:
      break;
  }
  Text lines;
  for (const ExifTag& entry : tags) {
    const Text line = entry.Name + u": " + entry.Text + u"\r\n";
    for (std::int32_t time = 0; time < entry.Times; ++time) {
      lines += line;
    }
  }
  return lines;
}

void clsEXIF::SetImageFile(TextView path) {
  imageFile_ = path;
  readStatus_ = ReadMetaInfo();
}

std::int32_t clsEXIF::GetTagID(TextView name) {
  return vorlane::GetTagID(name);
}

Text clsEXIF::GetTagName(std::int32_t tag) {
  return vorlane::GetTagName(tag);
}

std::int32_t clsEXIF::MetaInfo(std::int32_t tag, Text& text) const {
  text = TextOf(tag);
  const ExifTag* const entry = Find(tag);
  return entry == nullptr ? 0 : WholeNumber(entry->Value);
}

Text clsEXIF::TextOf(std::int32_t tag) const {
  const ExifTag* const entry = Find(tag);
  return entry == nullptr ? Text() : entry->Text;
}

const ExifTag* clsEXIF::Find(std::int32_t tag) const {
  if (readStatus_ != ExifReadStatus::Read) {
    return nullptr;
  }
  const auto found = std::ranges::find(contents_.Tags, tag, &ExifTag::Tag);
  return found == contents_.Tags.end() ? nullptr : &*found;
}

// Spaces, which hold no EXIF block, for a file that can't be read.
std::string clsEXIF::LoadFileHead(TextView path, std::size_t length) {
  std::string head(length, ' ');
  const bool wasRead =
      Attempt([&] { head = files_.Open(path, OpenMode::Read)->ReadAt(0, length); });
  // A file that nobody may open still shows that it is empty.
  if (!wasRead && IsEmptyFile(files_, path)) {
    head.clear();
  }
  return head;
}

ExifReadStatus clsEXIF::ReadMetaInfo() {
  auto contents = ParseExif(LoadFileHead(imageFile_, ExifHeadLength));
  const auto status = contents ? ExifReadStatus::Read : ExifReadStatus::NotExif;
  contents_ = std::move(contents).value_or(ExifContents());
  return status;
}

Text ImageDateOf(const ExifLookup& textOf) {
  for (const std::int32_t tag : {exif_tag::DateTimeOriginal, exif_tag::DateTimeDigitized}) {
    Text text = textOf(tag);
    if (ReadDate(text)) {
      return text;
    }
  }
  return textOf(exif_tag::DateTime);
}

Text ExifValueByName(const ExifLookup& textOf, TextView name) {
  const std::int32_t tag = clsEXIF::GetTagID(name);
  return tag == 0 ? Text() : textOf(tag);
}

Text ImageDateOf(FileSystem& files, TextView path) {
  const clsEXIF reader = ReadImage(files, path);
  return ImageDateOf([&](std::int32_t tag) { return reader.TextOf(tag); });
}

Text ExifValueByName(FileSystem& files, TextView path, TextView name) {
  return ExifValueByName([&](std::int32_t tag) { return ExifValue(files, path, tag); }, name);
}

Text ExifValue(FileSystem& files, TextView path, std::int32_t tag) {
  return ReadImage(files, path).TextOf(tag);
}

}  // namespace vorlane
