#include "shell/stored_values.h"

#include <array>

#include "platform/numbers.h"

namespace vorlane {

namespace {

struct ColumnSetting {
  TextView Key;
  Twips DefaultWidth;
};

constexpr std::array<ColumnSetting, 8> ColumnSettings = {{
    {u"FileNameWidth", 4000},
    {u"PreviewWidth", 4000},
    {u"ArtistWidth", 1000},
    {u"TitleWidth", 1000},
    {u"ID3v1Width", 1000},
    {u"ID3v2Width", 1000},
    {u"ReadOnlyWidth", 1000},
    {u"PathWidth", 6000},
}};
constexpr Twips LargestWidth = 100000;  // and not so wide

const ColumnSetting& SettingOf(Column column) {
  return ColumnSettings[static_cast<std::size_t>(column)];
}

std::optional<std::int16_t> StoredNumber(Settings& settings, TextView key) {
  return ReadInt16(settings.GetSetting(SettingsSection, key, u""));
}

void SaveNumber(Settings& settings, TextView key, double number) {
  settings.SaveSetting(SettingsSection, key, ShortestDecimal(number));
}

}  // namespace

Twips StoredColumnWidth(Settings& settings, Column column) {
  const ColumnSetting& setting = SettingOf(column);
  const auto width = ReadNumber(settings.GetSetting(SettingsSection, setting.Key, u""));
  return width && *width > 0 && *width < LargestWidth ? *width : setting.DefaultWidth;
}

void SaveColumnWidth(Settings& settings, Column column, Twips width) {
  SaveNumber(settings, SettingOf(column).Key, width);
}

std::int16_t StoredLastOperation(Settings& settings) {
  return StoredNumber(settings, SettingKey::LastOperation).value_or(1);
}

WindowPlacement StoredPlacement(Settings& settings) {
  return {StoredNumber(settings, SettingKey::Left), StoredNumber(settings, SettingKey::Top),
          StoredNumber(settings, SettingKey::Width), StoredNumber(settings, SettingKey::Height)};
}

void SavePlacement(Settings& settings, const NormalPlace& place) {
  if (place.Left && place.Top) {
    SaveNumber(settings, SettingKey::Left, *place.Left);
    SaveNumber(settings, SettingKey::Top, *place.Top);
  }
  SaveNumber(settings, SettingKey::Width, place.Width);
  SaveNumber(settings, SettingKey::Height, place.Height);
}

bool StoredMaximized(Settings& settings) {
  return settings.GetSetting(SettingsSection, SettingKey::Maximized, u"") == u"1";
}

bool StoredContext(Settings& settings) {
  return settings.GetSetting(SettingsSection, SettingKey::Context, u"1") == u"1";
}

}  // namespace vorlane
