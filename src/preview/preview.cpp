#include "preview/preview.h"

#include <algorithm>

#include "platform/file_name_bytes.h"
#include "platform/interface_texts.h"
#include "platform/letter_case.h"

namespace vorlane {

namespace {

constexpr TextView AutoNumberKeyword = u"<AUTONUMBER>";

bool IsUnfit(char16_t character) {
  switch (character) {
    case u'\\':
    case u'/':
    case u':':
    case u'*':
    case u'?':
    case u'"':
    case u'<':
    case u'>':
    case u'|':
      return true;
    default:
      return false;
  }
}

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
    form_.StopTimer(FormTimer::ProgramStatus);
    form_.Jobs.PreviewState = JobState::Idle;
    EnableBrowser();
    form_.SetPointer(MousePointer::Default);
    form_.SetStatusText(InterfaceText(TextNumber::Ready));
  }
}

// During a run the folder tree stays locked: another folder would take the rows from under it.
void Preview::EnableBrowser() {
  if (form_.Jobs.BatchState == JobState::Idle) {
    form_.View.ControlEnabled(FormControl::Browse, true);
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
  form_.SetStatus(InterfaceText(TextNumber::Previewing), 0);
  const RowRange rows = RowsToDo(all, row);
  if (pass.UsesAutoNumber) {
    pass.NumberUsed.Reset(form_.CurrentNames.Count());
  }
  collisions_.StartPass();

  TimeEstimate estimate(rows.Last - rows.First + 1);
  for (std::int32_t i = rows.First; i <= rows.Last; ++i) {
    const auto start = services_.Time.Milliseconds();
    PreviewRow(pass, i);
    if (!IsRunning()) {
      break;
    }
    ShowProgress(estimate, rows, i,
                 static_cast<std::int32_t>(services_.Time.Milliseconds() - start));
    services_.Loop.Yield();
    if (!IsRunning()) {
      break;
    }
  }
  FinishPass();
}

void Preview::ShowProgress(TimeEstimate& estimate, RowRange rows, std::int32_t row,
                           std::int32_t duration) {
  if (!estimate.IsWanted()) {
    return;
  }
  const std::int32_t seconds = estimate.SecondsLeft(row, duration);
  if (seconds >= 0) {
    Text status(InterfaceText(TextNumber::Previewing));
    status.append(u" ").append(InterfaceText(TextNumber::TimeRemaining));
    form_.HoldStatus(status.append(FormatElapsed(seconds)));
    form_.SetProgress(static_cast<std::int32_t>(std::int64_t{row - rows.First + 1} * 100 /
                                                (rows.Last - rows.First + 1)));
  }
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
  form_.StopTimer(FormTimer::ProgramStatus);
  form_.Jobs.PreviewState = JobState::Idle;
  EnableBrowser();
  if (form_.Pointer == MousePointer::ArrowHourglass) {
    form_.SetPointer(MousePointer::Default);
  }
  form_.SetStatusText(InterfaceText(TextNumber::Ready));
}

Preview::RowInHand Preview::TakeRow(std::int32_t row) const {
  const FileRow& cells = form_.Rows.At(row);
  return {row, cells.Name, form_.Rows.PathOf(row), cells.Folder, form_.Rows.Generation()};
}

// True if the list isn't the one that the row was taken from, or a newer preview has done it.
bool Preview::IsOutdated(const RowInHand& in) const {
  return form_.Rows.Generation() != in.Generation || form_.Jobs.PreviewState == JobState::Idle;
}

void Preview::PreviewRow(Pass& pass, std::int32_t row) {
  const RowInHand in = TakeRow(row);
  const Text fullPath = in.Path + in.Name;
  const bool isMp3 = !form_.ListFolders && HasMp3Extension(in.Name);
  EntryUse use = form_.ListFolders ? EntryUse{services_.Files.StatusOf(fullPath)}
                 : isMp3           ? services_.Files.UseAndOpen(fullPath)
                                   : services_.Files.UseOf(fullPath);
  const EntryStatus& status = use.Status;
  const bool exists = status.Kind == EntryKind::File || status.Kind == EntryKind::Folder;
  if (!exists || status.Hidden) {
    return;
  }
  if (status.ReadOnly) {
    form_.SetProposedCell(row, ReadOnlyMarker());
    return;
  }
  if (use.InUse) {
    form_.SetProposedCell(row, FileInUseMarker());
    return;
  }
  if (isMp3) {
    pass.Tags = ReadRowTags(form_, services_, row, std::move(use.File));
  }
  {
    const QuietBoxes quiet(form_);
    ComputeBoxValues(in, pass.Tags.V1, pass.Tags.V2);
  }
  RunSteps(pass, in);
}

void Preview::RunSteps(Pass& pass, const RowInHand& in) {
  std::size_t position = 0;
  while (const auto step = NextStep(pass.Code, position)) {
    if (!RunStep(pass, in, *step)) {
      break;
    }
  }
  pass.PreviousFolder = in.Folder;
}

// False if the row's further steps are to be left out.
bool Preview::RunStep(Pass& pass, const RowInHand& in, TextView step) {
  if (pass.UsesAutoNumber && pass.PreviousFolder && pass.PreviousFolder != in.Folder) {
    pass.NumberUsed.Reset(form_.Rows.Count());  // numbers start afresh in each folder
  }
  std::int32_t number = 1;
  Text proposed;
  while (true) {
    if (!IsRunning()) {
      return false;
    }
    bool wasNumbered = false;
    proposed = CleanFileName(Evaluate(step, in, number, pass.Tags.V1, pass.Tags.V2, &wasNumbered));
    if (proposed.empty()) {
      proposed = in.Name;
    }
    if (IsOutdated(in)) {
      return false;
    }
    if (EqualIgnoringCase(proposed, in.Name) || !collisions_.IsNameTaken(proposed, in.Row)) {
      break;
    }
    if (pass.UsesAutoNumber) {
      // A name that doesn't show the number would collide with every free one.
      number = wasNumbered ? pass.NumberUsed.NextFreeAutoNumber(number) : 1;
      if (number != 1) {
        continue;
      }
    }
    proposed = collisions_.MakeNameUnique(proposed, in.Row);
    break;
  }
  if (IsOutdated(in)) {
    return false;
  }
  if (proposed != form_.Rows.At(in.Row).Proposed) {
    form_.SetProposedName(in.Row, proposed);
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
  const QuietBoxes quiet(form_);
  ComputeBoxValues(TakeRow(row), tagV1, tagV2);
  if (showValues) {
    form_.ShowBoxValues();
  }
  if (startPreview) {
    UpdateFilePreviewAll(false, 0);
  }
}

void Preview::ComputeBoxValues(const RowInHand& in, const ID3Tag& tagV1, const ID3Tag& tagV2) {
  bool preferAll = false;
  for (std::size_t i = 0; i < form_.Boxes.size(); ++i) {
    const OptionBox& box = form_.Boxes[i];
    if (box.Visible && !box.Checked) {
      form_.BoxValues.Values[i] = ValueOfBox(box, in, tagV1, tagV2, preferAll);
    } else if (box.Checked) {
      form_.BoxValues.Values[i] = box.Content;
    }
  }
}

// `preferAll` isn't touched by a box without a formula or with the marker for a single row, so it
// can stay set from an earlier box.
Text Preview::ValueOfBox(const OptionBox& box, const RowInHand& in, const ID3Tag& tagV1,
                         const ID3Tag& tagV2, bool& preferAll) {
  if (!box.HasFormula()) {
    return box.Content;
  }
  const Text code = box.BoxCode;  // a yield may select another operation, with other boxes
  TextView formula = code;
  const bool preferSingle = TakeMarker(formula, u"<PREFERBOX_SINGLE>");
  if (!preferSingle) {
    preferAll = TakeMarker(formula, u"<PREFERBOX_ALL>");
  }
  const bool one = !form_.DoAll;
  const bool useTyped = (one && in.Row == form_.Rows.Selected() && form_.BoxEdited) ||
                        (form_.DoAll && preferAll) || (one && preferSingle);
  if (useTyped && !box.Content.empty()) {
    return box.Content;
  }
  ID3Tag copy = tagV2;
  return Evaluate(formula, in, in.Row, tagV1, copy, nullptr);
}

// Neither a step that writes a tag nor one that makes a folder or moves has a name to offer.
Text Preview::Evaluate(TextView code, const RowInHand& in, std::int32_t number, const ID3Tag& tagV1,
                       ID3Tag& tagV2, bool* wasNumbered) {
  EvaluationContext context{facts_, services_.Loop, form_.Paths};
  return ProcessFileName({.Code = code,
                          .FileName = in.Name,
                          .Path = in.Path,
                          .TagV1 = tagV1,
                          .TagV2 = tagV2,
                          .AutoNumber = number,
                          .Boxes = form_.ShownBoxValues(),
                          .RowCount = form_.Rows.Count()},
                         context, wasNumbered);
}

Text CleanFileName(TextView text) {
  Text cleaned = ReplaceUnpairedSurrogates(Trim(text));
  std::replace_if(cleaned.begin(), cleaned.end(), IsUnfit, u'_');
  return cleaned;
}

}  // namespace vorlane
