#include "bare_loop.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <stdexcept>

namespace vorlane {

namespace {

void Check(bool done) {
  if (!done) {
    throw std::runtime_error("the bare loop failed");
  }
}

void Rename(const BareRename& one) {
  Check(std::rename(one.From.c_str(), one.To.c_str()) == 0);
}

void Append(int descriptor, const std::string& record) {
  Check(write(descriptor, record.data(), record.size()) == static_cast<ssize_t>(record.size()));
}

}  // namespace

void BareRenames(const std::vector<BareRename>& renames) {
  for (const BareRename& one : renames) {
    Rename(one);
  }
}

void BareRenamesJournalKeptOpen(const std::vector<BareRename>& renames,
                                const std::string& journal) {
  const int descriptor = open(journal.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0644);
  Check(descriptor >= 0);
  for (const BareRename& one : renames) {
    Rename(one);
    Append(descriptor, one.Record);
  }
  Check(close(descriptor) == 0);
}

void BareRenamesJournalOpenedForEach(const std::vector<BareRename>& renames,
                                     const std::string& journal) {
  for (const BareRename& one : renames) {
    Rename(one);
    const int descriptor = open(journal.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0644);
    Check(descriptor >= 0);
    Append(descriptor, one.Record);
    Check(close(descriptor) == 0);
  }
}

}  // namespace vorlane
