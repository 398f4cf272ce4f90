// modRegistry: the operations on keys and values that the program needs beside the plain settings.
//
// A call that the registry refuses gives a false or status result and nothing is said. A run-time
// failure (RunError) in one of these shows a message box of their own, with the operation's name
// behind the description, and gives such a result too.
#pragma once

#include "platform/prompter.h"
#include "shell/registry_calls.h"

namespace vorlane {

class Registry {
 public:
  Registry(RegistryCalls& calls, Prompter& boxes) : calls_(calls), boxes_(boxes) {}

  // True if the key could be opened.
  bool KeyExists(RegistryRoot root, TextView key);

  // Makes all levels. None if it couldn't be made.
  KeyDisposition CreateNewKey(RegistryRoot root, TextView key);

  // True if the key was deleted. A key with subkeys is deleted only if they are to go as well.
  bool DeleteKey(RegistryRoot root, TextView key, bool subkeysToo);

  // Copies values and subkeys into the target, which is made. True if all came across; `status` is
  // that of the first call that was refused. A key isn't copied into itself.
  bool CopyKey(RegistryRoot sourceRoot, TextView sourceKey, RegistryRoot targetRoot,
               TextView targetKey, RegistryStatus& status);

  // Of a key that is there. Value and type are left alone unless the status is Done.
  RegistryStatus QueryValue(const KeyPlace& openKey, TextView name, RegistryValue& value,
                            RegistryType& type);

  // The same of any key.
  RegistryStatus QueryKeyValue(RegistryRoot root, TextView key, TextView name,
                               RegistryValue& value);

  // The key has to be there. A value that isn't of the type is a failure 13.
  RegistryStatus SetKeyValue(RegistryRoot root, TextView key, TextView name,
                             const RegistryValue& value, RegistryType type);

 private:
  template <typename Result, typename Operation>
  Result Reporting(TextView name, Result failed, Operation&& operation);
  bool DeleteWithSubkeys(const KeyPlace& key);
  RegistryStatus CopyValues(const KeyPlace& source, const KeyPlace& target);

  RegistryCalls& calls_;
  Prompter& boxes_;
};

}  // namespace vorlane
