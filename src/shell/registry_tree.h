// The tree of keys in which settings are kept: a key has subkeys and named values. A path is the
// names of the keys from the top, with "\" between them; pieces that are empty don't count. Names
// are compared without regard to case and keep the case in which they came.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/text.h"

namespace vorlane {

// REG_SZ, REG_DWORD and REG_BINARY.
using RegistryValue = std::variant<Text, std::uint32_t, std::string>;

struct RegistryKey {
  Text Name{};
  std::vector<std::pair<Text, RegistryValue>> Values{};
  std::vector<RegistryKey> Subkeys{};
  // Comments and lines that couldn't be read, as they stood among the key's values.
  std::vector<std::string> KeptLines{};

  // Null if there is no value of that name. The empty name is that of the default value.
  const RegistryValue* FindValue(TextView name) const;
  void SetValue(TextView name, RegistryValue value);
  bool RemoveValue(TextView name);
};

class RegistryTree {
 public:
  // Keys lie at most so deep.
  static constexpr std::size_t DeepestLevel = 512;

  // The key above all others, which has no name.
  RegistryKey Root;
  // Sections that couldn't be read, line by line.
  std::vector<std::string> KeptSections;

  // Null if there is no such key. Valid until a key is made or removed.
  const RegistryKey* Find(TextView path) const;
  RegistryKey* Find(TextView path);

  // The key of that path, made with all that is missing above it. Null, and nothing made, if a
  // name of the path can't be one, or the path is too deep.
  RegistryKey* Make(TextView path);

  // Removes the key with all that is below it. False if there is no such key; the root stays.
  bool Remove(TextView path);
};

// A name of a key: not empty, without "\", control characters and halves of surrogate pairs.
bool IsKeyName(TextView name);

}  // namespace vorlane
