#include "metadata/in_place.h"

#include <algorithm>
#include <string_view>

#include "platform/failure.h"

namespace vorlane {

namespace {

class Changer {
 public:
  Changer(OpenFile& file, const InPlaceChange& change)
      : file_(file), change_(change), lowest_(change.Position + change.NewBytes.size()) {}

  void Change() {
    const std::uint64_t end = lowest_;
    const std::uint64_t oldEnd = std::min(end, change_.OldSize);
    if (end > oldEnd) {
      Write(oldEnd, end);
    }
    for (std::uint64_t to = oldEnd; to > change_.Position;) {
      const std::uint64_t from = to - std::min<std::uint64_t>(to - change_.Position, InPlaceBlock);
      Write(from, to);
      to = from;
    }
    if (change_.NewSize < change_.OldSize) {
      file_.SetSize(change_.NewSize);
    }
  }

  // The length comes last, so that what can't be put back isn't cut off as well.
  void PutBack() {
    const std::string_view old = change_.OldBytes;
    if (lowest_ < change_.Position + old.size()) {
      file_.WriteAt(lowest_, old.substr(static_cast<std::size_t>(lowest_ - change_.Position)));
    }
    if (file_.Size() != change_.OldSize) {
      file_.SetSize(change_.OldSize);
    }
  }

 private:
  void Write(std::uint64_t from, std::uint64_t to) {
    lowest_ = from;
    const std::string_view bytes = change_.NewBytes;
    file_.WriteAt(from, bytes.substr(static_cast<std::size_t>(from - change_.Position),
                                     static_cast<std::size_t>(to - from)));
  }

  OpenFile& file_;
  const InPlaceChange& change_;
  std::uint64_t lowest_;  // where the last write that was tried begins
};

}  // namespace

void ChangeInPlace(OpenFile& file, const InPlaceChange& change) {
  Changer changer(file, change);
  try {
    changer.Change();
  } catch (const RunError&) {
    Attempt([&] { changer.PutBack(); });
    throw;
  }
}

std::string ReadExactly(OpenFile& file, std::uint64_t position, std::uint64_t length) {
  std::string bytes = file.ReadAt(position, static_cast<std::size_t>(length));
  if (bytes.size() != length) {
    throw RunError(ErrorNumber::PastEndOfFile);
  }
  return bytes;
}

}  // namespace vorlane
