// The tree's folders, read from a disk in memory.
#include <gtest/gtest.h>

#include <QSignalSpy>

#include "support/memory_file_system.h"
#include "ui/folder_tree_model.h"
#include "ui/qt_text.h"

namespace vorlane {
namespace {

struct FolderTreeTest : testing::Test {
  FolderTreeTest() {
    for (const char16_t* folder : {u"/b/", u"/A/", u"/a/", u"/.hidden/", u"/b/deep/"}) {
      Disk.MakeFolder(folder);
    }
    Disk.Write(u"/b/file");
  }
  QStringList NamesIn(const QModelIndex& folder) {
    while (Model.canFetchMore(folder)) {
      Model.fetchMore(folder);
    }
    QStringList names;
    for (int row = 0; row < Model.rowCount(folder); ++row) {
      names << Model.index(row, 0, folder).data().toString();
    }
    return names;
  }

  MemoryFileSystem Disk{PathStyle::Posix, LetterCase::Matters};
  FolderTreeModel Model{Disk};
};

TEST_F(FolderTreeTest, BeginsWithTheRootAndReadsAFolderWhenItIsOpened) {
  EXPECT_EQ(NamesIn({}), QStringList({"/"}));
  const QModelIndex root = Model.index(0, 0, {});
  EXPECT_EQ(Model.rowCount(root), 0);
  EXPECT_TRUE(Model.hasChildren(root));
  EXPECT_EQ(NamesIn(root), QStringList({"A", "a", "b"}));
}

TEST_F(FolderTreeTest, ShowsFoldersAlone) {
  EXPECT_EQ(NamesIn(Model.Find(u"/b/")), QStringList({"deep"}));
  const QModelIndex deep = Model.Find(u"/b/deep/");
  EXPECT_TRUE(Model.hasChildren(deep));  // until it is opened nobody knows
  EXPECT_EQ(NamesIn(deep), QStringList());
  EXPECT_FALSE(Model.hasChildren(deep));
}

TEST_F(FolderTreeTest, FindsAFolderByItsPathAndTellsThePathOfAFolder) {
  for (const char16_t* path : {u"/", u"/a/", u"/b/deep/"}) {
    EXPECT_EQ(Model.PathOf(Model.Find(path)), path);
  }
  EXPECT_FALSE(Model.Find(u"/b/none/").isValid());
  EXPECT_FALSE(Model.Find(u"/b/file/").isValid());
  EXPECT_EQ(Model.PathOf({}), u"");
}

TEST_F(FolderTreeTest, AHiddenFolderIsShownOnceItIsAskedFor) {
  EXPECT_EQ(Model.PathOf(Model.Find(u"/.hidden/")), u"/.hidden/");
  EXPECT_EQ(NamesIn(Model.index(0, 0, {})), QStringList({".hidden", "A", "a", "b"}));
  Model.Refresh(Model.index(0, 0, {}));
  EXPECT_TRUE(NamesIn(Model.index(0, 0, {})).contains(".hidden"));
}

TEST_F(FolderTreeTest, ARefreshBringsNewFoldersAndTakesThoseThatHaveGone) {
  const QModelIndex root = Model.index(0, 0, {});
  NamesIn(root);
  NamesIn(Model.Find(u"/b/"));
  QSignalSpy added(&Model, &QAbstractItemModel::rowsInserted);
  QSignalSpy removed(&Model, &QAbstractItemModel::rowsRemoved);
  Disk.MakeFolder(u"/aa/");
  Disk.RemoveFolder(u"/A/");
  Model.Refresh(root);
  EXPECT_EQ(NamesIn(root), QStringList({"a", "aa", "b"}));
  EXPECT_EQ(added.size(), 1);
  EXPECT_EQ(removed.size(), 1);
  EXPECT_EQ(NamesIn(Model.Find(u"/b/")), QStringList({"deep"}));
}

TEST_F(FolderTreeTest, AFolderThatCannotBeReadIsEmpty) {
  const QModelIndex deep = Model.Find(u"/b/deep/");
  Disk.RemoveFolder(u"/b/deep/");
  EXPECT_EQ(NamesIn(deep), QStringList());
}

}  // namespace
}  // namespace vorlane
