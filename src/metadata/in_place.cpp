#include "metadata/in_place.h"

#include <algorithm>
#include <string_view>

#include "platform/failure.h"

namespace vorlane {

namespace {

// Bytes that stand together in the new file.
struct Piece {
  std::uint64_t Position;
  std::string_view Bytes;

  std::uint64_t End() const { return Position + Bytes.size(); }
};

class Changer {
 public:
  Changer(OpenFile& file, const InPlaceChange& change)
      : file_(file),
        change_(change),
        new_{change.Position, change.NewBytes},
        moved_{new_.End(),
               std::string_view(change.OldBytes).substr(change.MovedFrom, change.MovedLength)},
        lowest_(moved_.End()) {}

  bool IsNothing() const {
    return moved_.End() == change_.Position && change_.NewSize == change_.OldSize;
  }

  void Change() {
    Write(moved_, std::max(moved_.Position, change_.OldSize), moved_.End());
    Write(new_, std::max(new_.Position, change_.OldSize), new_.End());
    for (std::uint64_t to = std::min(moved_.End(), change_.OldSize); to > moved_.Position;) {
      const std::uint64_t from = to - std::min<std::uint64_t>(to - moved_.Position, InPlaceBlock);
      Write(moved_, from, to);
      to = from;
    }
    Write(new_, new_.Position, std::min(new_.End(), change_.OldSize));
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
  void Write(const Piece& piece, std::uint64_t from, std::uint64_t to) {
    if (from < to) {
      lowest_ = from;
      file_.WriteAt(from, piece.Bytes.substr(static_cast<std::size_t>(from - piece.Position),
                                             static_cast<std::size_t>(to - from)));
    }
  }

  OpenFile& file_;
  const InPlaceChange& change_;
  const Piece new_;
  const Piece moved_;
  std::uint64_t lowest_;  // where the last write that was tried begins
};

}  // namespace

void ChangeInPlace(OpenFile& file, const InPlaceChange& change) {
  Changer changer(file, change);
  if (changer.IsNothing()) {
    return;
  }
  // Somebody may have changed the file since it was read.
  if (file.Size() != change.OldSize) {
    throw RunError(ErrorNumber::PathAccess);
  }
  try {
    changer.Change();
  } catch (const RunError&) {
    Attempt([&] { changer.PutBack(); });
    throw;
  }
  file.Close();
}

std::string ReadExactly(OpenFile& file, std::uint64_t position, std::uint64_t length) {
  std::string bytes = file.ReadAt(position, static_cast<std::size_t>(length));
  if (bytes.size() != length) {
    throw RunError(ErrorNumber::PastEndOfFile);
  }
  return bytes;
}

}  // namespace vorlane
