// Stop, keys and the closing of the window in the middle of jobs.
#include "gui/window_world.h"

namespace vorlane {
namespace {

struct JobsTest : testing::Test {
  JobsTest() {
    for (int i = 0; i < 3000; ++i) {
      World.Folder.Write("f" + std::to_string(10000 + i));
    }
    World.LoadOperations({u"Operation Name:\tX", u"Step: x<FILENAME>", u"Help Message: h",
                          u"Available Boxes: 0", u""});
    World.Main.SelectOperation(1);
    World.Open(World.Folder.Path());
  }
  int Renamed() const {
    int renamed = 0;
    for (const auto& [name, bytes] : World.Folder.Contents()) {
      renamed += name.starts_with("x") ? 1 : 0;
    }
    return renamed;
  }
  // Does something as soon as the run has renamed some rows.
  void InTheMiddleOfARun(std::function<void()> act) {
    World.Click("cmdDoOne");
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&, done = false]() mutable {
      if (!done && World.Main.State().Jobs.BatchState == JobState::Running &&
          World.Main.State().Rows.Selected() > 100) {
        done = true;
        Acted = true;
        act();
      }
    });
    poll.start(0);
    World.Click("cmdGo");
  }

  WindowWorld World;
  bool Acted = false;
};

TEST_F(JobsTest, StopEndsARunBehindTheRowInHand) {
  InTheMiddleOfARun([&] {
    EXPECT_TRUE(World.Find<QWidget>("cmdStop").isVisible());
    EXPECT_FALSE(World.Find<QWidget>("cmdGo").isVisible());
    World.Click("cmdStop");
  });
  EXPECT_TRUE(Acted);
  EXPECT_GT(Renamed(), 0);
  EXPECT_LT(Renamed(), 3000);
  EXPECT_TRUE(World.Folder.Exists("UNDORENAME.TXT"));
  EXPECT_FALSE(World.Find<QWidget>("cmdUndo").isEnabled());
  EXPECT_TRUE(World.Find<QWidget>("cmdGo").isVisible());
}

TEST_F(JobsTest, EscapeStopsARun) {
  InTheMiddleOfARun([&] { QTest::keyClick(&World.Main.Window(), Qt::Key_Escape); });
  EXPECT_LT(Renamed(), 3000);
}

TEST_F(JobsTest, EnterInTheMiddleOfARunStartsNoSecondOne) {
  InTheMiddleOfARun([&] {
    QTest::keyClick(&World.Main.Window(), Qt::Key_Return);
    EXPECT_EQ(World.Main.State().Jobs.BatchState, JobState::Running);
  });
  EXPECT_EQ(Renamed(), 3000);
}

TEST_F(JobsTest, NothingElseBeginsInTheMiddleOfARun) {
  InTheMiddleOfARun([&] {
    const int rows = World.Main.State().Rows.Count();
    World.Click("cmdListFiles");
    World.Click("cmdThisFolderOnly");
    World.Click("cmdDoAll");
    QTest::keyClick(&World.Main.Window(), Qt::Key_F5);
    EXPECT_FALSE(World.Find<QWidget>("lstRenamingOperations").isEnabled());
    EXPECT_FALSE(World.Find<QWidget>("picBrowse").isEnabled());
    EXPECT_EQ(World.Main.State().Rows.Count(), rows);
  });
  EXPECT_TRUE(World.Find<QWidget>("cmdDoAll").isVisible());
  EXPECT_EQ(Renamed(), 3000);
}

TEST_F(JobsTest, ClosingInTheMiddleOfARunEndsItFirst) {
  bool closed = false;
  World.Main.OnClosing = [&] {
    closed = true;
    EXPECT_TRUE(World.Main.State().IsIdle());
  };
  InTheMiddleOfARun([&] {
    World.Main.Window().close();
    EXPECT_FALSE(closed);
    EXPECT_TRUE(World.Main.Window().isVisible());
  });
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return !World.Main.Window().isVisible(); }));
  EXPECT_TRUE(closed);
  EXPECT_LT(Renamed(), 3000);
  EXPECT_TRUE(World.Folder.Exists("UNDORENAME.TXT"));
}

TEST_F(JobsTest, AnOperationPickedInTheMiddleOfAPreviewComesBehindIt) {
  World.LoadOperations({u"Operation Name:\tX", u"Step: x<FILENAME>", u"Help Message: h",
                        u"Available Boxes: 0", u"", u"Operation Name:\tY", u"Step: y<FILENAME>",
                        u"Help Message: h", u"Available Boxes: 0", u""});
  World.Main.SelectOperation(1);
  QElapsedTimer time;
  time.start();
  QTimer::singleShot(0, [&] { World.Main.SelectOperation(2); });
  QTest::mouseDClick(&World.Find<QLabel>("lblFileStatus"), Qt::LeftButton);
  EXPECT_EQ(World.ColumnTexts(Column::ProposedName).front(), "yf10000");
  EXPECT_LT(time.elapsed(), 2500);  // it didn't wait for a preview that couldn't go on
}

TEST_F(JobsTest, TwoPressesOfGoInTheMiddleOfAPreviewAreOneRun) {
  World.Click("cmdDoOne");
  QTimer::singleShot(0, [&] {
    World.Click("cmdGo");
    World.Click("cmdGo");
  });
  QTest::mouseDClick(&World.Find<QLabel>("lblFileStatus"), Qt::LeftButton);
  EXPECT_TRUE(World.Folder.Exists("xf10000"));
  EXPECT_EQ(Renamed(), 3000);
}

TEST_F(JobsTest, AGoThatWaitsIsTakenBackByStop) {
  QTimer::singleShot(0, [&] {
    World.Click("cmdGo");
    QTest::keyClick(&World.Main.Window(), Qt::Key_Escape);
  });
  QTest::mouseDClick(&World.Find<QLabel>("lblFileStatus"), Qt::LeftButton);
  EXPECT_EQ(Renamed(), 0);
}

TEST_F(JobsTest, ClosingInTheMiddleOfAPreviewEndsItFirst) {
  QTimer::singleShot(0, [&] {
    World.Click("cmdGo");
    World.Main.Window().close();
  });
  QTest::mouseDClick(&World.Find<QLabel>("lblFileStatus"), Qt::LeftButton);
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return !World.Main.Window().isVisible(); }));
  EXPECT_EQ(Renamed(), 0);
}

// Both come out of one look at the message queue when a hand is quicker than the screen.
TEST_F(JobsTest, AnOperationPickedRightBeforeEnterIsTheOneThatRuns) {
  World.LoadOperations({u"Operation Name:\tX", u"Step: x<FILENAME>", u"Help Message: h",
                        u"Available Boxes: 0", u"", u"Operation Name:\tY", u"Step: y<FILENAME>",
                        u"Help Message: h", u"Available Boxes: 0", u""});
  World.Main.SelectOperation(1);
  auto& tree = World.Find<QTreeWidget>("lstRenamingOperations");
  for (const int key : {Qt::Key_Down, Qt::Key_Return}) {
    QCoreApplication::postEvent(&tree, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
  }
  QCoreApplication::sendPostedEvents(&tree);
  EXPECT_TRUE(World.Folder.Exists("yf10000"));
  EXPECT_FALSE(World.Folder.Exists("xf10000"));
}

TEST_F(JobsTest, ARowPickedRightBeforeEnterIsTheOneThatIsRenamed) {
  auto& list = World.Find<QTreeView>("lstFileList");
  for (const int key : {Qt::Key_Down, Qt::Key_Return}) {
    QCoreApplication::postEvent(&list, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
  }
  QCoreApplication::sendPostedEvents(&list);
  EXPECT_TRUE(World.Folder.Exists("xf10001"));
  EXPECT_EQ(Renamed(), 1);
}

TEST_F(JobsTest, ClosingInTheMiddleOfAListingEndsItFirst) {
  bool closed = false;
  World.Main.OnClosing = [&] { closed = true; };
  bool wasListing = false;
  QTimer::singleShot(0, [&] {
    wasListing = World.Main.State().Jobs.ListingState == JobState::Running;
    World.Main.Window().close();
    EXPECT_FALSE(closed);
  });
  QTest::keyClick(&World.Main.Window(), Qt::Key_F5);
  EXPECT_TRUE(wasListing);
  EXPECT_LT(World.Main.State().Rows.Count(), 3000);
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return closed; }));
  EXPECT_FALSE(World.Main.Window().isVisible());
}

TEST_F(JobsTest, ASignalInTheMiddleOfAPreviewEndsItFirst) {
  QTimer::singleShot(0, [&] { World.Main.CloseUnattended(); });
  QTest::mouseDClick(&World.Find<QLabel>("lblFileStatus"), Qt::LeftButton);
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return !World.Main.Window().isVisible(); }));
  EXPECT_TRUE(World.ColumnTexts(Column::ProposedName).contains(QString()));
}

TEST_F(JobsTest, MaximizingLooksAtTheRowsAgain) {
  QTimer& preview = World.Main.Timers().tmrAutoPreview;
  preview.stop();
  World.Main.Window().showMaximized();
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return preview.isActive(); }));
}

TEST_F(JobsTest, MaximizingDoesSoAlsoIfTheSizeComesBeforeTheState) {
  FrmMain& window = World.Main.Window();
  window.setGeometry(window.screen()->availableGeometry());
  QTimer& preview = World.Main.Timers().tmrAutoPreview;
  preview.stop();
  window.showMaximized();
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return preview.isActive(); }));
}

// Whichever event tells of the state.
TEST_F(JobsTest, MinimizingAMaximizedWindowLooksAtNothing) {
  FrmMain& window = World.Main.Window();
  QTimer& preview = World.Main.Timers().tmrAutoPreview;
  preview.setInterval(100'000);
  window.showMaximized();
  ASSERT_TRUE(WindowWorld::WaitFor([&] { return window.width() > 1300 && preview.isActive(); }));
  QCoreApplication::processEvents();
  preview.stop();
  window.showMinimized();
  QCoreApplication::processEvents();
  ASSERT_TRUE(window.isMinimized() && window.isMaximized());
  EXPECT_FALSE(preview.isActive());
  QResizeEvent resized(window.size(), window.size());
  QCoreApplication::sendEvent(&window, &resized);
  EXPECT_FALSE(preview.isActive());
  window.showMaximized();
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return preview.isActive(); }));
}

TEST_F(JobsTest, AWindowThatNobodySawMaximizedIsntRestored) {
  FrmMain& window = World.Main.Window();
  int restored = 0;
  window.OnRestored = [&restored] { ++restored; };
  window.setWindowState(Qt::WindowMinimized | Qt::WindowMaximized);
  QCoreApplication::processEvents();
  window.setWindowState(Qt::WindowNoState);
  QCoreApplication::processEvents();
  EXPECT_EQ(restored, 0);
  window.showMaximized();
  QCoreApplication::processEvents();
  window.showNormal();
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return restored == 1; }));
}

TEST_F(JobsTest, StopEndsAPreview) {
  QTimer::singleShot(0, [&] { World.Main.State().Jobs.RequestStop(); });
  QTest::mouseDClick(&World.Find<QLabel>("lblFileStatus"), Qt::LeftButton);
  EXPECT_TRUE(World.ColumnTexts(Column::ProposedName).contains(QString()));
  EXPECT_EQ(World.Main.State().Jobs.PreviewState, JobState::Idle);
}

}  // namespace
}  // namespace vorlane
