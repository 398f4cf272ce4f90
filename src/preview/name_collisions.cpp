#include "preview/name_collisions.h"

#include <algorithm>

#include "platform/letter_case.h"

namespace vorlane {

namespace {

Text Candidate(std::int32_t number, TextView name) {
  Text candidate = u"(";
  candidate.append(DecimalText(number)).append(u")").append(name);
  return candidate;
}

}  // namespace

void NameCollisions::StartPass() {
  generation_ = form_.Rows.Generation();
  form_.CurrentNames.Refresh(form_.Rows);
  form_.ProposedNames.Refresh(form_.Rows);
  numbers_.clear();
}

bool NameCollisions::IsNameTaken(TextView name, std::int32_t row) {
  services_.Loop.Yield();
  if (form_.Rows.Count() == 0 || form_.Jobs.PreviewState != JobState::Running) {
    return false;
  }
  if (generation_ != form_.Rows.Generation()) {
    StartPass();  // rows were sorted in the middle of the pass
  }
  const auto key = IndexedNames::KeyOf(name, form_.Rows.At(row).Folder);
  return IsProposedAbove(key, name, row) || IsHeldByNeighbour(key, name, row) ||
         IsOnDiskUnlisted(name, row);
}

bool NameCollisions::IsProposedAbove(std::uint64_t key, TextView name, std::int32_t row) const {
  return form_.ProposedNames.AnySlot(key, name, form_.Rows.At(row).Folder,
                                     [row](std::int32_t slot) { return slot + 1 < row; });
}

bool NameCollisions::IsHeldByNeighbour(std::uint64_t key, TextView name, std::int32_t row) const {
  return form_.CurrentNames.AnySlot(key, name, form_.Rows.At(row).Folder, [&](std::int32_t slot) {
    const std::int32_t other = slot + 1;
    return other > row || (other < row && EqualIgnoringCase(form_.Rows.At(other).Proposed, name));
  });
}

bool NameCollisions::IsOnDiskUnlisted(TextView name, std::int32_t row) {
  if (form_.WildCard == u"*.*") {
    return false;  // every entry of the folder is in the list
  }
  return PlainFileExists(services_.Files, form_.Rows.PathOf(row) + Text(name));
}

Text NameCollisions::MakeNameUnique(TextView name, std::int32_t row) {
  const Text key = FoldCase(name) + u"/" + DecimalText(form_.Rows.At(row).Folder);
  std::int32_t number = 0;
  while (true) {
    number = NextCandidate(key, name, number, row);
    Text candidate = Candidate(number, name);
    if (!IsNameTaken(candidate, row)) {
      return candidate;
    }
    NoteTaken(key, name, number, row);
  }
}

// The lowest number above `after` that no row above proposes.
std::int32_t NameCollisions::NextCandidate(const Text& key, TextView name, std::int32_t after,
                                           std::int32_t row) {
  Numbers& numbers = numbers_[key];
  const FolderId folder = form_.Rows.At(row).Folder;
  const auto isProposed = [&](std::int32_t number) {
    const Text candidate = Candidate(number, name);
    return IsProposedAbove(IndexedNames::KeyOf(candidate, folder), candidate, row);
  };
  auto& held = numbers.HeldUntilRow;
  for (auto first = held.begin(); first != held.end() && first->first <= row;) {
    numbers.Retry.insert(first->second);
    first = held.erase(first);
  }
  for (auto retry = numbers.Retry.upper_bound(after); retry != numbers.Retry.end();) {
    if (!isProposed(*retry)) {
      return *retry;
    }
    retry = numbers.Retry.erase(retry);
  }
  while (isProposed(numbers.Untried)) {
    ++numbers.Untried;
  }
  return numbers.Untried;
}

void NameCollisions::NoteTaken(const Text& key, TextView name, std::int32_t number,
                               std::int32_t row) {
  Numbers& numbers = numbers_[key];
  numbers.Untried = std::max(numbers.Untried, number + 1);
  const Text candidate = Candidate(number, name);
  const FolderId folder = form_.Rows.At(row).Folder;
  std::int32_t lastHolder = 0;
  form_.CurrentNames.AnySlot(IndexedNames::KeyOf(candidate, folder), candidate, folder,
                             [&](std::int32_t slot) {
                               lastHolder = std::max(lastHolder, slot + 1);
                               return false;
                             });
  numbers.Retry.erase(number);
  if (lastHolder > row) {
    numbers.HeldUntilRow.emplace(lastHolder, number);
  } else {
    numbers.Retry.insert(number);
  }
}

}  // namespace vorlane
