#include "metadata/tag_reading.h"

#include <memory>
#include <string>
#include <utility>

#include "metadata/bit_rate.h"
#include "metadata/id3v1.h"
#include "metadata/id3v2_reader.h"
#include "platform/path_style.h"

namespace vorlane {

namespace {

// A file that is opened when it is first read.
class FileInHand {
 public:
  FileInHand(FileSystem& files, FailureReport& report, TextView path,
             std::unique_ptr<OpenFile> opened = nullptr)
      : files_(files), report_(report), path_(path), file_(std::move(opened)) {}

  // The result of `read` for the open file, the empty one if there is no file or anything fails.
  template <typename Read>
  auto Result(TextView procedure, Read&& read) {
    decltype(read(*file_)) result{};
    ReportingFailures(report_, u"", procedure, FileNameOf(path_, HostPathStyle), [&] {
      if (!file_) {
        file_ = files_.OpenPlainFile(path_);
      }
      if (file_) {
        result = read(*file_);
      }
    });
    return result;
  }

  ID3Tag V1() {
    return Result(u"ReadID3v1", [](OpenFile& file) {
      const std::uint64_t size = file.Size();
      return size < ID3v1Length ? ID3Tag{}
                                : ParseID3v1(file.ReadAt(size - ID3v1Length, ID3v1Length));
    });
  }

  ID3Tag V2() {
    return Result(u"ReadID3v2", [](OpenFile& file) {
      std::string start = file.ReadAt(0, MinimumID3v2ReadLength);
      const std::size_t length = ID3v2ReadLength(start);
      if (length > MinimumID3v2ReadLength) {
        start.clear();
        start = file.ReadAt(0, length);
      }
      return ParseID3v2(start);
    });
  }

 private:
  FileSystem& files_;
  FailureReport& report_;
  TextView path_;
  std::unique_ptr<OpenFile> file_;
};

}  // namespace

ID3Tag ReadID3v1(FileSystem& files, FailureReport& report, TextView path) {
  return FileInHand(files, report, path).V1();
}

ID3Tag ReadID3v2(FileSystem& files, FailureReport& report, TextView path) {
  return FileInHand(files, report, path).V2();
}

ID3Tags ReadID3Tags(FileSystem& files, FailureReport& report, TextView path,
                    std::unique_ptr<OpenFile> opened) {
  FileInHand file(files, report, path, std::move(opened));
  ID3Tags tags;
  tags.V1 = file.V1();
  tags.V2 = file.V2();
  return tags;
}

std::int16_t GetKbit(FileSystem& files, FailureReport& report, TextView path) {
  return FileInHand(files, report, path).Result(u"GetKbit", [](OpenFile& file) {
    return BitRateOf(file.ReadAt(0, BitRateReadLength));
  });
}

}  // namespace vorlane
