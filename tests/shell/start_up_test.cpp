#include "shell/start_up.h"

#include <gtest/gtest.h>

#include "shell/stored_values.h"
#include "shell/verb_keys.h"
#include "support/memory_file_system.h"
#include "support/settings_world.h"

namespace vorlane {
namespace {

TEST(CommandLine, IsTheArgumentsJoinedByABlank) {
  EXPECT_EQ(CommandLineOf({}), u"");
  EXPECT_EQ(CommandLineOf({u"/a b"}), u"/a b");
  EXPECT_EQ(CommandLineOf({u"/a", u"", u"b"}), u"/a  b");
  EXPECT_EQ(CommandLineOf({u"", u"b"}), u" b");
}

TEST(CommandLine, OnlyTheExactWordUninstalls) {
  EXPECT_TRUE(IsUninstall(u"/Uninstall"));
  EXPECT_TRUE(IsUninstall(u"--uninstall"));
  for (const TextView line : {u"", u"/uninstall", u"/UNINSTALL", u"/Uninstall ", u" /Uninstall",
                              u"/Uninstall now", u"\"/Uninstall\"", u"Uninstall", u"--Uninstall"}) {
    EXPECT_FALSE(IsUninstall(line));
  }
}

// Says what it was told to say.
class AnsweringPrompter final : public Prompter {
 public:
  explicit AnsweringPrompter(BoxAnswer answer) : answer_(answer) {}
  void Show(BoxIcon, TextView, TextView) override { ADD_FAILURE() << "a box was shown"; }
  BoxAnswer AskYesNo(BoxIcon icon, TextView title, TextView text, BoxAnswer unasked) override {
    Asked.push_back({icon, Text(title), Text(text)});
    Unasked = unasked;
    return answer_;
  }

  std::vector<RecordingPrompter::Box> Asked;
  BoxAnswer Unasked = BoxAnswer::Yes;

 private:
  BoxAnswer answer_;
};

class UninstallTest : public testing::Test, protected SettingsWorld {
 protected:
  UninstallTest() {
    Set(SettingKey::StartPath, u"/a/");
    Settings.SaveSetting(OperationsSection, u"FrontText", u"x");
    WriteVerb(Registry, u"/opt/vorlane");
  }
};

TEST_F(UninstallTest, RemovesTheVerbAndAsks) {
  EXPECT_EQ(Verb.Program, u"/opt/vorlane");
  AnsweringPrompter prompter(BoxAnswer::No);
  Uninstall(Registry, prompter);
  EXPECT_EQ(Verb.Program, u"");
  EXPECT_EQ(prompter.Asked,
            (std::vector<RecordingPrompter::Box>{
                {BoxIcon::Question, u"Vorlane 2006", u"Delete all saved settings?"}}));
  EXPECT_EQ(prompter.Unasked, BoxAnswer::No);
  EXPECT_EQ(Get(SettingKey::StartPath), u"/a/");
}

TEST_F(UninstallTest, YesTakesAllSettings) {
  AnsweringPrompter prompter(BoxAnswer::Yes);
  Uninstall(Registry, prompter);
  EXPECT_EQ(Get(SettingKey::StartPath), u"(none)");
  EXPECT_EQ(Settings.FindSetting(OperationsSection, u"FrontText"), std::nullopt);
  EXPECT_FALSE(Registry.KeyExists(RegistryRoot::CurrentUser, SettingsRoot()));
}

TEST_F(UninstallTest, NothingInstalledIsNoFailure) {
  AnsweringPrompter prompter(BoxAnswer::Yes);
  Uninstall(Registry, prompter);
  Uninstall(Registry, prompter);
  EXPECT_EQ(prompter.Asked.size(), 2U);
}

TEST(ProgramPath, IsEmptyWithoutAFileAtItsPlace) {
  MemoryFileSystem disk;
  disk.Write(u"/home/u/.local/bin/vorlane");
  EXPECT_EQ(FullProgramPath(disk, u"/home/u/.local/bin/vorlane"), u"/home/u/.local/bin/vorlane");
  EXPECT_EQ(FullProgramPath(disk, u"/home/u/.local/bin/gone"), u"");
  EXPECT_EQ(FullProgramPath(disk, u"/home/u/.local/bin"), u"");
  EXPECT_EQ(FullProgramPath(disk, u""), u"");
}

TEST(ProgramPath, HasAFolder) {
  EXPECT_EQ(FolderOf(u"/usr/bin/vorlane", PathStyle::Posix), u"/usr/bin/");
  EXPECT_EQ(FolderOf(u"/vorlane", PathStyle::Posix), u"/");
  EXPECT_EQ(FolderOf(u"C:\\Vorlane\\Vorlane.exe", PathStyle::Windows), u"C:\\Vorlane\\");
}

class StartFolderTest : public testing::Test, protected SettingsWorld {
 protected:
  StartFolderTest() {
    for (const TextView folder : {u"/music/rock/", u"/saved/", u"/program/", u"/here/-rf/",
                                  u"/here/a b/", u"/here/.hidden/"}) {
      Disk.MakeFolder(folder);
    }
    Disk.Write(u"/music/song.mp3");
    Disk.MakeLink(u"/link", u"/music");
  }

  Text Choose(TextView commandLine) {
    return ChooseStartFolder(Disk, Settings, commandLine,
                             {.WorkingFolder = u"/here/", .ProgramFolder = u"/program"},
                             PathStyle::Posix);
  }

  MemoryFileSystem Disk{PathStyle::Posix};
};

TEST_F(StartFolderTest, TheCommandLineComesFirst) {
  Set(SettingKey::StartPath, u"/saved/");
  EXPECT_EQ(Choose(u"/music"), u"/music/");
  EXPECT_EQ(Choose(u"/music/"), u"/music/");
  EXPECT_EQ(Choose(u"/link"), u"/link/");
  EXPECT_EQ(Choose(u"/"), u"/");
}

TEST_F(StartFolderTest, ARelativeCommandLineIsMadeRooted) {
  EXPECT_EQ(Choose(u"a b"), u"/here/a b/");
  EXPECT_EQ(Choose(u"-rf"), u"/here/-rf/");
  EXPECT_EQ(Choose(u".hidden"), u"/here/.hidden/");
  EXPECT_EQ(Choose(u"."), u"/here/");
  EXPECT_EQ(Choose(u".."), u"/");
  EXPECT_EQ(Choose(u"../music/./rock"), u"/music/rock/");
}

TEST_F(StartFolderTest, WhatIsNoFolderIsIgnored) {
  Set(SettingKey::StartPath, u"/saved/");
  for (const TextView line : {u"", u"/music/song.mp3", u"/nowhere", u"\"/music\"", u"/music/*",
                              u"/uninstall", u"/Uninstall now"}) {
    EXPECT_EQ(Choose(line), u"/saved/");
  }
}

TEST_F(StartFolderTest, ARemovedStartPathGivesWayToTheProgramsFolder) {
  for (const TextView stored : {u"", u"/removed/", u"/music/song.mp3"}) {
    Set(SettingKey::StartPath, stored);
    EXPECT_EQ(Choose(u""), u"/program/");
  }
}

TEST_F(StartFolderTest, WithoutSettingsItIsTheProgramsFolder) {
  EXPECT_EQ(Choose(u""), u"/program/");
}

TEST(StartFolderOfWindows, IsRootedByADrive) {
  SettingsWorld store;
  MemoryFileSystem disk(PathStyle::Windows, LetterCase::Ignored);
  disk.MakeFolder(u"C:\\Music");
  const StartPlaces places{.WorkingFolder = u"C:\\", .ProgramFolder = u"C:\\Vorlane\\"};
  const auto choose = [&](TextView line) {
    return ChooseStartFolder(disk, store.Settings, line, places, PathStyle::Windows);
  };
  EXPECT_EQ(choose(u"C:\\Music"), u"C:\\Music\\");
  EXPECT_EQ(choose(u"Music"), u"C:\\Music\\");
  EXPECT_EQ(choose(u"D:\\"), u"C:\\Vorlane\\");
}

}  // namespace
}  // namespace vorlane
