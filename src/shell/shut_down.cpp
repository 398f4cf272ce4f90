#include "shell/shut_down.h"

#include "batch/undo_journal.h"
#include "filelist/wildcard_box.h"
#include "shell/verb_keys.h"

namespace vorlane {

namespace {

void SaveListSettings(Form& form, ClosingWindow& window, Settings& settings) {
  settings.SaveSetting(SettingsSection, SettingKey::WildCards, WildcardBox(form).StoredItems());
  if (!form.CurrentPath.empty()) {  // otherwise no folder has been shown yet
    settings.SaveSetting(SettingsSection, SettingKey::StartPath, form.CurrentPath);
  }
  for (const Column column :
       {Column::CurrentName, Column::ProposedName, Column::Artist, Column::Title, Column::ID3v1,
        Column::ID3v2, Column::ReadOnly, Column::Path}) {
    SaveColumnWidth(settings, column, window.ColumnWidth(column));
  }
}

void SaveOperation(const Form& form, Settings& settings) {
  if (!form.OperationCodes.empty() && form.SelectedOperation != 0) {
    settings.SaveSetting(SettingsSection, SettingKey::LastOperation,
                         DecimalText(form.SelectedOperation));
  }
}

void SaveWindow(ClosingWindow& window, Settings& settings) {
  const bool maximized = window.IsMaximized();
  if (!maximized) {
    SavePlacement(settings, window.Placement());
  }
  settings.SaveSetting(SettingsSection, SettingKey::Maximized, maximized ? u"1" : u"0");
}

void UpdateVerb(Registry& registry, bool wanted, TextView programPath) {
  if (!wanted) {
    RemoveVerb(registry);
  } else if (!programPath.empty()) {
    WriteVerb(registry, programPath);
  }
}

}  // namespace

void SaveSettingsAtExit(Form& form, ClosingWindow& window, const ShutDownServices& services,
                        TextView programPath) {
  Attempt([&] { SaveListSettings(form, window, services.Settings); });
  Attempt([&] { SaveOperation(form, services.Settings); });
  Attempt([&] { SaveWindow(window, services.Settings); });
  Attempt([&] { UpdateVerb(services.Registry, StoredContext(services.Settings), programPath); });
  Attempt([&] {
    if (!form.CurrentPath.empty() && JournalExists(services.Files, form.CurrentPath)) {
      services.Files.RemoveFile(JournalPath(form.CurrentPath));
    }
  });
}

}  // namespace vorlane
