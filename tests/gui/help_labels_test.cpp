// The main window explains itself: eleven balloons, sixteen labels, and how they come and go.
#include "ui/help_labels.h"

#include "gui/tips.h"
#include "gui/window_world.h"
#include "platform/interface_texts.h"

namespace vorlane {
namespace {

QString TextOf(int number) {
  return ToQString(InterfaceText(number));
}

struct Balloon {
  const char* Control;
  int Title;
  int Text;  // 0: a blank
  QPoint Place;
};

// Where the balloons point to in the window at its designed size. Half of 825 twips, the width of
// Go, goes to the even 412, which is 27 pixels.
const Balloon Balloons[] = {
    {"cmdGo", 1200, 1201, {888 + 27, 392 + 79}},
    {"cmdStop", 1200, 1201, {888 + 27, 392 + 79}},
    {"cmdListFiles", 1202, 1203, {264, 16 + 14}},
    {"cmdListFolders", 1202, 1204, {264, 16 + 14}},
    {"cmdThisFolderOnly", 1205, 1206, {368 + 31, 16 + 28}},
    {"cmdIncludeSubFolders", 1205, 1207, {368 + 31, 16 + 28}},
    {"cmdDoOne", 1208, 1209, {472 + 61, 16}},
    {"cmdDoAll", 1208, 1210, {472 + 61, 16}},
    {"cboWildCard", 1211, 1212, {696 + 81, 18 + 21}},
    {"cmdExit", 1213, 0, {960 + 44, 48 + 22}},
    {"cmdUndo", 1215, 1216, {960 + 25, 184 + 50}},
};
constexpr int Count = static_cast<int>(std::size(Balloons));

QString NameOfTip(int index) {
  return NameInGroup("BalloonTips", index);
}

std::string TipNames(const std::vector<int>& indices) {
  QStringList names;
  for (const int index : indices) {
    names << NameOfTip(index);
  }
  return names.join(' ').toStdString();
}

// Notes which tips are raised, one behind the other.
class RaiseLog final : public QObject {
 public:
  RaiseLog() { qApp->installEventFilter(this); }
  QStringList Names;

  std::string LastBalloons(qsizetype count) const {
    return Names.filter("Balloon")
        .mid(Names.filter("Balloon").size() - count)
        .join(' ')
        .toStdString();
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::ZOrderChange) {
      Names << watched->objectName();
    }
    return false;
  }
};

struct HelpTest : testing::Test {
  HelpTest() : Window(World.Main.Window()) {
    World.Main.Help().Tips.InitBalloonToolTips();
    Window.move(150, 200);
    Window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window));
    MovePointer(OffAllWindows);
    QCoreApplication::processEvents();
  }
  void ShowBoxes(int count) {
    std::vector<Text> lines = {u"Operation Name:\tX", u"Step: <BOX1>", u"Help Message: h",
                               u"Available Boxes: " + DecimalText(count)};
    lines.insert(lines.end(), static_cast<std::size_t>(count), u"Box Name: n");
    lines.insert(lines.end(), static_cast<std::size_t>(count), u"Box Display:");
    World.LoadOperations(lines);
    World.Main.SelectOperation(1);
  }
  void PointAtHelp() { PointAt(World.Find<QWidget>("cmdHelp")); }
  // A place where only the form itself is.
  void PointAtForm(int step = 0) { MovePointer(Window.mapToGlobal(QPoint(700 + step, 505))); }
  bool IsLabelShown(int index) {
    return World.Find<QLabel>(NameInGroup("lblToolTip", index).toLatin1()).isVisible();
  }
  QList<int> ShownLabels() {
    QList<int> shown;
    for (int i = 0; i < HelpLabelCount; ++i) {
      if (IsLabelShown(i)) {
        shown << i;
      }
    }
    return shown;
  }
  static int ShownBalloons() {
    int shown = 0;
    for (int i = 0; i < Count; ++i) {
      shown += IsShown(NameOfTip(i)) ? 1 : 0;
    }
    return shown;
  }
  bool AllIsShown() { return ShownBalloons() == Count && IsLabelShown(15); }
  bool NothingIsShown() { return ShownBalloons() == 0 && ShownLabels().isEmpty(); }

  WindowWorld World;
  FrmMain& Window;
};

TEST_F(HelpTest, LabelsHaveTheirTextsAndColours) {
  const QString captions[] = {"[BOX1]",     "[BOX2]",     "[BOX3]",     "[BOX4]",
                              "[BOX5]",     "[BOX6]",     TextOf(1200), TextOf(1202),
                              TextOf(1205), TextOf(1208), TextOf(1211), TextOf(1213),
                              TextOf(1214), TextOf(1215), TextOf(1217), TextOf(1219)};
  for (int i = 0; i < HelpLabelCount; ++i) {
    QLabel& label = World.Find<QLabel>(NameInGroup("lblToolTip", i).toLatin1());
    EXPECT_EQ(label.text(), captions[i]) << i;
    EXPECT_EQ(label.height(), 13) << i;
    EXPECT_EQ(label.width(), label.sizeHint().width()) << i;
    EXPECT_FALSE(label.isVisible()) << i;
    label.show();
    const QImage picture = label.grab().toImage();
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(255, 255, 0)) << i;
    EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(Qt::black)) << i;
  }
}

TEST_F(HelpTest, LabelsOfUnusedBoxesStayHidden) {
  const QList<int> others = {6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
  for (const int boxes : {4, 0, 6, 1}) {
    ShowBoxes(boxes);
    PointAtHelp();
    QList<int> expected;
    for (int i = 0; i < boxes; ++i) {
      expected << i;
    }
    EXPECT_EQ(ShownLabels(), expected + others) << boxes;
    PointAtForm(boxes);
    EXPECT_TRUE(NothingIsShown());
  }
}

TEST_F(HelpTest, AMoveOverHelpShowsElevenBalloons) {
  EXPECT_TRUE(NothingIsShown());
  PointAtHelp();
  EXPECT_TRUE(World.Main.Help().Tips.BalloonsOnDemand());
  for (int i = 0; i < Count; ++i) {
    const TipWindow* tip = TipNamed(NameOfTip(i));
    ASSERT_TRUE(tip != nullptr && tip->isVisible()) << i;
    EXPECT_TRUE(tip->IsBalloon());
    EXPECT_EQ(tip->Content().Title, TextOf(Balloons[i].Title)) << i;
    EXPECT_EQ(tip->Content().Text, Balloons[i].Text == 0 ? " " : TextOf(Balloons[i].Text)) << i;
    EXPECT_EQ(tip->Content().Icon, TipIcon::Information);
    EXPECT_EQ(tip->parentWidget()->objectName(), Balloons[i].Control);
    EXPECT_EQ(StemPoint(*tip), Window.mapToGlobal(Balloons[i].Place)) << i;
  }
  EXPECT_FALSE(IsShown("KeywordTip"));
}

TEST_F(HelpTest, TheBlankTextsStandUnderTheirTitles) {
  PointAtHelp();
  for (const int index : {8, 9, 10}) {
    const TipWindow* tip = TipNamed(NameOfTip(index));
    EXPECT_EQ(tip->Content().Text, " ");
    EXPECT_FALSE(tip->Content().Title.isEmpty());
  }
}

TEST_F(HelpTest, ASecondMoveOverHelpChangesNothing) {
  PointAtHelp();
  const TipWindow* first = TipNamed(NameOfTip(0));
  const RaiseLog raised;
  PointAt(World.Find<QWidget>("cmdHelp"), {5, 5});
  EXPECT_EQ(TipNamed(NameOfTip(0)), first);
  EXPECT_TRUE(AllIsShown());
  EXPECT_TRUE(raised.Names.isEmpty());
}

TEST_F(HelpTest, BalloonsOfHiddenButtonsLieBelow) {
  RaiseLog log;
  PointAtHelp();
  EXPECT_EQ(log.LastBalloons(7), TipNames({0, 2, 4, 6, 8, 9, 10}));
  PointAtForm();
  World.Click("cmdDoOne");
  World.Click("cmdListFiles");
  World.Click("cmdThisFolderOnly");
  PointAtForm(1);
  log.Names.clear();
  PointAtHelp();
  EXPECT_EQ(log.LastBalloons(7), TipNames({0, 3, 5, 7, 8, 9, 10}));
}

TEST_F(HelpTest, NoBalloonOfAVisibleControlCoversAnother) {
  for (const QPoint corner : {QPoint(150, 200), QPoint(150, 10)}) {
    Window.move(corner);
    PointAtHelp();
    const int visible[] = {0, 2, 4, 6, 8, 9, 10};
    for (const int one : visible) {
      for (const int other : visible) {
        const bool overlap =
            one != other &&
            TipNamed(NameOfTip(one))->geometry().intersects(TipNamed(NameOfTip(other))->geometry());
        EXPECT_FALSE(overlap) << one << " " << other << " at " << corner.y();
      }
    }
    PointAtForm();
  }
}

TEST_F(HelpTest, BothBalloonsOfAPairAreEquallyLarge) {
  PointAtHelp();
  for (const int index : {0, 2, 4, 6}) {
    EXPECT_EQ(TipNamed(NameOfTip(index))->geometry(), TipNamed(NameOfTip(index + 1))->geometry());
  }
}

TEST_F(HelpTest, AMoveOverTheFormEndsIt) {
  PointAtHelp();
  ASSERT_TRUE(AllIsShown());
  PointAtForm();
  EXPECT_TRUE(NothingIsShown());
  EXPECT_FALSE(World.Main.Help().Tips.BalloonsOnDemand());
}

TEST_F(HelpTest, AMoveOverABarEndsIt) {
  for (const char* bar : {"imgTopBar", "imgBottomBar"}) {
    PointAtHelp();
    ASSERT_TRUE(AllIsShown());
    auto& label = World.Find<QWidget>(bar);
    MovePointer(label.mapToGlobal(QPoint(label.width() / 2, 3)));
    ASSERT_EQ(QApplication::widgetAt(QCursor::pos()), &label);
    EXPECT_TRUE(NothingIsShown()) << bar;
  }
}

TEST_F(HelpTest, AMoveOverAnotherControlDoesNot) {
  PointAtHelp();
  for (const char* control : {"cmdGo", "cmdUndo", "lstFileList", "lblToolTip(15)"}) {
    PointAt(World.Find<QWidget>(control));
    EXPECT_TRUE(AllIsShown()) << control;
  }
}

TEST_F(HelpTest, BackFromHelpTheBalloonsFollowThePointer) {
  PointAtHelp();
  PointAtForm();
  PointAt(World.Find<QWidget>("cmdGo"));
  EXPECT_TRUE(WindowWorld::WaitFor([] { return IsShown(NameOfTip(0)); }));
  EXPECT_EQ(ShownBalloons(), 1);
  PointAtForm(1);
  EXPECT_EQ(ShownBalloons(), 0);
}

TEST_F(HelpTest, EachControlHasItsBalloon) {
  for (int i = 0; i < Count; ++i) {
    auto& control = World.Find<QWidget>(Balloons[i].Control);
    if (!control.isVisible()) {
      continue;
    }
    PointAt(control);
    EXPECT_TRUE(WindowWorld::WaitFor([&] { return IsShown(NameOfTip(i)); })) << i;
    EXPECT_EQ(ShownBalloons(), 1) << i;
    PointAtForm(i);
  }
}

TEST_F(HelpTest, AResetInHoverModeLeavesTheTipsAlone) {
  const TipWindow* tip = TipNamed(NameOfTip(0));
  World.Main.Help().ResetHoverState();
  EXPECT_EQ(TipNamed(NameOfTip(0)), tip);
}

TEST_F(HelpTest, InitDoesNotEndTheStateOfAllShown) {
  PointAtHelp();
  World.Main.Help().Tips.InitBalloonToolTips();
  EXPECT_EQ(ShownBalloons(), 0);
  EXPECT_TRUE(World.Main.Help().Tips.BalloonsOnDemand());
  World.Main.Help().Tips.ShowAllBalloonLabels();
  EXPECT_EQ(ShownBalloons(), 0);
  const TipWindow* tip = TipNamed(NameOfTip(0));
  PointAtForm();
  EXPECT_NE(TipNamed(NameOfTip(0)), tip);  // made once more
  PointAtHelp();
  EXPECT_TRUE(AllIsShown());
}

TEST_F(HelpTest, F1ShowsAndEndsIt) {
  QTest::keyClick(&Window, Qt::Key_F1);
  EXPECT_TRUE(AllIsShown());
  QTest::keyClick(&Window, Qt::Key_F1);
  EXPECT_TRUE(NothingIsShown());
  QTest::keyClick(&Window, Qt::Key_F1);
  EXPECT_TRUE(AllIsShown());
  QTest::keyClick(&Window, Qt::Key_Escape);
  EXPECT_TRUE(NothingIsShown());
  QTest::keyClick(&Window, Qt::Key_F1);
  PointAtForm();
  EXPECT_TRUE(NothingIsShown());
}

TEST_F(HelpTest, ABoxThatIsTypedInKeepsTheFocus) {
  ShowBoxes(1);
  auto& box = World.Find<QLineEdit>("txtRenameOption(0)");
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_F1);
  ASSERT_TRUE(AllIsShown());
  EXPECT_TRUE(box.hasFocus());
  QTest::keyClicks(QApplication::focusWidget(), "ab");
  EXPECT_EQ(box.text(), "ab");
}

TEST_F(HelpTest, NothingIsLeftBehindAClosedWindow) {
  PointAtHelp();
  ASSERT_TRUE(AllIsShown());
  Window.close();
  for (int i = 0; i < Count; ++i) {
    EXPECT_EQ(TipNamed(NameOfTip(i)), nullptr);
  }
  EXPECT_EQ(TipNamed("KeywordTip"), nullptr);
  World.Main.Help().Tips.InitBalloonToolTips();
  World.Main.Help().ShowAll();
  EXPECT_EQ(TipNamed(NameOfTip(0)), nullptr);
}

struct FirstStart : testing::Test {
  FirstStart() {
    MovePointer(OffAllWindows);
    BringToFront(Front);
    Again.Window().InitLayout();
    Again.HideLabelsLater(true);
    Again.Help().Tips.InitBalloonToolTips();
  }
  static void BringToFront(QWidget& window) {
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  void Show() {
    Again.Show();
    BringToFront(Again.Window());
    EXPECT_TRUE(Again.Timers().tmrFileCounter.isActive());
  }
  QTimer& Hiding() { return Again.Timers().tmrHideAllLabels; }
  static bool BalloonsCome() {
    return WindowWorld::WaitFor([] { return IsShown(NameOfTip(0)); });
  }
  static bool BalloonsGo() {
    return WindowWorld::WaitFor([] { return !IsShown(NameOfTip(0)); });
  }

  WindowWorld World;
  QWidget Front;
  Program Again{{World.Files, World.Time, World.Report, World.Prompts, World.Memory, World.Sounds,
                 World.Clipboard},
                {}};
};

TEST_F(FirstStart, BalloonsStandUntilTheTimerEndsThem) {
  EXPECT_EQ(Hiding().interval(), 10000);
  EXPECT_FALSE(IsShown(NameOfTip(0)));
  Show();
  EXPECT_TRUE(BalloonsCome());
  EXPECT_FALSE(Again.Window().Controls().HelpLabels.back()->isVisible());
  Hiding().start(20);
  EXPECT_TRUE(BalloonsGo());
  EXPECT_FALSE(Hiding().isActive());
  EXPECT_TRUE(Again.Help().Tips.BalloonsOnDemand());
}

TEST_F(FirstStart, WithoutTheTimerThereAreNoBalloons) {
  Hiding().stop();
  Show();
  QTest::qWait(50);
  EXPECT_FALSE(IsShown(NameOfTip(0)));
  EXPECT_FALSE(Again.Help().Tips.BalloonsOnDemand());
}

TEST_F(FirstStart, OnlyTheFirstActivationShowsBalloons) {
  Show();
  EXPECT_TRUE(BalloonsCome());
  Again.Help().ResetHoverState();
  EXPECT_TRUE(BalloonsGo());
  BringToFront(Front);
  BringToFront(Again.Window());
  ASSERT_TRUE(Hiding().isActive());
  QTest::qWait(50);
  EXPECT_FALSE(IsShown(NameOfTip(0)));
}

TEST_F(FirstStart, BehindItF1ShowsAllAtTheFirstPressAndEndsItAtTheSecond) {
  const auto shown = [&] {
    int count = Again.Window().Controls().HelpLabels.back()->isVisible() ? 1 : 0;
    for (int i = 0; i < Count; ++i) {
      count += IsShown(NameOfTip(i)) ? 1 : 0;
    }
    return count;
  };
  Show();
  EXPECT_TRUE(BalloonsCome());
  Hiding().start(20);
  EXPECT_TRUE(BalloonsGo());
  QTest::keyClick(&Again.Window(), Qt::Key_F1);
  EXPECT_EQ(shown(), Count + 1);
  QTest::keyClick(&Again.Window(), Qt::Key_F1);
  EXPECT_EQ(shown(), 0);
}

TEST(LaterStart, ShowsNoBalloons) {
  WindowWorld world;
  world.Main.HideLabelsLater(false);
  EXPECT_NE(world.Main.Timers().tmrHideAllLabels.interval(), 10000);
  world.Main.Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&world.Main.Window()));
  const TipWindow* before = TipNamed(NameOfTip(0));
  EXPECT_EQ(before, nullptr);
  EXPECT_TRUE(WindowWorld::WaitFor([] { return TipNamed(NameOfTip(0)) != nullptr; }));
  EXPECT_FALSE(IsShown(NameOfTip(0)));
}

TEST_F(HelpTest, AScreenReaderGetsTheTextsOfTheBalloons) {
  for (const Balloon& balloon : Balloons) {
    const auto& control = World.Find<QWidget>(balloon.Control);
    EXPECT_EQ(control.accessibleName(), TextOf(balloon.Title)) << balloon.Control;
    const QString text = balloon.Text == 0 ? QString() : TextOf(balloon.Text).trimmed();
    EXPECT_EQ(control.accessibleDescription(), text) << balloon.Control;
  }
}

TEST_F(HelpTest, AButtonThatTakesAnothersPlaceHasItsBalloonAbove) {
  PointAtHelp();
  const RaiseLog log;
  World.Click("cmdListFiles");
  QCoreApplication::processEvents();
  EXPECT_EQ(log.Names.filter("Balloon").value(0), NameOfTip(3));
}

}  // namespace
}  // namespace vorlane
