// The list on the screen.
#include "gui/window_world.h"
#include "support/id3_bytes.h"

namespace vorlane {
namespace {

struct FileListWindowTest : testing::Test {
  FileListWindowTest() {
    World.LoadOperations({u"Operation Name:\tX", u"Step: x<FILENAME>", u"Help Message: h",
                          u"Available Boxes: 0", u""});
    World.Main.SelectOperation(1);
  }
  void WriteFiles(int count) {
    for (int i = 0; i < count; ++i) {
      World.Folder.Write("f" + std::to_string(1000 + i));
    }
  }
  QTreeView& List() { return World.Find<QTreeView>("lstFileList"); }
  QStringList Names() { return World.ColumnTexts(Column::CurrentName); }

  WindowWorld World;
};

TEST_F(FileListWindowTest, HasItsHeadings) {
  QStringList headings;
  for (int column = 0; column < 8; ++column) {
    headings << List().model()->headerData(column, Qt::Horizontal).toString();
  }
  EXPECT_EQ(headings, QStringList({"Current Name", "Proposed Name", "Existing Artist",
                                   "Existing Title", "ID3v1", "ID3v2", "Read Only", "Path"}));
}

TEST_F(FileListWindowTest, AHeaderClickSortsAndTheNextOneTurnsRound) {
  WriteFiles(3);
  World.Open(World.Folder.Path());
  QHeaderView& header = *List().header();
  const QPoint first(header.sectionViewportPosition(0) + 5, header.height() / 2);
  QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, first);
  EXPECT_EQ(Names(), QStringList({"f1002", "f1001", "f1000"}));
  EXPECT_EQ(header.sortIndicatorOrder(), Qt::DescendingOrder);
  EXPECT_EQ(List().currentIndex().row(), 2);  // the selection follows its row
  QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, first);
  EXPECT_EQ(Names(), QStringList({"f1000", "f1001", "f1002"}));
}

TEST_F(FileListWindowTest, OnlyVisibleRowsArePreviewedUntilTheyScrollIntoView) {
  WriteFiles(300);
  World.Open(World.Folder.Path());
  EXPECT_EQ(World.ColumnTexts(Column::ProposedName).front(), "xf1000");
  EXPECT_EQ(World.ColumnTexts(Column::ProposedName).back(), "");
  List().scrollToBottom();
  EXPECT_TRUE(WindowWorld::WaitFor(
      [&] { return World.ColumnTexts(Column::ProposedName).back() == "xf1299"; }));
}

TEST_F(FileListWindowTest, ADoubleClickOnTheCountPreviewsAll) {
  WriteFiles(300);
  World.Open(World.Folder.Path());
  EXPECT_TRUE(WindowWorld::WaitFor(
      [&] { return World.Find<QLabel>("lblFileStatus").text() == "300 File(s)"; }));
  QTest::mouseDClick(&World.Find<QLabel>("lblFileStatus"), Qt::LeftButton);
  EXPECT_FALSE(World.ColumnTexts(Column::ProposedName).contains(QString()));
}

TEST_F(FileListWindowTest, IsHiddenWhileOver501RowsAreAdded) {
  for (const auto& [count, hidden] : {std::pair(501, false), {502, true}}) {
    WriteFiles(count);
    bool wasHidden = false;
    QObject watcher;
    struct Watch : QObject {
      bool* Hidden;
      bool eventFilter(QObject*, QEvent* event) override {
        *Hidden = *Hidden || event->type() == QEvent::Hide;
        return false;
      }
    } watch;
    watch.Hidden = &wasHidden;
    List().installEventFilter(&watch);
    World.Open(World.Folder.Path());
    EXPECT_EQ(wasHidden, hidden) << count;
    EXPECT_TRUE(List().isVisible());
    EXPECT_EQ(Names().size(), count);
  }
}

TEST_F(FileListWindowTest, KeepsTheFocusThroughAListing) {
  WriteFiles(600);
  World.Open(World.Folder.Path());
  World.Main.Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&World.Main.Window()));
  List().setFocus();
  QTest::keyClick(&List(), Qt::Key_F5);
  EXPECT_TRUE(List().hasFocus());
}

TEST_F(FileListWindowTest, AFileThatGoesIsNoticed) {
  WriteFiles(3);
  World.Open(World.Folder.Path());
  World.Main.Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&World.Main.Window()));
  std::remove((World.Folder.Path() + "f1001").c_str());
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return Names() == QStringList({"f1000", "f1002"}); }));
}

TEST_F(FileListWindowTest, AClickOnARowWhoseFileHasGoneListsAnew) {
  WriteFiles(3);
  World.Open(World.Folder.Path());
  std::remove((World.Folder.Path() + "f1001").c_str());
  const QRect row = List().visualRect(List().model()->index(1, 0));
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, row.center());
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return Names().size() == 2; }));
}

TEST_F(FileListWindowTest, AClickThatTakesItsTimeActsOnce) {
  WriteFiles(3);
  World.Open(World.Folder.Path());
  World.Main.Timers().tmrListScroll.stop();
  int previews = 0;
  World.Main.State().SetProposedName(1, u"");
  QObject::connect(List().model(), &QAbstractItemModel::dataChanged, [&] { ++previews; });
  const QPoint place = List().visualRect(List().model()->index(1, 0)).center();
  QTest::mousePress(List().viewport(), Qt::LeftButton, {}, place);
  QTest::qWait(30);
  EXPECT_EQ(previews, 0);
  EXPECT_EQ(World.Main.State().Rows.Selected(), 2);
  QTest::mouseRelease(List().viewport(), Qt::LeftButton, {}, place);
  QTest::qWait(30);
  EXPECT_EQ(previews, 1);
}

TEST_F(FileListWindowTest, TheSelectedRowStaysSelectedWhateverKeyIsHeld) {
  WriteFiles(3);
  World.Open(World.Folder.Path());
  const QPoint place = List().visualRect(List().model()->index(1, 0)).center();
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place);
  QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::ControlModifier, place);
  QTest::qWait(10);
  EXPECT_TRUE(List().selectionModel()->isRowSelected(1, {}));
}

TEST_F(FileListWindowTest, SelectingFromCodeLeavesTheColumnsInView) {
  WriteFiles(3);
  World.Open(World.Folder.Path());
  List().horizontalScrollBar()->setValue(List().horizontalScrollBar()->maximum());
  World.Click("cmdGo");
  EXPECT_EQ(List().horizontalScrollBar()->value(), List().horizontalScrollBar()->maximum());
}

TEST_F(FileListWindowTest, AControlCharacterBreaksNoRow) {
  World.Folder.Write("a\nb");
  World.Open(World.Folder.Path());
  EXPECT_EQ(Names(), QStringList({QStringLiteral("a\u240Ab")}));
}

TEST_F(FileListWindowTest, TheFocusStaysWhereTheUserWentWhileTheListWasHidden) {
  World.Main.Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&World.Main.Window()));
  auto& box = World.Find<QComboBox>("cboWildCard");
  FormView& view = World.Main.State().View;
  List().setFocus();
  view.ListHidden(true);
  box.setFocus();
  view.ListHidden(false);
  EXPECT_TRUE(box.hasFocus());
  List().setFocus();
  view.ListHidden(true);
  view.ListHidden(false);
  EXPECT_TRUE(List().hasFocus());
}

TEST_F(FileListWindowTest, AnMp3ShowsItsTagsWhenItIsClicked) {
  World.Folder.Write("a.mp3", "audio" + id3::V1("Title", "Artist", "", "", "", 0, 0));
  World.Folder.Write("b.txt");
  World.LoadOperations({u"Operation Name:\tX", u"Step: <FILENAME>", u"Help Message: h",
                        u"Available Boxes: 1", u"Box Name: n", u"Box Display: <ARTIST>",
                        u"Box ToolTip:", u"Box Check:", u""});
  World.Main.SelectOperation(1);
  World.Open(World.Folder.Path());
  EXPECT_EQ(World.ColumnTexts(Column::Artist), QStringList({"Artist", ""}));
  EXPECT_EQ(World.ColumnTexts(Column::ID3v1), QStringList({"Yes", ""}));
  EXPECT_EQ(World.ColumnTexts(Column::ID3v2), QStringList({"No", ""}));
  EXPECT_EQ(World.Find<QLineEdit>("txtRenameOption(0)").text(), "Artist");
}

TEST_F(FileListWindowTest, TakesExactlyOneDroppedFolder) {
  WriteFiles(1);
  World.Folder.MakeFolder("sub");
  World.Open(World.Folder.Path());
  const auto drop = [&](const QStringList& names) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& name : names) {
      urls << QUrl::fromLocalFile(QString::fromStdString(World.Folder.Path()) + name);
    }
    data.setUrls(urls);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(List().viewport(), &enter);
    if (enter.isAccepted()) {
      QDropEvent dropped({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(List().viewport(), &dropped);
      QTest::qWait(1);
    }
    return enter.isAccepted();
  };
  EXPECT_FALSE(drop({"f1000"}));
  EXPECT_FALSE(drop({"sub", "sub"}));
  EXPECT_TRUE(drop({"sub"}));
  EXPECT_EQ(ToQString(World.Main.State().CurrentPath),
            QString::fromStdString(World.Folder.Path()) + "sub/");
  EXPECT_TRUE(Names().isEmpty());
}

TEST_F(FileListWindowTest, TellsWholeRowsAndTheFirstVisibleOne) {
  WriteFiles(300);
  World.Open(World.Folder.Path());
  auto& view = *World.Main.Window().Controls().FileList;
  const int height = view.visualRect(view.model()->index(0, 0)).height();
  EXPECT_EQ(view.GetCountPerPage(), view.viewport()->height() / height);
  EXPECT_EQ(view.FirstVisibleRow(), 1);
  view.ShowRow(200);
  EXPECT_EQ(view.FirstVisibleRow() + view.GetCountPerPage() - 1, 200);
}

TEST_F(FileListWindowTest, ShowsNamesThatNoTextCanHold) {
  World.Folder.Write("bad\xff.txt");
  World.Open(World.Folder.Path());
  EXPECT_EQ(Names().size(), 1);
  World.Click("cmdGo");
  EXPECT_TRUE(World.Folder.Exists("xbad\xff.txt"));
}

TEST_F(FileListWindowTest, ATypedWildcardListsBehindAPauseAndIsRemembered) {
  World.Folder.Write("a.ogg");
  World.Folder.Write("b.txt");
  World.Open(World.Folder.Path());
  auto& box = World.Find<QComboBox>("cboWildCard");
  box.setFocus();
  box.lineEdit()->selectAll();
  QTest::keyClicks(&box, "*.ogg");
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return Names() == QStringList({"a.ogg"}); }));
  EXPECT_EQ(box.findText("*.ogg"), 2);
  box.lineEdit()->selectAll();
  QTest::keyClick(&box, Qt::Key_Delete);
  EXPECT_EQ(box.currentText(), "*.*");
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return Names().size() == 2; }));
}

TEST_F(FileListWindowTest, TypingAWildcardIsNotCompletedBehindTheUsersBack) {
  World.Open(World.Folder.Path());
  auto& box = World.Find<QComboBox>("cboWildCard");
  box.lineEdit()->selectAll();
  QTest::keyClicks(&box, "*.m");
  EXPECT_EQ(box.currentText(), "*.m");
}

}  // namespace
}  // namespace vorlane
