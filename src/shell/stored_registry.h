// The user's registry in a file. The whole system's keys are somebody else's: everything about them
// is denied.
#pragma once

#include <functional>
#include <optional>

#include "platform/registry_file.h"
#include "shell/registry_calls.h"

namespace vorlane {

// Nothing is remembered but the file as it was last read, which is read again as soon as it has
// changed. Each change is a reading and a writing of the whole file under its lock, so that
// programs that run side by side lose nothing of each other's.
class StoredRegistry final : public RegistryCalls {
 public:
  explicit StoredRegistry(RegistryFile& file) : file_(file) {}

  RegistryStatus OpenKey(const KeyPlace& key) override;
  RegistryStatus CreateKey(const KeyPlace& key, KeyDisposition& disposition) override;
  RegistryStatus DeleteKey(const KeyPlace& key) override;
  std::vector<Text> SubkeysOf(const KeyPlace& key) override;
  std::vector<Text> ValuesOf(const KeyPlace& key) override;
  RegistryStatus QueryValue(const KeyPlace& key, TextView name, RegistryValue& value) override;
  RegistryStatus SetValue(const KeyPlace& key, TextView name, const RegistryValue& value) override;
  RegistryStatus DeleteValue(const KeyPlace& key, TextView name) override;

 private:
  const RegistryKey* Find(const KeyPlace& key);
  RegistryStatus Change(const KeyPlace& key,
                        const std::function<RegistryStatus(RegistryTree&)>& change);
  RegistryStatus ChangeKey(const KeyPlace& place,
                           const std::function<RegistryStatus(RegistryKey&)>& change);

  RegistryFile& file_;
  std::optional<FileStamp> stamp_;  // of what tree_ was read from
  RegistryTree tree_;
};

}  // namespace vorlane
