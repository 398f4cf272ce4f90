// What stands for the keys of the verb on folders (verb_keys.h) where there is no registry that the
// file managers read.
#pragma once

#include "shell/registry_calls.h"

namespace vorlane {

// What stands for the user's verb.
class VerbAdapter {
 public:
  virtual ~VerbAdapter() = default;

  virtual bool IsPresent() = 0;

  // Makes the verb, or gives it that program. False if nothing came of it.
  virtual bool Write(TextView programPath) = 0;

  // True if the verb was there and is gone.
  virtual bool Remove() = 0;
};

// A registry whose keys of the user's verb lead to the adapter; all others are the other
// registry's. The verb's key and its command are there or not there together: the command's key may
// be made before its value is set, and nothing comes of it until then.
class VerbRegistry final : public RegistryCalls {
 public:
  VerbRegistry(RegistryCalls& others, VerbAdapter& verb) : others_(others), verb_(verb) {}

  RegistryStatus OpenKey(const KeyPlace& key) override;
  RegistryStatus CreateKey(const KeyPlace& key, KeyDisposition& disposition) override;
  RegistryStatus DeleteKey(const KeyPlace& key) override;
  std::vector<Text> SubkeysOf(const KeyPlace& key) override;
  std::vector<Text> ValuesOf(const KeyPlace& key) override;
  RegistryStatus QueryValue(const KeyPlace& key, TextView name, RegistryValue& value) override;
  RegistryStatus SetValue(const KeyPlace& key, TextView name, const RegistryValue& value) override;
  RegistryStatus DeleteValue(const KeyPlace& key, TextView name) override;

 private:
  RegistryCalls& others_;
  VerbAdapter& verb_;
};

}  // namespace vorlane
