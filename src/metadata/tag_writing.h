// Changing the tags of an MP3 file in place. No temporary file is made and no backup is kept; how a
// failure is met is told in in_place.h. Errors of lengths and numbers come before the first write.
// What doesn't change isn't written.
//
// The file must exist: none is ever created.
#pragma once

#include "metadata/id3_tag.h"
#include "platform/failure.h"
#include "platform/file_system.h"
#include "platform/prompter.h"
#include "platform/status_line.h"

namespace vorlane {

// Writes artist, title, album, track and comment; a tag that is there is replaced, any other file
// gets one at its end, one of under 128 bytes over its first bytes. A record that isn't `Present`
// calls RemoveID3v1. Failures are reported as "WriteID3v1" with the file's name.
void WriteID3v1(FileSystem& files, FailureReport& report, TextView path, const ID3Tag& tag);

// Takes a tag off the file's end. Failures are reported as "RemoveID3v1" with the file's name: for
// one, a file that is nothing but a tag (9).
void RemoveID3v1(FileSystem& files, FailureReport& report, TextView path);

struct ID3v2Services {
  FileSystem& Files;
  FailureReport& Report;  // for the ReadID3v1 inside
  Prompter& Boxes;
  StatusLine& Status;
};

// Writes artist, title, album, track, comment, year and genre, whatever `Present` says, into the
// file's tag, or into a new one that is 257 bytes long. With `removeID3v1`, a tag that ReadID3v1
// finds goes. The status line tells the stages and ends with "Ready", 100.
// A failure is shown in an exclamation box, with its number in the title; the status line stays.
void WriteID3v2(const ID3v2Services& services, TextView path, const ID3Tag& tag, bool removeID3v1);

// The same without the box: throws the RunError. 9 for a tag whose header says 0, 62 for one whose
// header says over 1 MiB more than the file holds, 5 for texts that don't fit, 75 for a file that
// changes its size between the reading and the first write.
void WriteID3v2OrFail(FileSystem& files, FailureReport& report, StatusLine& status, TextView path,
                      const ID3Tag& tag, bool removeID3v1);

}  // namespace vorlane
