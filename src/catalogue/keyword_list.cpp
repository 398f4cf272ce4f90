#include "catalogue/keyword_list.h"

#include "catalogue/program_files.h"
#include "catalogue/text_file.h"

namespace vorlane {

namespace {

constexpr TextView EntryEnd = u"\r\n\r\n";

// `lines` are what follows the keyword.
Text HelpOfLines(TextView lines) {
  Text help;
  for (const Text& line : Split(lines, LineEnd)) {
    help.append(line.starts_with(u'\'') ? TextView(line).substr(1) : TextView(line)).append(u" ");
  }
  help.erase(help.find_last_not_of(u' ') + 1);
  ReplaceAll(help, u". ", u".\r\n");
  return help;
}

}  // namespace

TextView KeywordList::HelpOf(std::size_t entry) const {
  return entry < KeywordHelp.size() ? TextView(KeywordHelp[entry]) : TextView();
}

KeywordList LoadKeywordList(TextView text) {
  KeywordList list;
  if (text.empty()) {
    return list;
  }
  list.KeywordHelp.resize(1);
  for (Text& entry : Split(text, EntryEnd)) {
    const auto end = entry.find(LineEnd);
    if (end == Text::npos) {
      list.Entries.push_back(std::move(entry));
      continue;
    }
    const std::size_t index = list.Entries.size();
    list.Entries.push_back(entry.substr(0, end));
    list.KeywordHelp.resize(index + 1);
    list.KeywordHelp[index] = HelpOfLines(TextView(entry).substr(end + LineEnd.size()));
  }
  return list;
}

std::optional<KeywordList> LoadKeywordListFile(FileSystem& files, TextView folder) {
  const auto path = FindProgramFile(files, folder, KeywordListFileName);
  if (!path) {
    return std::nullopt;
  }
  try {
    return LoadKeywordList(DecodeTextFile(files.ReadFileBytes(*path)));
  } catch (const RunError& failure) {
    KeywordList unread;
    unread.Failure = failure;
    return unread;
  }
}

}  // namespace vorlane
