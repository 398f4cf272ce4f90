// The sounds of a button, and its properties in a store.
#include "gui/button_world.h"
#include "platform/vendor.h"
#include "platform/wave_sound.h"
#include "ui/qt_text.h"

namespace vorlane {
namespace {

constexpr TextView SoundFile = u"/sounds/a.wav";

struct SoundWorld : ButtonWorld {
  SoundWorld() { Disk.Write(SoundFile, "the bytes of a sound"); }

  void ClickIt() { Click({20, 10}); }
};

TEST(EasyButtonSound, ANewButtonIsSilentAndClicks) {
  SoundWorld world;
  world.ClickIt();
  EXPECT_EQ(world.Clicks, 1);
  EXPECT_TRUE(world.Sounds.Played.empty());
}

TEST(EasyButtonSound, TheBuiltInClickComesBeforeTheHandler) {
  SoundWorld world;
  world.Button.GetBytes();
  world.Button.SetUseSound(UsedSound::BuiltInClick);
  std::size_t playedBefore = 0;
  world.Button.OnClick = [&] { playedBefore = world.Sounds.Played.size(); };
  world.ClickIt();
  EXPECT_EQ(playedBefore, 1U);
  EXPECT_EQ(world.Sounds.Played, std::vector<std::string>{BuiltInClick()});
}

TEST(EasyButtonSound, UseSoundLoadsNothing) {
  SoundWorld world;
  world.Button.SetUseSound(UsedSound::BuiltInClick);
  EXPECT_TRUE(world.Button.SoundBytes().empty());
  world.ClickIt();  // plays no bytes, which is silence
  EXPECT_EQ(world.Sounds.Played, std::vector<std::string>{""});
  EXPECT_EQ(world.Clicks, 1);
}

TEST(EasyButtonSound, WithoutSoundTheClickStays) {
  SoundWorld world;
  world.Button.GetBytes();
  world.Button.SetUseSound(UsedSound::None);
  world.ClickIt();
  EXPECT_EQ(world.Clicks, 1);
  EXPECT_TRUE(world.Sounds.Played.empty());
}

TEST(EasyButtonSound, WithoutSoundTheAccessKeyStillClicks) {
  SoundWorld world;
  world.Button.GetBytes();
  world.Button.Fire();
  EXPECT_EQ(world.Clicks, 1);
  EXPECT_TRUE(world.Sounds.Played.empty());
}

TEST(EasyButtonSound, AFileTakesTheClicksPlace) {
  SoundWorld world;
  world.Button.GetBytes();
  world.Button.SetUseSound(UsedSound::BuiltInClick);
  world.Button.SetSoundFileName(Text(SoundFile));
  EXPECT_EQ(world.Button.SoundFileName(), SoundFile);
  EXPECT_EQ(world.Button.UseSound(), UsedSound::BuiltInClick);
  world.ClickIt();
  EXPECT_EQ(world.Sounds.Played, std::vector<std::string>{"the bytes of a sound"});
  EXPECT_TRUE(world.Prompts.Boxes.empty());
}

TEST(EasyButtonSound, AFileLeavesASilentButtonSilent) {
  SoundWorld world;
  world.Button.SetSoundFileName(Text(SoundFile));
  EXPECT_EQ(world.Button.SoundBytes(), "the bytes of a sound");
  world.ClickIt();
  EXPECT_TRUE(world.Sounds.Played.empty());
}

TEST(EasyButtonSound, AMissingFileIsToldOnceAndSilences) {
  SoundWorld world;
  world.Disk.MakeFolder(u"/sounds/folder.wav");
  for (const Text name : {u"/sounds/none.wav", u"/nowhere/a.wav", u"/sounds/folder.wav"}) {
    world.Button.GetBytes();
    world.Button.SetUseSound(UsedSound::File);
    world.Prompts.Boxes.clear();
    world.Button.SetSoundFileName(name);
    EXPECT_EQ(world.Prompts.Boxes,
              (std::vector<RecordingPrompter::Box>{
                  {BoxIcon::Stop, Text(ApplicationTitle), u"File not found"}}));
    EXPECT_EQ(world.Button.UseSound(), UsedSound::None);
    EXPECT_EQ(world.Button.SoundFileName(), u"");
    EXPECT_EQ(world.Button.SoundBytes(), BuiltInClick());
    world.ClickIt();
    EXPECT_TRUE(world.Sounds.Played.empty());
  }
}

TEST(EasyButtonSound, AnEmptyNameSilencesWithoutAWord) {
  for (const Text name : {u"", u"   "}) {
    SoundWorld world;
    world.Button.SetSoundFileName(Text(SoundFile));
    world.Button.SetUseSound(UsedSound::File);
    world.Button.SetSoundFileName(name);
    EXPECT_TRUE(world.Prompts.Boxes.empty());
    EXPECT_EQ(world.Button.UseSound(), UsedSound::None);
    EXPECT_EQ(world.Button.SoundFileName(), u"");
  }
}

TEST(EasyButtonSound, AFileThatCantBeReadLeavesTheSound) {
  SoundWorld world;
  world.Button.GetBytes();
  world.Button.SetUseSound(UsedSound::BuiltInClick);
  world.Disk.BeforeCall = [](const CallInfo& call) {
    if (call.Method == u"ReadFileBytes") {
      throw RunError(ErrorNumber::DeviceError);
    }
  };
  world.Button.SetSoundFileName(Text(SoundFile));
  EXPECT_TRUE(world.Prompts.Boxes.empty());
  EXPECT_EQ(world.Button.SoundFileName(), SoundFile);
  EXPECT_EQ(world.Button.SoundBytes(), BuiltInClick());
}

TEST(EasyButtonSound, AHugeFileIsntRead) {
  SoundWorld world;
  world.Button.GetBytes();
  world.Disk.Write(u"/sounds/huge.wav", std::string(16'000'001, 'x'));
  world.Button.SetSoundFileName(u"/sounds/huge.wav");
  EXPECT_EQ(world.Button.SoundBytes(), BuiltInClick());
}

TEST(EasyButtonSound, EachSetIsTold) {
  SoundWorld world;
  QStringList told;
  world.Button.OnPropertyChanged = [&told](const QString& name) { told << name; };
  world.Button.SetSoundFileName(Text(SoundFile));
  world.Button.SetSoundFileName(u"");
  world.Button.SetSoundFileName(u"/none");
  world.Button.SetUseSound(UsedSound::File);
  world.Button.SetAccessKey(QStringLiteral("x"));
  world.Button.SetMousePointer(2);
  world.Button.SetMouseIcon(QImage());
  world.Button.SetPicture(QImage());
  EXPECT_EQ(told, QStringList({"SoundFileName", "SoundFileName", "SoundFileName", "UseSound",
                               "AccessKey", "MousePointer", "MouseIcon", "Picture"}));
}

// Keeps the order in which it is asked.
class OrderedStore final : public PropertyStore {
 public:
  QVariant ReadProperty(const QString& name, const QVariant& fallback) override {
    Names << name;
    Fallbacks.insert(name, fallback);
    return Values.value(name, fallback);
  }
  void WriteProperty(const QString& name, const QVariant& value,
                     const QVariant& fallback) override {
    Names << name;
    Fallbacks.insert(name, fallback);
    Values.insert(name, value);
  }
  QStringList Names;
  QMap<QString, QVariant> Values;
  QMap<QString, QVariant> Fallbacks;
};

void ExpectDefaults(const OrderedStore& store, const QFont& ambient) {
  EXPECT_EQ(store.Fallbacks["Align"], 5);
  EXPECT_EQ(store.Fallbacks["Caption"], QStringLiteral("Command"));
  EXPECT_EQ(store.Fallbacks["Font"].value<QFont>(), ambient);
  EXPECT_EQ(store.Fallbacks["BackColor"], 0xE0E0E0U);
  EXPECT_EQ(store.Fallbacks["ForeColor"], 0U);
  EXPECT_EQ(store.Fallbacks["Enabled"], true);
  EXPECT_FALSE(store.Fallbacks["Picture"].isValid());
  EXPECT_FALSE(store.Fallbacks["MouseIcon"].isValid());
  EXPECT_EQ(store.Fallbacks["MousePointer"], 0);
  EXPECT_EQ(store.Fallbacks["AccessKey"], QString());
  EXPECT_EQ(store.Fallbacks["UseSound"], 1);
  EXPECT_EQ(store.Fallbacks["SoundFileName"], QString());
  EXPECT_EQ(store.Fallbacks.size(), 12);
}

TEST(EasyButtonProperties, AreReadInTheirOrderWithTheirDefaults) {
  SoundWorld world;
  QFont ambient(QStringLiteral("Serif"));
  ambient.setPixelSize(17);
  world.Form.setFont(ambient);
  OrderedStore store;
  world.Button.ReadProperties(store);
  EXPECT_EQ(store.Names,
            QStringList({"Align", "Caption", "Font", "BackColor", "ForeColor", "Enabled", "Picture",
                         "MouseIcon", "MousePointer", "AccessKey", "UseSound", "SoundFileName"}));
  ExpectDefaults(store, ambient);
  EXPECT_EQ(world.Button.Align(), 5);
  EXPECT_EQ(world.Button.Caption(), QStringLiteral("Command"));
  EXPECT_EQ(world.Button.Font().pixelSize(), 17);
  EXPECT_EQ(world.Button.BackColor(), 0xE0E0E0U);
  EXPECT_EQ(world.Button.ForeColor(), 0U);
  EXPECT_TRUE(world.Button.Enabled());
  EXPECT_EQ(world.Button.UseSound(), UsedSound::BuiltInClick);
  EXPECT_EQ(world.Button.SoundBytes(), BuiltInClick());
  EXPECT_EQ(world.ColourAt({30, 5}), QColor(0xE0, 0xE0, 0xE0));
}

TEST(EasyButtonProperties, AreWrittenInAnotherOrder) {
  SoundWorld world;
  OrderedStore store;
  world.Button.WriteProperties(store);
  EXPECT_EQ(store.Names, QStringList({"Caption", "UseSound", "SoundFileName", "Align", "Picture",
                                      "BackColor", "Font", "ForeColor", "MouseIcon", "MousePointer",
                                      "Enabled", "AccessKey"}));
  ExpectDefaults(store, world.Form.font());
}

TEST(EasyButtonProperties, ComeBackAsTheyWere) {
  SoundWorld world;
  EasyButton& button = world.Button;
  QFont font(QStringLiteral("Serif"));
  font.setPixelSize(19);
  button.SetAlign(7);
  button.SetCaption(QStringLiteral("T&ext"));
  button.SetFont(font);
  button.SetBackColor(0x123456);
  button.SetForeColor(0x80000012);
  button.SetEnabled(false);
  button.SetPicture(FourStrips());
  button.SetMouseIcon(FourStrips());
  button.SetMousePointer(99);
  button.SetAccessKey(QStringLiteral("k"));
  button.SetUseSound(UsedSound::File);
  button.SetSoundFileName(Text(SoundFile));
  OrderedStore store;
  button.WriteProperties(store);
  EasyButton again({world.Disk, world.Prompts, world.Sounds}, &world.Form);
  again.ReadProperties(store);
  EXPECT_EQ(again.Align(), 7);
  EXPECT_EQ(again.Caption(), QStringLiteral("T&ext"));
  EXPECT_EQ(again.Font().pixelSize(), 19);
  EXPECT_EQ(again.BackColor(), 0x123456U);
  EXPECT_EQ(again.ForeColor(), 0x80000012U);
  EXPECT_FALSE(again.Enabled());
  EXPECT_EQ(again.Picture(), FourStrips());
  EXPECT_EQ(again.size(), StripSize);
  EXPECT_EQ(again.MouseIcon(), FourStrips());
  EXPECT_EQ(again.MousePointer(), 99);
  EXPECT_EQ(again.AccessKey(), QStringLiteral("k"));
  EXPECT_EQ(again.UseSound(), UsedSound::File);
  EXPECT_EQ(again.SoundFileName(), SoundFile);
  EXPECT_EQ(again.SoundBytes(), "the bytes of a sound");
}

TEST(EasyButtonProperties, ABagKeepsWhatDiffersFromItsDefault) {
  PropertyBag bag;
  bag.WriteProperty(QStringLiteral("A"), 1, 1);
  bag.WriteProperty(QStringLiteral("B"), 2, 1);
  EXPECT_EQ(bag.ReadProperty(QStringLiteral("A"), 7), 7);
  EXPECT_EQ(bag.ReadProperty(QStringLiteral("B"), 7), 2);
  bag.WriteProperty(QStringLiteral("B"), 1, 1);
  EXPECT_EQ(bag.ReadProperty(QStringLiteral("B"), 7), 7);
}

TEST(EasyButtonProperties, AStoredSoundFile) {
  const auto read = [](SoundWorld& world, const QString& file) {
    PropertyBag stored({{QStringLiteral("UseSound"), 2}, {QStringLiteral("SoundFileName"), file}});
    world.Button.ReadProperties(stored);
  };
  SoundWorld blank;
  read(blank, QStringLiteral("  "));
  EXPECT_EQ(blank.Button.UseSound(), UsedSound::None);
  SoundWorld missing;
  read(missing, QStringLiteral("/none"));
  EXPECT_EQ(missing.Button.UseSound(), UsedSound::File);
  EXPECT_TRUE(missing.Button.SoundBytes().empty());
  EXPECT_TRUE(missing.Prompts.Boxes.empty());
}

TEST(EasyButtonProperties, AStoredSoundThatIsNoneIsSilence) {
  for (const int stored : {3, -1}) {
    SoundWorld world;
    PropertyBag bag({{QStringLiteral("UseSound"), stored},
                     {QStringLiteral("SoundFileName"), ToQString(SoundFile)}});
    world.Button.ReadProperties(bag);
    EXPECT_EQ(static_cast<int>(world.Button.UseSound()), stored);
    EXPECT_TRUE(world.Button.SoundBytes().empty()) << stored;
    world.ClickIt();
    EXPECT_EQ(world.Clicks, 1) << stored;
    for (const std::string& played : world.Sounds.Played) {
      EXPECT_EQ(played, "") << stored;
    }
  }
}

TEST(EasyButtonProperties, PointerShapes) {
  ButtonWorld world;
  constexpr std::pair<int, Qt::CursorShape> shapes[] = {
      {1, Qt::ArrowCursor},      {2, Qt::CrossCursor},     {3, Qt::IBeamCursor},
      {4, Qt::ArrowCursor},      {10, Qt::UpArrowCursor},  {14, Qt::WhatsThisCursor},
      {5, Qt::SizeAllCursor},    {6, Qt::SizeBDiagCursor}, {7, Qt::SizeVerCursor},
      {8, Qt::SizeFDiagCursor},  {9, Qt::SizeHorCursor},   {11, Qt::WaitCursor},
      {12, Qt::ForbiddenCursor}, {13, Qt::BusyCursor},     {15, Qt::SizeAllCursor}};
  for (const auto& [number, shape] : shapes) {
    world.Button.SetMousePointer(number);
    EXPECT_EQ(world.Button.cursor().shape(), shape) << number;
  }
  for (const int number : {0, 16, -1, 99}) {
    world.Button.SetMousePointer(number);
    EXPECT_FALSE(world.Button.testAttribute(Qt::WA_SetCursor)) << number;
  }
  world.Button.SetMouseIcon(FourStrips());
  EXPECT_EQ(world.Button.cursor().shape(), Qt::BitmapCursor);
}

}  // namespace
}  // namespace vorlane
