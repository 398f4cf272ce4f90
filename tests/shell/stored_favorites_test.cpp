#include "shell/stored_favorites.h"

#include <gtest/gtest.h>

#include "support/settings_world.h"

namespace vorlane {
namespace {

struct StoredFavoritesTest : testing::Test {
  SettingsWorld World;
  StoredFavorites Slots{World.Settings};
};

TEST_F(StoredFavoritesTest, ASlotIsASettingOfTwoDigits) {
  Slots.Save(0, u"/first/");
  Slots.Save(9, u"/tenth/");
  Slots.Save(20, u"/last/");
  EXPECT_EQ(World.Get(u"Favorite_00"), u"/first/");
  EXPECT_EQ(World.Get(u"Favorite_09"), u"/tenth/");
  EXPECT_EQ(World.Get(u"Favorite_20"), u"/last/");
  EXPECT_EQ(Slots.Read(20), u"/last/");
}

TEST_F(StoredFavoritesTest, ASlotThatWasNeverFilledIsEmpty) {
  EXPECT_EQ(Slots.Read(3), u"");
}

TEST_F(StoredFavoritesTest, ASlotsSettingIsDeleted) {
  Slots.Save(3, u"/x/");
  Slots.Delete(3);
  EXPECT_EQ(World.Get(u"Favorite_03"), u"(none)");
  Slots.Delete(3);
}

TEST_F(StoredFavoritesTest, AnyFolderComesBackAsItWas) {
  const Text odd = u"/a, b=c/\\n \n\xDC80/";
  Slots.Save(1, odd);
  EXPECT_EQ(Slots.Read(1), odd);
}

TEST_F(StoredFavoritesTest, AFileThatTakesNothingIsPassedOver) {
  Slots.Save(1, u"/x/");
  World.File.Denied = true;
  EXPECT_NO_THROW(Slots.Save(1, u"/y/"));
  EXPECT_NO_THROW(Slots.Save(2, u"/y/"));
  EXPECT_NO_THROW(Slots.Delete(1));
  EXPECT_TRUE(World.Boxes.Boxes.empty());
  EXPECT_EQ(Slots.Read(1), u"/x/");
  EXPECT_EQ(Slots.Read(2), u"");
}

TEST_F(StoredFavoritesTest, TheyGoWithAllSettings) {
  Slots.Save(1, u"/x/");
  EXPECT_TRUE(DeleteAllSettings(World.Registry));
  EXPECT_EQ(Slots.Read(1), u"");
}

TEST_F(StoredFavoritesTest, ASlotThatHoldsNoTextIsEmpty) {
  World.File.Set(
      "[Software\\VB and VBA Program Settings\\Vorlane 2006\\Settings]\nFavorite_03=binary:01 "
      "02\n");
  EXPECT_EQ(Slots.Read(3), u"");
}

}  // namespace
}  // namespace vorlane
