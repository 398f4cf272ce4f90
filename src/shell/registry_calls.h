// The calls that a registry offers: on Windows the system's own, elsewhere a file of the user's
// (stored_registry.h).
#pragma once

#include <cstdint>

#include "shell/registry_tree.h"

namespace vorlane {

enum class RegistryRoot : std::uint8_t {
  ClassesRoot,  // of the whole system
  CurrentUser,
};

// By the system's numbers.
enum class RegistryStatus : std::int32_t { Done = 0, NotFound = 2, Denied = 5 };

enum class RegistryType : std::uint8_t { String = 1, Binary = 3, Number = 4 };

// Whether a key was there when it was to be made.
enum class KeyDisposition : std::uint8_t { None = 0, Created = 1, Existed = 2 };

// A key by its place: the names from the root, with "\" between them.
struct KeyPlace {
  RegistryRoot Root = RegistryRoot::CurrentUser;
  Text Path;
};

class RegistryCalls {
 public:
  virtual ~RegistryCalls() = default;

  // Done if the key is there and may be used.
  virtual RegistryStatus OpenKey(const KeyPlace& key) = 0;

  // Makes what is missing of all levels.
  virtual RegistryStatus CreateKey(const KeyPlace& key, KeyDisposition& disposition) = 0;

  // Denied for a key that has subkeys.
  virtual RegistryStatus DeleteKey(const KeyPlace& key) = 0;

  // Names, in no order; none of a key that isn't there.
  virtual std::vector<Text> SubkeysOf(const KeyPlace& key) = 0;
  virtual std::vector<Text> ValuesOf(const KeyPlace& key) = 0;

  // The key has to be there. The empty name is that of the default value.
  virtual RegistryStatus QueryValue(const KeyPlace& key, TextView name, RegistryValue& value) = 0;
  virtual RegistryStatus SetValue(const KeyPlace& key, TextView name,
                                  const RegistryValue& value) = 0;
  virtual RegistryStatus DeleteValue(const KeyPlace& key, TextView name) = 0;
};

}  // namespace vorlane
