#include "ui/easy_button_accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QTimer>

#include "ui/easy_button.h"

namespace vorlane {

namespace {

class EasyButtonForAssistive final : public QAccessibleWidget {
 public:
  explicit EasyButtonForAssistive(EasyButton* button)
      : QAccessibleWidget(button, QAccessible::Button), button_(button) {}

  QString text(QAccessible::Text kind) const override {
    const QString given = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && given.isEmpty() ? PlainCaption() : given;
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (button_->isEnabled()) {
      names.prepend(pressAction());
    }
    return names;
  }

  // The caller waits for an answer, and what the button sets off may take long.
  void doAction(const QString& name) override {
    if (name == pressAction()) {
      QTimer::singleShot(0, button_, [button = button_] { button->Fire(); });
    } else {
      QAccessibleWidget::doAction(name);
    }
  }

 private:
  // Without the marks of access keys.
  QString PlainCaption() const {
    QString plain;
    const QString& caption = button_->Caption();
    for (qsizetype i = 0; i < caption.size(); ++i) {
      i += caption[i] == u'&' ? 1 : 0;
      plain += i < caption.size() ? QString(caption[i]) : QString();
    }
    return plain;
  }

  EasyButton* button_;
};

QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object) {
  auto* button = dynamic_cast<EasyButton*>(object);
  return button != nullptr ? new EasyButtonForAssistive(button) : nullptr;
}

}  // namespace

void LetAssistivePressEasyButtons() {
  QAccessible::installFactory(MakeInterface);  // which knows whether it has it
}

}  // namespace vorlane
