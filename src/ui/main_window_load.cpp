#include "ui/main_window_load.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QScreen>
#include <algorithm>
#include <limits>

#include "platform/interface_texts.h"
#include "platform/program_folder.h"
#include "shell/screen_choice.h"
#include "shell/start_up.h"
#include "shell/stored_values.h"
#include "ui/catalogue_load.h"
#include "ui/qt_text.h"
#include "ui/skin.h"

namespace vorlane {

namespace {

constexpr Column AllColumns[] = {Column::CurrentName, Column::ProposedName, Column::Artist,
                                 Column::Title,       Column::ID3v1,        Column::ID3v2,
                                 Column::ReadOnly,    Column::Path};

class WindowAtExit final : public ClosingWindow {
 public:
  WindowAtExit(FrmMain& window, Settings& settings) : window_(window), settings_(settings) {}

  // A width that nobody has changed stays as it was stored, finer than pixels.
  Twips ColumnWidth(Column column) override {
    const int pixels = window_.Controls().FileList->header()->sectionSize(static_cast<int>(column));
    const Twips stored = StoredColumnWidth(settings_, column);
    return PixelsOf(stored) == pixels ? stored : TwipsOf(pixels);
  }
  bool IsMaximized() override { return window_.isMaximized() && !window_.isMinimized(); }
  NormalPlace Placement() override {
    const TwipsRect place = window_.NormalPlacement();
    NormalPlace result{.Width = place.Width, .Height = place.Height};
    if (KnowsPlaces()) {
      result.Left = place.Left;
      result.Top = place.Top;
    }
    return result;
  }

 private:
  FrmMain& window_;
  Settings& settings_;
};

std::int16_t Pixels16(int pixels) {
  return static_cast<std::int16_t>(std::min<int>(pixels, std::numeric_limits<std::int16_t>::max()));
}

void LoadColumns(Program& program, Settings& settings) {
  QHeaderView& header = *program.Window().Controls().FileList->header();
  for (const Column column : AllColumns) {
    header.resizeSection(static_cast<int>(column), PixelsOf(StoredColumnWidth(settings, column)));
  }
}

void RestoreStoredPlace(FrmMain& window, Settings& settings) {
  const QSize screen = QGuiApplication::primaryScreen()->virtualSize();
  WindowPlacement stored = StoredPlacement(settings);
  if (!KnowsPlaces()) {
    stored.Left.reset();
    stored.Top.reset();
  }
  window.RestorePlacement(RestoreWindowPlacement(
      stored, {.ScreenWidth = TwipsOf(screen.width()), .ScreenHeight = TwipsOf(screen.height())}));
}

void PlaceWindow(FrmMain& window, Settings& settings) {
  if (StoredMaximized(settings)) {
    window.setWindowState(window.windowState() | Qt::WindowMaximized);
  } else {
    RestoreStoredPlace(window, settings);
  }
}

// Before the settings of the year before are taken over: they don't choose the layout of this
// start.
void ApplySkin(Skin& skin, Settings& settings) {
  const QSize screen = QGuiApplication::primaryScreen()->size();
  const LayoutChoice choice =
      ChooseLayout({Pixels16(screen.width()), Pixels16(screen.height())}, settings);
  if (choice.Compact) {
    skin.ApplySkinScaled(choice.Size.Width, choice.Size.Height);
  } else {
    skin.ApplySkinPictures();
  }
}

RunValues ValuesOf(Program& program, FileSystem& files) {
  const QSize screen = QGuiApplication::primaryScreen()->size();
  RunValues values = RunValuesOf(program.State());
  const EntryStatus file = files.StatusOf(ProgramFile());
  if (file.Kind == EntryKind::File) {
    values.ProgramSize = file.Size;
  }
  values.ScreenWidth = screen.width();
  values.ScreenHeight = screen.height();
  values.OperationText = program.SelectedTitle();
  return values;
}

}  // namespace

void LoadMainWindow(Program& program, DesktopServices& services, const Text& programFolder) {
  FrmMain& window = program.Window();
  services.Report.SetRunValues([&] { return ValuesOf(program, services.Files); });
  Skin skin(window, services.Files, programFolder);
  ApplySkin(skin, services.Settings);
  const bool isFirstStart = UpgradeSettings(services.Registry);
  program.HideLabelsLater(isFirstStart);
  program.Help().Tips.InitBalloonToolTips();
  Settings& settings = services.Settings;
  program.Wildcard().LoadItems(settings.GetSetting(SettingsSection, SettingKey::WildCards, u""));
  LoadColumns(program, settings);
  LoadOperations(program, services.ForProgram(), programFolder);
  LoadKeywords(program, services.ForProgram(), programFolder);
  skin.AssignSounds();
  window.ShowStatus(ToQString(InterfaceText(TextNumber::PointAtButton)));
  window.Controls().Status->setToolTip(ToQString(InterfaceText(TextNumber::PointAtQuestionMark)));
  program.SelectOperation(StoredLastOperation(settings));
  window.InitLayout();
  PlaceWindow(window, settings);
  window.OnRestored = [&window, &settings] {
    if (StoredMaximized(settings)) {
      RestoreStoredPlace(window, settings);
    }
  };
}

void UnloadMainWindow(Program& program, DesktopServices& services) {
  WindowAtExit window(program.Window(), services.Settings);
  SaveSettingsAtExit(program.State(), window, services.ForShutDown(),
                     FullProgramPath(services.Files, ProgramFile()));
}

}  // namespace vorlane
