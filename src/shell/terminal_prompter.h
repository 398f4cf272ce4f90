// Questions in a terminal, for a program that runs where no window can be shown.
#pragma once

#include <iosfwd>

#include "platform/prompter.h"

namespace vorlane {

class TerminalPrompter final : public Prompter {
 public:
  TerminalPrompter(std::istream& input, std::ostream& output) : input_(input), output_(output) {}

  void Show(BoxIcon icon, TextView title, TextView text) override;

  // Yes is "y" or "yes" in any case; any other line is No. Without a line nobody was asked.
  BoxAnswer AskYesNo(BoxIcon icon, TextView title, TextView text, BoxAnswer unasked) override;

 private:
  std::istream& input_;
  std::ostream& output_;
};

}  // namespace vorlane
