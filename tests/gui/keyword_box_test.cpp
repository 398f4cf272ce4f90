// The keyword list in the window: a pick, the clipboard, the tip.
#include "gui/tips.h"
#include "gui/window_world.h"

namespace vorlane {
namespace {

struct KeywordBoxTest : testing::Test {
  KeywordBoxTest() : Box(World.Find<QComboBox>("cboKeywords")) {
    World.Main.Help().Tips.InitBalloonToolTips();
    World.Main.ShowKeywords(
        LoadKeywordList(u"<A>\r\n'First. More.\r\n\r\n <B> \r\n\r\n<C>\r\n'c\r\n\r\n<D>"));
    World.Main.Window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&World.Main.Window()));
    MovePointer(OffAllWindows);
  }
  void Pick(int entry) {
    Box.setCurrentIndex(entry);
    emit Box.activated(entry);
  }
  // A press in the box ends what the pointer had begun there. This button opens no list, which
  // would stay the window in front in memory.
  void Press() { QTest::mouseClick(&Box, Qt::MiddleButton); }
  static bool TipComes() {
    return WindowWorld::WaitFor([] { return IsShown("KeywordTip"); });
  }
  ClsTooltip& Tip() { return World.Main.Help().Tips.KeywordTip(); }

  WindowWorld World;
  QComboBox& Box;
};

TEST_F(KeywordBoxTest, ShowsItsNameUntilSomethingIsPicked) {
  EXPECT_EQ(Box.placeholderText(), "Keyword List");
  EXPECT_EQ(Box.currentIndex(), -1);
  QStringList entries;
  for (int i = 0; i < Box.count(); ++i) {
    entries << Box.itemText(i);
  }
  EXPECT_EQ(entries, QStringList({"<A>", " <B> ", "<C>", "<D>"}));
}

TEST_F(KeywordBoxTest, APickIsCopiedAndExplained) {
  Pick(0);
  EXPECT_EQ(World.Clipboard.Steps, (std::vector<Text>{u"(clear)", u"<A>"}));
  EXPECT_EQ(World.Main.State().Status, u"<A> has been copied to the clipboard");
  EXPECT_EQ(World.Find<QLabel>("lblStatus").text(), "<A> has been copied to the clipboard");
  EXPECT_EQ(Tip().TipText(), u"First.\r\nMore.");
  EXPECT_EQ(Box.accessibleDescription(), "First.\r\nMore.");
  EXPECT_EQ(Box.currentText(), "<A>");
}

TEST_F(KeywordBoxTest, KeysPick) {
  Box.setFocus();
  QTest::keyClick(&Box, Qt::Key_Down);
  QTest::keyClick(&Box, Qt::Key_Down);
  QTest::keyClick(&Box, Qt::Key_Down);
  EXPECT_EQ(World.Clipboard.Steps.back(), u"<C>");
  EXPECT_EQ(Tip().TipText(), u"c");
}

TEST_F(KeywordBoxTest, AWheelPicksOnlyWithTheFocus) {
  World.Find<QWidget>("lstFileList").setFocus();
  const QPointF middle = Box.rect().center();
  QWheelEvent down(middle, Box.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&Box, &down);
  EXPECT_TRUE(World.Clipboard.Steps.empty());
  Box.setFocus();
  QCoreApplication::sendEvent(&Box, &down);
  EXPECT_EQ(World.Clipboard.Steps.back(), u"<A>");
}

TEST_F(KeywordBoxTest, AScreenReaderGetsTheHelpOfEachEntry) {
  EXPECT_EQ(Box.itemData(0, Qt::AccessibleDescriptionRole), "First.\r\nMore.");
  EXPECT_EQ(Box.itemData(3, Qt::AccessibleDescriptionRole), "");
  EXPECT_EQ(Box.accessibleName(), "Keyword List");
}

TEST_F(KeywordBoxTest, ThePickedKeywordKeepsItsSpaces) {
  Pick(1);
  EXPECT_EQ(World.Clipboard.Steps.back(), u" <B> ");
  EXPECT_EQ(World.Main.State().Status, u" <B>  has been copied to the clipboard");
}

TEST_F(KeywordBoxTest, AKeywordWithoutHelpHasAnEmptyTip) {
  Pick(0);
  for (const int entry : {1, 3}) {
    Pick(entry);
    EXPECT_EQ(Tip().TipText(), u"") << entry;
    PointAt(Box);
    QTest::qWait(150);
    EXPECT_FALSE(IsShown("KeywordTip"));
    MovePointer(OffAllWindows);
  }
}

TEST_F(KeywordBoxTest, TheTipShowsWhatWasPicked) {
  EXPECT_EQ(Tip().VisibleTime(), 32000);
  EXPECT_EQ(Tip().Title(), u"Keyword List");
  PointAt(Box);
  QTest::qWait(150);
  EXPECT_FALSE(IsShown("KeywordTip"));
  Pick(0);
  PointAt(Box, {9, 0});
  EXPECT_TRUE(TipComes());
  EXPECT_EQ(TipNamed("KeywordTip")->Content().Text, "First.\nMore.");
}

TEST_F(KeywordBoxTest, TheTipComesAtTheFirstRestBehindAPick) {
  PointAt(Box);
  Press();
  Pick(0);
  PointAt(Box, {9, 0});
  EXPECT_TRUE(TipComes());
  Press();
  PointAt(Box, {5, 0});
  QTest::qWait(150);
  EXPECT_FALSE(IsShown("KeywordTip"));  // nothing was picked
  QTest::keyClick(&Box, Qt::Key_End);
  QTest::keyClick(&Box, Qt::Key_Up);
  PointAt(Box, {3, 0});
  EXPECT_TRUE(TipComes());
  EXPECT_EQ(TipNamed("KeywordTip")->Content().Text, "c");
}

TEST_F(KeywordBoxTest, ABlankRowIsPickedLikeAnyOther) {
  World.Main.ShowKeywords(LoadKeywordList(u"<A>\r\n'a\r\n\r\n"));
  ASSERT_EQ(Box.count(), 2);
  Pick(0);
  World.Clipboard.Steps.clear();
  Pick(1);
  EXPECT_EQ(Tip().TipText(), u"");
  EXPECT_EQ(World.Clipboard.Steps, (std::vector<Text>{u"(clear)", u""}));
  EXPECT_EQ(World.Main.State().Status, u" has been copied to the clipboard");
}

TEST_F(KeywordBoxTest, TheHelpOutlivesAHoverReset) {
  Pick(0);
  const TipWindow* tip = TipNamed("KeywordTip");
  World.Main.Help().ShowAll();
  EXPECT_EQ(Tip().TipText(), u"First.\r\nMore.");
  World.Main.Help().ResetHoverState();
  World.Main.Help().Tips.InitBalloonToolTips();
  EXPECT_EQ(Tip().TipText(), u"First.\r\nMore.");
  EXPECT_EQ(TipNamed("KeywordTip"), tip);
}

TEST(KeywordBox, APickMakesTheTipIfThereIsNone) {
  WindowWorld world;
  world.Main.ShowKeywords(LoadKeywordList(u"<A>\r\n'a"));
  EXPECT_EQ(TipNamed("KeywordTip"), nullptr);
  auto& box = world.Find<QComboBox>("cboKeywords");
  box.setCurrentIndex(0);
  emit box.activated(0);
  ASSERT_NE(TipNamed("KeywordTip"), nullptr);
  EXPECT_EQ(TipNamed("KeywordTip")->Content().Text, "a");
}

}  // namespace
}  // namespace vorlane
