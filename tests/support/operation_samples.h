// The samples in tests/data/operations/samples.txt: for each operation that is shipped, files
// before and after a run of it. That file tells its own form.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vorlane {

using TagFields = std::map<std::string, std::string>;  // "artist" and so on; "none" alone: no tag

// What a sample says about an entry beside its name.
struct SampleTraits {
  std::optional<TagFields> V1;
  std::optional<TagFields> V2;
  std::map<int, std::string> Exif;  // by number of the EXIF tag; a number's text for a number
  std::string Changed;              // local time of the last change, empty for none told
  std::size_t Size = 0;             // the length of the whole file, 0 for none told
  unsigned Kbit = 0;
  bool IsFolder = false;

  bool HasTags() const { return V1 || V2; }
};

struct SampleEntry {
  int Line = 0;
  bool InDocs = false;
  std::string Before;  // its path in the folder of the sample
  std::string After;
  SampleTraits Facts;                  // before the run
  SampleTraits Changes;                // what the run makes of its tags
  std::optional<SampleTraits> Leaves;  // what Undo leaves of its tags, if not what was there
};

struct OperationSample {
  std::string Operation;  // its path of titles
  int Line = 0;
  std::string Folder;    // the one to list, inside the sample's own; empty or with a separator
  std::string Today;     // the day of the run, "2026-03-05"; empty for any
  std::string Wildcard;  // the user's own; empty for the operation's
  std::map<int, std::string> Boxes;  // what the user types, by number of the box from 1
  std::string Only;                  // the name of the row of a run in One mode, empty for All
  bool ListFolders = false;
  std::vector<SampleEntry> Entries;
};

// Fails the test at a line that it can't read.
std::vector<OperationSample> ReadOperationSamples();

}  // namespace vorlane
