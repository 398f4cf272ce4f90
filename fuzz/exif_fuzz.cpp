// Any bytes as an image: the parser takes them in good order, and what it says keeps its promises.
// Seeds: tests/data/exif.
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "fuzz/require.h"
#include "metadata/exif.h"
#include "platform/failure.h"

namespace {

using namespace vorlane;

// Two directories.
constexpr std::size_t MostEntries = std::size_t{2} * 65535;

std::optional<ExifContents> Parse(std::string_view bytes) {
  std::optional<ExifContents> contents;
  const bool wasRead = Attempt([&] { contents = ParseExif(bytes); });
  Require(wasRead || bytes.empty() || bytes.size() > ExifHeadLength / 2);
  return contents;
}

void CheckEntries(const ExifContents& contents) {
  std::size_t entries = 0;
  for (const ExifTag& entry : contents.Tags) {
    Require(entry.Times > 0);
    entries += static_cast<std::size_t>(entry.Times);
    Require(entry.Name == clsEXIF::GetTagName(entry.Tag));
    Require(entry.Text.size() <= ExifHeadLength && !Contains(entry.Text, TextView(u"\0", 1)));
    Require(entry.Tag <= 0xFFFF && entry.Format <= 0xFFFF && entry.Count >= 0);
  }
  Require(entries <= MostEntries);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // The sanitizer sees a step over the end of this string, but not one inside a longer one.
  const std::string bytes(data, data + size);
  const auto contents = Parse(bytes);
  if (!contents) {
    return 0;
  }
  CheckEntries(*contents);
  ImageDateOf([&](std::int32_t tag) {
    for (const ExifTag& entry : contents->Tags) {
      if (entry.Tag == tag) {
        return entry.Text;
      }
    }
    return Text();
  });
  if (bytes.size() >= ExifHeadLength) {
    Require(Parse(bytes.substr(0, ExifHeadLength))->Tags == contents->Tags);
  }
  return 0;
}
