#include "ui/keyword_box.h"

#include "platform/interface_texts.h"
#include "ui/qt_text.h"

namespace vorlane {

KeywordBox::KeywordBox(QComboBox& box, Form& form, Clipboard& clipboard,
                       std::function<ClsTooltip&()> tip)
    : box_(box), form_(form), clipboard_(clipboard), tip_(std::move(tip)) {
  box_.setPlaceholderText(ToQString(InterfaceText(TextNumber::KeywordList)));
}

void KeywordBox::LoadKeywords(KeywordList list) {
  list_ = std::move(list);
  box_.clear();
  for (const Text& entry : list_.Entries) {
    box_.addItem(ToLine(entry));
  }
  box_.setCurrentIndex(-1);
}

void KeywordBox::cboKeywords_Click(int entry) {
  const auto index = static_cast<std::size_t>(entry);
  if (entry < 0 || index >= list_.Entries.size()) {
    return;
  }
  const TextView help = list_.HelpOf(index);
  tip_().SetTipText(help);
  box_.setAccessibleDescription(ToQString(help));
  clipboard_.Clear();
  clipboard_.SetText(list_.Entries[index]);
  form_.SetStatusText(
      Text(list_.Entries[index]).append(InterfaceText(TextNumber::CopiedToClipboard)));
}

}  // namespace vorlane
