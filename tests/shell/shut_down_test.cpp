#include "shell/shut_down.h"

#include <gtest/gtest.h>

#include "batch/journal_text.h"
#include "shell/verb_keys.h"
#include "support/form_world.h"
#include "support/settings_world.h"

namespace vorlane {
namespace {

class FakeWindow final : public ClosingWindow {
 public:
  Twips ColumnWidth(Column column) override { return 1000 + 15 * static_cast<int>(column); }
  bool IsMaximized() override { return Maximized; }
  NormalPlace Placement() override { return Place; }

  bool Maximized = false;
  NormalPlace Place{.Left = 150, .Top = 300, .Width = 15360, .Height = 7830};
};

// Notes the calls that make and unmake keys and values.
class Recorder final : public RegistryCalls {
 public:
  RegistryStatus OpenKey(const KeyPlace& key) override { return Note(u"open ", key); }
  RegistryStatus CreateKey(const KeyPlace& key, KeyDisposition& disposition) override {
    disposition = KeyDisposition::Created;
    Note(u"create ", key);
    return RegistryStatus::Done;
  }
  RegistryStatus DeleteKey(const KeyPlace& key) override { return Note(u"delete ", key); }
  std::vector<Text> SubkeysOf(const KeyPlace&) override { return {}; }
  std::vector<Text> ValuesOf(const KeyPlace&) override { return {}; }
  RegistryStatus QueryValue(const KeyPlace&, TextView, RegistryValue&) override {
    return RegistryStatus::NotFound;
  }
  RegistryStatus SetValue(const KeyPlace& key, TextView name, const RegistryValue& value) override {
    Calls.push_back(u"set " + Place(key) + u"|" + Text(name) + u"|" + std::get<Text>(value));
    return RegistryStatus::Done;
  }
  RegistryStatus DeleteValue(const KeyPlace&, TextView) override { return RegistryStatus::Done; }

  std::vector<Text> Calls;

 private:
  static Text Place(const KeyPlace& key) {
    return (key.Root == RegistryRoot::ClassesRoot ? u"HKCR\\" : u"HKCU\\") + key.Path;
  }
  RegistryStatus Note(TextView call, const KeyPlace& key) {
    Calls.push_back(Text(call) + Place(key));
    return RegistryStatus::NotFound;
  }
};

class ShutDownTest : public testing::Test, protected SettingsWorld {
 protected:
  ShutDownTest() {
    World.ListFiles({u"a.mp3"});
    State.WildCardItems = {u"*.*", u"*.mp3", u"*.ogg"};
    State.OperationCodes = {Text(), u"\r\n", u"\r\n", Text()};
    State.SelectedOperation = 2;
  }

  void Exit(TextView programPath = u"/opt/vorlane") {
    SaveSettingsAtExit(State, Window, {World.Disk, Settings, Registry}, programPath);
  }

  MemoryWorld World;
  Form& State = World.World.State;
  FakeWindow Window;
};

TEST_F(ShutDownTest, SavesEverySettingUnderItsKey) {
  Exit();
  const std::pair<TextView, TextView> settings[] = {
      {u"WildCards", u"*.*|*.mp3|*.ogg"},
      {u"StartPath", u"/R/"},
      {u"FileNameWidth", u"1000"},
      {u"PreviewWidth", u"1015"},
      {u"ArtistWidth", u"1030"},
      {u"TitleWidth", u"1045"},
      {u"ID3v1Width", u"1060"},
      {u"ID3v2Width", u"1075"},
      {u"ReadOnlyWidth", u"1090"},
      {u"PathWidth", u"1105"},
      {u"LastOperation", u"2"},
      {u"Left", u"150"},
      {u"Top", u"300"},
      {u"Width", u"15360"},
      {u"Height", u"7830"},
      {u"Maximized", u"0"},
  };
  for (const auto& [key, value] : settings) {
    EXPECT_EQ(Get(key), value);
  }
  // Only the user writes these.
  EXPECT_EQ(Get(u"Context"), u"(none)");
  EXPECT_EQ(Get(u"Resolution"), u"(none)");
}

TEST_F(ShutDownTest, AMaximizedWindowKeepsItsFormerPlace) {
  Exit();
  Window.Maximized = true;
  Window.Place = {.Left = 0, .Top = 0, .Width = 28800, .Height = 16200};
  Exit();
  EXPECT_EQ(Get(u"Maximized"), u"1");
  EXPECT_EQ(Get(u"Left"), u"150");
  EXPECT_EQ(Get(u"Width"), u"15360");
}

TEST_F(ShutDownTest, WithoutOperationsTheLastOneStays) {
  Set(SettingKey::LastOperation, u"9");
  State.OperationCodes.clear();
  Exit();
  EXPECT_EQ(Get(SettingKey::LastOperation), u"9");
}

TEST_F(ShutDownTest, WithoutASelectedOperationTheLastOneStays) {
  Set(SettingKey::LastOperation, u"9");
  State.SelectedOperation = 0;
  Exit();
  EXPECT_EQ(Get(SettingKey::LastOperation), u"9");
}

TEST_F(ShutDownTest, WritesTheVerbAtEveryExit) {
  Exit();
  EXPECT_EQ(Verb.Program, u"/opt/vorlane");
  Exit(u"/new/vorlane");
  EXPECT_EQ(Verb.Program, u"/new/vorlane");
  EXPECT_TRUE(Boxes.Boxes.empty());
}

TEST_F(ShutDownTest, WithoutAProgramFileTheVerbStaysAsItIs) {
  Exit(u"");
  EXPECT_EQ(Verb.Program, u"");
  Verb.Program = u"/old/vorlane";
  Exit(u"");
  EXPECT_EQ(Verb.Program, u"/old/vorlane");
}

TEST_F(ShutDownTest, AnyOtherContextRemovesTheVerb) {
  for (const TextView context : {u"0", u"", u"2"}) {
    Verb.Program = u"/opt/vorlane";
    Set(SettingKey::Context, context);
    Exit();
    EXPECT_EQ(Verb.Program, u"");
    EXPECT_EQ(Get(SettingKey::Context), context);
  }
}

TEST_F(ShutDownTest, DeletesTheJournal) {
  World.Disk.Write(u"/R/UNDORENAME.TXT", JournalHeader());
  Exit();
  EXPECT_FALSE(World.Disk.Exists(u"/R/UNDORENAME.TXT"));
  EXPECT_TRUE(World.Disk.Exists(u"/R/a.mp3"));
}

TEST_F(ShutDownTest, SomebodysFileOfTheJournalsNameStays) {
  for (const std::string bytes : {"my own notes", ""}) {
    World.Disk.Write(u"/R/UNDORENAME.TXT", bytes);
    Exit();
    EXPECT_TRUE(World.Disk.Exists(u"/R/UNDORENAME.TXT"));
  }
}

TEST_F(ShutDownTest, WhatCantBeSavedKeepsNothingElse) {
  World.Disk.Write(u"/R/UNDORENAME.TXT", JournalHeader());
  File.Denied = true;
  Exit();
  EXPECT_EQ(Verb.Program, u"/opt/vorlane");
  EXPECT_FALSE(World.Disk.Exists(u"/R/UNDORENAME.TXT"));
  EXPECT_TRUE(Boxes.Boxes.empty());
}

TEST_F(ShutDownTest, AVerbThatCantBeWrittenKeepsNothingElse) {
  World.Disk.Write(u"/R/UNDORENAME.TXT", JournalHeader());
  Verb.Refuses = true;
  Exit();
  EXPECT_FALSE(World.Disk.Exists(u"/R/UNDORENAME.TXT"));
  EXPECT_TRUE(Boxes.Boxes.empty());
}

TEST_F(ShutDownTest, AJournalThatCantBeReadStays) {
  World.Disk.Write(u"/R/UNDORENAME.TXT", JournalHeader());
  World.Disk.SetUnreadable(u"/R/UNDORENAME.TXT");
  Exit();
  EXPECT_TRUE(World.Disk.Exists(u"/R/UNDORENAME.TXT"));
  EXPECT_TRUE(World.World.Report.Reports.empty());
}

TEST_F(ShutDownTest, AWindowThatFailsKeepsNothingElse) {
  class FailingWindow final : public ClosingWindow {
   public:
    Twips ColumnWidth(Column) override { throw RunError(ErrorNumber::InvalidArgument); }
    bool IsMaximized() override { throw RunError(ErrorNumber::InvalidArgument); }
    NormalPlace Placement() override { throw RunError(ErrorNumber::InvalidArgument); }
  };
  FailingWindow window;
  World.Disk.Write(u"/R/UNDORENAME.TXT", JournalHeader());
  SaveSettingsAtExit(State, window, {World.Disk, Settings, Registry}, u"/opt/vorlane");
  EXPECT_EQ(Get(u"StartPath"), u"/R/");
  EXPECT_EQ(Get(u"LastOperation"), u"2");
  EXPECT_EQ(Verb.Program, u"/opt/vorlane");
  EXPECT_FALSE(World.Disk.Exists(u"/R/UNDORENAME.TXT"));
}

TEST_F(ShutDownTest, WithoutAProgramFileNoRegistryIsTouched) {
  Recorder calls;
  vorlane::Registry registry(calls, Boxes);
  SaveSettingsAtExit(State, Window, {World.Disk, Settings, registry}, u"");
  EXPECT_TRUE(calls.Calls.empty());
}

// The keys and the order of the calls, as a registry sees them.
TEST_F(ShutDownTest, TheVerbGoesUnderBothRoots) {
  Recorder calls;
  vorlane::Registry registry(calls, Boxes);
  WriteVerb(registry, u"/opt/vorlane");
  const Text system = u"HKCR\\Directory\\shell\\Open with Vorlane";
  const Text user = u"HKCU\\Software\\Classes\\Directory\\shell\\Open with Vorlane";
  EXPECT_EQ(calls.Calls, (std::vector<Text>{
                             u"open " + system + u"\\command",
                             u"create " + system + u"\\command",
                             u"set " + system + u"\\command||\"/opt/vorlane\" %L",
                             u"open " + user + u"\\command",
                             u"create " + user + u"\\command",
                             u"set " + user + u"\\command||\"/opt/vorlane\" %L",
                         }));
  calls.Calls.clear();
  RemoveVerb(registry);
  EXPECT_EQ(calls.Calls, (std::vector<Text>{u"delete " + system, u"open " + system,
                                            u"delete " + user, u"open " + user}));
}

}  // namespace
}  // namespace vorlane
