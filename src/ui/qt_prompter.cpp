#include "ui/qt_prompter.h"

#include <QFontMetrics>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
#include <algorithm>

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

constexpr int LeastWidth = 400;  // of lines that are wrapped

// A box breaks its lines at blanks only: it cuts off a word that is wider than its lines may be.
bool HasWideWord(const QString& text, const QFontMetrics& metrics) {
  static const QRegularExpression Blanks(QStringLiteral("\\s+"));
  const QStringList words = text.split(Blanks);
  return std::any_of(words.begin(), words.end(), [&](const QString& word) {
    return metrics.horizontalAdvance(word) > LeastWidth;
  });
}

// A box that is higher than the screen would hide its own button: it shows the beginning of its
// text. What isn't seen of the text can be read among the details.
void FitScreen(QMessageBox& box) {
  constexpr int AroundTheText = 250;
  const QString whole = box.text();
  const QFontMetrics metrics(box.font());
  if (HasWideWord(whole, metrics)) {
    box.setDetailedText(whole);
  }
  const int room = box.screen()->availableGeometry().height() - AroundTheText;
  const auto fits = [&](qsizetype length) {
    const auto area = metrics.boundingRect(
        QRect(0, 0, LeastWidth, 0), Qt::TextWordWrap | Qt::TextWrapAnywhere, whole.left(length));
    return area.height() <= room;
  };
  if (fits(whole.size())) {
    return;
  }
  qsizetype fitting = 0;
  qsizetype tooLong = whole.size();
  while (tooLong - fitting > 1) {
    const qsizetype middle = fitting + (tooLong - fitting) / 2;
    (fits(middle) ? fitting : tooLong) = middle;
  }
  box.setText(whole.left(fitting));
  box.setDetailedText(whole);
}

int ShowBox(QWidget* parent, BoxIcon icon, TextView title, TextView text,
            QMessageBox::StandardButtons buttons) {
  QMessageBox box(IconOf(icon), ToQString(title), ToQString(text), buttons, parent);
  box.setTextFormat(Qt::PlainText);
  box.setWindowModality(Qt::ApplicationModal);
  FitScreen(box);
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
