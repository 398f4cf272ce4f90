#include "catalogue/favorites.h"

#include <gtest/gtest.h>

#include <map>

#include "support/form_world.h"

namespace vorlane {
namespace {

class SlotsInMemory final : public FavoriteSlots {
 public:
  Text Read(int slot) override { return Folders.contains(slot) ? Folders[slot] : Text(); }
  void Save(int slot, TextView folder) override { Folders[slot] = folder; }
  void Delete(int slot) override { Folders.erase(slot); }

  std::map<int, Text> Folders;
};

struct ShownMenu {
  std::vector<FavoriteLine> Lines;

  // "key|caption", with the picture behind it and "-" in front of a line that can't be chosen.
  std::vector<Text> Shown() const {
    constexpr TextView Icons[] = {u"", u"|save", u"|delete", u"|folder"};
    std::vector<Text> texts;
    for (const FavoriteLine& line : Lines) {
      Text text = line.Enabled ? u"" : u"-";
      text.append(line.Key).append(u"|").append(line.Caption);
      texts.push_back(text.append(Icons[static_cast<std::size_t>(line.Icon)]));
    }
    return texts;
  }
};

class RecordingMenu final : public FavoritesMenu {
 public:
  bool AwaitRelease() override {
    ++Releases;
    EXPECT_TRUE(next_.Lines.empty());
    return StaysWanted;
  }
  void AddItem(const FavoriteLine& line) override { next_.Lines.push_back(line); }
  void Show() override {
    Menus.push_back(std::exchange(next_, {}));
    if (OnShow) {
      OnShow();
    }
  }

  std::vector<ShownMenu> Menus;
  int Releases = 0;
  bool StaysWanted = true;
  std::function<void()> OnShow;

 private:
  ShownMenu next_;
};

struct FavoritesTest : testing::Test {
  MemoryWorld Memory;
  Form& State = Memory.World.State;
  SlotsInMemory Slots;
  RecordingMenu Menu;
  std::vector<Text> WentTo;
  Favorites Rules{State, Memory.Disk, Slots, Menu,
                  [this](const Text& folder) { WentTo.push_back(folder); }};

  void SetUp() override {
    for (const TextView folder : {u"/R/", u"/S/", u"/T/"}) {
      Memory.Disk.MakeFolder(folder);
    }
    State.CurrentPath = u"/R/";
  }
  void FillAll() {
    for (int slot = 0; slot < FavoriteSlotCount; ++slot) {
      Slots.Folders[slot] = u"/S/";
    }
  }
  std::vector<Text> LastMenu() const {
    return Menu.Menus.empty() ? std::vector<Text>{u"no menu"} : Menu.Menus.back().Shown();
  }
};

const std::vector<Text> FiveLines = {u"-|Favorites", u"-Separator|",
                                     u"Add|Add this folder to Favorites...|save",
                                     u"Delete|Delete a Favorite...|delete", u"-Separator|"};

std::vector<Text> WithFavorites(const std::vector<Text>& folders) {
  std::vector<Text> lines = FiveLines;
  for (const Text& folder : folders) {
    lines.push_back(Text(u"Favorite|").append(folder).append(u"|folder"));
  }
  return lines;
}

TEST_F(FavoritesTest, WithoutFavoritesTheMenuHasFiveLines) {
  Rules.ShowMenu(FavoritesAskedBy::Mouse);
  EXPECT_EQ(LastMenu(), FiveLines);
  EXPECT_EQ(Menu.Releases, 1);
}

TEST_F(FavoritesTest, TheKeyboardHasNoReleaseToWaitFor) {
  Rules.ShowMenu(FavoritesAskedBy::Keyboard);
  EXPECT_EQ(LastMenu(), FiveLines);
  EXPECT_EQ(Menu.Releases, 0);
}

TEST_F(FavoritesTest, AMenuThatIsNoLongerWantedDoesntShow) {
  Menu.StaysWanted = false;
  Rules.ShowMenu(FavoritesAskedBy::Mouse);
  EXPECT_TRUE(Menu.Menus.empty());
}

TEST_F(FavoritesTest, FavoritesStandInTheOrderOfTheirSlots) {
  Slots.Folders = {{20, u"/T/"}, {0, u"/S/"}, {3, u"/gone/"}, {7, u""}, {21, u"/R/"}};
  Rules.ShowMenu(FavoritesAskedBy::Mouse);
  EXPECT_EQ(LastMenu(), WithFavorites({u"/S/", u"/gone/", u"/T/"}));
}

TEST_F(FavoritesTest, FavoritesHaveAColorOfTheirOwn) {
  Slots.Folders = {{0, u"/S/"}};
  Rules.ShowMenu(FavoritesAskedBy::Mouse);
  const auto& lines = Menu.Menus.back().Lines;
  EXPECT_EQ(lines.back().ForeColor, 100U * 256 + 100U * 65536);
  for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
    EXPECT_EQ(lines[i].ForeColor, 0xFFFFFFFFU);
  }
}

TEST_F(FavoritesTest, AddTakesTheLowestFreeSlot) {
  Rules.ItemClicked(u"", FavoriteKey::Add);
  EXPECT_EQ(Slots.Folders, (std::map<int, Text>{{0, u"/R/"}}));
  Slots.Folders = {{0, u"/S/"}, {1, u"/T/"}, {3, u"/T/"}};
  Rules.ItemClicked(u"", FavoriteKey::Add);
  EXPECT_EQ(Slots.Folders[2], u"/R/");
}

TEST_F(FavoritesTest, AddTakesTheSlotOfAFolderThatHasGone) {
  Slots.Folders = {{0, u"/S/"}, {1, u"/gone/"}};
  Rules.ItemClicked(u"", FavoriteKey::Add);
  EXPECT_EQ(Slots.Folders, (std::map<int, Text>{{0, u"/S/"}, {1, u"/R/"}}));
}

TEST_F(FavoritesTest, AFavoriteMayStandTwice) {
  Rules.ItemClicked(u"", FavoriteKey::Add);
  Rules.ItemClicked(u"", FavoriteKey::Add);
  EXPECT_EQ(Slots.Folders, (std::map<int, Text>{{0, u"/R/"}, {1, u"/R/"}}));
}

TEST_F(FavoritesTest, WithAllSlotsTakenAnAddGoesNowhere) {
  FillAll();
  Rules.ItemClicked(u"", FavoriteKey::Add);
  EXPECT_EQ(Slots.Folders.size(), 22U);
  EXPECT_EQ(Slots.Folders[21], u"/R/");
  Rules.ShowMenu(FavoritesAskedBy::Mouse);
  EXPECT_EQ(LastMenu(), WithFavorites(std::vector<Text>(21, u"/S/")));
}

TEST_F(FavoritesTest, TheLastSlotIsTakenToo) {
  FillAll();
  Slots.Folders.erase(20);
  Rules.ItemClicked(u"", FavoriteKey::Add);
  EXPECT_EQ(Slots.Folders[20], u"/R/");
  EXPECT_FALSE(Slots.Folders.contains(21));
}

TEST_F(FavoritesTest, DeletableFavoritesAreListedWithoutThoseThatHaveGone) {
  Slots.Folders = {{0, u"/gone/"}, {2, u"/S/"}, {3, u"/gone too/"}, {20, u"/T/"}};
  Rules.ItemClicked(u"", FavoriteKey::Delete);
  EXPECT_EQ(LastMenu(), (std::vector<Text>{u"-|Delete Favorite", u"-Separator|",
                                           u"FavoriteDelete|/S/", u"FavoriteDelete|/T/"}));
  EXPECT_EQ(Slots.Folders, (std::map<int, Text>{{2, u"/S/"}, {20, u"/T/"}}));
  EXPECT_EQ(Menu.Releases, 0);
}

TEST_F(FavoritesTest, WithNothingToDeleteNoMenuShows) {
  Rules.ItemClicked(u"", FavoriteKey::Delete);
  EXPECT_TRUE(Menu.Menus.empty());
  Slots.Folders = {{0, u"/gone/"}, {1, u""}};
  Rules.ItemClicked(u"", FavoriteKey::Delete);
  EXPECT_TRUE(Menu.Menus.empty());
  EXPECT_FALSE(Slots.Folders.contains(0));
}

TEST_F(FavoritesTest, ADeletedFavoriteLeavesAGap) {
  Slots.Folders = {{0, u"/R/"}, {1, u"/S/"}, {2, u"/T/"}};
  Rules.ItemClicked(u"/S/", FavoriteKey::FavoriteDelete);
  EXPECT_EQ(Slots.Folders, (std::map<int, Text>{{0, u"/R/"}, {2, u"/T/"}}));
  Rules.ItemClicked(u"/T/", FavoriteKey::FavoriteDelete);  // past the gap
  EXPECT_EQ(Slots.Folders, (std::map<int, Text>{{0, u"/R/"}}));
}

TEST_F(FavoritesTest, OfTwoEqualFavoritesTheFirstOneGoes) {
  Slots.Folders = {{1, u"/S/"}, {4, u"/S/"}};
  Rules.ItemClicked(u"/S/", FavoriteKey::FavoriteDelete);
  EXPECT_EQ(Slots.Folders, (std::map<int, Text>{{4, u"/S/"}}));
}

TEST_F(FavoritesTest, AFolderThatHasGoneMeanwhileGoesInPlaceOfTheChosenOne) {
  Slots.Folders = {{0, u"/R/"}, {1, u"/gone/"}, {2, u"/T/"}};
  Rules.ItemClicked(u"/T/", FavoriteKey::FavoriteDelete);
  EXPECT_EQ(Slots.Folders, (std::map<int, Text>{{0, u"/R/"}, {2, u"/T/"}}));
}

TEST_F(FavoritesTest, TheChosenOneIsComparedExactly) {
  Slots.Folders = {{0, u"/S/"}};
  for (const TextView other : {u"/s/", u"/S", u""}) {
    Rules.ItemClicked(other, FavoriteKey::FavoriteDelete);
    EXPECT_EQ(Slots.Folders.size(), 1U);
  }
}

TEST_F(FavoritesTest, AFavoriteIsGoneTo) {
  Rules.ItemClicked(u"/S/", FavoriteKey::Favorite);
  EXPECT_EQ(WentTo, (std::vector<Text>{u"/S/"}));
}

TEST_F(FavoritesTest, AFavoriteThatHasGoneDoesNothing) {
  Slots.Folders = {{0, u"/gone/"}};
  Rules.ItemClicked(u"/gone/", FavoriteKey::Favorite);
  Rules.ItemClicked(u"", FavoriteKey::Favorite);
  EXPECT_TRUE(WentTo.empty());
  EXPECT_EQ(Slots.Folders.size(), 1U);
}

TEST_F(FavoritesTest, OtherLinesDoNothing) {
  Rules.ItemClicked(u"Favorites", FavoriteKey::Heading);
  Rules.ItemClicked(u"", FavoriteKey::Separator);
  Rules.ItemClicked(u"/S/", u"favorite");
  EXPECT_TRUE(WentTo.empty());
  EXPECT_TRUE(Menu.Menus.empty());
  EXPECT_TRUE(Slots.Folders.empty());
}

TEST_F(FavoritesTest, NothingHappensInTheMiddleOfARunOrAnUndo) {
  Slots.Folders = {{0, u"/S/"}};
  const auto tryAll = [&] {
    Rules.ShowMenu(FavoritesAskedBy::Mouse);
    Rules.ShowMenu(FavoritesAskedBy::Keyboard);
    Rules.ItemClicked(u"", FavoriteKey::Add);
    Rules.ItemClicked(u"", FavoriteKey::Delete);
    Rules.ItemClicked(u"/S/", FavoriteKey::FavoriteDelete);
    Rules.ItemClicked(u"/S/", FavoriteKey::Favorite);
  };
  for (const JobState state : {JobState::Running, JobState::StopRequested}) {
    State.Jobs.BatchState = state;
    tryAll();
  }
  State.Jobs.BatchState = JobState::Idle;
  {
    const JournalInUse undo(State);
    tryAll();
  }
  EXPECT_TRUE(Menu.Menus.empty());
  EXPECT_EQ(Menu.Releases, 0);
  EXPECT_TRUE(WentTo.empty());
  EXPECT_EQ(Slots.Folders, (std::map<int, Text>{{0, u"/S/"}}));
}

TEST_F(FavoritesTest, AListingOrAPreviewBarsNothing) {
  State.Jobs.ListingState = JobState::Running;
  State.Jobs.PreviewState = JobState::Running;
  Rules.ShowMenu(FavoritesAskedBy::Mouse);
  Rules.ItemClicked(u"/S/", FavoriteKey::Favorite);
  EXPECT_EQ(Menu.Menus.size(), 1U);
  EXPECT_EQ(WentTo.size(), 1U);
}

TEST_F(FavoritesTest, AFavoriteIsDeletedFromTheMenuInTheMenu) {
  Slots.Folders = {{0, u"/S/"}};
  Menu.OnShow = [&] {
    if (Menu.Menus.size() == 1) {
      Rules.ItemClicked(u"Delete a Favorite...", FavoriteKey::Delete);
    } else {
      Rules.ItemClicked(u"/S/", FavoriteKey::FavoriteDelete);
    }
  };
  Rules.ShowMenu(FavoritesAskedBy::Mouse);
  EXPECT_EQ(Menu.Menus.size(), 2U);
  EXPECT_TRUE(Slots.Folders.empty());
}

}  // namespace
}  // namespace vorlane
