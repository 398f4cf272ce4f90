// The load and the end of the main window, over a settings file of the test's own.
#include "ui/main_window_load.h"

#include "gui/skin_world.h"
#include "gui/tips.h"
#include "platform/file_name_bytes.h"
#include "support/environment_variable.h"

namespace vorlane {
namespace {

constexpr const char* Operations =
    "Operation Name:\tOne\r\nStep: x<FILENAME>\r\nHelp Message: h1\r\nAvailable Boxes: 0\r\n"
    "Operation Name:\tTwo\r\nStep: y<FILENAME>\r\nHelp Message: h2\r\nAvailable Boxes: 0\r\n";

constexpr const char* Keywords = "<A>\r\n'First. More.\r\n\r\n<B>";

struct MainWindowLoadTest : testing::Test {
  MainWindowLoadTest() {
    Folder.Write("program/Operations.ini", Operations);
    Folder.Write("program/KeywordList.ini", Keywords);
  }

  struct Run {
    Run(Prompter& prompts, const Text& folder)
        : Services(prompts), Main(Services.ForProgram(), {}) {
      LoadMainWindow(Main, Services, folder);
      Main.Show();
    }
    DesktopServices Services;
    Program Main;
  };
  Run& Load() {
    Current = std::make_unique<Run>(Prompts, Folder.TextPath() + u"program/");
    return *Current;
  }
  void Store(TextView key, TextView value) {
    DesktopServices services(Prompts);
    services.Settings.SaveSetting(SettingsSection, key, value);
  }
  Text Stored(TextView key) {
    DesktopServices services(Prompts);
    return services.Settings.GetSetting(SettingsSection, key, u"none");
  }
  static int WidthOf(Run& run, Column column) {
    return run.Main.Window().Controls().FileList->header()->sectionSize(static_cast<int>(column));
  }
  static QStringList WildCards(Run& run) {
    const QComboBox& box = *run.Main.Window().Controls().WildCard;
    QStringList items;
    for (int i = 0; i < box.count(); ++i) {
      items << box.itemText(i);
    }
    return items;
  }

  TemporaryFolder Folder;
  EnvironmentVariable Config{"XDG_CONFIG_HOME", Folder.Path() + "config"};
  EnvironmentVariable Data{"XDG_DATA_HOME", Folder.Path() + "data"};
  EnvironmentVariable State{"XDG_STATE_HOME", Folder.Path() + "state"};
  EnvironmentVariable Home{"VORLANE_HOME", Folder.Path() + "program"};  // where reports go too
  RecordingPrompter Prompts;
  std::unique_ptr<Run> Current;
};

TEST_F(MainWindowLoadTest, AFirstRunHasTheDefaults) {
  Run& run = Load();
  EXPECT_EQ(WildCards(run), QStringList({"*.*", "*.mp3"}));
  EXPECT_EQ(run.Main.Window().Controls().WildCard->currentText(), "*.*");
  EXPECT_EQ(WidthOf(run, Column::CurrentName), 267);
  EXPECT_EQ(WidthOf(run, Column::Artist), 67);
  EXPECT_EQ(WidthOf(run, Column::Path), 400);
  EXPECT_EQ(run.Main.State().SelectedOperation, 1);
  EXPECT_EQ(run.Main.Window().size(), QSize(1024, 522));
  EXPECT_FALSE(run.Main.Window().isMaximized());
}

TEST_F(MainWindowLoadTest, StoredValuesComeBack) {
  Store(u"WildCards", u"*.ogg|*.txt");
  Store(u"FileNameWidth", u"3000");
  Store(u"PreviewWidth", u"100000");
  Store(u"ArtistWidth", u"0");
  Store(u"LastOperation", u"2");
  Store(u"Left", u"1500");
  Store(u"Top", u"1200");
  Store(u"Width", u"18000");
  Store(u"Height", u"9000");
  Run& run = Load();
  EXPECT_EQ(run.Main.Window().pos(), QPoint(100, 80));
  EXPECT_EQ(WildCards(run), QStringList({"*.ogg", "*.txt"}));
  EXPECT_EQ(WidthOf(run, Column::CurrentName), 200);
  EXPECT_EQ(WidthOf(run, Column::ProposedName), 267);
  EXPECT_EQ(WidthOf(run, Column::Artist), 67);
  EXPECT_EQ(run.Main.State().SelectedOperation, 2);
  EXPECT_EQ(run.Main.Window().Controls().Help->toolTip(), "<span>h2</span>");
  EXPECT_EQ(run.Main.Window().size(), QSize(1200, 600));
}

TEST_F(MainWindowLoadTest, AnOperationBeyondTheTreeGivesTheFirstOne) {
  for (const char16_t* stored : {u"3", u"0", u"-1", u"many", u"99999"}) {
    Store(u"LastOperation", stored);
    EXPECT_EQ(Load().Main.State().SelectedOperation, 1);
  }
}

TEST_F(MainWindowLoadTest, TheSettingsOfTheYearBeforeAreTaken) {
  {
    DesktopServices services(Prompts);
    Settings(services.Calls, u"Vorlane 2005").SaveSetting(SettingsSection, u"Width", u"18000");
  }
  EXPECT_EQ(Load().Main.Window().width(), 1200);
}

TEST_F(MainWindowLoadTest, TheLabelsOfAFirstStartStayLonger) {
  EXPECT_EQ(Load().Main.Timers().tmrHideAllLabels.interval(), 10'000);
  EXPECT_TRUE(Current->Main.Timers().tmrHideAllLabels.isActive());
  Store(u"Width", u"18000");
  EXPECT_EQ(Load().Main.Timers().tmrHideAllLabels.interval(), 3000);
}

TEST_F(MainWindowLoadTest, TheTimersHaveTheirIntervals) {
  WindowTimers& timers = Load().Main.Timers();
  EXPECT_EQ(timers.tmrFileCounter.interval(), 5000);
  EXPECT_EQ(timers.tmrProgramStatus.interval(), 1000);
  EXPECT_EQ(timers.tmrFileStatus.interval(), 100);
  EXPECT_EQ(timers.tmrListScroll.interval(), 500);
  EXPECT_EQ(timers.tmrUpdateList.interval(), 1000);
  EXPECT_EQ(timers.tmrAutoPreview.interval(), 1000);
  EXPECT_FALSE(timers.tmrListScroll.isSingleShot() || timers.tmrFileCounter.isSingleShot());
  EXPECT_TRUE(timers.tmrUpdateList.isSingleShot() && timers.tmrAutoPreview.isSingleShot());
}

TEST_F(MainWindowLoadTest, ASmallerScreenMakesTheWindowCompact) {
  Folder.Write("program/Skin/Go.bmp", BytesOf(FourStrips(56, 60)).toStdString());
  EXPECT_EQ(Load().Main.Window().Controls().Go->size(), QSize(56, 60));
  Store(u"Resolution", u"800x600");
  FrmMain& window = Load().Main.Window();
  EXPECT_EQ(window.size(), QSize(724, 492));
  EXPECT_EQ(window.Controls().Go->geometry(), QRect(628, 370, 40, 56));
  EXPECT_EQ(window.Controls().Stop->pos(), QPoint(888, 392));  // there is no picture for it
  // All distances are those of the compact window.
  window.resize(824, 592);
  EXPECT_EQ(window.Controls().Go->pos(), QPoint(628, 470));
  EXPECT_EQ(window.Controls().WildCard->x(), PixelsOf(10440 * 990.0 / 1400) + 100);
}

TEST_F(MainWindowLoadTest, AScreenOfFullSizeMayBePretended) {
  Folder.Write("program/Skin/TopBar.gif", BytesOf(Plain(300, 20)).toStdString());
  for (const char16_t* resolution : {u"1024x768", u"1280x1024", u"x600", u"640X480", u""}) {
    Store(u"Resolution", resolution);
    EXPECT_EQ(Load().Main.Window().size(), QSize(1024, 522));
    EXPECT_EQ(Current->Main.Window().Controls().TopBar->size(), QSize(300, 20));
  }
}

TEST_F(MainWindowLoadTest, TheScreenOfTheYearBeforeCountsFromTheNextStartOn) {
  {
    DesktopServices services(Prompts);
    Settings(services.Calls, u"Vorlane 2005")
        .SaveSetting(SettingsSection, u"Resolution", u"800x600");
  }
  EXPECT_EQ(Load().Main.Window().size(), QSize(1024, 522));
  EXPECT_EQ(Load().Main.Window().size(), QSize(724, 492));
}

TEST_F(MainWindowLoadTest, TheSoundsAreTakenFromBesideTheCatalogue) {
  Folder.Write("program/Sounds/01.wav", "one");
  Run& run = Load();
  EXPECT_EQ(run.Main.Window().Controls().Go->SoundBytes(), "one");
  EXPECT_NE(run.Main.Window().Controls().Stop->SoundBytes(), "one");
}

TEST_F(MainWindowLoadTest, ADamagedSkinKeepsNothingElseFromLoading) {
  Folder.Write("program/Skin/Background.gif", "broken");
  Folder.Write("program/Skin/Go.bmp", BytesOf(FourStrips(56, 60)).toStdString());
  Store(u"Width", u"18000");
  Run& run = Load();
  EXPECT_EQ(run.Main.Window().Controls().Go->size(), QSize(55, 79));
  EXPECT_EQ(run.Main.Window().width(), 1200);
  EXPECT_EQ(run.Main.State().SelectedOperation, 1);
  EXPECT_TRUE(Prompts.Boxes.empty());
}

TEST_F(MainWindowLoadTest, OnlyA1IsMaximized) {
  Store(u"Maximized", u"1");
  EXPECT_TRUE(Load().Main.Window().isMaximized());
  Store(u"Maximized", u"True");
  EXPECT_FALSE(Load().Main.Window().isMaximized());
}

TEST_F(MainWindowLoadTest, TheKeywordsAreListed) {
  Run& run = Load();
  EXPECT_TRUE(Prompts.Boxes.empty());
  QComboBox& box = *run.Main.Window().Controls().Keywords;
  ASSERT_EQ(box.count(), 2);
  EXPECT_EQ(box.itemText(0), "<A>");
  EXPECT_EQ(box.currentIndex(), -1);
  emit box.activated(0);
  EXPECT_EQ(run.Main.Help().Tips.KeywordTip().TipText(), u"First.\r\nMore.");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "<A>");
}

TEST_F(MainWindowLoadTest, AMissingKeywordListIsTold) {
  ASSERT_TRUE(QFile::remove(ToQString(Folder.TextPath() + u"program/KeywordList.ini")));
  Run& run = Load();
  ASSERT_EQ(Prompts.Boxes.size(), 1u);
  EXPECT_EQ(Prompts.Boxes[0].Icon, BoxIcon::Stop);
  EXPECT_EQ(Prompts.Boxes[0].Message,
            u"'" + Folder.TextPath() + u"program/KeywordList.ini' is missing");
  EXPECT_EQ(run.Main.Window().Controls().Keywords->count(), 0);
  EXPECT_TRUE(run.Main.Window().Controls().Go->isEnabled());
}

TEST_F(MainWindowLoadTest, OnlyAFirstStartTakesTenSecondsForTheBalloons) {
  EXPECT_EQ(Load().Main.Timers().tmrHideAllLabels.interval(), 10000);
  Store(u"Width", u"18000");
  Run& run = Load();
  EXPECT_EQ(run.Main.Timers().tmrHideAllLabels.interval(), 3000);
  EXPECT_TRUE(run.Main.Timers().tmrHideAllLabels.isActive());
}

TEST_F(MainWindowLoadTest, AMissingCatalogueIsToldAndBarsGo) {
  std::remove((Folder.Path() + "program/Operations.ini").c_str());
  Run& run = Load();
  ASSERT_EQ(Prompts.Boxes.size(), 1U);
  EXPECT_EQ(Prompts.Boxes[0].Message,
            u"'" + Folder.TextPath() + u"program/Operations.ini' is missing");
  EXPECT_EQ(Prompts.Boxes[0].Icon, BoxIcon::Stop);
  EXPECT_FALSE(run.Main.Window().Controls().Go->isEnabled());
}

TEST_F(MainWindowLoadTest, ADamagedCatalogueIsReportedAndTheRestOfTheLoadGoesOn) {
  Folder.Write("program/Operations.ini", std::string(Operations) + "Operation Name:none\r\n");
  Store(u"Width", u"18000");
  Store(u"LastOperation", u"2");
  Run& run = Load();
  ASSERT_EQ(Prompts.Boxes.size(), 1U);
  EXPECT_TRUE(Contains(Prompts.Boxes[0].Message, u"frmMain (LoadInterfaceElements)"));
  EXPECT_EQ(run.Main.State().SelectedOperation, 2);
  EXPECT_EQ(run.Main.Window().width(), 1200);
  EXPECT_TRUE(run.Main.Window().Controls().Go->isEnabled());
}

TEST_F(MainWindowLoadTest, TheEndSavesEverything) {
  Run& run = Load();
  run.Main.State().CurrentPath = Folder.TextPath();
  run.Main.SelectOperation(2);
  run.Main.Window().Controls().FileList->header()->resizeSection(1, 100);
  run.Main.Window().resize(1100, 600);
  UnloadMainWindow(run.Main, run.Services);
  EXPECT_EQ(Stored(u"StartPath"), Folder.TextPath());
  EXPECT_EQ(Stored(u"LastOperation"), u"2");
  EXPECT_EQ(Stored(u"FileNameWidth"), u"4000");
  EXPECT_EQ(Stored(u"PreviewWidth"), u"1500");
  EXPECT_EQ(Stored(u"Width"), u"16500");
  EXPECT_EQ(Stored(u"Height"), u"9000");
  EXPECT_EQ(Stored(u"Maximized"), u"0");
  EXPECT_EQ(Stored(u"WildCards"), u"*.*|*.mp3");
}

TEST_F(MainWindowLoadTest, AMaximizedWindowKeepsItsStoredPlace) {
  Store(u"Width", u"18000");
  Store(u"Maximized", u"1");
  Run& run = Load();
  UnloadMainWindow(run.Main, run.Services);
  EXPECT_EQ(Stored(u"Width"), u"18000");
  EXPECT_EQ(Stored(u"Maximized"), u"1");
}

TEST_F(MainWindowLoadTest, AMinimizedWindowKeepsThePlaceThatItComesBackTo) {
  Run& run = Load();
  FrmMain& window = run.Main.Window();
  window.move(120, 60);
  window.resize(1100, 600);
  const TwipsRect before = window.NormalPlacement();
  window.showMinimized();
  ASSERT_TRUE(window.isMinimized());
  EXPECT_EQ(window.NormalPlacement().Left, before.Left);
  EXPECT_EQ(window.NormalPlacement().Top, before.Top);
  UnloadMainWindow(run.Main, run.Services);
  EXPECT_EQ(Stored(u"Left"), u"1800");
  EXPECT_EQ(Stored(u"Top"), u"900");
  EXPECT_EQ(Stored(u"Width"), u"16500");
  EXPECT_EQ(Stored(u"Height"), u"9000");
  EXPECT_EQ(Stored(u"Maximized"), u"0");
}

TEST_F(MainWindowLoadTest, AMaximizedWindowThatIsMinimizedCountsAsMinimized) {
  Run& run = Load();
  run.Main.Window().showMaximized();
  run.Main.Window().showMinimized();
  ASSERT_TRUE(run.Main.Window().isMaximized() && run.Main.Window().isMinimized());
  UnloadMainWindow(run.Main, run.Services);
  EXPECT_EQ(Stored(u"Maximized"), u"0");
}

TEST_F(MainWindowLoadTest, AReportTellsWhatTheProgramIsDoing) {
  Folder.Write("files/a.txt");
  Run& run = Load();
  run.Main.Gate().Start(
      [&] { run.Main.Browser().ShowFolderBrowser(Folder.TextPath() + u"files/"); });
  run.Services.Report.ReportError(u"", u"ReadID3v2", u"", RunError(ErrorNumber::DiskFull));
  const QString log = QGuiApplication::clipboard()->text();
  for (const char* line :
       {"ListCount: 1\r\n", "ListColCount: 8\r\n", "RenOptIdx: (1) One\r\n",
        "CurrentFile: a.txt\r\n", "CurrentPreview: xa.txt\r\n", "Screen Width: 1400\r\n",
        "Screen Height: 1050\r\n", "Module: Unknown (ReadID3v2)"}) {
    EXPECT_TRUE(log.contains(line)) << line << log.toStdString();
  }
}

TEST_F(MainWindowLoadTest, BackFromMaximizedItTakesTheStoredPlaceIfItWasStoredMaximized) {
  Store(u"Left", u"1500");
  Store(u"Top", u"1200");
  Store(u"Width", u"18000");
  Store(u"Height", u"9000");
  Store(u"Maximized", u"1");
  FrmMain& stored = Load().Main.Window();
  stored.showNormal();
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return stored.size() == QSize(1200, 600); }));
  EXPECT_EQ(stored.pos(), QPoint(100, 80));

  Store(u"Maximized", u"0");
  FrmMain& window = Load().Main.Window();
  window.resize(1100, 600);
  window.showMaximized();
  window.showNormal();
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return window.size() == QSize(1100, 600); }));
}

TEST_F(MainWindowLoadTest, TheStoredPlaceIsTakenOnceOnTheWayBack) {
  Store(u"Width", u"18000");
  Store(u"Height", u"9000");
  Store(u"Maximized", u"1");
  FrmMain& window = Load().Main.Window();
  window.showNormal();
  ASSERT_TRUE(WindowWorld::WaitFor([&] { return window.size() == QSize(1200, 600); }));
  QCoreApplication::processEvents();
  window.resize(1100, 600);
  QCoreApplication::processEvents();
  EXPECT_EQ(window.size(), QSize(1100, 600));
}

// The least size is that of the whole design, in the compact window too.
TEST_F(MainWindowLoadTest, TheLeastSizeDoesNotShrinkWithTheWindow) {
  Store(u"Resolution", u"800x600");
  Store(u"Width", u"10860");
  Store(u"Height", u"7380");
  EXPECT_EQ(Load().Main.Window().size(), QSize(996, 492));
}

TEST_F(MainWindowLoadTest, TheTipsAreMadeAtTheLoad) {
  Load();
  EXPECT_NE(TipNamed("BalloonTips(0)"), nullptr);
  EXPECT_NE(TipNamed("KeywordTip"), nullptr);
}

}  // namespace
}  // namespace vorlane
