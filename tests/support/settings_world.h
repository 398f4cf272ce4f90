// Settings in a registry file in memory.
#pragma once

#include "shell/settings.h"
#include "shell/stored_registry.h"
#include "shell/verb_registry.h"
#include "support/memory_registry_file.h"
#include "support/recording_prompter.h"
#include "support/recording_verb.h"

namespace vorlane {

struct SettingsWorld {
  MemoryRegistryFile File;
  StoredRegistry Stored{File};
  RecordingVerb Verb;
  VerbRegistry Calls{Stored, Verb};
  RecordingPrompter Boxes;
  vorlane::Registry Registry{Calls, Boxes};
  vorlane::Settings Settings{Calls};

  Text Get(TextView key) { return Settings.GetSetting(SettingsSection, key, u"(none)"); }
  void Set(TextView key, TextView value) { Settings.SaveSetting(SettingsSection, key, value); }
};

}  // namespace vorlane
