#include "shell/verb_registry.h"

#include "platform/letter_case.h"

namespace vorlane {

namespace {

constexpr TextView ClassesVerbKey = u"Directory\\shell\\Open with Vorlane";
constexpr TextView UserVerbKey = u"Software\\Classes\\Directory\\shell\\Open with Vorlane";
constexpr TextView CommandEnd = u"\" %L";

// The verb's key, or one below it.
bool IsOfVerb(const KeyPlace& key) {
  const TextView path = key.Path;
  return key.Root == RegistryRoot::CurrentUser &&
         EqualIgnoringCase(path.substr(0, UserVerbKey.size()), UserVerbKey) &&
         (path.size() == UserVerbKey.size() || path[UserVerbKey.size()] == u'\\');
}

bool IsVerbCommand(const KeyPlace& key) {
  return EqualIgnoringCase(key.Path, VerbCommandKey(RegistryRoot::CurrentUser));
}

}  // namespace

TextView VerbKey(RegistryRoot root) {
  return root == RegistryRoot::ClassesRoot ? ClassesVerbKey : UserVerbKey;
}

Text VerbCommandKey(RegistryRoot root) {
  return Text(VerbKey(root)).append(u"\\command");
}

Text VerbCommand(TextView programPath) {
  return Text(u"\"").append(programPath).append(CommandEnd);
}

Text ProgramOfVerbCommand(TextView command) {
  if (!command.starts_with(u'"') || !command.ends_with(CommandEnd) ||
      command.size() < 1 + CommandEnd.size()) {
    return {};
  }
  command.remove_prefix(1);
  command.remove_suffix(CommandEnd.size());
  return Text(command);
}

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
  const auto* command = std::get_if<Text>(&value);
  const Text program = command != nullptr ? ProgramOfVerbCommand(*command) : Text();
  const bool isCommand = IsVerbCommand(key) && name.empty() && !program.empty();
  return isCommand && verb_.Write(program) ? RegistryStatus::Done : RegistryStatus::Denied;
}

RegistryStatus VerbRegistry::DeleteValue(const KeyPlace& key, TextView name) {
  return IsOfVerb(key) ? RegistryStatus::Denied : others_.DeleteValue(key, name);
}

}  // namespace vorlane
