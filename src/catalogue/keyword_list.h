// The keyword list: the keywords of the tag language with a help text for each, from a text file
// that stands beside the program.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "platform/failure.h"
#include "platform/file_system.h"
#include "platform/text.h"

namespace vorlane {

inline constexpr TextView KeywordListFileName = u"KeywordList.ini";

struct KeywordList {
  // In the order of the file, each just as it stands there; a blank one is possible.
  std::vector<Text> Entries;

  // By the entry's index. It ends with the last entry that has help; entries before that one which
  // have none are empty slots. There is one slot even if no entry has help, but none for an empty
  // text.
  std::vector<Text> KeywordHelp;

  // Why the file couldn't be read; the list is empty then.
  std::optional<RunError> Failure;

  // The entry's help, each sentence on a line of its own (CR LF between them). Empty if it has none
  // or there is no such entry.
  TextView HelpOf(std::size_t entry) const;
};

// Reads the entries of a keyword file; docs/file-formats.md tells the format. Takes any text.
KeywordList LoadKeywordList(TextView text);

// The list of the keyword file in that folder (with its trailing separator); nothing if there is no
// such file.
std::optional<KeywordList> LoadKeywordListFile(FileSystem& files, TextView folder);

}  // namespace vorlane
