// Any bytes as a journal: undo takes them in good order, and no file's bytes are ever lost.
// Seeds: fuzz/corpus/journal.
#include <set>

#include "batch/journal_text.h"
#include "fuzz/input.h"
#include "fuzz/require.h"
#include "support/form_world.h"

using namespace vorlane;

namespace {

// Of every file but the journal, whose records may give any name to anything.
std::multiset<std::string> BytesOf(const MemoryFileSystem& disk, const std::string& journal) {
  std::multiset<std::string> bytes;
  for (const auto& [name, content] : disk.Contents(u"/")) {
    if (name.back() != '/' && content != journal) {
      bytes.insert(content);
    }
  }
  return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string records = FuzzInput(data, size).Rest();
  for (const std::string& line : JournalLines(JournalHeader() + records)) {
    for (const std::string& field : SplitRecord(line)) {
      const Text text = TextOfJournalField(field);
      Require(Contains(text, u"/") || TextOfJournalField(JournalNameField(text)) == text);
    }
  }
  MemoryWorld on;
  for (const Text name : {u"a", u"b", u"x/a", u"x/.hidden"}) {
    on.Disk.Write(u"/R/" + name, "bytes of " + std::to_string(name.size()));
  }
  const std::string journal = JournalHeader() + records;
  const auto before = BytesOf(on.Disk, journal);
  on.Disk.Write(u"/R/UNDORENAME.TXT", journal);
  on.World.State.CurrentPath = u"/R/";
  on.World.Undo.cmdUndo_Click();
  // A tag record may rightly change the bytes of a file, never the number of files.
  Require(BytesOf(on.Disk, journal).size() == before.size());
  Require(Contains(TextFromCodePage(records), u"<MP3TAG>") || BytesOf(on.Disk, journal) == before);
  return 0;
}
