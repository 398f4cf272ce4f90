#include "shell/registry.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "shell/stored_registry.h"
#include "support/memory_registry_file.h"
#include "support/recording_prompter.h"

namespace vorlane {
namespace {

using enum RegistryStatus;
constexpr auto User = RegistryRoot::CurrentUser;
constexpr auto System = RegistryRoot::ClassesRoot;

class RegistryTest : public testing::Test {
 protected:
  MemoryRegistryFile file_;
  StoredRegistry calls_{file_};
  RecordingPrompter boxes_;
  Registry registry_{calls_, boxes_};
  RegistryStatus status_ = Done;
};

TEST_F(RegistryTest, NumbersAreTheSystems) {
  EXPECT_EQ(static_cast<int>(Done), 0);
  EXPECT_EQ(static_cast<int>(NotFound), 2);
  EXPECT_EQ(static_cast<int>(Denied), 5);
  EXPECT_EQ(static_cast<int>(RegistryType::String), 1);
  EXPECT_EQ(static_cast<int>(RegistryType::Binary), 3);
  EXPECT_EQ(static_cast<int>(RegistryType::Number), 4);
  EXPECT_EQ(static_cast<int>(KeyDisposition::Created), 1);
  EXPECT_EQ(static_cast<int>(KeyDisposition::Existed), 2);
}

TEST_F(RegistryTest, MakesAndFindsKeys) {
  EXPECT_FALSE(registry_.KeyExists(User, u"A\\B"));
  EXPECT_EQ(registry_.CreateNewKey(User, u"A\\B"), KeyDisposition::Created);
  EXPECT_EQ(registry_.CreateNewKey(User, u"A\\B"), KeyDisposition::Existed);
  EXPECT_TRUE(registry_.KeyExists(User, u"A"));
  EXPECT_TRUE(registry_.KeyExists(User, u"A\\B"));
}

TEST_F(RegistryTest, SetsAndQueriesEachType) {
  registry_.CreateNewKey(User, u"A");
  const std::pair<RegistryValue, RegistryType> values[] = {
      {u"text", RegistryType::String},
      {7U, RegistryType::Number},
      {std::string("\x00\x01", 2), RegistryType::Binary},
  };
  for (const auto& [value, type] : values) {
    EXPECT_EQ(registry_.SetKeyValue(User, u"A", u"Name", value, type), Done);
    RegistryValue read;
    auto readType = RegistryType{};
    EXPECT_EQ(registry_.QueryValue({User, u"A"}, u"Name", read, readType), Done);
    EXPECT_EQ(read, value);
    EXPECT_EQ(readType, type);
    EXPECT_EQ(registry_.QueryKeyValue(User, u"A", u"Name", read), Done);
    EXPECT_EQ(read, value);
  }
}

TEST_F(RegistryTest, RefusalsAreQuiet) {
  RegistryValue value = u"as before";
  auto type = RegistryType::Number;
  EXPECT_EQ(registry_.SetKeyValue(User, u"X", u"Name", u"1", RegistryType::String), NotFound);
  EXPECT_EQ(registry_.QueryKeyValue(User, u"X", u"Name", value), NotFound);
  EXPECT_EQ(registry_.QueryValue({User, u"X"}, u"Name", value, type), NotFound);
  EXPECT_FALSE(registry_.DeleteKey(User, u"X", true));
  EXPECT_FALSE(registry_.CopyKey(User, u"X", User, u"Y", status_));
  EXPECT_EQ(status_, NotFound);
  EXPECT_FALSE(registry_.KeyExists(System, u"X"));
  EXPECT_EQ(registry_.CreateNewKey(System, u"X"), KeyDisposition::None);
  EXPECT_EQ(registry_.SetKeyValue(System, u"X", u"", u"1", RegistryType::String), Denied);
  EXPECT_EQ(registry_.QueryKeyValue(System, u"X", u"", value), Denied);
  EXPECT_FALSE(registry_.DeleteKey(System, u"X", true));
  file_.Denied = true;
  EXPECT_EQ(registry_.CreateNewKey(User, u"X"), KeyDisposition::None);
  EXPECT_EQ(value, RegistryValue(u"as before"));
  EXPECT_EQ(type, RegistryType::Number);
  EXPECT_TRUE(boxes_.Boxes.empty());
}

TEST_F(RegistryTest, DeletesWithSubkeysOnlyIfTold) {
  file_.Set("[A]\nV=sz:1\n[A\\B\\C]\n[A\\B\\D]\nV=sz:2\n[A\\E]\n[F]\n");
  EXPECT_FALSE(registry_.DeleteKey(User, u"A", false));
  EXPECT_TRUE(registry_.KeyExists(User, u"A\\B\\D"));
  EXPECT_TRUE(registry_.DeleteKey(User, u"A", true));
  EXPECT_EQ(file_.Bytes(), "[F]\n");
  EXPECT_TRUE(registry_.DeleteKey(User, u"F", false));
}

TEST_F(RegistryTest, CopiesValuesAndSubkeys) {
  file_.Set(
      "[Old]\nText=sz:a, b\nNumber=dword:7\nBytes=binary:00ff\n=sz:default\n"
      "[Old\\Settings]\nLeft=sz:5\n[Old\\Operations\\Deep]\n");
  EXPECT_TRUE(registry_.CopyKey(User, u"Old", User, u"Above\\New", status_));
  EXPECT_EQ(status_, Done);
  EXPECT_TRUE(registry_.DeleteKey(User, u"Old", true));
  EXPECT_EQ(file_.Bytes(),
            "[Above\\New]\nText=sz:a, b\nNumber=dword:7\nBytes=binary:00ff\n=sz:default\n"
            "\n[Above\\New\\Settings]\nLeft=sz:5\n\n[Above\\New\\Operations\\Deep]\n");
}

TEST_F(RegistryTest, ACopyAddsToWhatIsThere) {
  file_.Set("[Old]\nA=sz:new\n[New]\nA=sz:old\nB=sz:stays\n");
  EXPECT_TRUE(registry_.CopyKey(User, u"Old", User, u"New", status_));
  EXPECT_EQ(file_.Bytes(), "[Old]\nA=sz:new\n\n[New]\nA=sz:new\nB=sz:stays\n");
}

TEST_F(RegistryTest, ACopyIntoItselfEnds) {
  file_.Set("[A]\nV=sz:1\n");
  for (const TextView target : {u"A", u"a\\B"}) {
    EXPECT_FALSE(registry_.CopyKey(User, u"A", User, target, status_));
    EXPECT_EQ(status_, Denied);
  }
  EXPECT_EQ(file_.Bytes(), "[A]\nV=sz:1\n");
  EXPECT_TRUE(registry_.CopyKey(User, u"A", User, u"AB", status_));
}

TEST_F(RegistryTest, ACopyWhoseTargetCantBeMadeFails) {
  file_.Set("[A]\nV=sz:1\n");
  EXPECT_FALSE(registry_.CopyKey(User, u"A", System, u"B", status_));
  EXPECT_EQ(status_, Denied);
}

// Run-time failures, which the registry of a file doesn't have: each call throws, or every call
// behind the first ones.
class FailingCalls final : public RegistryCalls {
 public:
  int GoodCalls = 0;

  RegistryStatus OpenKey(const KeyPlace&) override { return Call(); }
  RegistryStatus CreateKey(const KeyPlace&, KeyDisposition&) override { return Call(); }
  RegistryStatus DeleteKey(const KeyPlace&) override { return Call(); }
  std::vector<Text> SubkeysOf(const KeyPlace&) override {
    Call();
    return {};
  }
  std::vector<Text> ValuesOf(const KeyPlace&) override {
    Call();
    return {};
  }
  RegistryStatus QueryValue(const KeyPlace&, TextView, RegistryValue&) override { return Call(); }
  RegistryStatus SetValue(const KeyPlace&, TextView, const RegistryValue&) override {
    return Call();
  }
  RegistryStatus DeleteValue(const KeyPlace&, TextView) override { return Call(); }

 private:
  RegistryStatus Call() {
    if (GoodCalls-- <= 0) {
      throw RunError(ErrorNumber::OutOfMemory);
    }
    return Done;
  }
};

TEST(RegistryFailures, EachOperationReportsUnderItsMark) {
  FailingCalls calls;
  RecordingPrompter boxes;
  Registry registry(calls, boxes);
  RegistryValue value;
  auto type = RegistryType::String;
  auto status = Done;
  const auto marked = [&](TextView mark) {
    const std::vector<RecordingPrompter::Box> expected = {
        {BoxIcon::Exclamation, u"Error 7", Text(u"Out of memory").append(mark)}};
    EXPECT_EQ(boxes.Boxes, expected);
    boxes.Boxes.clear();
  };
  EXPECT_FALSE(registry.KeyExists(User, u"A"));
  marked(u" (KeyExists)");
  EXPECT_EQ(registry.CreateNewKey(User, u"A"), KeyDisposition::None);
  marked(u" (CreateNewKey)");
  EXPECT_FALSE(registry.DeleteKey(User, u"A", true));
  marked(u" (DeleteKey)");
  EXPECT_EQ(registry.QueryValue({User, u"A"}, u"", value, type), Denied);
  marked(u" (QueryValue)");
  EXPECT_EQ(registry.QueryKeyValue(User, u"A", u"", value), Denied);
  marked(u" (QueryValue)");
  EXPECT_EQ(registry.SetKeyValue(User, u"A", u"", u"", RegistryType::String), Denied);
  marked(u" (SetKeyValue)");
  calls.GoodCalls = 1;  // the target is made
  EXPECT_FALSE(registry.CopyKey(User, u"A", User, u"B", status));
  marked(u" (CopyKey)");
}

TEST_F(RegistryTest, AValueOfAnotherTypeIsAFailure) {
  registry_.CreateNewKey(User, u"A");
  EXPECT_EQ(registry_.SetKeyValue(User, u"A", u"Name", u"1", RegistryType::Number), Denied);
  EXPECT_EQ(boxes_.Boxes, (std::vector<RecordingPrompter::Box>{{BoxIcon::Exclamation, u"Error 13",
                                                                u"Type mismatch (SetKeyValue)"}}));
  EXPECT_EQ(file_.Bytes(), "[A]\n");
}

}  // namespace
}  // namespace vorlane
