// Both tags and the bit rate of one file.
#pragma once

#include <string>

#include "cli/json_text.h"
#include "metadata/tag_reading.h"
#include "platform/failure.h"
#include "platform/file_system.h"

namespace vorlane {

struct FileTags : ID3Tags {
  std::int16_t Kbit = 0;
};

// What can't be read is reported and stays empty.
FileTags ReadFileTags(FileSystem& files, FailureReport& report, TextView path);

// {"file":"...","id3v1":TAG,"id3v2":TAG,"kbit":128}, with the name as it was given.
Json FileTagsToJson(const std::string& file, const FileTags& tags);

}  // namespace vorlane
