#include "filelist/wildcard_box.h"

#include <gtest/gtest.h>

#include "support/form_world.h"

namespace vorlane {
namespace {

struct WildcardBoxTest : testing::Test {
  MemoryWorld Memory;
  Form& State = Memory.World.State;
  WildcardBox Box{State};

  void SetUp() override {
    Box.LoadItems(u"");
    Box.FormVisible = true;
  }
  bool IsListingDue() const { return State.IsTimerRunning(FormTimer::UpdateList); }
};

TEST_F(WildcardBoxTest, AnEmptyStoreOffersAllNamesAndMp3) {
  EXPECT_EQ(State.WildCardItems, (std::vector<Text>{u"*.*", u"*.mp3"}));
}

TEST_F(WildcardBoxTest, StoredItemsAreReadAndWrittenBack) {
  Box.LoadItems(u"*.ogg|a*|*.jpg");
  EXPECT_EQ(State.WildCardItems, (std::vector<Text>{u"*.ogg", u"a*", u"*.jpg"}));
  EXPECT_EQ(Box.StoredItems(), u"*.ogg|a*|*.jpg");
}

TEST_F(WildcardBoxTest, NoItemsAreStoredAsTheEmptyText) {
  State.WildCardItems.clear();
  EXPECT_EQ(Box.StoredItems(), u"");
}

TEST_F(WildcardBoxTest, AChangeListsBehindAPause) {
  Box.cboWildCard_Change(u"a*");
  EXPECT_EQ(State.WildCard, u"a*");
  EXPECT_TRUE(IsListingDue());
}

TEST_F(WildcardBoxTest, EachKeyStartsThePauseAgain) {
  Box.cboWildCard_Change(u"a");
  Memory.World.View.Notes.clear();
  Box.cboWildCard_Change(u"a*");
  EXPECT_TRUE(Memory.World.View.Has(u"timer 2 stopped"));
  EXPECT_TRUE(Memory.World.View.Has(u"timer 2 started"));
}

TEST_F(WildcardBoxTest, AnInvisibleWindowListsNothing) {
  Box.FormVisible = false;
  Box.cboWildCard_Change(u"a*");
  EXPECT_FALSE(IsListingDue());
}

TEST_F(WildcardBoxTest, TheEmptyTextBecomesAllNames) {
  Box.cboWildCard_Change(u"");
  EXPECT_EQ(State.WildCard, u"*.*");
}

TEST_F(WildcardBoxTest, OnlyAThreeLetterExtensionIsRemembered) {
  struct Case {
    Text Typed;
    bool Remembered;
  };
  for (const Case& c : {Case{u"*.ogg", true},
                        {u"*.ogga", false},
                        {u"*.og", false},
                        {u"a.ogg", false},
                        {u"*.?x*", true},
                        {u"*.MP3", false}}) {
    Box.LoadItems(u"");
    Box.cboWildCard_Change(c.Typed);
    EXPECT_EQ(State.WildCardItems.size(), c.Remembered ? 3U : 2U)
        << testing::PrintToString(c.Typed);
  }
}

TEST_F(WildcardBoxTest, AnItemThatBeginsWithTheTextCounts) {
  Box.LoadItems(u"*.jpg;*.png");
  Box.cboWildCard_Change(u"*.JPG");
  EXPECT_EQ(State.WildCardItems.size(), 1U);
}

TEST_F(WildcardBoxTest, TheProgramsOwnTextSetsNothingOffIfItIsThereAlready) {
  Box.SetText(u"*.*");
  EXPECT_FALSE(IsListingDue());
  Box.SetText(u"*.mp3");
  EXPECT_TRUE(IsListingDue());
}

}  // namespace
}  // namespace vorlane
