#include "shell/verb_registry.h"

#include "platform/letter_case.h"
#include "shell/verb_keys.h"

namespace vorlane {

namespace {

constexpr auto VerbRoot = RegistryRoot::CurrentUser;

// The verb's key, or one below it.
bool IsOfVerb(const KeyPlace& key) {
  const TextView path = key.Path;
  const Text verb = VerbKey(VerbRoot);
  return key.Root == VerbRoot && EqualIgnoringCase(path.substr(0, verb.size()), verb) &&
         (path.size() == verb.size() || path[verb.size()] == u'\\');
}

// The path in a command. Empty if the text isn't one.
Text ProgramOf(const RegistryValue& value) {
  const auto* command = std::get_if<Text>(&value);
  const Text form = VerbCommand(u"");
  const TextView begin = TextView(form).substr(0, 1);
  const TextView end = TextView(form).substr(1);
  if (command == nullptr || command->size() < form.size() || !command->starts_with(begin) ||
      !command->ends_with(end)) {
    return {};
  }
  return command->substr(begin.size(), command->size() - form.size());
}

}  // namespace

RegistryStatus VerbRegistry::OpenKey(const KeyPlace& key) {
  if (!IsOfVerb(key)) {
    return others_.OpenKey(key);
  }
  return verb_.IsPresent() ? RegistryStatus::Done : RegistryStatus::NotFound;
}

RegistryStatus VerbRegistry::CreateKey(const KeyPlace& key, KeyDisposition& disposition) {
  if (!IsOfVerb(key)) {
    return others_.CreateKey(key, disposition);
  }
  disposition = verb_.IsPresent() ? KeyDisposition::Existed : KeyDisposition::Created;
  return RegistryStatus::Done;
}

RegistryStatus VerbRegistry::DeleteKey(const KeyPlace& key) {
  if (!IsOfVerb(key)) {
    return others_.DeleteKey(key);
  }
  return verb_.Remove() ? RegistryStatus::Done : RegistryStatus::NotFound;
}

std::vector<Text> VerbRegistry::SubkeysOf(const KeyPlace& key) {
  return IsOfVerb(key) ? std::vector<Text>() : others_.SubkeysOf(key);
}

std::vector<Text> VerbRegistry::ValuesOf(const KeyPlace& key) {
  return IsOfVerb(key) ? std::vector<Text>() : others_.ValuesOf(key);
}

RegistryStatus VerbRegistry::QueryValue(const KeyPlace& key, TextView name, RegistryValue& value) {
  return IsOfVerb(key) ? RegistryStatus::NotFound : others_.QueryValue(key, name, value);
}

RegistryStatus VerbRegistry::SetValue(const KeyPlace& key, TextView name,
                                      const RegistryValue& value) {
  if (!IsOfVerb(key)) {
    return others_.SetValue(key, name, value);
  }
  const Text program = ProgramOf(value);
  const bool isCommand = EqualIgnoringCase(key.Path, VerbCommandKey(VerbRoot)) && name.empty();
  return isCommand && !program.empty() && verb_.Write(program) ? RegistryStatus::Done
                                                               : RegistryStatus::Denied;
}

RegistryStatus VerbRegistry::DeleteValue(const KeyPlace& key, TextView name) {
  return IsOfVerb(key) ? RegistryStatus::Denied : others_.DeleteValue(key, name);
}

}  // namespace vorlane
