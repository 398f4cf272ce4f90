#include "shell/stored_favorites.h"

namespace vorlane {

namespace {

Text KeyOf(int slot) {
  constexpr int TwoDigitsFrom = 10;
  Text key = slot < TwoDigitsFrom ? u"Favorite_0" : u"Favorite_";
  return key.append(DecimalText(slot));
}

}  // namespace

Text StoredFavorites::Read(int slot) {
  return settings_.GetSetting(SettingsSection, KeyOf(slot), u"");
}

void StoredFavorites::Save(int slot, TextView folder) {
  settings_.SaveSetting(SettingsSection, KeyOf(slot), folder);
}

void StoredFavorites::Delete(int slot) {
  settings_.DeleteSetting(SettingsSection, KeyOf(slot));
}

}  // namespace vorlane
