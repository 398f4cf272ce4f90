#include "shell/registry_tree.h"

#include <algorithm>

#include "platform/file_name_bytes.h"
#include "platform/letter_case.h"

namespace vorlane {

namespace {

std::vector<Text> NamesOf(TextView path) {
  std::vector<Text> names = Split(path, u"\\");
  std::erase_if(names, [](const Text& name) { return name.empty(); });
  return names;
}

// Works for values and keys, constant or not.
template <typename Range, typename NameOfItem>
auto FindNamed(Range& range, TextView name, NameOfItem&& nameOf) {
  return std::find_if(range.begin(), range.end(),
                      [&](const auto& item) { return EqualIgnoringCase(nameOf(item), name); });
}

const Text& KeyName(const RegistryKey& key) {
  return key.Name;
}

const Text& ValueName(const std::pair<Text, RegistryValue>& value) {
  return value.first;
}

}  // namespace

const RegistryValue* RegistryKey::FindValue(TextView name) const {
  const auto found = FindNamed(Values, name, ValueName);
  return found == Values.end() ? nullptr : &found->second;
}

void RegistryKey::SetValue(TextView name, RegistryValue value) {
  const auto found = FindNamed(Values, name, ValueName);
  if (found == Values.end()) {
    Values.emplace_back(name, std::move(value));
  } else {
    found->second = std::move(value);
  }
}

bool RegistryKey::RemoveValue(TextView name) {
  const auto found = FindNamed(Values, name, ValueName);
  if (found == Values.end()) {
    return false;
  }
  Values.erase(found);
  return true;
}

const RegistryKey* RegistryTree::Find(TextView path) const {
  const RegistryKey* key = &Root;
  for (const Text& name : NamesOf(path)) {
    const auto found = FindNamed(key->Subkeys, name, KeyName);
    if (found == key->Subkeys.end()) {
      return nullptr;
    }
    key = &*found;
  }
  return key;
}

RegistryKey* RegistryTree::Find(TextView path) {
  return const_cast<RegistryKey*>(std::as_const(*this).Find(path));
}

RegistryKey* RegistryTree::Make(TextView path) {
  const std::vector<Text> names = NamesOf(path);
  if (names.size() > DeepestLevel || !std::all_of(names.begin(), names.end(), IsKeyName)) {
    return nullptr;
  }
  RegistryKey* key = &Root;
  for (const Text& name : names) {
    const auto found = FindNamed(key->Subkeys, name, KeyName);
    key = found != key->Subkeys.end() ? &*found
                                      : &key->Subkeys.emplace_back(RegistryKey{.Name = name});
  }
  return key;
}

bool RegistryTree::Remove(TextView path) {
  std::vector<Text> names = NamesOf(path);
  if (names.empty()) {
    return false;
  }
  RegistryKey* parent = &Root;
  for (auto name = names.begin(); name + 1 != names.end(); ++name) {
    const auto found = FindNamed(parent->Subkeys, *name, KeyName);
    if (found == parent->Subkeys.end()) {
      return false;
    }
    parent = &*found;
  }
  const auto found = FindNamed(parent->Subkeys, names.back(), KeyName);
  if (found == parent->Subkeys.end()) {
    return false;
  }
  parent->Subkeys.erase(found);
  return true;
}

bool IsKeyName(TextView name) {
  const auto isForbidden = [](char16_t unit) { return unit < u' ' || unit == u'\\'; };
  if (name.empty() || std::any_of(name.begin(), name.end(), isForbidden)) {
    return false;
  }
  const auto bytes = BytesFromText(name);
  return bytes && IsValidUtf8(*bytes) && TextFromBytes(*bytes) == name;
}

}  // namespace vorlane
