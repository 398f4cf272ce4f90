#include "shell/settings.h"

namespace vorlane {

namespace {

constexpr TextView AllApplications = u"Software\\VB and VBA Program Settings\\";
constexpr TextView TitleOfYearBefore = u"Vorlane 2005";
constexpr auto User = RegistryRoot::CurrentUser;

}  // namespace

Text SettingsRoot(TextView application) {
  return Text(AllApplications).append(application);
}

KeyPlace Settings::PlaceOf(TextView section) const {
  return {User, SettingsRoot(application_).append(u"\\").append(section)};
}

std::optional<Text> Settings::FindSetting(TextView section, TextView key) {
  RegistryValue value;
  if (calls_.QueryValue(PlaceOf(section), key, value) != RegistryStatus::Done) {
    return std::nullopt;
  }
  if (const auto* number = std::get_if<std::uint32_t>(&value)) {
    return DecimalText(*number);
  }
  const auto* text = std::get_if<Text>(&value);
  return text != nullptr ? std::optional(*text) : std::nullopt;
}

Text Settings::GetSetting(TextView section, TextView key, TextView defaultText) {
  return FindSetting(section, key).value_or(Text(defaultText));
}

bool Settings::SaveSetting(TextView section, TextView key, TextView value) {
  const KeyPlace place = PlaceOf(section);
  auto status = calls_.SetValue(place, key, Text(value));
  if (status == RegistryStatus::NotFound) {
    auto disposition = KeyDisposition::None;
    calls_.CreateKey(place, disposition);
    status = calls_.SetValue(place, key, Text(value));
  }
  return status == RegistryStatus::Done;
}

bool Settings::DeleteSetting(TextView section, TextView key) {
  return calls_.DeleteValue(PlaceOf(section), key) == RegistryStatus::Done;
}

std::optional<Text> SettingsBoxMemory::Recall(TextView key) {
  return settings_.FindSetting(OperationsSection, key);
}

void SettingsBoxMemory::Keep(TextView key, TextView text) {
  settings_.SaveSetting(OperationsSection, key, text);
}

bool UpgradeSettings(Registry& registry) {
  const Text before = SettingsRoot(TitleOfYearBefore);
  const Text now = SettingsRoot();
  if (registry.KeyExists(User, before) && !registry.KeyExists(User, now)) {
    auto ignored = RegistryStatus::Done;
    registry.CopyKey(User, before, User, now, ignored);
  }
  return !registry.KeyExists(User, now);
}

bool DeleteAllSettings(Registry& registry) {
  return registry.DeleteKey(User, SettingsRoot(), true);
}

}  // namespace vorlane
