#include "ui/keyword_box.h"

#include <QEvent>

#include "platform/interface_texts.h"
#include "ui/qt_text.h"

namespace vorlane {

namespace {

// A wheel that turns over a list without the focus would pick, and what was on the clipboard would
// be lost to somebody who only wanted to scroll.
class WheelGuard final : public QObject {
 public:
  explicit WheelGuard(QComboBox& box) : QObject(&box), box_(box) { box.installEventFilter(this); }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    return event->type() == QEvent::Wheel && !box_.hasFocus();
  }

 private:
  QComboBox& box_;
};

}  // namespace

KeywordBox::KeywordBox(QComboBox& box, Form& form, Clipboard& clipboard,
                       std::function<ClsTooltip&()> tip)
    : box_(box), form_(form), clipboard_(clipboard), tip_(std::move(tip)) {
  box_.setPlaceholderText(ToQString(InterfaceText(TextNumber::KeywordList)));
  box_.setFocusPolicy(Qt::StrongFocus);  // not by the wheel
  new WheelGuard(box_);
}

void KeywordBox::LoadKeywords(KeywordList list) {
  list_ = std::move(list);
  box_.clear();
  for (std::size_t i = 0; i < list_.Entries.size(); ++i) {
    box_.addItem(ToLine(list_.Entries[i]));
    box_.setItemData(static_cast<int>(i), ToQString(list_.HelpOf(i)),
                     Qt::AccessibleDescriptionRole);
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
  tip_().AwaitNextRest();  // the press of the pick has ended the one before
  box_.setAccessibleDescription(ToQString(help));
  clipboard_.Clear();
  clipboard_.SetText(list_.Entries[index]);
  form_.SetStatusText(
      Text(list_.Entries[index]).append(InterfaceText(TextNumber::CopiedToClipboard)));
}

}  // namespace vorlane
