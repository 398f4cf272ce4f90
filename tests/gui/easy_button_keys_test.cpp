// A button by the keyboard and by assistive programs.
#include "gui/button_world.h"

namespace vorlane {
namespace {

struct KeyWorld : ButtonWorld {
  KeyWorld() {
    Form.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Form));
    Button.SetUseSound(UsedSound::BuiltInClick);
    Button.GetBytes();
  }

  void PressAlt(Qt::Key key) { QTest::keyClick(Form.windowHandle(), key, Qt::AltModifier); }

  // Gives the button a stored caption.
  void Store(const char* caption, bool enabled = true, const char* accessKey = "") {
    PropertyBag stored({{QStringLiteral("Caption"), QLatin1String(caption)},
                        {QStringLiteral("Enabled"), enabled},
                        {QStringLiteral("AccessKey"), QLatin1String(accessKey)}});
    Button.ReadProperties(stored);
  }
};

TEST(EasyButtonKeys, TheAccessKeyFiresWithAlt) {
  KeyWorld world;
  world.Button.SetAccessKey(QStringLiteral("g"));
  EXPECT_EQ(world.Button.AccessKey(), QStringLiteral("g"));
  world.PressAlt(Qt::Key_G);
  EXPECT_EQ(world.Clicks, 1);
  EXPECT_EQ(world.Sounds.Played.size(), 1U);
  QTest::keyClick(world.Form.windowHandle(), Qt::Key_G);
  EXPECT_EQ(world.Clicks, 1);
  world.Button.SetAccessKey(QStringLiteral("x"));
  world.PressAlt(Qt::Key_G);
  EXPECT_EQ(world.Clicks, 1);
  world.PressAlt(Qt::Key_X);
  EXPECT_EQ(world.Clicks, 2);
}

TEST(EasyButtonKeys, EachCharacterIsAnAccessKey) {
  KeyWorld world;
  world.Button.SetAccessKey(QStringLiteral("ab"));
  world.PressAlt(Qt::Key_A);
  world.PressAlt(Qt::Key_B);
  EXPECT_EQ(world.Clicks, 2);
}

TEST(EasyButtonKeys, TheAccessKeyAsksNeitherMaskNorMouse) {
  KeyWorld world;
  world.Button.SetPicture(FourStrips());
  world.Button.SetAccessKey(QStringLiteral("g"));
  world.PressAlt(Qt::Key_G);
  EXPECT_EQ(world.Clicks, 1);
  world.PointAt(GreyPlace);
  world.PressAlt(Qt::Key_G);
  EXPECT_EQ(world.Clicks, 2);
}

TEST(EasyButtonKeys, ADisabledOrHiddenButtonIsntFired) {
  KeyWorld world;
  world.Button.SetAccessKey(QStringLiteral("g"));
  world.Button.setEnabled(false);
  world.PressAlt(Qt::Key_G);
  world.Button.Fire();
  world.Button.setEnabled(true);
  world.Button.hide();
  world.PressAlt(Qt::Key_G);
  EXPECT_EQ(world.Clicks, 0);
  EXPECT_TRUE(world.Sounds.Played.empty());
}

TEST(EasyButtonKeys, AStoredCaptionGivesTheAccessKey) {
  KeyWorld world;
  world.Store("&Go");
  EXPECT_EQ(world.Button.AccessKey(), QStringLiteral("G"));
  EXPECT_EQ(world.Button.Caption(), QStringLiteral("&Go"));
  world.PressAlt(Qt::Key_G);
  EXPECT_EQ(world.Clicks, 1);
  world.Store("Go &now &then", true, "q");
  EXPECT_EQ(world.Button.AccessKey(), QStringLiteral("n"));
  world.Store("Go&");
  EXPECT_EQ(world.Button.AccessKey(), QString());
  world.Store("G&&o");
  EXPECT_EQ(world.Button.AccessKey(), QStringLiteral("&"));
}

TEST(EasyButtonKeys, OtherwiseTheStoredAccessKeyStays) {
  KeyWorld world;
  world.Store("Go", true, "q");
  EXPECT_EQ(world.Button.AccessKey(), QStringLiteral("q"));
  world.Store("&Go", false, "q");
  EXPECT_EQ(world.Button.AccessKey(), QStringLiteral("q"));
  world.Store("  ", true, "q");
  EXPECT_EQ(world.Button.AccessKey(), QStringLiteral("q"));
}

TEST(EasyButtonKeys, ACaptionThatIsSetGivesNoAccessKey) {
  KeyWorld world;
  world.Button.SetCaption(QStringLiteral("&Go"));
  EXPECT_EQ(world.Button.AccessKey(), QString());
  world.PressAlt(Qt::Key_G);
  EXPECT_EQ(world.Clicks, 0);
}

TEST(EasyButtonKeys, WhereTwoHaveOneKeyItLeadsFromOneToTheNext) {
  KeyWorld world;
  EasyButton other({world.Disk, world.Prompts, world.Sounds}, &world.Form);
  other.OnClick = [&world] { ++world.Clicks; };
  other.show();
  world.Button.SetAccessKey(QStringLiteral("g"));
  other.SetAccessKey(QStringLiteral("g"));
  world.PressAlt(Qt::Key_G);
  EXPECT_EQ(world.Clicks, 0);
  EXPECT_TRUE(world.Button.hasFocus() || other.hasFocus());
}

TEST(EasyButtonKeys, SpaceFires) {
  KeyWorld world;
  world.Button.setFocus();
  QTest::keyClick(&world.Button, Qt::Key_Space);
  EXPECT_EQ(world.Clicks, 1);
  EXPECT_EQ(world.Sounds.Played.size(), 1U);
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
  QApplication::sendEvent(&world.Button, &repeated);
  QTest::keyClick(&world.Button, Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(world.Clicks, 1);
}

TEST(EasyButtonKeys, EnterIsTheFormsBusiness) {
  KeyWorld world;
  world.Button.setFocus();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    event.accept();
    QApplication::sendEvent(&world.Button, &event);
    EXPECT_FALSE(event.isAccepted());
  }
  EXPECT_EQ(world.Clicks, 0);
}

TEST(EasyButtonKeys, KeysArePassedOn) {
  KeyWorld world;
  QStringList events;
  world.Button.OnKeyDown = [&events](int key, int shift) {
    events << QStringLiteral("down %1 %2").arg(key).arg(shift);
  };
  world.Button.OnKeyPress = [&events](int ascii) {
    events << QStringLiteral("press %1").arg(ascii);
  };
  world.Button.OnKeyUp = [&events](int key, int shift) {
    events << QStringLiteral("up %1 %2").arg(key).arg(shift);
  };
  QTest::keyClick(&world.Button, Qt::Key_A, Qt::ShiftModifier);
  EXPECT_EQ(events, QStringList({"down 65 1", "press 65", "up 65 1"}));
  events.clear();
  QTest::keyClick(&world.Button, Qt::Key_Home, Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(events, QStringList({QStringLiteral("down %1 6").arg(int(Qt::Key_Home)),
                                 QStringLiteral("up %1 6").arg(int(Qt::Key_Home))}));
}

TEST(EasyButtonKeys, TheMenuKeyGoesOnToTheForm) {
  KeyWorld world;
  world.Form.setContextMenuPolicy(Qt::CustomContextMenu);
  int menus = 0;
  QObject::connect(&world.Form, &QWidget::customContextMenuRequested, [&menus] { ++menus; });
  QContextMenuEvent event(QContextMenuEvent::Keyboard, {1, 1}, {1, 1});
  QApplication::sendEvent(&world.Button, &event);
  EXPECT_EQ(menus, 1);
}

TEST(EasyButtonKeys, AssistiveProgramsSeeAButtonAndPressIt) {
  KeyWorld world;
  QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(&world.Button);
  ASSERT_NE(seen, nullptr);
  EXPECT_EQ(seen->role(), QAccessible::Button);
  world.Button.SetCaption(QStringLiteral("&Save && go"));
  EXPECT_EQ(seen->text(QAccessible::Name), QStringLiteral("Save & go"));
  world.Button.setAccessibleName(QStringLiteral("Go"));
  EXPECT_EQ(seen->text(QAccessible::Name), QStringLiteral("Go"));
  EXPECT_TRUE(seen->state().focusable);
  QAccessibleActionInterface* actions = seen->actionInterface();
  ASSERT_NE(actions, nullptr);
  EXPECT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
  actions->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(world.Clicks, 0);  // what asked for it isn't kept waiting
  EXPECT_TRUE(QTest::qWaitFor([&] { return world.Clicks == 1; }));
  EXPECT_EQ(world.Sounds.Played.size(), 1U);
  world.Button.setEnabled(false);
  EXPECT_FALSE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
  EXPECT_TRUE(seen->state().disabled);
}

}  // namespace
}  // namespace vorlane
