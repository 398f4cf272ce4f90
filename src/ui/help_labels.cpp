#include "ui/help_labels.h"

#include "platform/interface_texts.h"
#include "ui/qt_text.h"

namespace vorlane {

namespace {

// The texts of the labels behind those of the option boxes.
constexpr int CaptionNumbers[] = {1200, 1202, 1205, 1208, 1211, 1213, 1214, 1215, 1217, 1219};
static_assert(OptionBoxCount + std::size(CaptionNumbers) == HelpLabelCount);

QString CaptionOf(int label) {
  return label < OptionBoxCount ? QStringLiteral("[BOX%1]").arg(label + 1)
                                : ToQString(InterfaceText(CaptionNumbers[label - OptionBoxCount]));
}

}  // namespace

void InitHelpLabels(FormControls& controls) {
  for (int i = 0; i < HelpLabelCount; ++i) {
    QLabel& label = *controls.HelpLabels[static_cast<std::size_t>(i)];
    label.setText(CaptionOf(i));
    label.adjustSize();
  }
}

void ShowHelpLabels(FormControls& controls) {
  for (std::size_t i = 0; i < controls.HelpLabels.size(); ++i) {
    const bool isWanted = i >= controls.Boxes.size() || !controls.Boxes[i].Content->isHidden();
    if (isWanted && controls.HelpLabels[i]->isHidden()) {
      controls.HelpLabels[i]->show();
    }
  }
}

void HideHelpLabels(FormControls& controls) {
  for (QLabel* label : controls.HelpLabels) {
    if (!label->isHidden()) {
      label->hide();
    }
  }
}

}  // namespace vorlane
