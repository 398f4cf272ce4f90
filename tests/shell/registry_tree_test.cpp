#include "shell/registry_tree.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

TEST(RegistryTree, MakesAllLevels) {
  RegistryTree tree;
  ASSERT_NE(tree.Make(u"Software\\A\\B"), nullptr);
  EXPECT_NE(tree.Find(u"Software"), nullptr);
  EXPECT_NE(tree.Find(u"Software\\A"), nullptr);
  EXPECT_EQ(tree.Find(u"Software\\A\\B")->Name, u"B");
  EXPECT_EQ(tree.Find(u"Software\\B"), nullptr);
  EXPECT_EQ(tree.Find(u"A"), nullptr);
}

TEST(RegistryTree, NamesIgnoreCaseAndKeepTheirs) {
  RegistryTree tree;
  RegistryKey* key = tree.Make(u"Software\\\u00C4rger");
  key->SetValue(u"Left", u"1");
  key->SetValue(u"LEFT", u"2");
  EXPECT_EQ(tree.Make(u"SOFTWARE\\\u00E4RGER"), key);
  EXPECT_EQ(tree.Root.Subkeys.size(), 1U);
  EXPECT_EQ(key->Name, u"\u00C4rger");
  ASSERT_EQ(key->Values.size(), 1U);
  EXPECT_EQ(key->Values[0].first, u"Left");
  EXPECT_EQ(*key->FindValue(u"left"), RegistryValue(u"2"));
  EXPECT_TRUE(key->RemoveValue(u"lEFT"));
  EXPECT_FALSE(key->RemoveValue(u"Left"));
  EXPECT_EQ(key->FindValue(u"Left"), nullptr);
}

TEST(RegistryTree, EmptyPiecesOfAPathDontCount) {
  RegistryTree tree;
  tree.Make(u"\\Software\\\\A\\");
  EXPECT_NE(tree.Find(u"Software\\A"), nullptr);
  EXPECT_EQ(tree.Find(u""), &tree.Root);
  EXPECT_EQ(tree.Find(u"\\"), &tree.Root);
}

TEST(RegistryTree, RemovesAKeyWithAllBelow) {
  RegistryTree tree;
  tree.Make(u"A\\B\\C");
  tree.Make(u"A\\D");
  EXPECT_FALSE(tree.Remove(u"A\\X"));
  EXPECT_FALSE(tree.Remove(u"X\\B"));
  EXPECT_TRUE(tree.Remove(u"a\\b"));
  EXPECT_EQ(tree.Find(u"A\\B"), nullptr);
  EXPECT_NE(tree.Find(u"A\\D"), nullptr);
  EXPECT_FALSE(tree.Remove(u""));
}

TEST(RegistryTree, NamesThatNoKeyCanHave) {
  const Text names[] = {u"",
                        u"a\nb",
                        u"a\rb",
                        u"a\tb",
                        Text(u"a\0b", 3),
                        Text(1, u'\xD800'),
                        Text(1, u'\xDC80'),
                        Text(u"\xDCC3\xDCA9")};
  for (const Text& name : names) {
    EXPECT_FALSE(IsKeyName(name));
    RegistryTree tree;
    EXPECT_TRUE(name.empty() || tree.Make(Text(u"Software\\").append(name)) == nullptr);
    EXPECT_TRUE(tree.Root.Subkeys.empty());
  }
  EXPECT_FALSE(IsKeyName(u"a\\b"));
  EXPECT_TRUE(IsKeyName(u"[a] = #b, \u00E9 \U0001F600"));
}

TEST(RegistryTree, HasABottom) {
  Text path = u"a";
  for (std::size_t level = 1; level < RegistryTree::DeepestLevel; ++level) {
    path += u"\\a";
  }
  RegistryTree tree;
  EXPECT_NE(tree.Make(path), nullptr);
  EXPECT_EQ(tree.Make(path + u"\\a"), nullptr);
}

}  // namespace
}  // namespace vorlane
