#include "metadata/id3v1.h"
#include "metadata/in_place.h"
#include "metadata/tag_writing.h"
#include "platform/path_style.h"

namespace vorlane {

namespace {

// The bytes in which a tag would stand: the last 128, or all of a shorter file.
InPlaceChange ReadEnd(OpenFile& file) {
  InPlaceChange change;
  change.OldSize = file.Size();
  change.NewSize = change.OldSize;
  change.Position = change.OldSize < ID3v1Length ? 0 : change.OldSize - ID3v1Length;
  change.OldBytes = ReadExactly(file, change.Position, change.OldSize - change.Position);
  return change;
}

bool IsTag(const std::string& end) {
  return ParseID3v1(end).Present;
}

}  // namespace

void WriteID3v1(FileSystem& files, FailureReport& report, TextView path, const ID3Tag& tag) {
  if (!tag.Present) {
    RemoveID3v1(files, report, path);
    return;
  }
  ReportingFailures(report, u"", u"WriteID3v1", FileNameOf(path, HostPathStyle), [&] {
    const auto file = files.Open(path, OpenMode::ReadWrite);
    InPlaceChange change = ReadEnd(*file);
    change.NewBytes = BuildID3v1(tag);
    if (change.NewBytes == change.OldBytes) {
      return;
    }
    if (!IsTag(change.OldBytes) && change.OldSize >= ID3v1Length) {
      change.Position = change.OldSize;
      change.OldBytes.clear();
    }
    change.NewSize = change.Position + change.NewBytes.size();
    ChangeInPlace(*file, change);
  });
}

void RemoveID3v1(FileSystem& files, FailureReport& report, TextView path) {
  ReportingFailures(report, u"", u"RemoveID3v1", FileNameOf(path, HostPathStyle), [&] {
    const auto file = files.Open(path, OpenMode::ReadWrite);
    InPlaceChange change = ReadEnd(*file);
    if (!IsTag(change.OldBytes)) {
      return;
    }
    if (change.Position == 0) {
      throw RunError(ErrorNumber::SubscriptOutOfRange);
    }
    change.NewSize = change.Position;
    change.OldBytes.clear();  // nothing is overwritten, the file is only cut
    ChangeInPlace(*file, change);
  });
}

}  // namespace vorlane
