#include "filelist/folder_walk.h"

#include <gtest/gtest.h>

#include "support/form_world.h"

namespace vorlane {
namespace {

struct Walked {
  std::vector<Text> Paths;
  WalkTotals Totals;
};

Walked Walk(MemoryWorld& on, bool includeSubFolders, bool listFolders) {
  FolderWalk walk(on.World.State, on.World.Outside, includeSubFolders, listFolders);
  Walked walked;
  walked.Totals = walk.SearchFolders(u"/R", [] { return false; });
  for (const FoundEntry& entry : walk.Found()) {
    walked.Paths.push_back(on.World.State.Rows.FolderText(entry.Folder) + entry.Name);
  }
  return walked;
}

TEST(FolderWalk, EntriesOfAFolderComeInTheOrderOfTheList) {
  MemoryWorld on;
  for (const Text name : {u"b", u"C", u"a", u"A"}) {
    on.Disk.Write(u"/R/" + name);
  }
  EXPECT_EQ(Walk(on, false, false).Paths, (std::vector<Text>{u"/R/A", u"/R/a", u"/R/b", u"/R/C"}));
}

TEST(FolderWalk, GoesBreadthFirst) {
  MemoryWorld on;
  for (const Text name : {u"x/deep/1", u"x/2", u"y/3", u"4"}) {
    on.Disk.Write(u"/R/" + name);
  }
  const Walked walked = Walk(on, true, false);
  EXPECT_EQ(walked.Paths, (std::vector<Text>{u"/R/4", u"/R/x/2", u"/R/y/3", u"/R/x/deep/1"}));
  EXPECT_EQ(walked.Totals.Entries, 4);
  EXPECT_EQ(walked.Totals.Folders, 3);
  EXPECT_EQ(on.World.Loop.Yields, 4U);  // once for each folder
}

TEST(FolderWalk, WithoutSubFoldersOnlyTheFirstFolderIsRead) {
  MemoryWorld on;
  on.Disk.Write(u"/R/x/1");
  on.Disk.Write(u"/R/2");
  EXPECT_EQ(Walk(on, false, false).Paths, (std::vector<Text>{u"/R/2"}));
  EXPECT_EQ(Walk(on, false, true).Paths, (std::vector<Text>{u"/R/x"}));
}

TEST(FolderWalk, HiddenEntriesAreNotFoundButHiddenFoldersAreWalked) {
  MemoryWorld on;
  on.Disk.Write(u"/R/.secret");
  on.Disk.Write(u"/R/UNDORENAME.TXT");
  on.Disk.Write(u"/R/.git/config");
  EXPECT_EQ(Walk(on, true, false).Paths, (std::vector<Text>{u"/R/.git/config"}));
  EXPECT_TRUE(Walk(on, true, true).Paths.empty());
}

TEST(FolderWalk, LinksCountAsWhatTheyLeadToAndAreNotWalked) {
  MemoryWorld on;
  on.Disk.Write(u"/elsewhere/song");
  on.Disk.MakeFolder(u"/R");
  on.Disk.MakeLink(u"/R/file", u"/elsewhere/song");
  on.Disk.MakeLink(u"/R/folder", u"/elsewhere");
  on.Disk.MakeLink(u"/R/loop", u"/R");
  on.Disk.MakeLink(u"/R/nowhere", u"/gone");
  on.Disk.MakeOther(u"/R/pipe");
  EXPECT_EQ(Walk(on, true, false).Paths, (std::vector<Text>{u"/R/file"}));
  EXPECT_EQ(Walk(on, true, true).Paths, (std::vector<Text>{u"/R/folder", u"/R/loop"}));
}

TEST(FolderWalk, AFolderThatCannotBeReadContributesNothing) {
  MemoryWorld on;
  on.Disk.Write(u"/R/x/1");
  on.Disk.Write(u"/R/y/2");
  on.Disk.SetUnreadable(u"/R/x");
  EXPECT_EQ(Walk(on, true, false).Paths, (std::vector<Text>{u"/R/y/2"}));
  EXPECT_TRUE(on.World.Report.Reports.empty());
}

TEST(FolderWalk, SizesAddUpByTheirLowHalfAsASignedNumber) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a", "12345");
  on.Disk.Write(u"/R/b", "");
  on.Disk.SetReportedSize(u"/R/b", 0xFFFFFFFFULL);
  EXPECT_EQ(Walk(on, false, false).Totals.Size, 4);
}

TEST(FolderWalk, ReadOnlyIsTakenWhileWalking) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a");
  on.Disk.Write(u"/R/b");
  on.Disk.SetReadOnly(u"/R/b");
  FolderWalk walk(on.World.State, on.World.Outside, false, false);
  walk.SearchFolders(u"/R/", [] { return false; });
  EXPECT_FALSE(walk.Found()[0].ReadOnly);
  EXPECT_TRUE(walk.Found()[1].ReadOnly);
}

TEST(FolderWalk, StopsBetweenFolders) {
  MemoryWorld on;
  on.Disk.Write(u"/R/x/1");
  on.Disk.Write(u"/R/y/2");
  FolderWalk walk(on.World.State, on.World.Outside, true, false);
  walk.SearchFolders(u"/R/", [&] { return !walk.Found().empty(); });
  EXPECT_EQ(walk.Found().size(), 1U);
}

TEST(FolderWalk, AStopBetweenReadingAndSortingFindsNothingMore) {
  MemoryWorld on;
  on.Disk.Write(u"/R/x/1");
  on.Disk.Write(u"/R/2");
  bool stopped = false;
  on.World.Loop.OnYield = [&] { stopped = true; };
  FolderWalk walk(on.World.State, on.World.Outside, true, false);
  walk.SearchFolders(u"/R/", [&] { return stopped; });
  EXPECT_TRUE(walk.Found().empty());
  EXPECT_EQ(on.World.Loop.Yields, 1U);
}

}  // namespace
}  // namespace vorlane
