#include "shell/settings.h"

#include <gtest/gtest.h>

#include "support/settings_world.h"

namespace vorlane {
namespace {

constexpr auto User = RegistryRoot::CurrentUser;

class SettingsTest : public testing::Test, protected SettingsWorld {};

TEST_F(SettingsTest, AreTextsUnderTheApplicationsTitle) {
  EXPECT_TRUE(Settings.SaveSetting(u"Settings", u"StartPath", u"/home/a, b/c\\d/"));
  EXPECT_TRUE(Settings.SaveSetting(u"Operations", u"Front=Text", u""));
  EXPECT_EQ(File.Bytes(),
            "[Software\\VB and VBA Program Settings\\Vorlane 2006\\Settings]\n"
            "StartPath=sz:/home/a, b/c\\\\d/\n"
            "\n"
            "[Software\\VB and VBA Program Settings\\Vorlane 2006\\Operations]\n"
            "Front\\=Text=sz:\n");
  EXPECT_EQ(Settings.GetSetting(u"settings", u"STARTPATH", u"default"), u"/home/a, b/c\\d/");
  EXPECT_EQ(Settings.GetSetting(u"Operations", u"Front=Text", u"default"), u"");
}

TEST_F(SettingsTest, WhatIsntThereGivesTheDefaultOfTheCall) {
  EXPECT_EQ(Get(u"StartPath"), u"(none)");
  Set(u"StartPath", u"x");
  EXPECT_EQ(Settings.GetSetting(u"Operations", u"StartPath", u""), u"");
  EXPECT_EQ(Settings.GetSetting(u"Settings", u"Left", u"7"), u"7");
  EXPECT_EQ(Settings.FindSetting(u"Settings", u"Left"), std::nullopt);
}

TEST_F(SettingsTest, OtherTypesThatAHandWrote) {
  File.Set(
      "[Software\\VB and VBA Program Settings\\Vorlane 2006\\Settings]\n"
      "Context=dword:0\nLeft=binary:00\n");
  EXPECT_EQ(Get(u"Context"), u"0");
  EXPECT_EQ(Get(u"Left"), u"(none)");
}

TEST_F(SettingsTest, AreReadAnewEachTime) {
  Set(u"Left", u"1");
  EXPECT_EQ(Get(u"Left"), u"1");
  vorlane::Settings other(Stored);
  other.SaveSetting(u"Settings", u"Left", u"2");
  EXPECT_EQ(Get(u"Left"), u"2");
}

TEST_F(SettingsTest, ADeletedSettingHasItsDefaultAgain) {
  Set(u"Favorite_00", u"/a/");
  EXPECT_TRUE(Settings.DeleteSetting(u"Settings", u"Favorite_00"));
  EXPECT_FALSE(Settings.DeleteSetting(u"Settings", u"Favorite_00"));
  EXPECT_FALSE(Settings.DeleteSetting(u"Nowhere", u"Favorite_00"));
  EXPECT_EQ(Get(u"Favorite_00"), u"(none)");
}

TEST_F(SettingsTest, WhatCantBeSavedIsQuiet) {
  File.Denied = true;
  EXPECT_FALSE(Settings.SaveSetting(u"Settings", u"Left", u"1"));
  EXPECT_FALSE(Settings.DeleteSetting(u"Settings", u"Left"));
  EXPECT_EQ(Get(u"Left"), u"(none)");
  EXPECT_TRUE(Boxes.Boxes.empty());
}

TEST_F(SettingsTest, RememberedBoxesHaveTheirSection) {
  SettingsBoxMemory memory(Settings);
  EXPECT_EQ(memory.Recall(u"FrontText"), std::nullopt);
  memory.Keep(u"FrontText", u"New ");
  memory.Keep(u"Empty", u"");
  EXPECT_EQ(memory.Recall(u"FrontText"), u"New ");
  EXPECT_EQ(memory.Recall(u"Empty"), u"");
  EXPECT_EQ(Settings.GetSetting(OperationsSection, u"FrontText", u""), u"New ");
}

TEST_F(SettingsTest, TheYearBeforeIsCopiedOnce) {
  File.Set(
      "[Software\\VB and VBA Program Settings\\Vorlane 2005\\Settings]\nStartPath=sz:/a/\n"
      "[Software\\VB and VBA Program Settings\\Vorlane 2005\\Operations]\nFrontText=sz:x\n");
  EXPECT_FALSE(UpgradeSettings(Registry));
  EXPECT_EQ(Get(u"StartPath"), u"/a/");
  EXPECT_EQ(Settings.GetSetting(OperationsSection, u"FrontText", u""), u"x");
  vorlane::Settings before(Stored, u"Vorlane 2005");
  EXPECT_EQ(before.GetSetting(SettingsSection, u"StartPath", u""), u"/a/");

  before.SaveSetting(SettingsSection, u"StartPath", u"/b/");
  EXPECT_FALSE(UpgradeSettings(Registry));
  EXPECT_EQ(Get(u"StartPath"), u"/a/");
}

TEST_F(SettingsTest, ARootWithoutSettingsIsNotCopiedOver) {
  File.Set(
      "[Software\\VB and VBA Program Settings\\Vorlane 2005\\Settings]\nStartPath=sz:/a/\n"
      "[Software\\VB and VBA Program Settings\\Vorlane 2006]\n");
  EXPECT_FALSE(UpgradeSettings(Registry));
  EXPECT_EQ(Get(u"StartPath"), u"(none)");
}

TEST_F(SettingsTest, TheFirstStartIsWithoutAnySettings) {
  EXPECT_TRUE(UpgradeSettings(Registry));
  EXPECT_EQ(File.Bytes(), "");
  Set(u"StartPath", u"/a/");
  EXPECT_FALSE(UpgradeSettings(Registry));
}

TEST_F(SettingsTest, DeletingAllTakesBothSections) {
  Set(u"StartPath", u"/a/");
  Settings.SaveSetting(OperationsSection, u"FrontText", u"x");
  vorlane::Settings others(Stored, u"Another Program");
  others.SaveSetting(u"Settings", u"A", u"1");
  EXPECT_TRUE(DeleteAllSettings(Registry));
  EXPECT_FALSE(Registry.KeyExists(User, SettingsRoot()));
  EXPECT_EQ(File.Bytes(),
            "[Software\\VB and VBA Program Settings\\Another Program\\Settings]\nA=sz:1\n");
  EXPECT_FALSE(DeleteAllSettings(Registry));
}

}  // namespace
}  // namespace vorlane
