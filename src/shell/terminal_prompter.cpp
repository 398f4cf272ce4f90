#include "shell/terminal_prompter.h"

#include <istream>
#include <ostream>
#include <string>

#include "platform/file_name_bytes.h"
#include "platform/interface_texts.h"
#include "platform/letter_case.h"

namespace vorlane {

void TerminalPrompter::Show(BoxIcon /*icon*/, TextView title, TextView text) {
  output_ << DisplayUtf8(title) << ": " << DisplayUtf8(text) << '\n';
}

BoxAnswer TerminalPrompter::AskYesNo(BoxIcon /*icon*/, TextView title, TextView text,
                                     BoxAnswer unasked) {
  const TextView yes = InterfaceText(TextNumber::Yes);
  output_ << DisplayUtf8(title) << ": " << DisplayUtf8(text) << " (" << DisplayUtf8(yes) << '/'
          << DisplayUtf8(InterfaceText(TextNumber::No)) << ") " << std::flush;
  std::string line;
  if (!std::getline(input_, line)) {
    return unasked;
  }
  const Text answer = TextFromBytes(line);
  const TextView typed = Trim(answer);
  const bool isYes = EqualIgnoringCase(typed, yes) || EqualIgnoringCase(typed, yes.substr(0, 1));
  return isYes ? BoxAnswer::Yes : BoxAnswer::No;
}

}  // namespace vorlane
