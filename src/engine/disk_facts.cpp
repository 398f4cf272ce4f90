#include "engine/disk_facts.h"

#include <limits>

#include "metadata/exif.h"
#include "metadata/tag_reading.h"
#include "platform/interface_texts.h"

namespace vorlane {

std::optional<std::int32_t> DiskFacts::FileLength(TextView path) {
  const EntryStatus status = files_.StatusOf(path);
  if (status.Kind != EntryKind::File || status.Size > std::numeric_limits<std::int32_t>::max()) {
    return std::nullopt;
  }
  return static_cast<std::int32_t>(status.Size);
}

DateTime DiskFacts::FileDate(TextView path, WhichDate which) {
  try {
    const auto times = files_.TimesOf(path);
    if (!times) {
      return {};
    }
    switch (which) {
      case WhichDate::Created:
        return times->Created;
      case WhichDate::Written:
        return times->Written;
      case WhichDate::Accessed:
        return times->Accessed;
    }
  } catch (const RunError& error) {
    Text message(InterfaceText(TextNumber::ErrorNumberOfDate));
    message.append(DecimalText(error.Number())).append(u"\r\n").append(error.Description());
    boxes_.Show(BoxIcon::None, u"", message);
  }
  return {};
}

DateTime DiskFacts::Now() {
  return clock_.Now();
}

std::int16_t DiskFacts::GetKbit(TextView path) {
  return vorlane::GetKbit(files_, report_, path);
}

Text DiskFacts::ExifValue(TextView path, std::int32_t tagNumber) {
  return vorlane::ExifValue(files_, path, tagNumber);
}

Text DiskFacts::ExifValueByName(TextView path, TextView tagName) {
  return vorlane::ExifValueByName(files_, path, tagName);
}

Text DiskFacts::ImageDateOf(TextView path) {
  return vorlane::ImageDateOf(files_, path);
}

}  // namespace vorlane
