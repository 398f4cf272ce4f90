// The user's settings: texts by section and key under the application's title. They are read where
// they are needed, each with its default at the call; nothing caches them.
#pragma once

#include "catalogue/box_memory.h"
#include "platform/vendor.h"
#include "shell/registry.h"

namespace vorlane {

inline constexpr TextView SettingsSection = u"Settings";
inline constexpr TextView OperationsSection = u"Operations";  // what was typed in remembered boxes

// The key that holds all sections of an application.
Text SettingsRoot(TextView application = ApplicationTitle);

// None of these reports or throws.
class Settings {
 public:
  explicit Settings(RegistryCalls& calls, TextView application = ApplicationTitle)
      : calls_(calls), application_(application) {}

  // A setting that isn't there gives the default. A number that somebody wrote by hand is its
  // decimal text.
  Text GetSetting(TextView section, TextView key, TextView defaultText);

  // The same, but nothing for a setting that isn't there.
  std::optional<Text> FindSetting(TextView section, TextView key);

  // False if it couldn't be saved.
  bool SaveSetting(TextView section, TextView key, TextView value);

  // False if it wasn't there or couldn't be deleted.
  bool DeleteSetting(TextView section, TextView key);

 private:
  KeyPlace PlaceOf(TextView section) const;

  RegistryCalls& calls_;
  Text application_;
};

// The remembered option boxes' texts, in the section "Operations".
class SettingsBoxMemory final : public BoxMemory {
 public:
  explicit SettingsBoxMemory(Settings& settings) : settings_(settings) {}

  std::optional<Text> Recall(TextView key) override;
  void Keep(TextView key, TextView text) override;

 private:
  Settings& settings_;
};

// Brings the settings of the year before across if there are none of this year. True if this is the
// program's first start: there are no settings yet.
bool UpgradeSettings(Registry& registry);

// Deletes all sections. True if they were there and are gone.
bool DeleteAllSettings(Registry& registry);

}  // namespace vorlane
