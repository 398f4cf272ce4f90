// The option boxes under real keys.
#include "gui/window_world.h"

namespace vorlane {
namespace {

struct OptionBoxWindowTest : testing::Test {
  OptionBoxWindowTest() {
    World.Folder.Write("a.txt");
    World.Folder.Write("b.txt");
    World.LoadOperations({u"Operation Name:\tPrefix",
                          u"Step: <BOX1><BOX2><FILENAME>",
                          u"Help Message: h",
                          u"Available Boxes: 3",
                          u"Box Name: First",
                          u"Box Name: Second",
                          u"Box Name: Third",
                          u"Box Display: Registry(First|x)",
                          u"Box Display:",
                          u"Box Display: <PROPERCASE><NAMEONLY></PROPERCASE>",
                          u"Box ToolTip: Type it",
                          u"Box ToolTip:",
                          u"Box ToolTip:",
                          u"Box Check:",
                          u"Box Check:",
                          u"Box Check: Own",
                          u"",
                          u"Operation Name:\tOne box",
                          u"Step: <BOX1>",
                          u"Help Message: h",
                          u"Available Boxes: 1",
                          u"Box Name: Only",
                          u"Box Display:",
                          u"Box ToolTip:",
                          u"Box Check:",
                          u""});
    World.Main.SelectOperation(1);
    World.Open(World.Folder.Path());
    World.Main.Window().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&World.Main.Window()));
  }
  QLineEdit& Box(int number) {
    return World.Find<QLineEdit>(
        QStringLiteral("txtRenameOption(%1)").arg(number - 1).toLatin1().constData());
  }
  void Focus(int number) { Box(number).setFocus(); }
  bool ProposalBecomes(const QString& name) {
    return WindowWorld::WaitFor(
        [&] { return World.ColumnTexts(Column::ProposedName).value(0) == name; });
  }

  WindowWorld World;
};

TEST_F(OptionBoxWindowTest, ShowCaptionTextAndTip) {
  EXPECT_TRUE(Box(1).isVisible() && Box(2).isVisible() && Box(3).isVisible());
  EXPECT_FALSE(Box(4).isVisible());
  EXPECT_EQ(World.Find<QLabel>("lblRenameOption(0)").text(), "First");
  EXPECT_EQ(Box(1).text(), "x");
  EXPECT_EQ(Box(1).toolTip(), "Type it");
  EXPECT_EQ(Box(3).text(), "A");
  EXPECT_FALSE(Box(3).isEnabled());
  EXPECT_EQ(World.Find<QCheckBox>("chkRenameOption(2)").toolTip(), "Own");
  EXPECT_TRUE(World.Find<QCheckBox>("chkRenameOption(2)").text().isEmpty());
}

TEST_F(OptionBoxWindowTest, TypingIsPreviewedAndKept) {
  Focus(1);
  QTest::keyClicks(&Box(1), "yz");
  EXPECT_TRUE(ProposalBecomes("xyza.txt"));
  EXPECT_EQ(World.Memory.Texts[u"First"], u"xyz");
}

TEST_F(OptionBoxWindowTest, ABoxCannotNameItself) {
  Focus(2);
  QTest::keyClicks(&Box(2), "q<BOX2>");
  EXPECT_EQ(Box(2).text(), "q");
  EXPECT_TRUE(ProposalBecomes("xqa.txt"));
}

TEST_F(OptionBoxWindowTest, ATickOpensTheBoxAndProperCaseComesOnLeaving) {
  auto& check = World.Find<QCheckBox>("chkRenameOption(2)");
  QTest::mouseClick(&check, Qt::LeftButton);
  EXPECT_TRUE(Box(3).isEnabled());
  Focus(3);
  Box(3).selectAll();
  QTest::keyClicks(&Box(3), "the jean genie");
  Focus(1);
  EXPECT_EQ(Box(3).text(), "The Jean Genie");
  QTest::mouseClick(&check, Qt::LeftButton);
  EXPECT_FALSE(Box(3).isEnabled());
}

TEST_F(OptionBoxWindowTest, TabGoesRoundTheShownBoxes) {
  Focus(1);
  QTest::keyClick(&Box(1), Qt::Key_Tab);
  EXPECT_TRUE(Box(2).hasFocus());
  QTest::keyClick(&Box(2), Qt::Key_Tab);  // the third one isn't open for typing
  EXPECT_TRUE(Box(1).hasFocus());
}

TEST_F(OptionBoxWindowTest, WithOneBoxTabStaysThere) {
  World.Main.SelectOperation(2);
  Focus(1);
  QTest::keyClick(&Box(1), Qt::Key_Tab);
  EXPECT_TRUE(Box(1).hasFocus());
}

TEST_F(OptionBoxWindowTest, EnterGoesAtOnceWithWhatWasTyped) {
  Focus(1);
  QTest::keyClicks(&Box(1), "y");
  QTest::keyClick(&Box(1), Qt::Key_Return);
  EXPECT_TRUE(World.Folder.Exists("xya.txt"));
}

TEST_F(OptionBoxWindowTest, AnEnterThatIsHeldDownGoesOnce) {
  Focus(1);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
  QApplication::sendEvent(&Box(1), &held);
  EXPECT_TRUE(World.Folder.Exists("a.txt"));
  QTest::keyClick(&Box(1), Qt::Key_Return);
  EXPECT_TRUE(World.Folder.Exists("xa.txt"));
}

TEST_F(OptionBoxWindowTest, AnotherWindowInFrontIsNoLeavingOfTheBox) {
  Focus(1);
  QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
  World.Main.State().StopTimer(FormTimer::AutoPreview);
  QApplication::sendEvent(&Box(1), &away);
  EXPECT_FALSE(World.Main.State().IsTimerRunning(FormTimer::AutoPreview));
}

TEST_F(OptionBoxWindowTest, TheSelectedRowsValuesAreShown) {
  auto& list = World.Find<QTreeView>("lstFileList");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return Box(3).text() == "B"; }));
  EXPECT_TRUE(list.hasFocus());
}

}  // namespace
}  // namespace vorlane
