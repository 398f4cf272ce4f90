#include "ui/qt_prompter.h"

#include <QMessageBox>

#include "ui/qt_text.h"

namespace vorlane {

namespace {

QMessageBox::Icon IconOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Information:
      return QMessageBox::Information;
    case BoxIcon::Question:
      return QMessageBox::Question;
    case BoxIcon::Exclamation:
      return QMessageBox::Warning;
    case BoxIcon::Stop:
      return QMessageBox::Critical;
    case BoxIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

int ShowBox(QWidget* parent, BoxIcon icon, TextView title, TextView text,
            QMessageBox::StandardButtons buttons) {
  QMessageBox box(IconOf(icon), ToQString(title), ToQString(text), buttons, parent);
  box.setTextFormat(Qt::PlainText);
  box.setWindowModality(Qt::ApplicationModal);
  return box.exec();
}

}  // namespace

void QtPrompter::Show(BoxIcon icon, TextView title, TextView text) {
  ShowBox(parent_, icon, title, text, QMessageBox::Ok);
}

BoxAnswer QtPrompter::AskYesNo(BoxIcon icon, TextView title, TextView text, BoxAnswer /*unasked*/) {
  const int answer = ShowBox(parent_, icon, title, text, QMessageBox::Yes | QMessageBox::No);
  return answer == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

}  // namespace vorlane
