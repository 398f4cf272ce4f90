// The outside world of the window: the real disk and clock, the user's settings, message boxes and
// the failure report. One of them in a program.
#pragma once

#include <memory>

#include "platform/posix_desktop_tools.h"
#include "platform/posix_file_system.h"
#include "platform/posix_registry_file.h"
#include "shell/error_log.h"
#include "shell/folder_verb.h"
#include "shell/settings.h"
#include "shell/shut_down.h"
#include "shell/stored_registry.h"
#include "ui/program.h"
#include "ui/qt_clipboard.h"
#include "ui/qt_prompter.h"
#include "ui/sound_output.h"

namespace vorlane {

struct DesktopServices {
  // Message boxes go to `prompts`, which outlives this.
  explicit DesktopServices(Prompter& prompts);

  ProgramServices ForProgram() { return {Files, Time, Report, Prompts, Memory, *Sounds}; }
  ShutDownServices ForShutDown() { return {Files, Settings, Registry}; }

  Prompter& Prompts;
  SystemClock Time;
  PosixFileSystem Files;
  QtClipboard Clipboard;
  PosixRegistryFile RegistryOnDisk;
  StoredRegistry Stored;
  PosixDesktopTools Tools;
  FolderVerb Verb;
  VerbRegistry Calls;
  vorlane::Registry Registry;
  vorlane::Settings Settings;
  SettingsBoxMemory Memory;
  ErrorLog Report;
  std::unique_ptr<SoundPlayer> Sounds;
};

}  // namespace vorlane
