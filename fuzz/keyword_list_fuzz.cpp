// Any bytes as a keyword file.
// Seeds: fuzz/corpus/keyword_list and data.
#include "catalogue/keyword_list.h"
#include "catalogue/text_file.h"
#include "fuzz/input.h"
#include "fuzz/require.h"

using namespace vorlane;

namespace {

// Every entry, its help put back as it could have stood in a file, gives itself again.
void CheckReadsBack(const Text& keyword, TextView help) {
  Text file = keyword + u"\r\n'";
  Text lines(help);
  ReplaceAll(lines, u".\r\n", u". ");
  // A line end of the help's own, or one that begins a new entry, can't be written back.
  if (Contains(lines, u"\n") || Contains(lines, u"\r") || keyword.ends_with(u'\r')) {
    return;
  }
  const KeywordList again = LoadKeywordList(file + lines);
  Require(again.Entries.size() == 1 && again.Entries.front() == keyword);
  Require(again.HelpOf(0) == help);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Text text = DecodeTextFile(FuzzInput(data, size).Rest());
  const KeywordList list = LoadKeywordList(text);
  Require(list.Entries.empty() == text.empty());
  Require(list.KeywordHelp.empty() == text.empty());
  Require(list.KeywordHelp.size() <= list.Entries.size());
  for (std::size_t i = 0; i < list.Entries.size(); ++i) {
    Require(!Contains(list.Entries[i], u"\r\n"));
    const TextView help = list.HelpOf(i);
    Require(!Contains(help, u". ") && !help.ends_with(u' '));
    CheckReadsBack(list.Entries[i], help);
  }
  Require(list.HelpOf(list.Entries.size()).empty());
  return 0;
}
