// Sounds by a program that is handed samples. The tests have an `aplay` of their own, which keeps
// what it is given.
#include "ui/aplay_player.h"

#include <gtest/gtest.h>

#include <QtTest>
#include <csignal>

#include "platform/wave_sound.h"
#include "support/temporary_folder.h"

namespace vorlane {
namespace {

class AplayWorld {
 public:
  // The program writes its arguments and its input to files, then does what the script says.
  explicit AplayWorld(const std::string& script = {}) {
    Folder.Write("aplay", "#!/bin/sh\nexport PATH=/usr/bin:/bin\ncd \"" + Folder.Path() +
                              "\"\necho \"$@\" > arguments\ncat > input\nmv input samples\n" +
                              script);
    QFile::setPermissions(FileName("aplay"), QFile::ReadOwner | QFile::ExeOwner);
    qputenv("PATH", QByteArray::fromStdString(Folder.Path()));
  }
  ~AplayWorld() { qputenv("PATH", path_); }

  QString FileName(const char* name) const { return QString::fromStdString(Folder.Path() + name); }
  bool WaitForSamples() const {
    return QTest::qWaitFor([&] { return Folder.Exists("samples"); }, 5000);
  }

  TemporaryFolder Folder;

 private:
  QByteArray path_ = qgetenv("PATH");
};

std::string SamplesAsBytes(std::string_view wave) {
  const auto samples = SamplesOfWave(wave);
  return {reinterpret_cast<const char*>(samples.data()), samples.size() * sizeof(samples.front())};
}

TEST(AplayPlayer, HandsTheSamplesOver) {
  const AplayWorld world;
  AplayPlayer player;
  player.Play(BuiltInClick());
  ASSERT_TRUE(world.WaitForSamples());
  EXPECT_EQ(world.Folder.Read("samples"), SamplesAsBytes(BuiltInClick()));
  EXPECT_EQ(world.Folder.Read("arguments"), "-q -t raw -f S16_LE -r 44100 -c 2\n");
}

TEST(AplayPlayer, ANewSoundEndsTheOldOne) {
  const AplayWorld world("echo $$ > number.new\nmv number.new number\nexec sleep 1000\n");
  const auto wait = [&world] {
    EXPECT_TRUE(QTest::qWaitFor([&] { return world.Folder.Exists("number"); }, 5000));
    const int number = std::stoi(world.Folder.Read("number"));
    QFile::remove(world.FileName("number"));
    return number;
  };
  const auto isRunning = [](int number) { return kill(number, 0) == 0; };
  auto player = std::make_unique<AplayPlayer>();
  player->Play(BuiltInClick());
  const int first = wait();
  ASSERT_TRUE(isRunning(first));
  player->Play(BuiltInClick());
  const int second = wait();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !isRunning(first); }, 5000));
  EXPECT_TRUE(isRunning(second));
  player.reset();
  EXPECT_FALSE(isRunning(second));
}

TEST(AplayPlayer, WithoutTheProgramThereIsSilence) {
  const AplayWorld world;
  QFile::remove(world.FileName("aplay"));
  AplayPlayer player;
  player.Play(BuiltInClick());
  QTest::qWait(1);
  EXPECT_FALSE(world.Folder.Exists("arguments"));
}

TEST(AplayPlayer, WhatCantBePlayedStartsNothing) {
  const AplayWorld world;
  AplayPlayer player;
  player.Play({});
  player.Play("no sound at all");
  player.Play(BuiltInClick());
  ASSERT_TRUE(world.WaitForSamples());
  EXPECT_EQ(world.Folder.Read("samples"), SamplesAsBytes(BuiltInClick()));
}

TEST(AplayPlayer, AProgramThatFailsIsSilence) {
  const AplayWorld world("echo no sound card >&2\nexit 1\n");
  AplayPlayer player;
  for (int i = 0; i < 3; ++i) {
    QFile::remove(world.FileName("samples"));
    player.Play(BuiltInClick());
    EXPECT_TRUE(world.WaitForSamples());
  }
}

}  // namespace
}  // namespace vorlane
