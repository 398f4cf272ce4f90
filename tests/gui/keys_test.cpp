// The keys of the whole window, and the folder tree under keys and mouse.
#include "gui/skin_world.h"

namespace vorlane {
namespace {

struct KeysTest : testing::Test {
  KeysTest() { World.OpenSample(); }
  QStringList Names() { return World.ColumnTexts(Column::CurrentName); }

  WindowWorld World;
};

TEST_F(KeysTest, F5ListsAnew) {
  World.Main.Timers().tmrFileCounter.stop();
  World.Folder.Write("c.txt");
  QTest::keyClick(&World.Main.Window(), Qt::Key_F5);
  EXPECT_EQ(Names(), QStringList({"a.txt", "c.txt"}));
}

TEST_F(KeysTest, CtrlZTakesARunBack) {
  World.Click("cmdGo");
  ASSERT_TRUE(World.Folder.Exists("xa.txt"));
  QTest::keyClick(&World.Main.Window(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(World.Folder.Exists("a.txt"));
  QTest::keyClick(&World.Main.Window(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(World.Folder.Exists("a.txt"));
}

TEST_F(KeysTest, CtrlZInTheWildcardTakesTheTypingBack) {
  World.Click("cmdGo");
  ASSERT_TRUE(World.Folder.Exists("xa.txt"));
  auto& box = World.Find<QComboBox>("cboWildCard");
  box.setFocus();
  QTest::keyClicks(&box, "z");
  QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(box.currentText(), "*.*");
  EXPECT_TRUE(World.Folder.Exists("xa.txt"));
}

TEST_F(KeysTest, CtrlQCloses) {
  QTest::keyClick(&World.Main.Window(), Qt::Key_Q, Qt::ControlModifier);
  EXPECT_FALSE(World.Main.Window().isVisible());
}

TEST_F(KeysTest, EscapeDarkensTheTitle) {
  FrmMain& window = World.Main.Window();
  World.Folder.Write("Skin/Background.gif", BytesOf(Plain(1024, 522)).toStdString());
  Skin(window, World.Files, World.Folder.TextPath()).ApplySkinPictures();
  const auto colour = [&window] {
    return window.Controls().Title->palette().color(QPalette::WindowText);
  };
  QTest::mouseMove(window.windowHandle(), {8, 300});
  QTest::mouseMove(window.windowHandle(), {70, 18});
  ASSERT_EQ(colour(), Qt::white);
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(colour(), QApplication::palette().color(QPalette::WindowText));
}

TEST_F(KeysTest, WithoutBoxesTabGoesOn) {
  auto& operations = World.Find<QWidget>("lstRenamingOperations");
  operations.setFocus();
  QTest::keyClick(&operations, Qt::Key_Tab);
  EXPECT_TRUE(World.Find<QWidget>("lstFileList").hasFocus());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(operations.hasFocus());
}

TEST_F(KeysTest, F6GoesThroughEverything) {
  World.Find<QWidget>("tvwFolders").setFocus();
  QStringList visited;
  for (int i = 0; i < 30; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    visited << QApplication::focusWidget()->objectName();
  }
  for (const char* name : {"lstRenamingOperations", "lstFileList", "cboWildCard", "cmdListFiles",
                           "cmdThisFolderOnly", "cmdDoOne", "cmdGo", "cmdHelp", "cmdExit"}) {
    EXPECT_TRUE(visited.contains(name)) << name;
  }
  EXPECT_FALSE(visited.contains("cmdUndo"));
}

TEST_F(KeysTest, EnterInTheWildcardsOpenListStartsNothing) {
  auto& box = World.Find<QComboBox>("cboWildCard");
  box.showPopup();
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
  box.hidePopup();
  EXPECT_TRUE(World.Folder.Exists("a.txt"));
}

TEST_F(KeysTest, AFolderPickedInTheTreeIsListed) {
  auto& tree = World.Find<QTreeView>("tvwFolders");
  tree.expand(tree.currentIndex());
  const QModelIndex sub = tree.model()->index(0, 0, tree.currentIndex());
  EXPECT_EQ(sub.data().toString(), "sub");
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {},
                    tree.visualRect(sub).topLeft() + QPoint(5, 5));
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return Names() == QStringList({"b.txt"}); }));
}

TEST_F(KeysTest, TheTreeIsWalkedByKeys) {
  auto& tree = World.Find<QTreeView>("tvwFolders");
  tree.setFocus();
  QTest::keyClick(&tree, Qt::Key_Right);
  QTest::keyClick(&tree, Qt::Key_Right);
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return Names() == QStringList({"b.txt"}); }));
  EXPECT_TRUE(tree.hasFocus());
}

TEST_F(KeysTest, WhatTheTreeDoesByItselfIsNoSelection) {
  auto& tree = World.Find<QTreeView>("tvwFolders");
  tree.setCurrentIndex(tree.model()->index(0, 0));
  QTest::qWait(5);
  EXPECT_EQ(Names(), QStringList({"a.txt"}));
}

TEST_F(KeysTest, TheTreeShowsTheFolderThatIsListed) {
  auto& tree = World.Find<QTreeView>("tvwFolders");
  QStringList names;
  for (QModelIndex at = tree.currentIndex(); at.isValid(); at = at.parent()) {
    names.prepend(at.data().toString());
  }
  EXPECT_EQ(names.join('/').mid(1) + "/", QString::fromStdString(World.Folder.Path()));
  EXPECT_TRUE(tree.viewport()->rect().intersects(tree.visualRect(tree.currentIndex())));
}

}  // namespace
}  // namespace vorlane
