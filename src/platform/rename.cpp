#include "platform/rename.h"

#include <algorithm>

#include "platform/failure.h"
#include "platform/letter_case.h"

namespace vorlane {

namespace {

// True if the folder holds one entry that answers to both names.
bool IsOneEntryWithOneName(FileSystem& files, const Text& folder, TextView oldName,
                           TextView newName) {
  const auto identity = files.IdentityOf(folder + Text(oldName));
  if (!identity || identity != files.IdentityOf(folder + Text(newName))) {
    return false;
  }
  if (identity->HasOneName) {
    return true;
  }
  // Two hard links of one file have one identity as well, but there both are listed.
  std::vector<Text> names;
  if (!Attempt([&] { names = files.ListNames(folder); })) {
    return false;
  }
  const auto isListed = [&names](TextView name) {
    return std::find(names.begin(), names.end(), name) != names.end();
  };
  return isListed(oldName) != isListed(newName);
}

// The first of two steps: to a name that nobody has. Returns that name, empty if it failed.
Text RenameToFreshName(FileSystem& files, const Text& folder, TextView oldName) {
  constexpr int MostAttempts = 1000;
  const Text from = folder + Text(oldName);
  // Not hidden, and with the old name in it: should the file be stuck with this name, it has to be
  // found and known again. A long name leaves no room for that.
  Text tail = u" " + Text(oldName);
  for (int attempt = 1; attempt <= MostAttempts; ++attempt) {
    Text to = folder;
    to.append(u"vorlane-renaming-").append(DecimalText(attempt)).append(tail);
    const auto outcome = files.RenameNoReplace(from, to);
    if (outcome == RenameOutcome::Done) {
      return to;
    }
    if (outcome == RenameOutcome::Refused) {
      if (tail.empty()) {
        break;
      }
      tail.clear();
    }
  }
  return {};
}

// If neither the second step nor the way back works, the file keeps the temporary name; nothing is
// lost.
RenameOutcome RenameInTwoSteps(FileSystem& files, const Text& folder, TextView oldName,
                               const Text& to) {
  const Text temporary = RenameToFreshName(files, folder, oldName);
  if (temporary.empty()) {
    return RenameOutcome::Refused;
  }
  const auto outcome = files.RenameNoReplace(temporary, to);
  if (outcome != RenameOutcome::Done) {
    files.RenameNoReplace(temporary, folder + Text(oldName));
  }
  return outcome;
}

}  // namespace

RenameOutcome RenameWithinFolder(FileSystem& files, TextView folder, TextView oldName,
                                 TextView newName) {
  if (oldName == newName) {
    return RenameOutcome::Done;
  }
  const Text folderText(folder);
  const Text from = folderText + Text(oldName);
  const Text to = folderText + Text(newName);
  const auto outcome = files.RenameNoReplace(from, to);
  if (outcome == RenameOutcome::TargetExists && EqualIgnoringCase(oldName, newName) &&
      IsOneEntryWithOneName(files, folderText, oldName, newName)) {
    return RenameInTwoSteps(files, folderText, oldName, to);
  }
  return outcome;
}

}  // namespace vorlane
