#include "preview/name_collisions.h"

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
  firstCandidate_.clear();
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
  const FolderId folder = form_.Rows.At(row).Folder;
  std::int32_t& first =
      firstCandidate_.try_emplace(FoldCase(name) + u"/" + DecimalText(folder), 1).first->second;
  while (true) {
    const Text candidate = Candidate(first, name);
    if (!IsProposedAbove(IndexedNames::KeyOf(candidate, folder), candidate, row)) {
      break;
    }
    ++first;
  }
  for (std::int32_t number = first;; ++number) {
    Text candidate = Candidate(number, name);
    if (!IsNameTaken(candidate, row)) {
      return candidate;
    }
  }
}

}  // namespace vorlane
