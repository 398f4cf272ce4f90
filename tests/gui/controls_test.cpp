// Every control under its own name, at its place.
#include "gui/window_world.h"
#include "layout/form_control.h"
#include "platform/vendor.h"

namespace vorlane {
namespace {

QString NameOf(const FormControlPlace& control) {
  const std::string name(control.Name);
  return control.Index < 0 ? QString::fromStdString(name)
                           : NameInGroup(name.c_str(), control.Index);
}

TEST(Controls, StandWhereTheyWereDesigned) {
  WindowWorld world;
  EXPECT_EQ(world.Main.Window().size(), QSize(1024, 522));
  for (const FormControlPlace& control : DesignedControls()) {
    const auto* widget = world.Main.Window().findChild<QWidget*>(NameOf(control));
    ASSERT_NE(widget, nullptr) << NameOf(control).toStdString();
    EXPECT_EQ(widget->isVisible(), control.VisibleAtFirst) << NameOf(control).toStdString();
    if (control.Name == "lblFileStatus") {
      continue;  // ends at the list's right edge, whatever its text
    }
    EXPECT_EQ(widget->pos(), QPoint(PixelsOf(control.Place.Left), PixelsOf(control.Place.Top)))
        << NameOf(control).toStdString();
    if (control.Kind != ControlKind::Label) {
      EXPECT_EQ(widget->size(),
                QSize(PixelsOf(control.Place.Width), PixelsOf(control.Place.Height)))
          << NameOf(control).toStdString();
    }
  }
}

TEST(Controls, StayWhereTheyAreInAMinimizedWindow) {
  WindowWorld world;
  QWidget& window = world.Main.Window();
  const auto& go = world.Find<QWidget>("cmdGo");
  const auto& list = world.Find<QWidget>("lstFileList");
  const QPoint corner = go.pos();
  const QPoint listCorner = list.geometry().bottomRight();
  window.showMinimized();
  QCoreApplication::processEvents();
  ASSERT_TRUE(window.isMinimized());
  window.resize(1124, 622);
  QResizeEvent resized(window.size(), {1024, 522});
  QCoreApplication::sendEvent(&window, &resized);
  EXPECT_EQ(go.pos(), corner);
  EXPECT_EQ(list.geometry().bottomRight(), listCorner);
  window.showNormal();
  ASSERT_TRUE(WindowWorld::WaitFor([&] { return window.size() == QSize(1124, 622); }));
  EXPECT_EQ(go.pos(), corner + QPoint(0, 100));
  EXPECT_EQ(list.geometry().bottomRight(), listCorner + QPoint(100, 100));
}

TEST(Controls, FollowTheWindowsSize) {
  WindowWorld world;
  QWidget& window = world.Main.Window();
  window.resize(1224, 622);
  EXPECT_EQ(world.Find<QWidget>("cmdExit").x(), 960 + 200);
  EXPECT_EQ(world.Find<QWidget>("cmdGo").y(), 392 + 100);
  EXPECT_EQ(world.Find<QWidget>("lstRenamingOperations").y(), 376 + 100);
  const QWidget& list = world.Find<QWidget>("lstFileList");
  EXPECT_EQ(list.geometry().right() + 1, 1224 - (1024 - 945));
  const QWidget& count = world.Find<QWidget>("lblFileStatus");
  EXPECT_NEAR(count.geometry().right(), list.geometry().right(), 1);
  EXPECT_EQ(world.Find<QWidget>("cboKeywords").x(), list.x());
  window.resize(1024, 522);
  EXPECT_EQ(list.geometry(), QRect(264, 48, 681, 277));
}

TEST(Controls, TheWindowHasTheProgramsName) {
  WindowWorld world;
  EXPECT_EQ(world.Main.Window().objectName(), "frmMain");
  EXPECT_EQ(world.Main.Window().windowTitle(), ToQString(ApplicationTitle));
}

TEST(Controls, ALongStatusEndsAtTheWindowsEdge) {
  WindowWorld world;
  world.Main.State().SetStatusText(Text(2000, u'x'));
  const QLabel& status = world.Find<QLabel>("lblStatus");
  EXPECT_LE(status.geometry().right(), 1024);
  EXPECT_TRUE(status.text().endsWith(QChar(0x2026)));
  world.Main.Window().resize(1400, 522);
  EXPECT_GT(status.geometry().right(), 1024);
}

TEST(Controls, ARightPressOnALabelStaysThere) {
  WindowWorld world;
  EXPECT_TRUE(world.Find<QLabel>("lblStatus").testAttribute(Qt::WA_NoMousePropagation));
}

TEST(Controls, EachOneThatTakesTheFocusHasAnAccessibleName) {
  WindowWorld world;
  world.LoadOperations({u"Operation Name:\tOp", u"Step:<BOX1>", u"Help Message:h",
                        u"Available Boxes:1", u"Box Name:Prefix", u"Box Display:",
                        u"Box ToolTip:tip", u"Box Check:own", u""});
  world.Main.SelectOperation(1);
  for (QWidget* control : world.Main.Window().Controls().TabChain()) {
    if (control->isVisible()) {
      EXPECT_FALSE(control->accessibleName().isEmpty()) << control->objectName().toStdString();
    }
  }
  EXPECT_EQ(world.Find<QLineEdit>("txtRenameOption(0)").accessibleName(), "Prefix");
  EXPECT_EQ(world.Find<QCheckBox>("chkRenameOption(0)").accessibleName(), "own");
  EXPECT_EQ(world.Find<QWidget>("cmdDoOne").accessibleDescription(),
            "Currently set to process one file/folder at a time");
}

TEST(Controls, TheFolderTreeFillsItsPlace) {
  WindowWorld world;
  world.Main.Window().resize(1400, 700);
  EXPECT_EQ(world.Find<QWidget>("tvwFolders").size(), world.Find<QWidget>("picBrowse").size());
}

TEST(Controls, LabelsHaveTheirOwnFont) {
  WindowWorld world;
  EXPECT_EQ(world.Find<QLabel>("lblStatus").font().family(), "Trebuchet MS");
}

}  // namespace
}  // namespace vorlane
