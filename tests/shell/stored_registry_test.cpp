#include "shell/stored_registry.h"

#include <gtest/gtest.h>

#include "support/memory_registry_file.h"

namespace vorlane {
namespace {

using enum RegistryStatus;

class StoredRegistryTest : public testing::Test {
 protected:
  static KeyPlace User(TextView path) { return {RegistryRoot::CurrentUser, Text(path)}; }
  static KeyPlace System(TextView path) { return {RegistryRoot::ClassesRoot, Text(path)}; }

  RegistryStatus Create(const KeyPlace& key) {
    KeyDisposition ignored{};
    return calls_.CreateKey(key, ignored);
  }

  MemoryRegistryFile file_;
  StoredRegistry calls_{file_};
  RegistryValue value_;
};

TEST_F(StoredRegistryTest, KeepsKeysAndValues) {
  EXPECT_EQ(calls_.OpenKey(User(u"A")), NotFound);
  auto disposition = KeyDisposition::None;
  EXPECT_EQ(calls_.CreateKey(User(u"A\\B"), disposition), Done);
  EXPECT_EQ(disposition, KeyDisposition::Created);
  EXPECT_EQ(calls_.CreateKey(User(u"a\\b"), disposition), Done);
  EXPECT_EQ(disposition, KeyDisposition::Existed);
  EXPECT_EQ(calls_.OpenKey(User(u"A")), Done);
  EXPECT_EQ(calls_.SetValue(User(u"A\\B"), u"Name", u"text"), Done);
  EXPECT_EQ(calls_.QueryValue(User(u"a\\B"), u"NAME", value_), Done);
  EXPECT_EQ(value_, RegistryValue(u"text"));
  EXPECT_EQ(file_.Bytes(), "[A\\B]\nName=sz:text\n");
  EXPECT_EQ(calls_.SubkeysOf(User(u"A")), std::vector<Text>{u"B"});
  EXPECT_EQ(calls_.ValuesOf(User(u"A\\B")), std::vector<Text>{u"Name"});
  EXPECT_EQ(calls_.DeleteValue(User(u"A\\B"), u"name"), Done);
  EXPECT_EQ(calls_.DeleteValue(User(u"A\\B"), u"name"), NotFound);
}

TEST_F(StoredRegistryTest, WhatIsntThereIsNotFound) {
  Create(User(u"A"));
  EXPECT_EQ(calls_.SetValue(User(u"X"), u"Name", u"text"), NotFound);
  EXPECT_EQ(calls_.QueryValue(User(u"X"), u"Name", value_), NotFound);
  EXPECT_EQ(calls_.QueryValue(User(u"A"), u"Name", value_), NotFound);
  EXPECT_EQ(calls_.DeleteKey(User(u"X")), NotFound);
  EXPECT_EQ(calls_.DeleteValue(User(u"X"), u"Name"), NotFound);
  EXPECT_TRUE(calls_.SubkeysOf(User(u"X")).empty());
  EXPECT_TRUE(calls_.ValuesOf(User(u"X")).empty());
  EXPECT_EQ(file_.Bytes(), "[A]\n");
}

TEST_F(StoredRegistryTest, AKeyWithSubkeysIsntDeleted) {
  Create(User(u"A\\B"));
  EXPECT_EQ(calls_.DeleteKey(User(u"A")), Denied);
  EXPECT_EQ(calls_.DeleteKey(User(u"A\\B")), Done);
  EXPECT_EQ(calls_.OpenKey(User(u"A")), Done);
  EXPECT_EQ(calls_.DeleteKey(User(u"A")), Done);
  EXPECT_EQ(file_.Bytes(), "");
}

TEST_F(StoredRegistryTest, TheRootTakesNoValuesAndStays) {
  EXPECT_EQ(calls_.OpenKey(User(u"")), Done);
  EXPECT_EQ(calls_.SetValue(User(u""), u"Name", u"text"), Denied);
  EXPECT_EQ(calls_.DeleteKey(User(u"")), Denied);
  EXPECT_EQ(Create(User(u"line\nbreak")), Denied);
}

TEST_F(StoredRegistryTest, EverythingOfTheSystemIsDenied) {
  Create(User(u"A"));
  calls_.SetValue(User(u"A"), u"Name", u"text");
  const std::string before = file_.Bytes();
  auto disposition = KeyDisposition::Existed;
  EXPECT_EQ(calls_.OpenKey(System(u"A")), Denied);
  EXPECT_EQ(calls_.CreateKey(System(u"B"), disposition), Denied);
  EXPECT_EQ(disposition, KeyDisposition::None);
  EXPECT_EQ(calls_.DeleteKey(System(u"A")), Denied);
  EXPECT_EQ(calls_.QueryValue(System(u"A"), u"Name", value_), Denied);
  EXPECT_EQ(calls_.SetValue(System(u"A"), u"Name", u"x"), Denied);
  EXPECT_EQ(calls_.DeleteValue(System(u"A"), u"Name"), Denied);
  EXPECT_TRUE(calls_.SubkeysOf(System(u"")).empty());
  EXPECT_TRUE(calls_.ValuesOf(System(u"A")).empty());
  EXPECT_EQ(file_.Bytes(), before);
}

TEST_F(StoredRegistryTest, AnUnchangedFileIsReadOnce) {
  file_.Set("[A]\nName=sz:1\n");
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(calls_.QueryValue(User(u"A"), u"Name", value_), Done);
  }
  EXPECT_EQ(file_.Reads, 1);
}

TEST_F(StoredRegistryTest, SeesWhatOthersChange) {
  StoredRegistry other{file_};
  Create(User(u"A"));
  calls_.SetValue(User(u"A"), u"Name", u"1");
  EXPECT_EQ(other.QueryValue(User(u"A"), u"Name", value_), Done);
  other.SetValue(User(u"A"), u"Other", u"2");
  calls_.SetValue(User(u"A"), u"Name", u"3");
  EXPECT_EQ(file_.Bytes(), "[A]\nName=sz:3\nOther=sz:2\n");
  EXPECT_EQ(calls_.QueryValue(User(u"A"), u"Other", value_), Done);
  file_.Set("[A]\nName=sz:by hand\n");
  EXPECT_EQ(calls_.QueryValue(User(u"A"), u"Name", value_), Done);
  EXPECT_EQ(value_, RegistryValue(u"by hand"));
}

TEST_F(StoredRegistryTest, SeesItsOwnChanges) {
  file_.StampStands = true;
  Create(User(u"A"));
  for (const TextView text : {u"1", u"2", u"3"}) {
    calls_.SetValue(User(u"A"), u"Name", Text(text));
    calls_.QueryValue(User(u"A"), u"Name", value_);
    EXPECT_EQ(value_, RegistryValue(Text(text)));
  }
}

TEST_F(StoredRegistryTest, SavesOnlyWhatChanges) {
  Create(User(u"A"));
  calls_.SetValue(User(u"A"), u"Name", u"1");
  const int saves = file_.Saves;
  calls_.SetValue(User(u"A"), u"Name", u"1");
  Create(User(u"A"));
  calls_.DeleteKey(User(u"X"));
  EXPECT_EQ(file_.Saves, saves);
}

TEST_F(StoredRegistryTest, WhatCantBeSavedIsDenied) {
  file_.Set("[A]\nName=sz:1\n");
  file_.Denied = true;
  EXPECT_EQ(calls_.SetValue(User(u"A"), u"Name", u"2"), Denied);
  EXPECT_EQ(Create(User(u"B")), Denied);
  EXPECT_EQ(calls_.DeleteKey(User(u"A")), Denied);
  EXPECT_EQ(calls_.QueryValue(User(u"A"), u"Name", value_), Done);
  EXPECT_EQ(value_, RegistryValue(u"1"));
}

TEST_F(StoredRegistryTest, LinesThatCantBeReadSurviveAChange) {
  file_.Set("# mine\n\n[A]\nnonsense\nName=sz:1\n");
  calls_.SetValue(User(u"A"), u"Name", u"2");
  EXPECT_EQ(file_.Bytes(), "# mine\n\n[A]\nnonsense\nName=sz:2\n");
}

}  // namespace
}  // namespace vorlane
