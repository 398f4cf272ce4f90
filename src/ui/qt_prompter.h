// Message boxes on the screen.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/prompter.h"

namespace vorlane {

class QtPrompter final : public Prompter {
 public:
  // The window that the boxes belong to, once there is one.
  void SetParent(QWidget* parent) { parent_ = parent; }

  void Show(BoxIcon icon, TextView title, TextView text) override;
  BoxAnswer AskYesNo(BoxIcon icon, TextView title, TextView text, BoxAnswer unasked) override;

 private:
  QPointer<QWidget> parent_;
};

}  // namespace vorlane
