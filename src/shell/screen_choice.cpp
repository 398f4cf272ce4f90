#include "shell/screen_choice.h"

#include "platform/numbers.h"
#include "shell/stored_values.h"

namespace vorlane {

ScreenSize WithResolution(ScreenSize measured, TextView resolution) {
  constexpr std::size_t shortestHeight = 2;
  const std::size_t separator = resolution.find(u'x', 1);
  if (separator == TextView::npos) {
    return measured;
  }
  const TextView height = resolution.substr(separator + 1);
  measured.Width = ReadInt16(resolution.substr(0, separator)).value_or(measured.Width);
  if (height.size() >= shortestHeight) {
    measured.Height = ReadInt16(height).value_or(measured.Height);
  }
  return measured;
}

LayoutChoice ChooseLayout(ScreenSize measured, Settings& settings) {
  const ScreenSize size =
      WithResolution(measured, settings.GetSetting(SettingsSection, SettingKey::Resolution, u""));
  if (size.Width >= 1024 && size.Height >= 768) {
    return {false, size};
  }
  return {true, size == ScreenSize{800, 600} ? ScreenSize{990, 990} : size};
}

}  // namespace vorlane
