// Message boxes. Each question carries the answer to take when nobody can be asked, so that a
// script gets the safe answer and a test can refuse unexpected questions.
#pragma once

#include "platform/text.h"

namespace vorlane {

enum class BoxIcon { None, Information, Question, Exclamation, Stop };
enum class BoxAnswer { Ok, Yes, No };

class Prompter {
 public:
  virtual ~Prompter() = default;

  // Shows a text with an OK button and returns when it is closed.
  virtual void Show(BoxIcon icon, TextView title, TextView text) = 0;

  // Asks Yes or No. `unasked` is the answer when nobody can be asked; closing the box means No.
  virtual BoxAnswer AskYesNo(BoxIcon icon, TextView title, TextView text, BoxAnswer unasked) = 0;
};

}  // namespace vorlane
