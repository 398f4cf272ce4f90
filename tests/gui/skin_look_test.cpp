// What is to be seen of background, bars and labels, with and without a skin.
#include "gui/skin_world.h"

namespace vorlane {
namespace {

// The left half in one colour, the right half in another.
QImage Halves(int width, int height, QColor left, QColor right) {
  QImage picture = Plain(width, height, left);
  QPainter painter(&picture);
  painter.fillRect(width / 2, 0, width - width / 2, height, right);
  return picture;
}

struct SkinLookTest : testing::Test, SkinWorld {
  QColor At(int x, int y) { return Window.grab().toImage().pixelColor(x, y); }
  QColor TextOf(const char* label) {
    return Find<QLabel>(label).palette().color(QPalette::WindowText);
  }
  void LoadUnscaled() {
    Take().ApplySkinPictures();
    Window.InitLayout();
    Window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&Window));
  }
  static QColor DesktopText() { return QApplication::palette().color(QPalette::WindowText); }
};

constexpr QPoint Free = {8, 300};  // no control stands there

TEST_F(SkinLookTest, TheBackgroundBeginsInItsOwnSizeAndIsStretchedFromTheFirstLayoutOn) {
  Write(u"Background.gif", Halves(1000, 400, Qt::red, Qt::blue));
  LoadUnscaled();
  EXPECT_EQ(Window.Background().Covered(), QRect(0, 0, 1000, 400));
  EXPECT_EQ(At(8, 300), Qt::red);
  EXPECT_EQ(At(980, 300), Qt::blue);
  EXPECT_EQ(At(8, 410), Window.palette().color(QPalette::Window));
  Window.resize(1200, 600);
  EXPECT_EQ(Window.Background().Covered(), QRect(0, 0, 1200, 600));
  EXPECT_EQ(At(8, 590), Qt::red);
  EXPECT_EQ(At(1190, 590), Qt::blue);
}

TEST_F(SkinLookTest, TheScaledPassStretchesItToTheFormThatItMakes) {
  Write(u"Background.gif", Halves(1000, 400, Qt::red, Qt::blue));
  Take().ApplySkinScaled(990, 990);
  EXPECT_EQ(Window.Background().Covered(), QRect(0, 0, 724, 492));
  EXPECT_EQ(TextOf("lblStatus"), Qt::white);
  EXPECT_EQ(TextOf("lblFileStatus"), Qt::white);
}

TEST_F(SkinLookTest, ALayoutTakesTheBackgroundFromTheDiskAnew) {
  Write(u"Background.gif", Plain(100, 100, Qt::red));
  LoadUnscaled();
  Write(u"Background.gif", Plain(100, 100, Qt::green));
  EXPECT_EQ(At(8, 90), Qt::red);
  Window.resize(1100, 600);
  EXPECT_EQ(At(8, 90), Qt::green);
}

// What was painted stays as it was painted.
TEST_F(SkinLookTest, ABackgroundThatGoesOrBreaksStays) {
  Write(u"Background.gif", Plain(100, 100, Qt::red));
  LoadUnscaled();
  Window.resize(1100, 600);
  Write(u"Background.gif", QByteArray("broken"));
  Window.resize(1200, 700);
  EXPECT_EQ(Window.Background().Covered(), QRect(0, 0, 1100, 600));
  EXPECT_EQ(At(8, 300), Qt::red);
  std::remove((Folder.Path() + "Skin/Background.gif").c_str());
  Window.resize(1300, 800);
  EXPECT_EQ(Window.Background().Covered(), QRect(0, 0, 1100, 600));
  EXPECT_EQ(At(8, 700), Window.palette().color(QPalette::Window));
}

TEST_F(SkinLookTest, ABrokenBackgroundKeepsNothingElseFromMoving) {
  Write(u"Background.gif", Plain(100, 100, Qt::red));
  LoadUnscaled();
  const auto placeOf = [this](const char* control) { return Find<QWidget>(control).geometry(); };
  const QRect go = placeOf("cmdGo");
  const QRect wildcard = placeOf("cboWildCard");
  const QRect tree = placeOf("picBrowse");
  const QRect list = placeOf("lstFileList");
  Write(u"Background.gif", QByteArray("broken"));
  Window.resize(1124, 622);
  EXPECT_EQ(placeOf("cmdGo"), go.translated(0, 100));
  EXPECT_EQ(placeOf("cboWildCard"), wildcard.translated(100, 0));
  EXPECT_EQ(placeOf("picBrowse").height(), tree.height() + 100);
  EXPECT_EQ(placeOf("lstFileList").bottomRight(), list.bottomRight() + QPoint(100, 100));
}

TEST_F(SkinLookTest, ABackgroundMayComeLater) {
  LoadUnscaled();
  Write(u"Background.gif", Plain(100, 100, Qt::black));
  Window.resize(1100, 600);
  EXPECT_EQ(At(Free.x(), Free.y()), Qt::black);
  EXPECT_EQ(TextOf("lblStatus"), Qt::white);
}

TEST_F(SkinLookTest, ABarHasItsOwnSizeOrTheScaledPlace) {
  Write(u"TopBar.gif", Halves(100, 20, Qt::red, Qt::blue));
  LoadUnscaled();
  const QImage natural = Find<QWidget>("imgTopBar").grab().toImage();
  EXPECT_EQ(natural.size(), QSize(100, 20));
  EXPECT_EQ(natural.pixelColor(10, 10), Qt::red);
  EXPECT_EQ(natural.pixelColor(90, 10), Qt::blue);
  SkinWorld scaled;
  scaled.Write(u"TopBar.gif", Halves(100, 20, Qt::red, Qt::blue));
  scaled.Take().ApplySkinScaled(990, 990);
  const QImage stretched = scaled.Find<QWidget>("imgTopBar").grab().toImage();
  EXPECT_EQ(stretched.size(), QSize(507, 46));
  EXPECT_EQ(stretched.pixelColor(20, 40), Qt::red);
  EXPECT_EQ(stretched.pixelColor(480, 40), Qt::blue);
}

TEST_F(SkinLookTest, WithoutASkinLabelsHaveTheDesktopsColours) {
  LoadUnscaled();
  for (const char* label : {"lblTitle", "lblStatus", "lblFileStatus", "lblRenameOption(0)"}) {
    EXPECT_EQ(TextOf(label), DesktopText()) << label;
  }
  const QPalette light = QApplication::palette();
  QPalette dark = light;
  dark.setColor(QPalette::Window, Qt::black);
  dark.setColor(QPalette::WindowText, Qt::yellow);
  QApplication::setPalette(dark);
  QCoreApplication::processEvents();
  EXPECT_EQ(TextOf("lblStatus"), Qt::yellow);
  EXPECT_EQ(TextOf("lblTitle"), Qt::yellow);
  QApplication::setPalette(light);
  EXPECT_TRUE(Find<QLabel>("lblTitle").font().bold());
  EXPECT_FALSE(Find<QLabel>("lblStatus").font().bold());
}

TEST_F(SkinLookTest, OnABackgroundAllButTheTitleAreWhite) {
  Write(u"Background.gif", Plain(1024, 522, Qt::black));
  LoadUnscaled();
  for (const char* label :
       {"lblStatus", "lblFileStatus", "lblRenameOption(0)", "lblRenameOption(5)"}) {
    EXPECT_EQ(TextOf(label), Qt::white) << label;
  }
  EXPECT_EQ(TextOf("lblTitle"), DesktopText());
}

TEST_F(SkinLookTest, ABackgroundThatEndsAboveALabelIsNone) {
  Write(u"Background.gif", Plain(1024, 400, Qt::black));
  LoadUnscaled();
  EXPECT_EQ(TextOf("lblStatus"), DesktopText());
  EXPECT_EQ(TextOf("lblFileStatus"), Qt::white);
  Window.resize(1100, 600);
  EXPECT_EQ(TextOf("lblStatus"), Qt::white);
}

// Half the size leaves the status line less height than its letters have.
TEST_F(SkinLookTest, ALabelIsWhiteIfWhatTheWindowShowsOfItStandsOnTheBackground) {
  Write(u"Background.gif", Plain(1024, 522, Qt::black));
  Take().ApplySkinScaled(700, 525);
  const QLabel& status = Find<QLabel>("lblStatus");
  ASSERT_GT(status.geometry().bottom(), Window.height());
  EXPECT_EQ(TextOf("lblStatus"), Qt::white);
}

TEST_F(SkinLookTest, OnTheBottomBarAloneTheCaptionsAreWhite) {
  Write(u"BottomBar.gif", Plain(949, 130, Qt::black));
  LoadUnscaled();
  EXPECT_EQ(TextOf("lblRenameOption(0)"), Qt::white);
  EXPECT_EQ(TextOf("lblRenameOption(5)"), Qt::white);
  EXPECT_EQ(TextOf("lblStatus"), DesktopText());
}

TEST_F(SkinLookTest, TheHelpLabelsAreBlackOnYellowAlways) {
  for (const bool skinned : {false, true}) {
    if (skinned) {
      Write(u"Background.gif", Plain(1024, 522, Qt::black));
      LoadUnscaled();
    }
    const QLabel& label = Find<QLabel>("lblToolTip(15)");
    EXPECT_EQ(label.palette().color(QPalette::WindowText), Qt::black);
    EXPECT_EQ(label.palette().color(QPalette::Window), Qt::yellow);
    EXPECT_TRUE(label.autoFillBackground());
  }
}

TEST_F(SkinLookTest, TheTitleIsWhiteUnderTheMouseUntilThatMovesOverTheForm) {
  Write(u"Background.gif", Plain(1024, 522, Qt::gray));
  LoadUnscaled();
  QTest::mouseMove(Window.windowHandle(), Free);
  QTest::mouseMove(Window.windowHandle(), {70, 18});
  EXPECT_EQ(TextOf("lblTitle"), Qt::white);
  QTest::mouseMove(Window.windowHandle(), {600, 200});  // the list
  EXPECT_EQ(TextOf("lblTitle"), Qt::white);
  QTest::mouseMove(Window.windowHandle(), Free);
  EXPECT_EQ(TextOf("lblTitle"), DesktopText());
}

TEST_F(SkinLookTest, ATitleThatWasDarkenedUnderTheMouseIsLitByItsNextMove) {
  Write(u"Background.gif", Plain(1024, 522, Qt::gray));
  LoadUnscaled();
  QTest::mouseMove(Window.windowHandle(), Free);
  QTest::mouseMove(Window.windowHandle(), {70, 18});
  Window.ShowMouseOnTitle(false);
  EXPECT_EQ(TextOf("lblTitle"), DesktopText());
  QTest::mouseMove(Window.windowHandle(), {72, 18});
  EXPECT_EQ(TextOf("lblTitle"), Qt::white);
}

TEST_F(SkinLookTest, WithoutASkinTheTitleKeepsItsColour) {
  LoadUnscaled();
  QTest::mouseMove(Window.windowHandle(), Free);
  QTest::mouseMove(Window.windowHandle(), {70, 18});
  EXPECT_EQ(TextOf("lblTitle"), DesktopText());
}

TEST_F(SkinLookTest, AClickOnTheTitleIsPassedOn) {
  int clicks = 0;
  Window.OnTitleClicked = [&] { ++clicks; };
  auto& title = Find<QWidget>("lblTitle");
  QTest::mouseClick(&title, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  QTest::mouseClick(&title, Qt::RightButton);
  EXPECT_EQ(clicks, 1);
  QTest::mousePress(&title, Qt::LeftButton);
  QTest::mouseRelease(&title, Qt::LeftButton, {}, {5, 200});
  EXPECT_EQ(clicks, 1);
}

// A bar that reaches into the strip shares the form's mouse; the outline alone is the form's.
TEST_F(SkinLookTest, TheGripWorksThroughABar) {
  Write(u"BottomBar.gif", Plain(1200, 200, Qt::black));
  LoadUnscaled();
  int hoverResets = 0;
  int rightPresses = 0;
  Window.OnHoverReset = [&] { ++hoverResets; };
  Window.OnRightPress = [&] { ++rightPresses; };
  QWindow* window = Window.windowHandle();
  QTest::mouseMove(window, {1005, 450});
  EXPECT_EQ(Window.cursor().shape(), Qt::ArrowCursor);
  QTest::mouseMove(window, {1016, 450});
  EXPECT_EQ(Window.cursor().shape(), Qt::SizeHorCursor);
  EXPECT_EQ(hoverResets, 2);
  QTest::mousePress(window, Qt::LeftButton, {}, {1016, 450});
  QTest::mouseMove(window, {1100, 450});
  EXPECT_FALSE(Find<QWidget>("frmBorder").isVisible());
  QTest::mouseRelease(window, Qt::LeftButton, {}, {1100, 450});
  EXPECT_EQ(Window.width(), 1100);
  QTest::mouseClick(window, Qt::RightButton, {}, {1000, 450});
  EXPECT_EQ(rightPresses, 1);
}

}  // namespace
}  // namespace vorlane
