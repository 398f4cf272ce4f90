// The window with a hundred thousand files: how soon it stands, how long its jobs take, how late
// its timers come in the middle of them, and what memory it needs. On the display that there is, or
// in memory (QT_QPA_PLATFORM=offscreen).
#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/file_name_bytes.h"
#include "platform/program_folder.h"
#include "support/temporary_folder.h"
#include "ui/application_look.h"
#include "ui/desktop_services.h"
#include "ui/main_window_load.h"

namespace vorlane {

namespace {

constexpr int Files = 100'000;
constexpr int TickMilliseconds = 100;

constexpr const char* Operations =
    "Operation Name:\tSong\r\nStep: Song <UPPERCASE><NAMEONLY></UPPERCASE><EXTONLY>\r\n"
    "Help Message: h\r\nAvailable Boxes: 0\r\n";

class NoBoxes final : public Prompter {
 public:
  void Show(BoxIcon, TextView, TextView text) override {
    std::fprintf(stderr, "%s\n", DisplayUtf8(text).c_str());
  }
  BoxAnswer AskYesNo(BoxIcon, TextView, TextView, BoxAnswer unasked) override { return unasked; }
};

// How late the ticks of a timer come.
class LateTicks {
 public:
  LateTicks() {
    QObject::connect(&timer_, &QTimer::timeout,
                     [this] { most_ = std::max(most_, since_.restart() - TickMilliseconds); });
    since_.start();
    timer_.start(TickMilliseconds);
  }
  qint64 Most() const { return std::max(most_, since_.elapsed() - TickMilliseconds); }

 private:
  QTimer timer_;
  QElapsedTimer since_;
  qint64 most_ = 0;
};

// Tells when a window is first painted.
class FirstPaint final : public QObject {
 public:
  bool Seen = false;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    Seen = Seen || event->type() == QEvent::Paint;
    return false;
  }
};

template <typename Job>
void Measure(const char* what, Job&& job) {
  const LateTicks ticks;
  QElapsedTimer time;
  time.start();
  job();
  const auto milliseconds = static_cast<double>(time.elapsed());
  std::printf("  %-34s %8.3f s    a timer was late by %lld ms at most\n", what, milliseconds / 1000,
              static_cast<long long>(ticks.Most()));
}

long PeakKilobytes() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmHWM:")) {
      return std::stol(line.substr(line.find_first_of("0123456789")));
    }
  }
  return 0;
}

void Run(QElapsedTimer& sinceStart) {
  const TemporaryFolder folder;
  folder.Write("program/Operations.ini", Operations);
  folder.Write("program/KeywordList.ini", "<FILENAME>\r\n'The whole name.");
  const auto shipped = BytesFromText(ProgramFolder());
  std::filesystem::create_directory_symlink(*shipped + "Skin", folder.Path() + "program/Skin");
  for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"}) {
    qputenv(name, QByteArray::fromStdString(folder.Path() + "home"));
  }
  const auto before = sinceStart.elapsed();
  NoBoxes boxes;
  DesktopServices services(boxes);
  Program program(services.ForProgram(), {});
  FirstPaint paint;
  program.Window().installEventFilter(&paint);
  LoadMainWindow(program, services, folder.TextPath() + u"program/");
  program.Show();
  while (!paint.Seen) {
    QApplication::processEvents();
  }
  std::printf("Window\n  %-34s %8.3f s\n", "start to first paint",
              static_cast<double>(sinceStart.elapsed()) / 1000);
  std::printf("  %-34s %8.3f s\n", "  of it behind the toolkit's own",
              static_cast<double>(sinceStart.elapsed() - before) / 1000);
  std::printf("  %-34s %8ld MB\n", "memory, empty list", PeakKilobytes() / 1024);

  for (int file = 0; file < Files; ++file) {
    folder.Write("files/01 - the first song " + std::to_string(1'000'000 + file) + ".txt");
  }
  Form& form = program.State();
  Measure("list 100000 files", [&] {
    program.Gate().Start(
        [&] { program.Browser().ShowFolderBrowser(folder.TextPath() + u"files/"); });
  });
  std::printf("  %-34s %8ld MB\n", "memory, all listed", PeakKilobytes() / 1024);
  Measure("preview of all rows", [&] { program.PreviewAll(); });
  program.Window().Controls().DoOne->OnClick();
  Measure("apply, with its preview", [&] { program.Window().Controls().Go->OnClick(); });
  std::printf("  %-34s %8ld MB\n", "memory at most", PeakKilobytes() / 1024);
  if (form.Rows.Count() != Files || !form.Rows.At(Files).Name.starts_with(u"Song ")) {
    std::fprintf(stderr, "the run didn't do its job\n");
    std::exit(1);
  }
}

}  // namespace

}  // namespace vorlane

int main(int argc, char** argv) {
  QElapsedTimer sinceStart;
  sinceStart.start();
  QApplication app(argc, argv);
  vorlane::SetApplicationLook();
  vorlane::Run(sinceStart);
  return 0;
}
