#include "shell/verb_keys.h"

#include "platform/interface_texts.h"

namespace vorlane {

namespace {

constexpr RegistryRoot Roots[] = {RegistryRoot::ClassesRoot, RegistryRoot::CurrentUser};

}  // namespace

Text VerbKey(RegistryRoot root) {
  Text key = root == RegistryRoot::ClassesRoot ? u"" : u"Software\\Classes\\";
  return key.append(u"Directory\\shell\\").append(InterfaceText(TextNumber::OpenWithVorlane));
}

Text VerbCommandKey(RegistryRoot root) {
  return VerbKey(root).append(u"\\command");
}

Text VerbCommand(TextView programPath) {
  return Text(u"\"").append(programPath).append(u"\" %L");
}

void WriteVerb(Registry& registry, TextView programPath) {
  for (const RegistryRoot root : Roots) {
    const Text key = VerbCommandKey(root);
    if (!registry.KeyExists(root, key)) {
      registry.CreateNewKey(root, key);
    }
    registry.SetKeyValue(root, key, u"", VerbCommand(programPath), RegistryType::String);
  }
}

void RemoveVerb(Registry& registry) {
  for (const RegistryRoot root : Roots) {
    registry.DeleteKey(root, VerbKey(root), true);
  }
}

}  // namespace vorlane
