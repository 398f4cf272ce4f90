#include "preview/preview.h"

#include <algorithm>
#include <utility>

#include "metadata/tag_reading.h"
#include "platform/file_name_bytes.h"
#include "platform/letter_case.h"
#include "preview/time_estimate.h"

namespace vorlane {

namespace {

constexpr TextView PreviewText = u"Previewing, please wait...";
constexpr TextView AutoNumberKeyword = u"<AUTONUMBER>";

// Cuts the marker off the end of a formula; true if it was there.
bool TakeMarker(TextView& formula, TextView marker) {
  if (!formula.ends_with(marker)) {
    return false;
  }
  formula.remove_suffix(marker.size());
  return true;
}

}  // namespace

void Preview::UpdateFilePreviewAll(bool all, std::int32_t row) {
  const bool done = ReportingFailures(services_.Report, FormName, u"UpdateFilePreviewAll", u"",
                                      [&] { RunPass(all, row); });
  if (!done) {
    form_.View.TimerStopped(FormTimer::ProgramStatus);
    form_.Jobs.PreviewState = JobState::Idle;
    form_.View.ControlEnabled(FormControl::Browse, true);
    form_.SetPointer(MousePointer::Default);
    form_.SetStatusText(u"Ready");
  }
}

void Preview::RunPass(bool all, std::int32_t row) {
  form_.SetPointer(MousePointer::ArrowHourglass);
  form_.View.ControlEnabled(FormControl::FileList, false);
  WaitForStop(form_.Jobs.PreviewState, 3, services_.Time, services_.Loop);
  form_.View.ControlEnabled(FormControl::FileList, true);
  if (form_.SelectedOperation == 0 || form_.Rows.Count() == 0) {
    form_.BoxEdited = false;
    return;
  }
  if (form_.Pointer == MousePointer::Default) {
    form_.SetPointer(MousePointer::ArrowHourglass);
  }
  form_.View.ControlEnabled(FormControl::Browse, false);
  form_.Jobs.PreviewState = JobState::Running;

  Pass pass;
  pass.Code = form_.SelectedCode();
  pass.UsesAutoNumber = BoxesUseAutoNumber();
  form_.SetStatus(PreviewText, 0);
  const RowRange rows = RowsToDo(all, row);
  if (pass.UsesAutoNumber) {
    pass.NumberUsed.Reset(form_.CurrentNames.Count());
  }
  collisions_.StartPass();

  const std::int32_t count = rows.Last - rows.First + 1;
  TimeEstimate estimate(count);
  for (std::int32_t i = rows.First; i <= rows.Last && IsRunning(); ++i) {
    const auto start = services_.Time.Milliseconds();
    PreviewRow(pass, i);
    if (estimate.IsWanted()) {
      const auto duration = static_cast<std::int32_t>(services_.Time.Milliseconds() - start);
      const std::int32_t seconds = estimate.SecondsLeft(i, duration);
      if (seconds >= 0) {
        form_.HoldStatus(Text(PreviewText) + u" Estimated Time Remaining: " +
                         FormatElapsed(seconds));
        form_.SetProgress(
            static_cast<std::int32_t>(std::int64_t{i - rows.First + 1} * 100 / count));
      }
    }
    services_.Loop.Yield();
  }
  FinishPass();
}

Preview::RowRange Preview::RowsToDo(bool all, std::int32_t row) const {
  const std::int32_t count = form_.Rows.Count();
  if (all) {
    return {1, count};
  }
  if (row != 0) {
    return {row, row};
  }
  // From the top to the last visible row: a row's proposal depends on the rows above it.
  const std::int32_t perPage = form_.View.GetCountPerPage();
  const std::int32_t last =
      count - 1 < perPage + 2 ? count : form_.View.FirstVisibleRow() + perPage;
  return {1, std::min(last, count)};
}

void Preview::FinishPass() {
  form_.SetProgress(100);
  form_.View.TimerStopped(FormTimer::ProgramStatus);
  form_.Jobs.PreviewState = JobState::Idle;
  form_.View.ControlEnabled(FormControl::Browse, true);
  if (form_.Pointer == MousePointer::ArrowHourglass) {
    form_.SetPointer(MousePointer::Default);
  }
  form_.SetStatusText(u"Ready");
}

void Preview::PreviewRow(Pass& pass, std::int32_t row) {
  const Text fullPath = form_.Rows.PathOf(row) + form_.Rows.At(row).Name;
  const EntryStatus status = services_.Files.StatusOf(fullPath);
  const bool exists = status.Kind == EntryKind::File || status.Kind == EntryKind::Folder;
  if (!exists || status.Hidden) {
    return;
  }
  if (status.ReadOnly) {
    form_.SetProposedCell(row, u"<Read Only>");
    return;
  }
  if (!form_.ListFolders) {
    if (services_.Files.IsFileInUse(fullPath)) {
      form_.SetProposedCell(row, u"<File in Use>");
      return;
    }
    if (HasMp3Extension(form_.Rows.At(row).Name)) {
      pass.TagV1 = ReadID3v1(services_.Files, services_.Report, fullPath);
      pass.TagV2 = ReadID3v2(services_.Files, services_.Report, fullPath);
      form_.SetTagCells(row, pass.TagV1, pass.TagV2);
      if (!pass.TagV2.Present) {
        pass.TagV2 = pass.TagV1;
      }
    }
  }
  UpdateBoxValues(row, pass.TagV1, pass.TagV2, false, false);
  RunSteps(pass, row);
}

void Preview::RunSteps(Pass& pass, std::int32_t row) {
  std::size_t position = 0;
  while (const auto step = NextStep(pass.Code, position)) {
    if (!RunStep(pass, row, *step)) {
      break;
    }
  }
  pass.PreviousPath = form_.Rows.PathOf(row);
}

// False if the row's further steps are to be left out.
bool Preview::RunStep(Pass& pass, std::int32_t row, TextView step) {
  const Text path = form_.Rows.PathOf(row);
  const Text name = form_.Rows.At(row).Name;
  if (pass.UsesAutoNumber && !pass.PreviousPath.empty() && path != pass.PreviousPath) {
    pass.NumberUsed.Reset(form_.Rows.Count());  // numbers start afresh in each folder
  }
  std::int32_t number = 1;
  Text proposed;
  while (true) {
    if (!IsRunning()) {
      return false;
    }
    bool numberMatters = false;
    proposed = CleanFileName(Evaluate(step, row, number, pass.TagV1, pass.TagV2, &numberMatters));
    if (proposed.empty()) {
      proposed = name;
    }
    if (EqualIgnoringCase(proposed, name) || !collisions_.IsNameTaken(proposed, row)) {
      break;
    }
    if (pass.UsesAutoNumber) {
      // A name that doesn't show the number would collide with every free one.
      number = numberMatters ? pass.NumberUsed.NextFreeAutoNumber(number) : 1;
      if (number != 1) {
        continue;
      }
    }
    proposed = collisions_.MakeNameUnique(proposed, row);
    break;
  }
  if (proposed != form_.Rows.At(row).Proposed) {
    form_.SetProposedName(row, proposed);
  }
  if (pass.UsesAutoNumber) {
    pass.NumberUsed.Take(number);
  }
  return IsRunning() && !(pass.UsesAutoNumber && number == 1);
}

bool Preview::BoxesUseAutoNumber() const {
  return std::any_of(form_.Boxes.begin(), form_.Boxes.end(), [](const OptionBox& box) {
    return box.Visible && Contains(box.Content, AutoNumberKeyword);
  });
}

void Preview::UpdateBoxValues(std::int32_t row, const ID3Tag& tagV1, const ID3Tag& tagV2,
                              bool showValues, bool startPreview) {
  // The preview that may follow comes through here for each of its rows, and the boxes' events are
  // to stay quiet until it has ended.
  const bool suppressed = std::exchange(form_.SuppressBoxEvents, true);
  bool preferAll = false;
  for (std::size_t i = 0; i < form_.Boxes.size(); ++i) {
    const OptionBox& box = form_.Boxes[i];
    if (box.Visible && !box.Checked) {
      form_.BoxValues.Values[i] = ValueOfBox(box, row, tagV1, tagV2, preferAll);
    } else if (box.Checked) {
      form_.BoxValues.Values[i] = box.Content;
    }
  }
  if (showValues) {
    form_.ShowBoxValues();
  }
  if (startPreview) {
    UpdateFilePreviewAll(false, 0);
  }
  form_.SuppressBoxEvents = suppressed;
}

// `preferAll` is only reset by a box without the marker for a single row, so it can stay set from
// an earlier box.
Text Preview::ValueOfBox(const OptionBox& box, std::int32_t row, const ID3Tag& tagV1,
                         const ID3Tag& tagV2, bool& preferAll) {
  if (!box.HasFormula()) {
    return box.Content;
  }
  TextView formula = box.BoxCode;
  const bool preferSingle = TakeMarker(formula, u"<PREFERBOX_SINGLE>");
  if (!preferSingle) {
    preferAll = TakeMarker(formula, u"<PREFERBOX_ALL>");
  }
  const bool one = !form_.DoAll;
  const bool useTyped = (one && row == form_.Rows.Selected() && form_.BoxEdited) ||
                        (form_.DoAll && preferAll) || (one && preferSingle);
  if (useTyped && !box.Content.empty()) {
    return box.Content;
  }
  ID3Tag copy = tagV2;
  return Evaluate(formula, row, row, tagV1, copy, nullptr);
}

// Neither a step that writes a tag nor one that makes a folder or moves has a name to offer.
Text Preview::Evaluate(TextView code, std::int32_t row, std::int32_t number, const ID3Tag& tagV1,
                       ID3Tag& tagV2, bool* wasNumbered) {
  const Text name = form_.Rows.At(row).Name;
  const Text path = form_.Rows.PathOf(row);
  EvaluationContext context{facts_, services_.Loop, form_.Paths};
  return ProcessFileName({.Code = code,
                          .FileName = name,
                          .Path = path,
                          .TagV1 = tagV1,
                          .TagV2 = tagV2,
                          .AutoNumber = number,
                          .Boxes = form_.ShownBoxValues(),
                          .RowCount = form_.Rows.Count()},
                         context, wasNumbered);
}

Text CleanFileName(TextView text) {
  Text cleaned = ReplaceUnpairedSurrogates(Trim(text));
  constexpr TextView unfit = u"\\/:*?\"<>|";
  for (char16_t& character : cleaned) {
    if (Contains(unfit, TextView(&character, 1))) {
      character = u'_';
    }
  }
  return cleaned;
}

}  // namespace vorlane
