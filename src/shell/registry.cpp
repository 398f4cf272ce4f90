#include "shell/registry.h"

#include "platform/failure.h"
#include "platform/interface_texts.h"
#include "platform/letter_case.h"

namespace vorlane {

namespace {

RegistryType TypeOf(const RegistryValue& value) {
  if (std::holds_alternative<Text>(value)) {
    return RegistryType::String;
  }
  return std::holds_alternative<std::uint32_t>(value) ? RegistryType::Number : RegistryType::Binary;
}

Text Below(TextView key, TextView name) {
  return Text(key).append(u"\\").append(name);
}

bool IsAtOrBelow(TextView key, TextView other) {
  return EqualIgnoringCase(key.substr(0, other.size()), other) &&
         (key.size() == other.size() || key[other.size()] == u'\\');
}

// The first status that isn't Done.
void Note(RegistryStatus& first, RegistryStatus status) {
  if (first == RegistryStatus::Done) {
    first = status;
  }
}

}  // namespace

template <typename Result, typename Operation>
Result Registry::Reporting(TextView name, Result failed, Operation&& operation) {
  try {
    return operation();
  } catch (const RunError& error) {
    const Text title =
        Text(InterfaceText(TextNumber::ErrorTitle)).append(DecimalText(error.Number()));
    const Text message = Text(error.Description()).append(u" (").append(name).append(u")");
    boxes_.Show(BoxIcon::Exclamation, title, message);
    return failed;
  }
}

bool Registry::KeyExists(RegistryRoot root, TextView key) {
  return Reporting(u"KeyExists", false, [&] {
    return calls_.OpenKey({root, Text(key)}) == RegistryStatus::Done;
  });
}

KeyDisposition Registry::CreateNewKey(RegistryRoot root, TextView key) {
  return Reporting(u"CreateNewKey", KeyDisposition::None, [&] {
    auto disposition = KeyDisposition::None;
    const auto status = calls_.CreateKey({root, Text(key)}, disposition);
    return status == RegistryStatus::Done ? disposition : KeyDisposition::None;
  });
}

bool Registry::DeleteKey(RegistryRoot root, TextView key, bool subkeysToo) {
  return Reporting(u"DeleteKey", false, [&] {
    const KeyPlace place{root, Text(key)};
    return calls_.DeleteKey(place) == RegistryStatus::Done ||
           (subkeysToo && DeleteWithSubkeys(place));
  });
}

bool Registry::DeleteWithSubkeys(const KeyPlace& key) {
  if (calls_.OpenKey(key) != RegistryStatus::Done) {
    return false;
  }
  for (auto names = calls_.SubkeysOf(key); !names.empty(); names = calls_.SubkeysOf(key)) {
    if (!DeleteKey(key.Root, Below(key.Path, names.front()), true)) {
      return false;
    }
  }
  return calls_.DeleteKey(key) == RegistryStatus::Done;
}

bool Registry::CopyKey(RegistryRoot sourceRoot, TextView sourceKey, RegistryRoot targetRoot,
                       TextView targetKey, RegistryStatus& status) {
  return Reporting(u"CopyKey", false, [&] {
    status = RegistryStatus::Done;
    if (sourceRoot == targetRoot && IsAtOrBelow(targetKey, sourceKey)) {
      status = RegistryStatus::Denied;
      return false;
    }
    CreateNewKey(targetRoot, targetKey);
    const KeyPlace source{sourceRoot, Text(sourceKey)};
    const KeyPlace target{targetRoot, Text(targetKey)};
    Note(status, calls_.OpenKey(target));
    Note(status, calls_.OpenKey(source));
    if (status != RegistryStatus::Done) {
      return false;
    }
    status = CopyValues(source, target);
    for (const Text& name : calls_.SubkeysOf(source)) {
      auto ofSubkey = RegistryStatus::Done;
      CopyKey(sourceRoot, Below(sourceKey, name), targetRoot, Below(targetKey, name), ofSubkey);
      Note(status, ofSubkey);
    }
    return status == RegistryStatus::Done;
  });
}

RegistryStatus Registry::CopyValues(const KeyPlace& source, const KeyPlace& target) {
  auto first = RegistryStatus::Done;
  for (const Text& name : calls_.ValuesOf(source)) {
    RegistryValue value;
    auto type = RegistryType::String;
    auto status = QueryValue(source, name, value, type);
    if (status == RegistryStatus::Done) {
      status = SetKeyValue(target.Root, target.Path, name, value, type);
    }
    Note(first, status);
  }
  return first;
}

RegistryStatus Registry::QueryValue(const KeyPlace& openKey, TextView name, RegistryValue& value,
                                    RegistryType& type) {
  return Reporting(u"QueryValue", RegistryStatus::Denied, [&] {
    const auto status = calls_.QueryValue(openKey, name, value);
    if (status == RegistryStatus::Done) {
      type = TypeOf(value);
    }
    return status;
  });
}

RegistryStatus Registry::QueryKeyValue(RegistryRoot root, TextView key, TextView name,
                                       RegistryValue& value) {
  const KeyPlace place{root, Text(key)};
  const auto status =
      Reporting(u"QueryValue", RegistryStatus::Denied, [&] { return calls_.OpenKey(place); });
  auto type = RegistryType::String;
  return status == RegistryStatus::Done ? QueryValue(place, name, value, type) : status;
}

RegistryStatus Registry::SetKeyValue(RegistryRoot root, TextView key, TextView name,
                                     const RegistryValue& value, RegistryType type) {
  return Reporting(u"SetKeyValue", RegistryStatus::Denied, [&] {
    if (TypeOf(value) != type) {
      throw RunError(ErrorNumber::TypeMismatch);
    }
    return calls_.SetValue({root, Text(key)}, name, value);
  });
}

}  // namespace vorlane
