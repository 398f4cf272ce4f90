// The least that a program has to do to rename files and keep a journal of it: what the whole job
// is measured against.
#pragma once

#include <string>
#include <vector>

namespace vorlane {

struct BareRename {
  std::string From;  // full paths
  std::string To;
  std::string Record;  // the line for the journal
};

// System calls and nothing else, no checks either. Each throws std::runtime_error if one fails.
void BareRenames(const std::vector<BareRename>& renames);
void BareRenamesJournalKeptOpen(const std::vector<BareRename>& renames, const std::string& journal);
void BareRenamesJournalOpenedForEach(const std::vector<BareRename>& renames,
                                     const std::string& journal);

}  // namespace vorlane
