// What an MP3 file says about itself. Operations that read a file and change nothing.
//
// They don't look at the extension; that is for their callers. A file that isn't there, a hidden
// one included, gives the empty result silently; so does one without a tag or an audio frame. Any
// failure is reported under the operation's name with the file's name, and gives the empty result.
// Each opens the file once and closes it before it returns.
#pragma once

#include <cstdint>
#include <memory>

#include "metadata/id3_tag.h"
#include "platform/failure.h"
#include "platform/file_system.h"

namespace vorlane {

// Reads the last 128 bytes.
ID3Tag ReadID3v1(FileSystem& files, FailureReport& report, TextView path);

// Reads 258 bytes and, if there is a larger tag, no further than ID3v2ReadLength tells.
ID3Tag ReadID3v2(FileSystem& files, FailureReport& report, TextView path);

struct ID3Tags {
  ID3Tag V1;
  ID3Tag V2;
};

// ReadID3v1 and ReadID3v2 with one opening of the file. Each failure is reported under the name of
// the operation that met it; a file that can't be opened is one of either. `opened` is the file, if
// it is open already.
ID3Tags ReadID3Tags(FileSystem& files, FailureReport& report, TextView path,
                    std::unique_ptr<OpenFile> opened = nullptr);

// In kbit/s. Reads the first 10,003 bytes.
std::int16_t GetKbit(FileSystem& files, FailureReport& report, TextView path);

}  // namespace vorlane
