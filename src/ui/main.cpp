#include <QApplication>

#include "catalogue/operations_file.h"
#include "platform/file_name_bytes.h"
#include "platform/posix_file_system.h"
#include "platform/program_folder.h"
#include "ui/application_look.h"
#include "ui/fade_out.h"
#include "ui/program.h"
#include "ui/qt_prompter.h"
#include "ui/qt_text.h"
#include "ui/stop_signal.h"

namespace {
struct NoMemory : vorlane::BoxMemory {
  std::optional<vorlane::Text> Recall(vorlane::TextView) override { return {}; }
  void Keep(vorlane::TextView, vorlane::TextView) override {}
};
struct NoReport : vorlane::FailureReport {
  void ReportError(vorlane::TextView, vorlane::TextView p, vorlane::TextView,
                   const vorlane::RunError& error) override {
    qWarning() << vorlane::ToQString(p) << vorlane::ToQString(error.Description());
  }
};
}  // namespace

int main(int argc, char** argv) {
  using namespace vorlane;
  QApplication app(argc, argv);
  SetApplicationLook();
  SystemClock clock;
  PosixFileSystem files;
  NoReport report;
  QtPrompter prompts;
  NoMemory memory;
  Program program({files, clock, report, prompts, memory}, {});
  program.Wildcard().LoadItems(u"");
  auto tree = LoadOperationsFile(files, ProgramFolder());
  if (tree)
    program.ShowOperations(*std::move(tree));
  program.Window().InitLayout();
  program.Wildcard().FormVisible = true;
  program.Window().show();
  program.SelectOperation(1);
  if (argc > 1)
    program.Gate().Start([&] { program.Browser().ShowFolderBrowser(TextFromBytes(argv[1])); });
  return app.exec();
}
