// The collision rules written as they read, with a search through every slot: what the indexed
// version has to agree with.
#pragma once

#include "form/form.h"
#include "platform/letter_case.h"

namespace vorlane {

class LiteralCollisions {
 public:
  LiteralCollisions(Form& form, FileSystem& files) : form_(form), files_(files) {}

  bool IsNameTaken(const Text& path, const Text& name, std::int32_t row) {
    if (form_.Rows.Count() == 0 || form_.Jobs.PreviewState != JobState::Running) {
      return false;
    }
    if (AnEarlierRowProposes(path, name, row) || ANeighbourHolds(path, name, row)) {
      return true;
    }
    return form_.WildCard != u"*.*" && PlainFileExists(files_, path + name);
  }

  Text MakeNameUnique(const Text& path, const Text& name, std::int32_t row) {
    for (std::int32_t number = 1;; ++number) {
      const Text candidate = u"(" + DecimalText(number) + u")" + name;
      if (!IsNameTaken(path, candidate, row)) {
        return candidate;
      }
    }
  }

 private:
  bool AnEarlierRowProposes(const Text& path, const Text& name, std::int32_t row) {
    for (std::int32_t slot = 0; slot < form_.ProposedNames.Count(); ++slot) {
      if (EqualIgnoringCase(form_.ProposedNames[slot], name) && slot + 1 < row &&
          form_.Rows.PathOf(slot + 1) == path) {
        return true;
      }
    }
    return false;
  }

  bool ANeighbourHolds(const Text& path, const Text& name, std::int32_t row) {
    for (std::int32_t slot = 0; slot < form_.CurrentNames.Count(); ++slot) {
      if (!EqualIgnoringCase(form_.CurrentNames[slot], name)) {
        continue;
      }
      const std::int32_t other = slot + 1;
      if (other > form_.Rows.Count()) {
        return false;  // there is no such row: the step fails
      }
      const bool keeps = other < row && EqualIgnoringCase(form_.Rows.At(other).Proposed, name);
      if ((other > row || keeps) && form_.Rows.PathOf(other) == path) {
        return true;
      }
    }
    return false;
  }

  Form& form_;
  FileSystem& files_;
};

}  // namespace vorlane
