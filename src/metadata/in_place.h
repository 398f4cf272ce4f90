// Changing a file in place: same file, no second copy on disk, and yet no moment at which what the
// file holds is in memory alone.
//
// The order of the writes makes that so:
//   1. What goes behind the old end of the file is written first. A full disk shows here, while
//      nothing has been overwritten.
//   2. The bytes that move come next, in blocks, the last block first. They only ever move up (a
//   tag
//      in front of the audio grows, by 257 bytes at most), so that each block has been written at
//      its new place before anything takes its old one.
//   3. The new bytes in front of them come last, in one write.
//   4. The file is cut.
//
// If the program is killed between two of these writes, the file holds all the bytes that move: a
// stretch of them, as long as the distance, stands there twice, or the old end hasn't been cut off.
//
// A kill inside a write is another matter. The system writes from the front to the back, and may
// stop in the middle. The front of a block takes the place of the block's own next bytes, so a
// stretch as long as the distance may be missing where the write stopped. A tag that is exchanged
// for one of its size is one such write: its front is new then, its end old; frames that move down
// are all there, of those that move up the same may be missing. What lies outside of the write is
// whole. Nothing is flushed to the disk, so a loss of power may cost more.
//
// If a write fails, what was overwritten is put back from memory, from the front, and the file gets
// its old length; then it is as it was. If that fails too, the file stays as these two failures
// left it: a stretch as long as the distance may stand there twice, at most one such stretch may be
// missing (a block that was written in part), what lies in front of the last write that was tried
// is as it was, and bytes of the new content may be left behind the old end. When nothing moves,
// only the bytes that the tag overwrites are at stake. A failure that the system keeps for the
// closing of the file can't be mended any more, only told.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/file_system.h"

namespace vorlane {

// Bytes are moved in blocks of this size.
inline constexpr std::size_t InPlaceBlock = std::size_t{1} << 18;

// What is written from Position on: NewBytes, then those of the OldBytes that move.
struct InPlaceChange {
  std::uint64_t OldSize = 0;   // of the file
  std::uint64_t NewSize = 0;   // of the file; at least the end of what is written
  std::uint64_t Position = 0;  // at most OldSize
  std::string NewBytes;
  std::string OldBytes;         // the file from Position on, as far as it is overwritten
  std::size_t MovedFrom = 0;    // in OldBytes; at most the length of NewBytes
  std::size_t MovedLength = 0;  // 0 if nothing moves
};

// Makes the change and closes the file; where nothing changes, does neither. Throws the RunError of
// the first failure: 75 if the file hasn't its OldSize any more.
void ChangeInPlace(OpenFile& file, const InPlaceChange& change);

// Exactly these bytes of the file. Throws RunError: 62 if it ends before.
std::string ReadExactly(OpenFile& file, std::uint64_t position, std::uint64_t length);

}  // namespace vorlane
