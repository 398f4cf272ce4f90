#include "ui/uninstall.h"

#include <QApplication>
#include <iostream>
#include <string>

#include "platform/file_name_bytes.h"
#include "shell/start_up.h"
#include "ui/application_look.h"
#include "ui/desktop_services.h"

namespace vorlane {

namespace {

class TerminalPrompter final : public Prompter {
 public:
  void Show(BoxIcon /*icon*/, TextView title, TextView text) override {
    std::cerr << DisplayUtf8(title) << ": " << DisplayUtf8(text) << '\n';
  }
  BoxAnswer AskYesNo(BoxIcon /*icon*/, TextView title, TextView text,
                     BoxAnswer /*unasked*/) override {
    std::cout << DisplayUtf8(title) << ": " << DisplayUtf8(text) << " [y/N] " << std::flush;
    std::string answer;
    std::getline(std::cin, answer);
    return answer == "y" || answer == "Y" || answer == "yes" ? BoxAnswer::Yes : BoxAnswer::No;
  }
};

bool HasScreen() {
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

}  // namespace

int RunUninstall(int argc, char** argv) {
  if (HasScreen()) {
    QApplication app(argc, argv);
    SetApplicationLook();
    QtPrompter prompts;
    DesktopServices services(prompts);
    Uninstall(services.Registry, prompts);
  } else {
    TerminalPrompter prompts;
    DesktopServices services(prompts);
    Uninstall(services.Registry, prompts);
  }
  return 0;
}

}  // namespace vorlane
