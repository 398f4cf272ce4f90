#include "catalogue/operation_selection.h"

#include "platform/interface_texts.h"

namespace vorlane {

namespace {

constexpr int HelpText = TextNumber::FirstToolTip + 14;

}  // namespace

void OperationSelection::lstRenamingOperations_NodeClick() {
  bool wildcardChanged = false;
  form_.ProposalsOutdated = true;
  {
    std::optional<QuietBoxes> quiet;
    ReportingFailures(services_.Report, FormName, u"lstRenamingOperations_NodeClick", u"", [&] {
      form_.SetPointer(MousePointer::ArrowHourglass);
      form_.View.ControlEnabled(FormControl::FileList, false);
      WaitForStop(form_.Jobs.PreviewState, 3, services_.Time, services_.Loop);
      form_.View.ControlEnabled(FormControl::FileList, true);
      quiet.emplace(form_);
      ClearBoxes();
      const OperationKeys keys = ReadOperationKeys(form_.SelectedCode());
      if (!keys.HelpMessage) {
        return;
      }
      form_.SetStatusText(*keys.HelpMessage);
      form_.SetHelpToolTip(*keys.HelpMessage);
      // A listing that waits for a pause in the typing is due as well.
      wildcardChanged = form_.IsTimerRunning(FormTimer::UpdateList);
      if (keys.Wildcard && *keys.Wildcard != form_.WildCard) {
        wildcard_.SetText(*keys.Wildcard);
        wildcardChanged = true;
      }
      if (keys.ReachedListing) {
        // The listing below comes in the place of the one that the wildcard has set off.
        form_.StopTimer(FormTimer::UpdateList);
      }
      ShowBoxes(keys);
      if (keys.ReachedListing && wildcardChanged && form_.Jobs.ListingState == JobState::Idle) {
        list_.PathChangedEvent();
      }
      ShowTipsAndChecks(keys);
      if (keys.Failure) {
        throw RunError(*keys.Failure);
      }
    });
  }
  if (form_.Rows.Count() > 0 && form_.Rows.Selected() == 0) {
    form_.SelectRow(1);
  }
  if (form_.Rows.Selected() != 0 && !wildcardChanged) {
    list_.lstFileListItemClick();
  }
}

void OperationSelection::ClearBoxes() {
  for (int box = 0; box < OptionBoxCount; ++box) {
    form_.Boxes[static_cast<std::size_t>(box)] = {};
    form_.View.BoxShapeChanged(box);
    form_.View.BoxTextChanged(box);
  }
  form_.SetHelpToolTip(InterfaceText(HelpText));
}

void OperationSelection::ShowBoxes(const OperationKeys& keys) {
  for (std::size_t i = 0; i < keys.Boxes.size(); ++i) {
    const OptionBoxKeys& from = keys.Boxes[i];
    OptionBox& box = form_.Boxes[i];
    box.Visible = true;
    box.Caption = from.Caption;
    box.BoxCode = from.BoxCode;
    if (from.Remembered) {
      box.Content = memory_.Recall(from.Remembered->Key).value_or(from.Remembered->Default);
    }
    form_.View.BoxShapeChanged(static_cast<int>(i));
    form_.View.BoxTextChanged(static_cast<int>(i));
  }
}

void OperationSelection::ShowTipsAndChecks(const OperationKeys& keys) {
  for (std::size_t i = 0; i < keys.Boxes.size(); ++i) {
    const OptionBoxKeys& from = keys.Boxes[i];
    OptionBox& box = form_.Boxes[i];
    box.ToolTip = from.ToolTip;
    box.CheckCaption = from.CheckCaption;
    box.CheckVisible = !from.CheckCaption.empty();
    box.Enabled = !box.CheckVisible;
    form_.View.BoxShapeChanged(static_cast<int>(i));
  }
}

}  // namespace vorlane
