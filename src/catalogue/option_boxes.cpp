#include "catalogue/option_boxes.h"

#include "catalogue/operation_keys.h"
#include "engine/proper_case.h"

namespace vorlane {

namespace {

// Both handlers of a box report under this name.
constexpr TextView ChangeName = u"txtRenameOption_Change";

Text KeywordOf(int box) {
  return u"<BOX" + DecimalText(box + 1) + u">";
}

bool LooksLikeCode(TextView text) {
  return text.find_first_of(u"<>") != TextView::npos;
}

}  // namespace

bool OptionBoxes::AreEventsQuiet() const {
  return form_.SuppressBoxEvents() || form_.Rows.Selected() == 0;
}

void OptionBoxes::txtRenameOption_Change(int box) {
  if (!AreEventsQuiet()) {
    ReportingFailures(services_.Report, FormName, ChangeName, u"", [&] { Change(box); });
  }
}

void OptionBoxes::Change(int box) {
  const OptionBox& shown = form_.Boxes[static_cast<std::size_t>(box)];
  const Text keyword = KeywordOf(box);
  if (Contains(shown.Content, keyword)) {
    Text without = shown.Content;
    ReplaceAll(without, keyword, u"");
    form_.SetBoxText(box, without);
  }
  if (const auto remembered = ReadRegistryBox(shown.BoxCode)) {
    memory_.Keep(remembered->Key, shown.Content);
  }
  form_.ReadBoxValues();
  form_.BoxEdited = true;
  form_.RestartTimer(FormTimer::AutoPreview);
}

void OptionBoxes::txtRenameOption_LostFocus(int box) {
  if (AreEventsQuiet()) {
    return;
  }
  ReportingFailures(services_.Report, FormName, ChangeName, u"", [&] {
    const OptionBox& shown = form_.Boxes[static_cast<std::size_t>(box)];
    if (Contains(shown.BoxCode, u"<PROPERCASE>") && !LooksLikeCode(shown.Content)) {
      const QuietBoxes quiet(form_);
      form_.SetBoxText(box, ProperCase(shown.Content));
    }
    form_.RestartTimer(FormTimer::AutoPreview);
    Change(box);
  });
}

void OptionBoxes::chkRenameOption_Click(int box, bool ticked) {
  OptionBox& shown = form_.Boxes[static_cast<std::size_t>(box)];
  shown.Checked = ticked;
  shown.Enabled = ticked;
  form_.View.BoxShapeChanged(box);
}

std::optional<int> OptionBoxes::NextBox() const {
  for (int step = 1; step < OptionBoxCount; ++step) {
    const int box = (lastFocused_ + step) % OptionBoxCount;
    const OptionBox& shown = form_.Boxes[static_cast<std::size_t>(box)];
    if (shown.Visible && shown.Enabled) {
      return box;
    }
  }
  return std::nullopt;
}

}  // namespace vorlane
