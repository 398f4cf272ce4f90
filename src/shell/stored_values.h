// The settings of the main window that aren't plain texts: how each is read, with its default and
// its limits, and written. A text that isn't of the told form counts as if it weren't there.
#pragma once

#include <cstdint>

#include "form/file_rows.h"
#include "layout/twips.h"
#include "layout/window_placement.h"
#include "shell/settings.h"

namespace vorlane {

namespace SettingKey {

inline constexpr TextView StartPath = u"StartPath";
inline constexpr TextView WildCards = u"WildCards";
inline constexpr TextView LastOperation = u"LastOperation";
inline constexpr TextView Left = u"Left";
inline constexpr TextView Top = u"Top";
inline constexpr TextView Width = u"Width";
inline constexpr TextView Height = u"Height";
inline constexpr TextView Maximized = u"Maximized";
inline constexpr TextView Context = u"Context";
inline constexpr TextView Resolution = u"Resolution";

}  // namespace SettingKey

// Above 0 and below 100000, or the column's default.
Twips StoredColumnWidth(Settings& settings, Column column);
void SaveColumnWidth(Settings& settings, Column column, Twips width);

// 1 if there is none.
std::int16_t StoredLastOperation(Settings& settings);

// A value is left out if it is no 16-bit number. RestoreWindowPlacement has the limits.
WindowPlacement StoredPlacement(Settings& settings);

// The window's place at its normal size. Where the system doesn't tell a program its place, Left
// and Top are left out, and stay as they were stored.
struct NormalPlace {
  std::optional<Twips> Left{};
  std::optional<Twips> Top{};
  Twips Width = 0;
  Twips Height = 0;
};
void SavePlacement(Settings& settings, const NormalPlace& place);

bool StoredMaximized(Settings& settings);

// True if folders are to have the verb "Open with Vorlane". Only the user sets it.
bool StoredContext(Settings& settings);

}  // namespace vorlane
