// Any bytes as the registry's file: what is read is written so that it reads the same, nothing that
// was there goes when a value is set, and the rest stays readable.
// Seeds: fuzz/corpus/registry.
#include "fuzz/input.h"
#include "fuzz/require.h"
#include "shell/registry_text.h"

using namespace vorlane;

namespace {

bool AreSame(const RegistryKey& a, const RegistryKey& b) {
  return a.Name == b.Name && a.Values == b.Values && a.KeptLines == b.KeptLines &&
         std::equal(a.Subkeys.begin(), a.Subkeys.end(), b.Subkeys.begin(), b.Subkeys.end(),
                    AreSame);
}

bool AreSame(const RegistryTree& a, const RegistryTree& b) {
  return AreSame(a.Root, b.Root) && a.KeptSections == b.KeptSections;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  const Text name = input.NextText();
  const Text value = input.NextText();
  RegistryTree tree = ReadRegistryText(input.Rest());
  Require(AreSame(ReadRegistryText(WriteRegistryText(tree)), tree));

  constexpr TextView path = u"Software\\Of the test";
  tree.Make(path)->SetValue(name, value);
  const RegistryTree changed = ReadRegistryText(WriteRegistryText(tree));
  Require(AreSame(changed, tree));
  const RegistryValue* read = changed.Find(path)->FindValue(name);
  Require(read != nullptr && *read == RegistryValue(value));
  return 0;
}
