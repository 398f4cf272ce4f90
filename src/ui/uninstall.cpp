#include "ui/uninstall.h"

#include <QApplication>
#include <iostream>

#include "shell/start_up.h"
#include "shell/terminal_prompter.h"
#include "ui/application_look.h"
#include "ui/desktop_services.h"

namespace vorlane {

namespace {

bool HasScreen() {
  return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
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
    TerminalPrompter prompts(std::cin, std::cout);
    DesktopServices services(prompts);
    Uninstall(services.Registry, prompts);
  }
  return 0;
}

}  // namespace vorlane
