// The preview: each row's proposed name, worked out by the selected operation, and the values of
// the option boxes on each row. Nothing here changes a file.
//
// An operation is a list of steps. Steps don't chain: each is evaluated on the row's current name,
// and the last one decides. A step that writes a tag, makes a folder or moves has no name to offer
// and leaves the current one.
//
// Cost: linear in the rows, one evaluation for each step and box formula, unless names collide in a
// way that the automatic number has to try its way through.
#pragma once

#include <cstdint>
#include <optional>

#include "engine/entry_facts.h"
#include "engine/operation_steps.h"
#include "engine/process_file_name.h"
#include "form/form.h"
#include "metadata/id3_tag.h"
#include "preview/name_collisions.h"
#include "preview/row_tags.h"
#include "preview/time_estimate.h"
#include "preview/used_numbers.h"

namespace vorlane {

class Preview {
 public:
  Preview(Form& form, Services& services, EntryFacts& facts)
      : form_(form), services_(services), facts_(facts), collisions_(form, services) {}

  // (true, 0) does all rows, (false, 0) the rows from the first down to the last visible one,
  // (false, n) row n. A preview that still runs is asked to stop and gets up to 3 seconds. A
  // failure is reported and ends the preview; rows not reached keep what they showed.
  void UpdateFilePreviewAll(bool all, std::int32_t row);

  // Works out what each box stands for on that row. `showValues` puts the values into the boxes,
  // `startPreview` previews the visible rows afterwards. The boxes' own events stay quiet
  // meanwhile. The tags are those of the row's file.
  void UpdateBoxValues(std::int32_t row, const ID3Tag& tagV1, const ID3Tag& tagV2, bool showValues,
                       bool startPreview);

  // True as soon as a visible box has "<AUTONUMBER>" in its text.
  bool BoxesUseAutoNumber() const;

 private:
  // What one pass over rows keeps from row to row.
  struct Pass {
    Text Code;
    bool UsesAutoNumber = false;
    UsedNumbers NumberUsed;
    std::optional<FolderId> PreviousFolder;
    ID3Tags Tags;  // the last MP3 records read; not cleared between rows
  };

  // A row as it was when its turn came. A yield may move rows or fill the list anew, so nothing of
  // it is read from the list again.
  struct RowInHand {
    std::int32_t Row;
    Text Name;
    Text Path;
    FolderId Folder;
    std::uint64_t Generation;
  };

  struct RowRange {
    std::int32_t First;
    std::int32_t Last;
  };

  void RunPass(bool all, std::int32_t row);
  RowRange RowsToDo(bool all, std::int32_t row) const;
  RowInHand TakeRow(std::int32_t row) const;
  void PreviewRow(Pass& pass, std::int32_t row);
  void RunSteps(Pass& pass, const RowInHand& in);
  bool RunStep(Pass& pass, const RowInHand& in, TextView step);
  void ShowProgress(TimeEstimate& estimate, RowRange rows, std::int32_t row, std::int32_t duration);
  void FinishPass();
  void EnableBrowser();
  bool IsRunning() const { return form_.Jobs.PreviewState == JobState::Running; }
  bool IsOutdated(const RowInHand& in) const;

  void ComputeBoxValues(const RowInHand& in, const ID3Tag& tagV1, const ID3Tag& tagV2);
  Text ValueOfBox(const OptionBox& box, const RowInHand& in, const ID3Tag& tagV1,
                  const ID3Tag& tagV2, bool& preferAll);
  Text Evaluate(TextView code, const RowInHand& in, std::int32_t number, const ID3Tag& tagV1,
                ID3Tag& tagV2, bool* wasNumbered);

  Form& form_;
  Services& services_;
  EntryFacts& facts_;
  NameCollisions collisions_;
};

// A text fit for a file name: spaces trimmed from both ends, "_" for each of \ / : * ? " < > | and
// for half of a surrogate pair, which no name on disk can hold. The empty text stays empty.
Text CleanFileName(TextView text);

}  // namespace vorlane
