// vorlane: the window. One argument, a folder to start in; or "/Uninstall".
#include <QApplication>

#include "net/stored_proxy.h"
#include "platform/file_name_bytes.h"
#include "platform/program_folder.h"
#include "platform/program_version.h"
#include "platform/user_folders.h"
#include "platform/vendor.h"
#include "shell/start_up.h"
#include "shell/stored_favorites.h"
#include "ui/about_box.h"
#include "ui/application_look.h"
#include "ui/desktop_services.h"
#include "ui/fade_out.h"
#include "ui/favorites_popup.h"
#include "ui/main_window_load.h"
#include "ui/program_icons.h"
#include "ui/qt_text.h"
#include "ui/stop_signal.h"
#include "ui/uninstall.h"

namespace {

using namespace vorlane;

Text CommandLine(int argc, char** argv) {
  std::vector<Text> arguments;
  for (int i = 1; i < argc; ++i) {
    arguments.push_back(TextFromBytes(argv[i]));
  }
  return CommandLineOf(arguments);
}

// X11 alone lets a program place its windows; under Wayland it comes through XWayland.
// True if the choice was this program's and not the user's.
bool PreferX11() {
  const bool isOurs = !qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
  if (isOurs) {
    qputenv("QT_QPA_PLATFORM", "xcb;wayland");
  }
  return isOurs;
}

int RunWindow(QApplication& app, const Text& commandLine) {
  QtPrompter prompts;
  DesktopServices services(prompts);
  Program program(services.ForProgram(), {});
  FrmMain& window = program.Window();
  prompts.SetParent(&window);
  OvWinsock sockets;
  StoredProxy proxy(services.Registry);
  StoredFavorites favorites(services.Settings);
  FavoritesPopup favoritesPopup(program, services.Files, favorites, prompts);
  AboutBox about({program.Gate(), sockets, proxy, services.Time, program.Loop(), prompts,
                  [&sockets] { return sockets.IsConnected(); }, OpenInBrowser},
                 {.Version = VersionText()}, &window);
  about.OnExit = [&] { program.Close(); };
  program.OnHelp = [&] {
    about.show();
    about.raise();
    about.activateWindow();
  };
  window.OnTitleClicked = [] { OpenInBrowser(ToQString(VendorAddress)); };
  program.OnCloseAsked = [&] { about.EndCheck(); };
  bool fades = true;
  program.OnClosing = [&] {
    UnloadMainWindow(program, services);
    if (fades) {
      FadeOut(window);
    }
  };
  const StopSignal stop([&] {
    fades = false;
    program.CloseUnattended();
  });
  QObject::connect(&app, &QGuiApplication::commitDataRequest, &window, [&] {
    fades = false;
    program.CloseUnattended();
  });
  LoadMainWindow(program, services, ProgramFolder());
  program.Show();
  const Text start = ChooseStartFolder(
      services.Files, services.Settings, commandLine,
      {.WorkingFolder = WorkingFolder(), .ProgramFolder = FolderOf(ProgramFile())});
  program.ShowFolder(start);
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  if (IsUninstall(CommandLine(argc, argv))) {
    return RunUninstall(argc, argv);
  }
  const bool isOurChoice = PreferX11();
  QApplication app(argc, argv);  // takes its own arguments out
  if (isOurChoice) {
    qunsetenv("QT_QPA_PLATFORM");  // what is started from here chooses for itself
  }
  SetApplicationLook();
  QApplication::setWindowIcon(ApplicationIcon());
  return RunWindow(app, CommandLine(argc, argv));
}
