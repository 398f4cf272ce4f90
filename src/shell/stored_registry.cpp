#include "shell/stored_registry.h"

#include "shell/registry_text.h"

namespace vorlane {

// Null for a key of the system's, too.
const RegistryKey* StoredRegistry::Find(const KeyPlace& key) {
  if (key.Root != RegistryRoot::CurrentUser) {
    return nullptr;
  }
  if (const auto read = file_.ReadUnless(stamp_)) {
    tree_ = ReadRegistryText(read->Bytes);
    stamp_ = read->Stamp;
  }
  return tree_.Find(key.Path);
}

RegistryStatus StoredRegistry::Change(const KeyPlace& key,
                                      const std::function<RegistryStatus(RegistryTree&)>& change) {
  if (key.Root != RegistryRoot::CurrentUser) {
    return RegistryStatus::Denied;
  }
  auto status = RegistryStatus::Denied;
  const bool saved = file_.Update([&](std::string_view bytes) -> std::optional<std::string> {
    RegistryTree tree = ReadRegistryText(bytes);
    status = change(tree);
    if (status != RegistryStatus::Done) {
      return std::nullopt;
    }
    std::string changed = WriteRegistryText(tree);
    return changed == bytes ? std::nullopt : std::optional(std::move(changed));
  });
  stamp_.reset();  // two changes may follow each other so fast that their stamps are equal
  return saved ? status : RegistryStatus::Denied;
}

RegistryStatus StoredRegistry::ChangeKey(
    const KeyPlace& place, const std::function<RegistryStatus(RegistryKey&)>& change) {
  return Change(place, [&](RegistryTree& tree) {
    RegistryKey* key = tree.Find(place.Path);
    if (key == nullptr) {
      return RegistryStatus::NotFound;
    }
    // The root has subkeys only.
    return key == &tree.Root ? RegistryStatus::Denied : change(*key);
  });
}

RegistryStatus StoredRegistry::OpenKey(const KeyPlace& key) {
  if (key.Root != RegistryRoot::CurrentUser) {
    return RegistryStatus::Denied;
  }
  return Find(key) != nullptr ? RegistryStatus::Done : RegistryStatus::NotFound;
}

RegistryStatus StoredRegistry::CreateKey(const KeyPlace& key, KeyDisposition& disposition) {
  disposition = KeyDisposition::None;
  return Change(key, [&](RegistryTree& tree) {
    const bool existed = tree.Find(key.Path) != nullptr;
    if (tree.Make(key.Path) == nullptr) {
      return RegistryStatus::Denied;
    }
    disposition = existed ? KeyDisposition::Existed : KeyDisposition::Created;
    return RegistryStatus::Done;
  });
}

RegistryStatus StoredRegistry::DeleteKey(const KeyPlace& key) {
  return Change(key, [&](RegistryTree& tree) {
    const RegistryKey* found = tree.Find(key.Path);
    if (found == nullptr) {
      return RegistryStatus::NotFound;
    }
    const bool deleted = found->Subkeys.empty() && tree.Remove(key.Path);
    return deleted ? RegistryStatus::Done : RegistryStatus::Denied;
  });
}

std::vector<Text> StoredRegistry::SubkeysOf(const KeyPlace& key) {
  std::vector<Text> names;
  if (const RegistryKey* found = Find(key)) {
    for (const RegistryKey& subkey : found->Subkeys) {
      names.push_back(subkey.Name);
    }
  }
  return names;
}

std::vector<Text> StoredRegistry::ValuesOf(const KeyPlace& key) {
  std::vector<Text> names;
  if (const RegistryKey* found = Find(key)) {
    for (const auto& [name, value] : found->Values) {
      names.push_back(name);
    }
  }
  return names;
}

RegistryStatus StoredRegistry::QueryValue(const KeyPlace& key, TextView name,
                                          RegistryValue& value) {
  if (key.Root != RegistryRoot::CurrentUser) {
    return RegistryStatus::Denied;
  }
  const RegistryKey* found = Find(key);
  const RegistryValue* stored = found != nullptr ? found->FindValue(name) : nullptr;
  if (stored == nullptr) {
    return RegistryStatus::NotFound;
  }
  value = *stored;
  return RegistryStatus::Done;
}

RegistryStatus StoredRegistry::SetValue(const KeyPlace& key, TextView name,
                                        const RegistryValue& value) {
  return ChangeKey(key, [&](RegistryKey& found) {
    found.SetValue(name, value);
    return RegistryStatus::Done;
  });
}

RegistryStatus StoredRegistry::DeleteValue(const KeyPlace& key, TextView name) {
  return ChangeKey(key, [&](RegistryKey& found) {
    return found.RemoveValue(name) ? RegistryStatus::Done : RegistryStatus::NotFound;
  });
}

}  // namespace vorlane
