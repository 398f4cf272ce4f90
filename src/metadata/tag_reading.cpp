#include "metadata/tag_reading.h"

#include <algorithm>

#include "metadata/bit_rate.h"
#include "metadata/id3v1.h"
#include "metadata/id3v2_frame.h"
#include "metadata/id3v2_reader.h"
#include "platform/path_style.h"

namespace vorlane {

namespace {

// The result of `read` for an open file, the empty one if there is no file or anything fails.
template <typename Result, typename Read>
Result ReadFrom(FileSystem& files, FailureReport& report, TextView procedure, TextView path,
                Read&& read) {
  Result result{};
  if (!PlainFileExists(files, path)) {
    return result;
  }
  ReportingFailures(report, u"", procedure, FileNameOf(path, HostPathStyle), [&] {
    const auto file = files.Open(path, OpenMode::Read);
    result = read(*file);
  });
  return result;
}

}  // namespace

ID3Tag ReadID3v1(FileSystem& files, FailureReport& report, TextView path) {
  return ReadFrom<ID3Tag>(files, report, u"ReadID3v1", path, [](OpenFile& file) {
    const std::uint64_t size = file.Size();
    if (size < ID3v1Length) {
      return ID3Tag{};
    }
    return ParseID3v1(file.ReadAt(size - ID3v1Length, ID3v1Length));
  });
}

ID3Tag ReadID3v2(FileSystem& files, FailureReport& report, TextView path) {
  return ReadFrom<ID3Tag>(files, report, u"ReadID3v2", path, [](OpenFile& file) {
    const std::size_t length = ID3v2ReadLength(file.ReadAt(0, TagHeaderLength));
    if (length == 0) {
      return ID3Tag{};
    }
    // A header may claim far more than there is.
    const auto present = static_cast<std::size_t>(std::min<std::uint64_t>(length, file.Size()));
    return ParseID3v2(file.ReadAt(0, present));
  });
}

std::int16_t GetKbit(FileSystem& files, FailureReport& report, TextView path) {
  return ReadFrom<std::int16_t>(files, report, u"GetKbit", path, [](OpenFile& file) {
    return BitRateOf(file.ReadAt(0, BitRateReadLength));
  });
}

}  // namespace vorlane
