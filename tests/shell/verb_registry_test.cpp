#include "shell/verb_registry.h"

#include <gtest/gtest.h>

#include "shell/registry.h"
#include "shell/stored_registry.h"
#include "shell/verb_keys.h"
#include "support/memory_registry_file.h"
#include "support/recording_prompter.h"
#include "support/recording_verb.h"

namespace vorlane {
namespace {

using enum RegistryStatus;
constexpr auto User = RegistryRoot::CurrentUser;
constexpr auto System = RegistryRoot::ClassesRoot;

class VerbRegistryTest : public testing::Test {
 protected:
  MemoryRegistryFile file_;
  StoredRegistry stored_{file_};
  RecordingVerb verb_;
  VerbRegistry calls_{stored_, verb_};
  RecordingPrompter boxes_;
  Registry registry_{calls_, boxes_};
};

TEST_F(VerbRegistryTest, KeysAndCommandHaveTheirForm) {
  EXPECT_EQ(VerbKey(System), u"Directory\\shell\\Open with Vorlane");
  EXPECT_EQ(VerbKey(User), u"Software\\Classes\\Directory\\shell\\Open with Vorlane");
  EXPECT_EQ(VerbCommandKey(System), u"Directory\\shell\\Open with Vorlane\\command");
  EXPECT_EQ(VerbCommand(u"/usr/bin/vorlane"), u"\"/usr/bin/vorlane\" %L");
}

TEST_F(VerbRegistryTest, ACommandTellsItsProgram) {
  const KeyPlace key{User, VerbCommandKey(User)};
  for (const Text path : {u"/usr/bin/vorlane", u"/a \"b\"/c", u"\"", u"a\" %L"}) {
    EXPECT_EQ(calls_.SetValue(key, u"", VerbCommand(path)), Done);
    EXPECT_EQ(verb_.Program, path);
  }
  verb_.Program.clear();
  for (const Text text : {u"", u"\" %L", u"\"\" %L", u"/a %L", u"\"/a\"", u"\"/a %L"}) {
    EXPECT_EQ(calls_.SetValue(key, u"", text), Denied);
  }
  EXPECT_EQ(verb_.Program, u"");
}

TEST_F(VerbRegistryTest, SettingTheCommandWritesTheVerb) {
  const Text command = VerbCommandKey(User);
  EXPECT_FALSE(registry_.KeyExists(User, command));
  EXPECT_EQ(registry_.CreateNewKey(User, command), KeyDisposition::Created);
  EXPECT_EQ(registry_.SetKeyValue(User, command, u"", VerbCommand(u"/v"), RegistryType::String),
            Done);
  EXPECT_EQ(verb_.Program, u"/v");
  EXPECT_TRUE(registry_.KeyExists(User, command));
  EXPECT_EQ(registry_.CreateNewKey(User, command), KeyDisposition::Existed);
  EXPECT_TRUE(registry_.KeyExists(User, u"software\\classes\\DIRECTORY\\shell\\open with vorlane"));
  EXPECT_EQ(file_.Bytes(), "");
}

TEST_F(VerbRegistryTest, OnlyTheCommandWritesIt) {
  const auto set = [&](TextView key, TextView name, const RegistryValue& value) {
    return calls_.SetValue({User, Text(key)}, name, value);
  };
  const Text command = VerbCommandKey(User);
  EXPECT_EQ(set(VerbKey(User), u"", VerbCommand(u"/v")), Denied);
  EXPECT_EQ(set(command, u"Name", VerbCommand(u"/v")), Denied);
  EXPECT_EQ(set(command, u"", u"no command"), Denied);
  EXPECT_EQ(set(command, u"", 1U), Denied);
  verb_.Refuses = true;
  EXPECT_EQ(set(command, u"", VerbCommand(u"/v")), Denied);
  EXPECT_EQ(verb_.Program, u"");
}

TEST_F(VerbRegistryTest, DeletingTheKeyRemovesTheVerb) {
  verb_.Program = u"/v";
  EXPECT_TRUE(registry_.DeleteKey(User, VerbKey(User), true));
  EXPECT_EQ(verb_.Program, u"");
  EXPECT_FALSE(registry_.DeleteKey(User, VerbKey(User), true));
}

TEST_F(VerbRegistryTest, NothingElseIsToBeHadFromIt) {
  verb_.Program = u"/v";
  RegistryValue value;
  EXPECT_EQ(calls_.QueryValue({User, VerbCommandKey(User)}, u"", value), NotFound);
  EXPECT_EQ(calls_.DeleteValue({User, VerbCommandKey(User)}, u""), Denied);
  EXPECT_TRUE(calls_.SubkeysOf({User, VerbKey(User)}).empty());
  EXPECT_TRUE(calls_.ValuesOf({User, VerbCommandKey(User)}).empty());
}

TEST_F(VerbRegistryTest, TheSystemsVerbIsDeniedAndQuiet) {
  verb_.Program = u"/v";
  const Text command = VerbCommandKey(System);
  EXPECT_FALSE(registry_.KeyExists(System, command));
  EXPECT_EQ(registry_.CreateNewKey(System, command), KeyDisposition::None);
  EXPECT_EQ(registry_.SetKeyValue(System, command, u"", VerbCommand(u"/w"), RegistryType::String),
            Denied);
  EXPECT_FALSE(registry_.DeleteKey(System, VerbKey(System), true));
  EXPECT_FALSE(registry_.KeyExists(System, VerbKey(User)));
  EXPECT_EQ(verb_.Program, u"/v");
  EXPECT_TRUE(boxes_.Boxes.empty());
}

TEST_F(VerbRegistryTest, OtherKeysGoToTheOtherRegistry) {
  const Text other = VerbKey(User).append(u"2");
  EXPECT_EQ(registry_.CreateNewKey(User, other), KeyDisposition::Created);
  EXPECT_EQ(registry_.SetKeyValue(User, other, u"A", u"1", RegistryType::String), Done);
  EXPECT_EQ(calls_.SubkeysOf({User, u"Software"}), std::vector<Text>{u"Classes"});
  EXPECT_EQ(calls_.ValuesOf({User, other}), std::vector<Text>{u"A"});
  RegistryValue value;
  EXPECT_EQ(registry_.QueryKeyValue(User, other, u"A", value), Done);
  EXPECT_EQ(calls_.DeleteValue({User, other}, u"A"), Done);
  EXPECT_TRUE(registry_.DeleteKey(User, other, true));
  EXPECT_FALSE(registry_.KeyExists(User, other));
  EXPECT_EQ(verb_.Program, u"");
}

}  // namespace
}  // namespace vorlane
