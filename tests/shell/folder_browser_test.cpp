#include "shell/folder_browser.h"

#include <gtest/gtest.h>

#include "batch/undo_journal.h"
#include "support/form_world.h"

namespace vorlane {
namespace {

class RecordingTree final : public FolderTree {
 public:
  void ShowFolder(const Text& path) override { Shown.push_back(path); }
  std::vector<Text> Shown;
};

struct FolderBrowserTest : testing::Test {
  MemoryWorld Memory;
  FormWorld& World = Memory.World;
  Form& State = World.State;
  RecordingTree Tree;
  FolderBrowser Browser{State, World.Outside, World.List, Tree};

  void SetUp() override {
    Memory.Disk.MakeFolder(u"/R/");
    Memory.Disk.MakeFolder(u"/S/");
    Memory.Disk.Write(u"/R/in r");
    Memory.Disk.Write(u"/S/in s");
  }
  void LeaveJournal(TextView folder) {
    UndoJournal(Memory.Disk, World.Report, State.Paths).CreateUndoFile(folder);
  }
  bool HasJournal(TextView folder) { return JournalExists(Memory.Disk, folder); }
};

TEST_F(FolderBrowserTest, TheStartListsTheFolderAndDeletesAnOldJournalThere) {
  LeaveJournal(u"/R/");
  Browser.ShowFolderBrowser(u"/R");
  EXPECT_EQ(State.CurrentPath, u"/R/");
  EXPECT_EQ(Tree.Shown, (std::vector<Text>{u"/R/"}));
  EXPECT_EQ(World.Names(), (std::vector<Text>{u"in r"}));
  EXPECT_FALSE(HasJournal(u"/R/"));
}

TEST_F(FolderBrowserTest, ASelectionDeletesTheJournalOfTheFolderThatIsLeft) {
  Browser.ShowFolderBrowser(u"/R");
  LeaveJournal(u"/R/");
  LeaveJournal(u"/S/");
  Browser.SelectionChanged(u"/S");
  EXPECT_FALSE(HasJournal(u"/R/"));
  EXPECT_TRUE(HasJournal(u"/S/"));
  EXPECT_EQ(State.CurrentPath, u"/S/");
  EXPECT_EQ(World.Names(), (std::vector<Text>{u"in s"}));
}

TEST_F(FolderBrowserTest, SomebodysOwnFileOfTheJournalsNameStays) {
  Browser.ShowFolderBrowser(u"/R");
  Memory.Disk.Write(JournalPath(u"/R/"), "my own notes");
  Browser.SelectionChanged(u"/S");
  EXPECT_TRUE(HiddenFileExists(Memory.Disk, JournalPath(u"/R/")));
}

TEST_F(FolderBrowserTest, ASelectionGoesBackToThisFolderOnly) {
  Browser.ShowFolderBrowser(u"/R");
  State.IncludeSubFolders = true;
  World.View.Notes.clear();
  Browser.SelectionChanged(u"/S");
  EXPECT_FALSE(State.IncludeSubFolders);
  EXPECT_TRUE(World.View.Has(u"modes"));
}

TEST_F(FolderBrowserTest, ANodeWithoutAPathChangesNothing) {
  Browser.ShowFolderBrowser(u"/R");
  World.View.Notes.clear();
  Browser.SelectionChanged(u"");
  EXPECT_EQ(State.CurrentPath, u"/R/");
  EXPECT_TRUE(World.View.Notes.empty());
}

TEST_F(FolderBrowserTest, AFolderThatHasVanishedGivesWayToTheRoot) {
  Browser.ShowFolderBrowser(u"/R");
  Browser.SelectionChanged(u"/gone");
  EXPECT_EQ(State.CurrentPath, u"/");
  EXPECT_EQ(Tree.Shown.back(), u"/");
}

TEST_F(FolderBrowserTest, ASelectionInTheMiddleOfARunLeavesItsJournalAlone) {
  Browser.ShowFolderBrowser(u"/R");
  LeaveJournal(u"/R/");
  {
    const JournalInUse undo(State);
    Browser.SelectionChanged(u"/S");
  }
  State.Jobs.BatchState = JobState::Running;
  Browser.SelectionChanged(u"/S");
  EXPECT_EQ(State.CurrentPath, u"/R/");
  EXPECT_TRUE(HasJournal(u"/R/"));
}

TEST_F(FolderBrowserTest, ADropDeletesTheJournalOfTheDroppedFolderAndKeepsTheOther) {
  Browser.ShowFolderBrowser(u"/R");
  LeaveJournal(u"/R/");
  LeaveJournal(u"/S/");
  Browser.FolderDropped({u"/S"});
  EXPECT_TRUE(HasJournal(u"/R/"));
  EXPECT_FALSE(HasJournal(u"/S/"));
  EXPECT_EQ(State.CurrentPath, u"/S/");
  EXPECT_EQ(Tree.Shown.back(), u"/S/");
  EXPECT_EQ(World.Names(), (std::vector<Text>{u"in s"}));
}

TEST_F(FolderBrowserTest, OnlyOneFolderCanBeDropped) {
  Browser.ShowFolderBrowser(u"/R");
  for (const std::vector<Text>& drop :
       {std::vector<Text>{}, {u"/S/in s"}, {u"/S", u"/R"}, {u"/gone"}}) {
    Browser.FolderDropped(drop);
    EXPECT_EQ(State.CurrentPath, u"/R/");
  }
}

TEST_F(FolderBrowserTest, ADropWhileAJobIsAtWorkIsIgnored) {
  Browser.ShowFolderBrowser(u"/R");
  State.Jobs.BatchState = JobState::Running;
  Browser.FolderDropped({u"/S"});
  EXPECT_EQ(State.CurrentPath, u"/R/");
}

}  // namespace
}  // namespace vorlane
