// The steps of a run that do something other than rename: writing and removing tags, making
// folders, moving. What a step is shows by the keyword in it; a step without one only shapes the
// preview and is passed over here.
#pragma once

#include <cstdint>

#include "batch/undo_journal.h"
#include "engine/entry_facts.h"
#include "form/form.h"
#include "metadata/id3_tag.h"

namespace vorlane {

// What the steps of one row did.
struct StepResults {
  bool StepTagPresent = false;  // a tag step has left an unfinished journal line
  bool TagRefused = false;      // one wasn't carried out, as the old tag couldn't be journalled
  bool Changed = false;         // a folder was made, the entry moved or a tag step carried out
  bool MoveRefused = false;
  Text MovedTo{};  // the folder in which the entry is now, if it was moved
};

class RowSteps {
 public:
  RowSteps(Form& form, Services& services, EntryFacts& facts, UndoJournal& journal)
      : form_(form), services_(services), facts_(facts), journal_(journal) {}

  // Carries out the selected operation's steps on that row, in their order. The tags are the
  // records as read from the row's file; they go into the journal unchanged, and before the file is
  // touched: a tag step whose record can't be written isn't carried out, since nothing else could
  // bring the old tag back. Names and folders can be had back by hand, so these steps are recorded
  // when they are done, and a record that can't be written is merely lost. Throws RunError for a
  // tag step with too few fields (9) or without its closing tag (5), and for a code of over 32,767
  // characters (6).
  StepResults Run(std::int32_t row, const ID3Tag& tagV1, const ID3Tag& tagV2);

 private:
  struct RowInHand {
    std::int32_t Row;
    Text Path;
    Text Name;
    bool IsMp3;
    const ID3Tag& TagV1;
    const ID3Tag& TagV2;
  };

  void RunStep(const RowInHand& in, const Text& step, StepResults& results);
  // Each true if it was carried out.
  bool RemoveTag(const RowInHand& in);
  bool WriteTagV1(const RowInHand& in, const Text& step);
  bool WriteTagV2(const RowInHand& in, const Text& step);
  void MakeFolder(const RowInHand& in, const Text& step, StepResults& results);
  void Move(const RowInHand& in, const Text& step, StepResults& results);
  Text FolderOf(const RowInHand& in, const Text& step);
  Text Evaluate(const RowInHand& in, const Text& step, const ID3Tag& tagV1, ID3Tag& tagV2,
                bool tagStep);
  std::vector<Text> TagFields(const RowInHand& in, const Text& step, ID3Tag& copyV1,
                              ID3Tag& copyV2);
  bool OpenTagLine(const RowInHand& in, const ID3Tag& asRead, int version);

  Form& form_;
  Services& services_;
  EntryFacts& facts_;
  UndoJournal& journal_;
};

}  // namespace vorlane
