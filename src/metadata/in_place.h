// Changing a file in place: same file, no second copy on disk, and yet no moment at which what the
// file holds is in memory alone.
//
// The order of the writes makes that so:
//   1. What goes behind the old end of the file is written first. A full disk shows here, while
//      nothing has been overwritten.
//   2. The rest is written from the end backwards, in blocks. When bytes move up by some distance
//      (a tag in front of the audio grows, by 257 bytes at most), each block has been written at
//      its new place before anything takes its old one.
//   3. The file is cut last.
//
// If the program is killed between two of these writes, the file holds all that it held: of the
// bytes that move, a stretch as long as the distance stands there twice, or the old end hasn't been
// cut off yet. Nothing is flushed to the disk, so a loss of power is another matter.
//
// If a write fails, what was overwritten is put back from memory, from the front, and the file gets
// its old length; then it is as it was. If that fails too, the file stays as these two failures
// left it: a stretch as long as the distance may stand there twice, at most one such stretch may be
// missing (a block that was written in part), what lies in front of the last write that was tried
// is as it was, and bytes of the new content may be left behind the old end. When nothing moves,
// only the bytes that the tag overwrites are at stake.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/file_system.h"

namespace vorlane {

// Bytes are moved in blocks of this size.
inline constexpr std::size_t InPlaceBlock = std::size_t{1} << 18;

struct InPlaceChange {
  std::uint64_t OldSize = 0;   // of the file
  std::uint64_t NewSize = 0;   // of the file; at least the end of NewBytes
  std::uint64_t Position = 0;  // of NewBytes; at most OldSize
  std::string NewBytes;
  std::string OldBytes;  // what NewBytes overwrites: shorter if the file ends before
};

// Throws the RunError of the first failure.
void ChangeInPlace(OpenFile& file, const InPlaceChange& change);

// Exactly these bytes of the file. Throws RunError: 62 if it ends before.
std::string ReadExactly(OpenFile& file, std::uint64_t position, std::uint64_t length);

}  // namespace vorlane
