// The eleven buttons of the main window.
#include "gui/window_world.h"
#include "platform/wave_sound.h"

namespace vorlane {
namespace {

std::vector<EasyButton*> ButtonsOf(WindowWorld& world) {
  const FormControls& controls = world.Main.Window().Controls();
  return {controls.Go,          controls.Stop,           controls.Help,
          controls.Undo,        controls.Exit,           controls.ListFiles,
          controls.ListFolders, controls.ThisFolderOnly, controls.IncludeSubFolders,
          controls.DoOne,       controls.DoAll};
}

QImage BlackPicture() {
  QImage image(40, 80, QImage::Format_RGB32);
  image.fill(QColor(10, 20, 30));
  image.setPixelColor(0, 79, Qt::black);
  return image;
}

TEST(Buttons, AreStoredWithNothingButTheirPictureToShow) {
  WindowWorld world;
  for (EasyButton* button : ButtonsOf(world)) {
    EXPECT_EQ(button->Caption(), QString());
    EXPECT_EQ(button->Align(), 0);
    EXPECT_EQ(button->BackColor(), 0xC0C0C0U);
    EXPECT_EQ(button->ForeColor(), 0x80000012U);
    EXPECT_EQ(button->Font().family(), QStringLiteral("MS Sans Serif"));
    EXPECT_EQ(button->Font().pixelSize(), 11);
    EXPECT_EQ(button->UseSound(), UsedSound::BuiltInClick);
    EXPECT_EQ(button->SoundBytes(), BuiltInClick());
    EXPECT_EQ(button->AccessKey(), QString());
    EXPECT_FALSE(button->accessibleName().isEmpty());
  }
}

TEST(Buttons, ShowACaptionWhileTheyHaveNoPicture) {
  WindowWorld world;
  for (EasyButton* button : ButtonsOf(world)) {
    const QImage look = button->grab().toImage();
    const QColor ground = look.pixelColor(2, 2);
    EXPECT_EQ(ground, QColor(button->palette().color(QPalette::Active, QPalette::Button).rgb()));
    int ink = 0;
    for (int y = 2; y < look.height() - 2; ++y) {
      for (int x = 2; x < look.width() - 2; ++x) {
        ink += look.pixelColor(x, y) != ground ? 1 : 0;
      }
    }
    EXPECT_GT(ink, 15) << button->objectName().toStdString();
    EXPECT_EQ(look.pixelColor(1, look.height() / 2), ground) << "the text fits";
    EXPECT_EQ(look.pixelColor(look.width() - 2, look.height() / 2), ground);
    button->SetPicture(BlackPicture());
    EXPECT_EQ(button->grab().toImage().pixelColor(20, 10), QColor(10, 20, 30));
  }
}

TEST(Buttons, ClickWithASound) {
  WindowWorld world;
  world.Click("cmdListFiles");
  EXPECT_EQ(world.Sounds.Played, std::vector<std::string>{BuiltInClick()});
  EXPECT_TRUE(world.Find<QWidget>("cmdListFolders").isVisible());
}

TEST(Buttons, SpaceSwitchesAPairAndTheFocusStaysAndShows) {
  WindowWorld world;
  auto& files = world.Find<EasyButton>("cmdListFiles");
  auto& folders = world.Find<EasyButton>("cmdListFolders");
  world.Main.Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&world.Main.Window()));
  files.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&files, Qt::Key_Space);
  EXPECT_TRUE(folders.isVisible());
  EXPECT_TRUE(folders.hasFocus());
  EXPECT_TRUE(folders.ShowsFocus());
  QTest::keyClick(&folders, Qt::Key_Space);
  EXPECT_TRUE(files.ShowsFocus());
  world.Click("cmdListFiles");
  EXPECT_TRUE(folders.isVisible());
}

}  // namespace
}  // namespace vorlane
