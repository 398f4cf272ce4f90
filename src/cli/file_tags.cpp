#include "cli/file_tags.h"

#include "cli/tag_json.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

FileTags ReadFileTags(FileSystem& files, FailureReport& report, TextView path) {
  return {ReadID3Tags(files, report, path), GetKbit(files, report, path)};
}

Json FileTagsToJson(const std::string& file, const FileTags& tags) {
  return {{"file", JsonString(TextFromBytes(file))},
          {"id3v1", TagToJson(tags.V1)},
          {"id3v2", TagToJson(tags.V2)},
          {"kbit", tags.Kbit}};
}

}  // namespace vorlane
