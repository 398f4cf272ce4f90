// Which file goes to which control in both passes, and what a file that is missing or can't be
// loaded costs.
#include <algorithm>
#include <filesystem>

#include "gui/skin_world.h"
#include "support/memory_file_system.h"

namespace vorlane {
namespace {

constexpr ScaleFactors Compact = FactorsFor(990, 990);

struct SkinTest : testing::Test, SkinWorld {
  QRect DesignedPlaceOf(std::string_view control) {
    const TwipsRect& place = Design.PlaceOf(control);
    return {PixelsOf(place.Left), PixelsOf(place.Top), PixelsOf(place.Width),
            PixelsOf(place.Height)};
  }
  QPoint ScaledCornerOf(std::string_view control) {
    const TwipsRect& place = Design.PlaceOf(control);
    return {PixelsOf(place.Left * Compact.X), PixelsOf(place.Top * Compact.Y)};
  }
  const MainFormLayout Design;
};

std::vector<Text> AllFiles() {
  std::vector<Text> names;
  for (const SkinFile& file : SkinFiles) {
    names.emplace_back(file.FileName);
  }
  return names;
}

TEST_F(SkinTest, AMissingOrEmptyFolderLeavesTheDesign) {
  for (const bool exists : {false, true}) {
    if (exists) {
      Folder.MakeFolder("Skin");
      Folder.MakeFolder("Sounds");
    }
    Skin skin = Take();
    EXPECT_TRUE(skin.ApplySkinPictures());
    skin.AssignSounds();
    EXPECT_TRUE(Shown().empty());
    EXPECT_EQ(Window.size(), QSize(1024, 522));
    for (const SkinFile& file : SkinFiles) {
      if (file.Target != SkinTarget::Form) {
        EXPECT_EQ(Find<QWidget>(file.Control).geometry(), DesignedPlaceOf(file.Control));
      }
    }
    EXPECT_TRUE(Prompts.Boxes.empty());
  }
}

TEST_F(SkinTest, EachFileIsForOneControl) {
  for (const SkinFile& file : SkinFiles) {
    SkinWorld world;
    world.WriteAny(file);
    EXPECT_TRUE(world.Take().ApplySkinPictures());
    EXPECT_EQ(world.Shown(), std::vector<Text>{Text(file.FileName)});
    for (const SkinFile& other : SkinFiles) {
      if (other.Target == SkinTarget::Form) {
        continue;
      }
      QRect expected = DesignedPlaceOf(other.Control);
      if (other.Control == file.Control) {
        expected.setSize(file.Target == SkinTarget::Bar ? QSize(200, 100) : QSize(40, 30));
      }
      EXPECT_EQ(world.Find<QWidget>(other.Control).geometry(), expected) << other.Control;
    }
  }
}

TEST_F(SkinTest, InTheScaledPassAFileMovesItsControlAlone) {
  for (const SkinFile& file : SkinFiles) {
    SkinWorld world;
    world.WriteAny(file);
    world.Take().ApplySkinScaled(990, 990);
    EXPECT_EQ(world.Shown(), std::vector<Text>{Text(file.FileName)});
    for (const SkinFile& other : SkinFiles) {
      if (other.Target == SkinTarget::Form) {
        continue;
      }
      QRect expected = DesignedPlaceOf(other.Control);
      if (other.Control == file.Control) {
        expected.moveTopLeft(ScaledCornerOf(other.Control));
        const TwipsRect& place = Design.PlaceOf(other.Control);
        expected.setSize(file.Target == SkinTarget::Bar ? QSize(PixelsOf(place.Width * Compact.X),
                                                                PixelsOf(place.Height * Compact.Y))
                                                        : QSize(28, 28));  // 40 by 30, scaled
      }
      EXPECT_EQ(world.Find<QWidget>(other.Control).geometry(), expected) << other.Control;
    }
  }
}

TEST_F(SkinTest, InTheScaledPassEverythingElseShrinks) {
  WriteAll();
  Take().ApplySkinScaled(990, 990);
  EXPECT_EQ(Window.size(), QSize(724, 492));
  const QRect list = Find<QWidget>("lstFileList").geometry();
  EXPECT_EQ(list, QRect(PixelsOf(3960 * Compact.X), PixelsOf(720 * Compact.Y),
                        PixelsOf(10215 * Compact.X), PixelsOf(4150 * Compact.Y)));
  EXPECT_EQ(Find<QWidget>("picBrowse").width(), PixelsOf(3255 * Compact.X));
  EXPECT_EQ(Find<QWidget>("txtRenameOption(5)").width(), PixelsOf(2800 * Compact.X));
  for (const char* name :
       {"lblStatus", "lblRenameOption(3)", "txtRenameOption(3)", "lblToolTip(15)", "lblTitle"}) {
    EXPECT_EQ(Find<QWidget>(name).font().pixelSize(), 8) << name;  // 11, scaled
  }
  EXPECT_EQ(Find<QWidget>("cboWildCard").font().pixelSize(), 11);
}

TEST_F(SkinTest, AScaledMaskStaysBlackAndWhite) {
  QImage strips = FourStrips(55, 79);
  QPainter painter(&strips);
  painter.fillRect(0, 3 * 79, 55, 79, Qt::white);
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setBrush(Qt::black);
  painter.drawEllipse(2, 3 * 79 + 4, 50, 70);
  painter.end();
  Write(u"Go.bmp", strips);
  Take().ApplySkinScaled(990, 990);
  const QImage shown = Find<EasyButton>("cmdGo").Picture();
  EXPECT_EQ(shown.size(), QSize(39, 298));
  for (int y = 3 * 298 / 4 + 2; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) {
      const QRgb pixel = shown.pixel(x, y) & RGB_MASK;
      ASSERT_TRUE(pixel == 0 || pixel == RGB_MASK) << x << " " << y;
    }
  }
}

struct Damage {
  const char* What;
  QByteArray Bytes;
};

// A header of a bitmap with these sizes and nothing behind it.
QByteArray BitmapOf(qint32 width, qint32 height) {
  QByteArray bytes = BytesOf(Plain(2, 2), "BMP");
  for (const auto& [offset, number] : {std::pair(18, width), std::pair(22, height)}) {
    for (int i = 0; i < 4; ++i) {
      bytes[offset + i] = static_cast<char>(static_cast<quint32>(number) >> (8 * i));
    }
  }
  return bytes;
}

std::vector<Damage> Damages() {
  return {{"nothing", {}},
          {"words", "no picture at all"},
          {"cut", BytesOf(FourStrips(40, 30)).first(60)},
          {"a header", BytesOf(Plain(2, 2), "BMP").first(20)},
          {"no width", BitmapOf(0, 10)},
          {"no height", BitmapOf(10, 0)},
          {"a huge width", BitmapOf(2'000'000'000, 10)},
          {"huge in both", BitmapOf(60'000, 60'000)},
          {"too long", BytesOf(Plain(9000, 4))},
          {"zeros", QByteArray(5000, '\0')}};
}

TEST_F(SkinTest, AFileThatCannotBeLoadedEndsTheUnscaledPass) {
  for (const Damage& damage : Damages()) {
    SCOPED_TRACE(damage.What);
    SkinWorld world;
    world.WriteAll();
    world.Write(u"Help.bmp", damage.Bytes);
    EXPECT_FALSE(world.Take().ApplySkinPictures());
    const auto all = AllFiles();
    EXPECT_EQ(world.Shown(), std::vector<Text>(all.begin(), all.begin() + 5));
    EXPECT_TRUE(world.Prompts.Boxes.empty());
  }
}

TEST_F(SkinTest, AFileThatCannotBeLoadedCostsTheScaledPassItsPictureAlone) {
  for (const Damage& damage : Damages()) {
    SCOPED_TRACE(damage.What);
    SkinWorld world;
    world.WriteAll();
    world.Write(u"Help.bmp", damage.Bytes);
    world.Take().ApplySkinScaled(990, 990);
    auto expected = AllFiles();
    std::erase(expected, u"Help.bmp");
    EXPECT_EQ(world.Shown(), expected);
    const QWidget& help = world.Find<QWidget>("cmdHelp");
    EXPECT_EQ(help.pos(), ScaledCornerOf("cmdHelp"));  // the file is there
    EXPECT_EQ(help.size(), QSize(50, 50));
    EXPECT_EQ(world.Window.size(), QSize(724, 492));
    EXPECT_TRUE(world.Prompts.Boxes.empty());
  }
}

TEST_F(SkinTest, ADamagedFirstFileLeavesTheUnscaledPassNothing) {
  WriteAll();
  Write(u"Background.gif", QByteArray("GIF89a"));
  EXPECT_FALSE(Take().ApplySkinPictures());
  EXPECT_TRUE(Shown().empty());
}

TEST_F(SkinTest, ADamagedFirstFileCostsTheScaledPassNothingElse) {
  for (const Damage& damage : Damages()) {
    SCOPED_TRACE(damage.What);
    SkinWorld world;
    world.WriteAll();
    world.Write(u"Background.gif", damage.Bytes);
    world.Take().ApplySkinScaled(990, 990);
    auto expected = AllFiles();
    std::erase(expected, u"Background.gif");
    EXPECT_EQ(world.Shown(), expected);
    EXPECT_EQ(world.Window.size(), QSize(724, 492));
  }
}

TEST_F(SkinTest, ADamagedBarIsScaledWithoutItsPicture) {
  Write(u"TopBar.gif", QByteArray("GIF89a"));
  Take().ApplySkinScaled(990, 990);
  EXPECT_TRUE(Shown().empty());
  EXPECT_EQ(Find<QWidget>("imgTopBar").pos(), ScaledCornerOf("imgTopBar"));
  EXPECT_EQ(Find<QWidget>("imgTopBar").width(), PixelsOf(10755 * Compact.X));
}

TEST_F(SkinTest, MissingFilesEndNothing) {
  WriteAny(SkinFiles[13]);
  WriteAny(SkinFiles[5]);
  EXPECT_TRUE(Take().ApplySkinPictures());
  EXPECT_EQ(Shown(), (std::vector<Text>{u"Help.bmp", u"DoAll.bmp"}));
}

TEST_F(SkinTest, AHugeFileIsNotEvenRead) {
  WriteAll();
  std::filesystem::resize_file(Folder.Path() + "Skin/Stop.bmp", 3'000'000'000);
  EXPECT_FALSE(Take().ApplySkinPictures());
  EXPECT_EQ(Shown().size(), 4U);
}

TEST_F(SkinTest, AFolderIsNoFile) {
  WriteAny(SkinFiles[4]);
  Folder.MakeFolder("Skin/Go.bmp");
  EXPECT_TRUE(Take().ApplySkinPictures());
  EXPECT_EQ(Shown(), std::vector<Text>{u"Stop.bmp"});
}

TEST_F(SkinTest, APictureTooSmallForFourStripsIsNone) {
  Write(u"Go.bmp", Plain(10, 3));
  EXPECT_TRUE(Take().ApplySkinPictures());
  EXPECT_EQ(Find<QWidget>("cmdGo").geometry(), DesignedPlaceOf("cmdGo"));
}

TEST_F(SkinTest, TheExactNameGoesFirstThenTheOnlyOneOfAnotherCase) {
  const QByteArray small = BytesOf(FourStrips(10, 10));
  const QByteArray large = BytesOf(FourStrips(20, 20));
  Folder.Write("SKIN/Go.bmp", small.toStdString());
  Folder.Write("SKIN/GO.BMP", large.toStdString());
  Folder.Write("SKIN/undo.BMP", large.toStdString());
  Folder.Write("SKIN/stop.BMP", large.toStdString());
  Folder.Write("SKIN/STOP.bmp", large.toStdString());
  EXPECT_TRUE(Take().ApplySkinPictures());
  EXPECT_EQ(Find<QWidget>("cmdGo").size(), QSize(10, 10));
  EXPECT_EQ(Find<QWidget>("cmdUndo").size(), QSize(20, 20));
  EXPECT_EQ(Find<QWidget>("cmdStop").geometry(), DesignedPlaceOf("cmdStop"));
}

TEST_F(SkinTest, TheBytesTellTheFormatAndNotTheName) {
  for (const char* format : {"PNG", "BMP", "JPG", "PPM"}) {
    SkinWorld world;
    world.Write(u"Go.bmp", BytesOf(FourStrips(40, 30), format));
    EXPECT_TRUE(world.Take().ApplySkinPictures()) << format;
    EXPECT_EQ(world.Find<QWidget>("cmdGo").size(), QSize(40, 30)) << format;
  }
}

// Sizes that come from settings that someone has typed.
TEST_F(SkinTest, ScreensThatNobodyHasCostNothingButTheLook) {
  for (const QSize screen : {QSize(1, 1), QSize(0, 0), QSize(-5, -5), QSize(32767, 3),
                             QSize(700, 32767), QSize(-32768, 500)}) {
    SkinWorld world;
    world.WriteAll();
    world.Take().ApplySkinScaled(screen.width(), screen.height());
    world.Window.InitLayout();
    world.Window.resize(1024, 522);
    EXPECT_EQ(world.Window.size(), QSize(1024, 522));
  }
}

TEST_F(SkinTest, GoHasASoundOfItsOwn) {
  Folder.Write("Sounds/01.wav", "one");
  Folder.Write("Sounds/02.wav", "two");
  Take().AssignSounds();
  for (const SkinSound& sound : SkinSounds) {
    const auto& button = Find<EasyButton>(sound.Control);
    EXPECT_EQ(button.SoundBytes(), sound.Control == "cmdGo" ? "one" : "two") << sound.Control;
    EXPECT_EQ(button.SoundFileName(), Folder.TextPath() + u"Sounds/" + Text(sound.FileName));
  }
}

// Ten buttons share one of the two.
TEST_F(SkinTest, EachSoundIsLookedForOnce) {
  for (const bool exist : {true, false}) {
    MemoryFileSystem disk;
    disk.MakeFolder(u"/program/Sounds");
    if (exist) {
      disk.Write(u"/program/Sounds/01.wav", "one");
      disk.Write(u"/program/Sounds/02.wav", "two");
    }
    Skin skin(Window, disk, u"/program/");
    disk.ForgetCalls();
    skin.AssignSounds();
    for (const char16_t* name : {u"01.wav", u"02.wav"}) {
      EXPECT_EQ(
          std::ranges::count_if(disk.Calls, [&](const Text& call) { return call.ends_with(name); }),
          1)
          << exist;
    }
  }
}

TEST_F(SkinTest, AButtonWithoutItsSoundKeepsItsClick) {
  Folder.Write("sounds/02.WAV", "two");
  const std::string click = Find<EasyButton>("cmdGo").SoundBytes();
  const UsedSound used = Find<EasyButton>("cmdGo").UseSound();
  Take().AssignSounds();
  EXPECT_EQ(Find<EasyButton>("cmdGo").SoundBytes(), click);
  EXPECT_EQ(Find<EasyButton>("cmdGo").UseSound(), used);
  EXPECT_EQ(Find<EasyButton>("cmdDoAll").SoundBytes(), "two");
  EXPECT_TRUE(Prompts.Boxes.empty());
}

TEST_F(SkinTest, TheFormsPlaceIsNotScaled) {
  Window.move(30, 40);
  Take().ApplySkinScaled(990, 990);
  EXPECT_EQ(Window.pos(), QPoint(30, 40));
}

TEST_F(SkinTest, SoundsThatAreNoneLeaveTheButtonsAtWork) {
  Folder.Write("Sounds/01.wav", "");
  Folder.Write("Sounds/02.wav", "junk");
  Take().AssignSounds();
  EXPECT_TRUE(Prompts.Boxes.empty());
  for (const char* name : {"cmdGo", "cmdHelp"}) {
    int clicks = 0;
    auto& button = Find<EasyButton>(name);
    button.OnClick = [&] { ++clicks; };
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicks, 1) << name;
  }
}

}  // namespace
}  // namespace vorlane
