#include <algorithm>
#include <new>
#include <utility>

#include "metadata/id3v1.h"
#include "metadata/id3v2_frame.h"
#include "metadata/id3v2_writer.h"
#include "metadata/in_place.h"
#include "metadata/tag_reading.h"
#include "metadata/tag_writing.h"
#include "platform/interface_texts.h"

namespace vorlane {

namespace {

// A header that promises more than this beyond the end of the file is broken; less is taken as it
// stands, with NULs for what is missing.
constexpr std::uint64_t LargestExcess = std::uint64_t{1} << 20;

std::string ReadOldTag(OpenFile& file, std::int32_t declaredSize) {
  const auto size = static_cast<std::uint64_t>(declaredSize);
  const std::uint64_t fileSize = file.Size();
  if (size == 0) {
    throw RunError(ErrorNumber::SubscriptOutOfRange);
  }
  if (size > fileSize + LargestExcess) {
    throw RunError(ErrorNumber::PastEndOfFile);
  }
  std::string tag = ReadExactly(file, 0, std::min(size, fileSize));
  tag.resize(static_cast<std::size_t>(size));
  return tag;
}

// The old tag gives way to one of the same size, and the file loses its last `dropped` bytes.
InPlaceChange ExchangeStart(OpenFile& file, std::string oldTag, std::string newTag,
                            std::uint64_t dropped) {
  InPlaceChange change;
  change.OldSize = file.Size();
  if (newTag != oldTag) {
    change.NewBytes = std::move(newTag);
    change.OldBytes = std::move(oldTag);
  }
  change.NewSize = std::max<std::uint64_t>(change.OldSize, change.NewBytes.size()) - dropped;
  if (change.NewBytes.size() > change.NewSize) {
    change.NewBytes.resize(static_cast<std::size_t>(change.NewSize));
  }
  if (change.OldBytes.size() > change.OldSize) {
    change.OldBytes.resize(static_cast<std::size_t>(change.OldSize));
  }
  return change;
}

// The first `oldLength` bytes give way to a longer tag, and the file loses its last `dropped`
// bytes: what is between them moves up. Throws RunError 5 if they overlap.
InPlaceChange MoveRest(OpenFile& file, std::string newTag, std::uint64_t oldLength,
                       std::uint64_t dropped) {
  InPlaceChange change;
  change.OldSize = file.Size();
  if (dropped > 0 && oldLength + dropped > change.OldSize) {
    throw RunError(ErrorNumber::InvalidArgument);
  }
  change.NewBytes = std::move(newTag);
  change.OldBytes = ReadExactly(file, 0, change.OldSize);
  change.MovedFrom = static_cast<std::size_t>(std::min(oldLength, change.OldSize));
  change.MovedLength =
      change.OldBytes.size() - static_cast<std::size_t>(dropped) - change.MovedFrom;
  change.NewSize = change.NewBytes.size() + change.MovedLength;
  return change;
}

class ID3v2Change {
 public:
  ID3v2Change(FileSystem& files, FailureReport& report, StatusLine& status, TextView path,
              const ID3Tag& tag, bool removeID3v1)
      : files_(files),
        report_(report),
        status_(status),
        path_(path),
        tag_(tag),
        removeID3v1_(removeID3v1) {}

  void Run() {
    const auto file = files_.Open(path_, OpenMode::ReadWrite);
    const std::string header = file->ReadAt(0, TagHeaderLength);
    if (HasID3v2Header(header)) {
      Update(*file, DeclaredTagSize(header));
    } else {
      Add(*file);
    }
  }

 private:
  void Show(int textNumber, int percent) { status_.SetStatus(InterfaceText(textNumber), percent); }

  std::uint64_t BytesToDrop() {
    return removeID3v1_ && ReadID3v1(files_, report_, path_).Present ? ID3v1Length : 0;
  }

  void Update(OpenFile& file, std::int32_t declaredSize) {
    std::string oldTag = ReadOldTag(file, declaredSize);
    std::string newTag = UpdatedID3v2(oldTag, tag_);
    const bool grown = newTag.size() > oldTag.size();
    const std::uint64_t dropped = BytesToDrop();
    if (dropped > 0) {
      Show(TextNumber::V2AndV1Loading, 33);
    } else if (grown) {
      Show(TextNumber::V2TooSmallRewriting, 50);
    } else {
      Show(TextNumber::V2Updating, 50);
    }
    const InPlaceChange change =
        grown ? MoveRest(file, std::move(newTag), oldTag.size(), dropped)
              : ExchangeStart(file, std::move(oldTag), std::move(newTag), dropped);
    if (dropped > 0) {
      Show(TextNumber::V2WithoutV1Rewriting, 66);
    }
    ChangeInPlace(file, change);
  }

  void Add(OpenFile& file) {
    std::string newTag = NewID3v2(tag_);
    const std::uint64_t dropped = BytesToDrop();
    Show(dropped > 0 ? TextNumber::NoV2ButV1Loading : TextNumber::NoV2Loading, 33);
    const InPlaceChange change = MoveRest(file, std::move(newTag), 0, dropped);
    Show(dropped > 0 ? TextNumber::NoV2WithoutV1Rewriting : TextNumber::NoV2Rewriting, 66);
    ChangeInPlace(file, change);
  }

  FileSystem& files_;
  FailureReport& report_;
  StatusLine& status_;
  TextView path_;
  const ID3Tag& tag_;
  bool removeID3v1_;
};

}  // namespace

void WriteID3v2OrFail(FileSystem& files, FailureReport& report, StatusLine& status, TextView path,
                      const ID3Tag& tag, bool removeID3v1) {
  try {
    ID3v2Change(files, report, status, path, tag, removeID3v1).Run();
  } catch (const std::bad_alloc&) {
    // The whole file must fit in memory. It is read before anything is written.
    throw RunError(ErrorNumber::OutOfMemory);
  }
  status.SetStatus(InterfaceText(TextNumber::Ready), 100);
}

void WriteID3v2(const ID3v2Services& services, TextView path, const ID3Tag& tag, bool removeID3v1) {
  try {
    WriteID3v2OrFail(services.Files, services.Report, services.Status, path, tag, removeID3v1);
  } catch (const RunError& error) {
    Text message = error.Description();
    if (error.Number() == static_cast<int>(ErrorNumber::InvalidArgument)) {
      message.append(u"\r\n\r\n").append(InterfaceText(TextNumber::TagProbablyInvalid));
    }
    const Text title =
        Text(InterfaceText(TextNumber::ErrorNumber)).append(DecimalText(error.Number()));
    services.Boxes.Show(BoxIcon::Exclamation, title, message);
  }
}

}  // namespace vorlane
