#include "gui/window_world.h"

#include "platform/file_name_bytes.h"

namespace vorlane {

namespace {

constexpr TimerIntervals ShortIntervals{.FileCounter = 100,
                                        .HideAllLabels = 60,
                                        .ProgramStatus = 20,
                                        .FileStatus = 5,
                                        .ListScroll = 20,
                                        .UpdateList = 20,
                                        .AutoPreview = 20};

}  // namespace

WindowWorld::WindowWorld()
    : Main({Files, Time, Report, Prompts, Memory, Sounds, Clipboard}, ShortIntervals) {
  Main.Wildcard().LoadItems(u"");
  Main.Window().InitLayout();
  Main.Show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&Main.Window()));
}

void WindowWorld::Open(const std::string& folder) {
  Main.Gate().Start([&] { Main.Browser().ShowFolderBrowser(TextFromBytes(folder)); });
}

void WindowWorld::OpenSample() {
  Folder.Write("a.txt");
  Folder.Write("sub/b.txt");
  LoadOperations({u"Operation Name:\tX", u"Step: x<FILENAME>", u"Help Message: h",
                  u"Available Boxes: 0", u""});
  Main.SelectOperation(1);
  Open(Folder.Path());
  Main.Window().activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Main.Window()));
}

void WindowWorld::LoadOperations(const std::vector<Text>& lines) {
  Text text;
  for (const Text& line : lines) {
    text += line + u"\r\n";
  }
  Main.ShowOperations(LoadOperationsTree(text));
}

void WindowWorld::Click(const char* button) {
  QTest::mouseClick(&Find<QWidget>(button), Qt::LeftButton);
}

QStringList WindowWorld::ColumnTexts(Column column) {
  const QAbstractItemModel& model = *Find<QTreeView>("lstFileList").model();
  QStringList texts;
  for (int row = 0; row < model.rowCount(); ++row) {
    texts << model.index(row, static_cast<int>(column)).data().toString();
  }
  return texts;
}

bool WindowWorld::WaitFor(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, 5000);
}

}  // namespace vorlane
