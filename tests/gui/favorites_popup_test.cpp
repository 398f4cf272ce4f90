// The favorites on the main window.
#include "ui/favorites_popup.h"

#include "gui/pixel_rows.h"
#include "gui/window_world.h"
#include "platform/file_name_bytes.h"
#include "shell/stored_favorites.h"
#include "support/settings_world.h"
#include "ui/form_canvas.h"
#include "ui/form_colours.h"
#include "ui/mod_menu_ctl.h"
#include "ui/program_icons.h"

namespace vorlane {
namespace {

struct FavoritesPopupTest : testing::Test {
  FavoritesPopupTest() {
    World.OpenSample();
    QObject::connect(&patience_, &QTimer::timeout, &patience_, [] {
      if (QWidget* menu = Popup()) {
        ADD_FAILURE() << "a menu is still open";
        menu->close();
      }
    });
    patience_.start(5000);
  }

  Text Sub() const { return TextFromBytes(World.Folder.Path() + "sub/"); }
  QString CurrentFolder() { return ToQString(World.Main.State().CurrentPath); }

  static QWidget* Popup() {
    QWidget* popup = QApplication::activePopupWidget();
    return popup != nullptr && popup->objectName() == "frmMenuCtl" ? popup : nullptr;
  }
  static int RowsOf(const QWidget& menu) {
    QFont font(QStringLiteral("MS Sans Serif"));
    font.setPixelSize(11);
    return (menu.height() - 8) / QFontMetrics(font).height();
  }
  static void Release(QWidget& menu) {
    QTest::mouseRelease(&menu, Qt::LeftButton, {}, menu.rect().center());
  }
  // No button stays down for the next test.
  ~FavoritesPopupTest() override {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
      QTest::mouseRelease(&World.Main.Window(), button, {}, {10, 200});
    }
  }
  // Goes to the nth row that can be chosen and takes it.
  static void Take(QWidget& menu, int row) {
    QTest::keyClick(&menu, Qt::Key_Home);
    for (int i = 1; i < row; ++i) {
      QTest::keyClick(&menu, Qt::Key_Down);
    }
    QTest::keyClick(&menu, Qt::Key_Return);
  }
  // Does these things one after the other, each to the next menu that opens.
  void WithMenus(std::vector<std::function<void(QWidget&)>> acts) {
    acts_ = std::move(acts);
    at_ = 0;
    poll_.disconnect();
    QObject::connect(&poll_, &QTimer::timeout, &poll_, [this] {
      QWidget* menu = Popup();
      if (menu != nullptr && at_ < acts_.size()) {
        acts_[at_++](*menu);
      }
    });
    poll_.start(0);
  }
  void RightPress(const QPoint& at = {1018, 5}) {
    QTest::mousePress(&World.Main.Window(), Qt::RightButton, {}, at);
  }
  void MenuKey() {
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus != nullptr ? focus : &World.Main.Window(), Qt::Key_Menu);
  }
  bool AllDone() const { return at_ == acts_.size(); }

  WindowWorld World;
  SettingsWorld Stored;
  StoredFavorites Slots{Stored.Settings};
  FavoritesPopup Favorites{World.Main, World.Files, Slots, World.Prompts};

 private:
  std::vector<std::function<void(QWidget&)>> acts_;
  std::size_t at_ = 0;
  QTimer poll_;
  QTimer patience_;  // a menu that nobody closes would keep the test waiting for ever
};

TEST_F(FavoritesPopupTest, ARightPressWaitsForItsReleaseAndOpensTheMenu) {
  QSize first;
  int rows = 0;
  WithMenus({[&](QWidget& menu) {
               first = menu.size();
               Release(menu);
             },
             [&](QWidget& menu) {
               rows = RowsOf(menu);
               Release(menu);
             }});
  RightPress();
  EXPECT_TRUE(AllDone());
  EXPECT_EQ(first, QSize(1, 1));
  EXPECT_EQ(rows, 5);
}

TEST_F(FavoritesPopupTest, ALeftPressOpensNothing) {
  QTest::mousePress(&World.Main.Window(), Qt::LeftButton, {}, {1018, 5});
  QTest::mouseRelease(&World.Main.Window(), Qt::LeftButton, {}, {1018, 5});
  EXPECT_EQ(Popup(), nullptr);
}

TEST_F(FavoritesPopupTest, TheBarsHaveTheMenuAndControlsDont) {
  for (const char* bar : {"imgTopBar", "imgBottomBar"}) {
    int menus = 0;
    WithMenus({[&](QWidget& menu) {
      ++menus;
      QTest::keyClick(&menu, Qt::Key_Escape);
    }});
    QTest::mousePress(&World.Find<QWidget>(bar), Qt::RightButton, {}, {2, 2});
    EXPECT_EQ(menus, 1) << bar;
  }
  for (const char* control : {"cmdGo", "cmdUndo", "lblStatus", "picBrowse", "objProgressBar"}) {
    QTest::mousePress(&World.Find<QWidget>(control), Qt::RightButton);
    EXPECT_EQ(Popup(), nullptr) << control;
  }
}

TEST_F(FavoritesPopupTest, AFavoriteIsAddedGoneToAndDeleted) {
  World.Main.Gate().Start([&] { World.Main.Browser().SelectBrowserFolder(Sub()); });
  WithMenus({[&](QWidget& menu) { Take(menu, 1); },  // add
             [&](QWidget& menu) {
               EXPECT_EQ(RowsOf(menu), 6);
               Take(menu, 3);  // the favorite
             },
             [&](QWidget& menu) { Take(menu, 2); },  // delete
             [&](QWidget& menu) {
               EXPECT_EQ(RowsOf(menu), 3);
               Take(menu, 1);
             }});
  MenuKey();
  EXPECT_EQ(Stored.Get(u"Favorite_00"), Sub());
  World.Open(World.Folder.Path());
  EXPECT_EQ(CurrentFolder().toStdString(), World.Folder.Path());
  MenuKey();
  EXPECT_EQ(CurrentFolder(), ToQString(Sub()));
  EXPECT_EQ(World.ColumnTexts(Column::CurrentName), QStringList({"b.txt"}));
  MenuKey();
  EXPECT_TRUE(AllDone());
  EXPECT_EQ(Stored.Get(u"Favorite_00"), u"(none)");
}

TEST_F(FavoritesPopupTest, ByTheKeyboardItOpensOverTheFocusedControl) {
  auto& tree = World.Find<QWidget>("tvwFolders");
  tree.setFocus();
  QPoint place;
  WithMenus({[&](QWidget& menu) {
               place = menu.pos();
               QTest::keyClick(&menu, Qt::Key_Escape);
             },
             [&](QWidget& menu) { QTest::keyClick(&menu, Qt::Key_Escape); }});
  MenuKey();
  EXPECT_TRUE(QRect(tree.mapToGlobal(QPoint(0, 0)), tree.size()).contains(place));
  EXPECT_EQ(World.Main.Window().focusWidget(), &tree);
  QTest::keyClick(&tree, Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_TRUE(AllDone());
  QTest::keyClick(&tree, Qt::Key_F10);
  EXPECT_EQ(Popup(), nullptr);
}

TEST_F(FavoritesPopupTest, ByTheMouseItOpensAtThePointerAlsoAfterTheKey) {
  World.Find<QWidget>("tvwFolders").setFocus();
  QPoint byKey;
  QPoint byMouse;
  WithMenus({[&](QWidget& menu) {
               byKey = menu.pos();
               QTest::keyClick(&menu, Qt::Key_Escape);
             },
             Release,
             [&](QWidget& menu) {
               byMouse = menu.pos();
               QTest::keyClick(&menu, Qt::Key_Escape);
             }});
  MenuKey();
  QCursor::setPos(700, 400);
  ASSERT_NE(byKey, QCursor::pos());
  RightPress();
  EXPECT_TRUE(AllDone());
  EXPECT_EQ(byMouse, QPoint(700, 400));
}

TEST_F(FavoritesPopupTest, ATextBoxOpensNoMenuOfItsOwnByTheKey) {
  auto& box = *World.Find<QComboBox>("cboWildCard").lineEdit();
  box.setFocus();
  QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {5, 5}, box.mapToGlobal(QPoint(5, 5)));
  QCoreApplication::sendEvent(&box, &byKey);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  QContextMenuEvent byMouse(QContextMenuEvent::Mouse, {5, 5}, box.mapToGlobal(QPoint(5, 5)));
  QCoreApplication::sendEvent(&box, &byMouse);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QApplication::activePopupWidget()->close();
}

TEST_F(FavoritesPopupTest, WhatIsTypedStaysInItsBox) {
  auto& box = World.Find<QComboBox>("cboWildCard");
  box.setFocus();
  QTest::keyClicks(&box, "z");
  WithMenus({[&](QWidget& menu) { QTest::keyClick(&menu, Qt::Key_Escape); }});
  MenuKey();
  EXPECT_EQ(World.Main.Window().focusWidget(), &box);
  EXPECT_TRUE(box.currentText().endsWith("z"));
}

TEST_F(FavoritesPopupTest, InTheMiddleOfARunThereIsNoMenu) {
  for (int i = 0; i < 500; ++i) {
    World.Folder.Write("f" + std::to_string(1000 + i));
  }
  World.Open(World.Folder.Path());
  World.Click("cmdDoOne");
  bool tried = false;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, [&] {
    if (!tried && World.Main.State().Jobs.BatchState == JobState::Running) {
      tried = true;
      RightPress();
      MenuKey();
      EXPECT_EQ(Popup(), nullptr);
    }
  });
  poll.start(0);
  World.Click("cmdGo");
  EXPECT_TRUE(tried);
  EXPECT_TRUE(World.Folder.Exists("xf1499"));
}

TEST_F(FavoritesPopupTest, ClosingTheWindowEndsTheMenuFirst) {
  bool closed = false;
  World.Main.OnClosing = [&] {
    closed = true;
    EXPECT_EQ(Popup(), nullptr);
  };
  WithMenus({[&](QWidget& menu) {
    World.Main.Close();
    EXPECT_FALSE(menu.isVisible());
    EXPECT_FALSE(closed);
    EXPECT_TRUE(World.Main.Window().isVisible());
  }});
  MenuKey();
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return !World.Main.Window().isVisible(); }));
  EXPECT_TRUE(closed);
}

TEST_F(FavoritesPopupTest, ClosingWhileTheReleaseIsAwaitedOpensNoMenuMore) {
  int menus = 0;
  const auto count = [&](QWidget&) { ++menus; };
  WithMenus({[&](QWidget& menu) {
               count(menu);
               World.Main.Close();
             },
             count});
  RightPress();
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return !World.Main.Window().isVisible(); }));
  EXPECT_EQ(menus, 1);
}

TEST_F(FavoritesPopupTest, AWishToCloseBehindAChoiceOpensNoSecondMenu) {
  Slots.Save(0, Sub());
  int menus = 0;
  WithMenus({[&](QWidget& menu) {
               ++menus;
               Take(menu, 2);
               World.Main.Close();
             },
             [&](QWidget&) { ++menus; }});
  MenuKey();
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return !World.Main.Window().isVisible(); }));
  EXPECT_EQ(menus, 1);
}

TEST_F(FavoritesPopupTest, AnUnattendedEndClosesTheMenu) {
  WithMenus({[&](QWidget&) { World.Main.CloseUnattended(); }});
  MenuKey();
  EXPECT_TRUE(WindowWorld::WaitFor([&] { return !World.Main.Window().isVisible(); }));
}

TEST_F(FavoritesPopupTest, AClosingWindowClosesAnOpenListToo) {
  auto& box = World.Find<QComboBox>("cboWildCard");
  box.showPopup();
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  World.Main.Close();
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_FALSE(World.Main.Window().isVisible());
}

// The preview can't go on while the menu that came in the middle of it goes to a folder.
TEST_F(FavoritesPopupTest, AFavoriteTakenInTheMiddleOfAPreviewComesBehindIt) {
  for (int i = 0; i < 3000; ++i) {
    World.Folder.Write("f" + std::to_string(10000 + i));
  }
  World.Open(World.Folder.Path());
  Slots.Save(0, Sub());
  bool inPreview = false;
  WithMenus({[&](QWidget& menu) {
    inPreview = World.Main.State().Jobs.PreviewState == JobState::Running;
    Take(menu, 3);
  }});
  QTimer::singleShot(0, &World.Main.Window(), [&] { MenuKey(); });
  World.Main.PreviewAll();
  EXPECT_TRUE(inPreview);
  EXPECT_TRUE(AllDone());
  EXPECT_EQ(World.ColumnTexts(Column::CurrentName), QStringList({"b.txt"}));
}

TEST_F(FavoritesPopupTest, AFavoriteTakenInTheMiddleOfAListingIsWhatIsListed) {
  for (int i = 0; i < 3000; ++i) {
    World.Folder.Write("f" + std::to_string(10000 + i));
  }
  Slots.Save(0, Sub());
  bool inListing = false;
  WithMenus({[&](QWidget& menu) {
    inListing = World.Main.State().Jobs.ListingState == JobState::Running;
    Take(menu, 3);
  }});
  QTimer::singleShot(0, &World.Main.Window(), [&] { MenuKey(); });
  World.Open(World.Folder.Path());
  EXPECT_TRUE(inListing);
  EXPECT_EQ(World.ColumnTexts(Column::CurrentName), QStringList({"b.txt"}));
}

TEST_F(FavoritesPopupTest, AHeldStatusRunsOutWhileTheMenuIsOpen) {
  const QTimer& holding = World.Main.Timers().tmrProgramStatus;
  const QLabel& status = World.Find<QLabel>("lblStatus");
  QTimer poll;
  bool isShown = false;
  QObject::connect(&poll, &QTimer::timeout, [&] {
    QWidget* menu = Popup();
    if (menu != nullptr && status.text() == "held") {
      isShown = true;
      menu->close();
    } else if (menu != nullptr && !holding.isActive()) {
      World.Main.State().HoldStatus(u"held");
      EXPECT_NE(status.text(), "held");
    }
  });
  poll.start(1);
  MenuKey();
  EXPECT_TRUE(isShown);
}

TEST_F(FavoritesPopupTest, TheMenuHasAShadedFrame) {
  QImage shown;
  WithMenus({[&](QWidget& menu) {
    shown = menu.grab().toImage().convertToFormat(QImage::Format_RGB32);
    QTest::keyClick(&menu, Qt::Key_Escape);
  }});
  MenuKey();
  FormCanvas canvas;
  canvas.BackColor = DesktopColour::ButtonFace;
  canvas.Resize(shown.size());
  DrawFrameLayered(canvas, 3, {}, {}, false, World.Prompts);
  QImage expected = canvas.Picture().convertToFormat(QImage::Format_RGB32);
  const QRect inside = expected.rect().adjusted(3, 3, -3, -3);
  QPainter(&expected).drawImage(inside.topLeft(), shown.copy(inside));
  EXPECT_TRUE(SamePicture(shown, expected));
}

TEST_F(FavoritesPopupTest, TheMenuHasItsPicturesAndItsColour) {
  Slots.Save(0, Sub());
  QImage shown;
  WithMenus({[&](QWidget& menu) {
    shown = menu.grab().toImage().convertToFormat(QImage::Format_RGB32);
    QTest::keyClick(&menu, Qt::Key_Escape);
  }});
  MenuKey();
  ASSERT_FALSE(shown.isNull());
  const int row = (shown.height() - 8) / 6;
  const auto top = [&](int at) { return 4 + (at - 1) * row; };
  FormCanvas bare;
  bare.BackColor = DesktopColour::ButtonFace;
  for (const auto& [at, icon] :
       {std::pair{3, MenuIcon::Save}, {4, MenuIcon::Delete}, {6, MenuIcon::Folder}}) {
    bare.Resize({12, 12});
    bare.Cls();
    bare.PaintPicture(MenuIconPicture(icon).toImage(), {0, 0});
    EXPECT_TRUE(SamePicture(shown.copy(4, top(at), 12, 12), bare.Picture())) << at;
  }
  bare.Font = QFont(QStringLiteral("MS Sans Serif"));
  bare.Font.setPixelSize(11);
  bare.ForeColor = 0x646400;
  bare.Resize({shown.width() - 22 - 3, row});
  bare.Cls();
  bare.Print(ToQString(Sub()));
  EXPECT_TRUE(SamePicture(shown.copy(22, top(6), bare.Picture().width(), row), bare.Picture()));
}

}  // namespace
}  // namespace vorlane
