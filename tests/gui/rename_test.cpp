// The main job with the mouse: a folder, an operation, Go and Undo, on real files.
#include "gui/window_world.h"

namespace vorlane {
namespace {

struct RenameTest : testing::Test {
  RenameTest() {
    for (const char* name : {"b.txt", "a.txt", "c.TXT"}) {
      World.Folder.Write(name, name);
    }
    World.LoadOperations({u"Operation Name:\tCase", u"", u"Operation Name:\t\tUpper",
                          u"Step: <UPPERCASE><NAMEONLY></UPPERCASE><EXTONLY>",
                          u"Help Message: Capital letters", u"Available Boxes: 0", u"",
                          u"Operation Name:\t\tMusic", u"Step: <FILENAME>", u"Help Message: Music",
                          u"Wildcard: *.TXT", u"Available Boxes: 0", u""});
    World.Main.SelectOperation(1);
    World.Open(World.Folder.Path());
  }

  void ClickOperation(const char* title) {
    auto& tree = World.Find<QTreeWidget>("lstRenamingOperations");
    QTreeWidgetItem* item =
        tree.findItems(QString::fromLatin1(title), Qt::MatchExactly | Qt::MatchRecursive).value(0);
    ASSERT_NE(item, nullptr);
    tree.scrollToItem(item);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(item).center());
    QTest::qWait(0);
  }

  WindowWorld World;
};

TEST_F(RenameTest, AnOperationShowsEveryNewNameAndGoRenames) {
  EXPECT_EQ(World.ColumnTexts(Column::CurrentName), QStringList({"a.txt", "b.txt", "c.TXT"}));
  ClickOperation("Upper");
  EXPECT_EQ(World.ColumnTexts(Column::ProposedName), QStringList({"A.txt", "B.txt", "C.TXT"}));
  EXPECT_EQ(World.Find<QWidget>("cmdHelp").toolTip(), "Capital letters");

  World.Click("cmdDoOne");
  EXPECT_TRUE(World.Find<QWidget>("cmdDoAll").isVisible());
  EXPECT_FALSE(World.Find<QWidget>("cmdDoOne").isVisible());
  World.Click("cmdGo");
  EXPECT_TRUE(World.Folder.Exists("A.txt"));
  EXPECT_EQ(World.Folder.Read("B.txt"), "b.txt");
  EXPECT_FALSE(World.Folder.Exists("a.txt"));
  EXPECT_TRUE(World.Find<QWidget>("cmdUndo").isEnabled());
  EXPECT_TRUE(World.Find<QWidget>("cmdGo").isVisible());
  EXPECT_FALSE(World.Find<QWidget>("cmdStop").isVisible());
  EXPECT_TRUE(World.Find<QLabel>("lblStatus").text().startsWith("Ready - Time taken: "));
  EXPECT_EQ(World.Find<QProgressBar>("objProgressBar").value(), 100);

  World.Click("cmdUndo");
  EXPECT_EQ(World.ColumnTexts(Column::CurrentName), QStringList({"a.txt", "b.txt", "c.TXT"}));
  EXPECT_FALSE(World.Folder.Exists("UNDORENAME.TXT"));
  EXPECT_FALSE(World.Find<QWidget>("cmdUndo").isEnabled());
  EXPECT_EQ(World.Find<QLabel>("lblStatus").text(), "Undo complete");
}

TEST_F(RenameTest, InOneModeGoDoesTheSelectedRowAndGoesToTheNext) {
  ClickOperation("Upper");
  World.Click("cmdGo");
  EXPECT_TRUE(World.Folder.Exists("A.txt"));
  EXPECT_TRUE(World.Folder.Exists("b.txt"));
  EXPECT_EQ(World.Find<QTreeView>("lstFileList").currentIndex().row(), 1);
  World.Click("cmdGo");
  EXPECT_TRUE(World.Folder.Exists("B.txt"));
}

TEST_F(RenameTest, AnOperationsWildcardListsItsFiles) {
  ClickOperation("Music");
  EXPECT_EQ(World.Find<QComboBox>("cboWildCard").currentText(), "*.TXT");
  EXPECT_EQ(World.ColumnTexts(Column::CurrentName).size(), 3);
  World.Folder.Write("d.ogg");
  ClickOperation("Upper");
  EXPECT_EQ(World.Find<QComboBox>("cboWildCard").currentText(), "*.*");
  EXPECT_EQ(World.ColumnTexts(Column::CurrentName).size(), 4);
}

TEST_F(RenameTest, FolderModeRenamesFolders) {
  World.Folder.MakeFolder("sub");
  ClickOperation("Upper");
  World.Click("cmdListFiles");
  EXPECT_TRUE(World.Find<QWidget>("cmdListFolders").isVisible());
  EXPECT_EQ(World.ColumnTexts(Column::CurrentName), QStringList({"sub"}));
  EXPECT_TRUE(WindowWorld::WaitFor(
      [&] { return World.Find<QLabel>("lblFileStatus").text() == "1 Folder(s)"; }));
  World.Click("cmdGo");
  EXPECT_TRUE(World.Folder.Exists("SUB"));
}

TEST_F(RenameTest, SubFoldersAreListedOnDemandAndLeftOutAgainInAnotherFolder) {
  World.Folder.Write("sub/deep.txt");
  World.Click("cmdThisFolderOnly");
  EXPECT_TRUE(World.ColumnTexts(Column::CurrentName).contains("deep.txt"));
  EXPECT_TRUE(World.Find<QWidget>("cmdIncludeSubFolders").isVisible());
  World.Open(World.Folder.Path() + "sub");
  EXPECT_FALSE(World.Find<QWidget>("cmdIncludeSubFolders").isVisible());
  EXPECT_EQ(World.ColumnTexts(Column::CurrentName), QStringList({"deep.txt"}));
}

TEST_F(RenameTest, AHeadingLeavesTheProposalsAndTheWildcard) {
  ClickOperation("Upper");
  ClickOperation("Case");
  EXPECT_EQ(World.Find<QWidget>("cmdHelp").toolTip(), "Help");
  EXPECT_FALSE(World.Find<QWidget>("txtRenameOption(0)").isVisible());
}

}  // namespace
}  // namespace vorlane
