#include "platform/posix_registry_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "support/other_process.h"
#include "support/temporary_folder.h"

namespace vorlane {
namespace {

RegistryFile::Change To(const std::string& bytes) {
  return [bytes](std::string_view) { return bytes; };
}

class PosixRegistryFileTest : public testing::Test {
 protected:
  const std::string& Folder() const { return folder_.Path(); }
  mode_t ModeOf(const std::string& name) const {
    struct stat status {};
    EXPECT_EQ(stat((Folder() + name).c_str(), &status), 0);
    return status.st_mode & 0777;
  }

  TemporaryFolder folder_;
  PosixRegistryFile file_{folder_.TextPath() + u"registry.conf"};
};

TEST_F(PosixRegistryFileTest, AFileThatIsntThereIsEmpty) {
  const auto read = file_.ReadUnless(std::nullopt);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->Bytes, "");
  EXPECT_EQ(read->Stamp, FileStamp());
  EXPECT_FALSE(file_.ReadUnless(read->Stamp));
}

// A path that no file can have must not lead to the folder that the program works in.
TEST_F(PosixRegistryFileTest, WithoutAPathThereIsNoFile) {
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(Folder());
  const bool updated = PosixRegistryFile(u"").Update(To("one"));
  std::filesystem::current_path(before);
  EXPECT_FALSE(updated);
  EXPECT_TRUE(folder_.Contents().empty());
}

TEST_F(PosixRegistryFileTest, ReadsWhatWasSaved) {
  EXPECT_TRUE(file_.Update([](std::string_view bytes) {
    EXPECT_EQ(bytes, "");
    return std::string("one");
  }));
  EXPECT_TRUE(file_.Update([](std::string_view bytes) { return std::string(bytes) + ", two"; }));
  EXPECT_EQ(folder_.Read("registry.conf"), "one, two");
  EXPECT_EQ(file_.ReadUnless(std::nullopt)->Bytes, "one, two");
  EXPECT_FALSE(folder_.Exists("registry.conf.new"));
}

TEST_F(PosixRegistryFileTest, ALongFileComesWhole) {
  const std::string bytes(100'000, 'x');
  EXPECT_TRUE(file_.Update(To(bytes)));
  EXPECT_EQ(file_.ReadUnless(std::nullopt)->Bytes, bytes);
}

TEST_F(PosixRegistryFileTest, AnUnchangedFileIsntReadAgain) {
  file_.Update(To("one"));
  const auto stamp = file_.ReadUnless(std::nullopt)->Stamp;
  EXPECT_FALSE(file_.ReadUnless(stamp));
  file_.Update(To("two"));  // as long as before, and saved at once
  const auto read = file_.ReadUnless(stamp);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->Bytes, "two");
}

TEST_F(PosixRegistryFileTest, SeesWhatAnEditorSaves) {
  file_.Update(To("one"));
  const auto stamp = file_.ReadUnless(std::nullopt)->Stamp;
  folder_.Write("registry.conf", "by hand");
  EXPECT_EQ(file_.ReadUnless(stamp)->Bytes, "by hand");
  std::filesystem::remove(Folder() + "registry.conf");
  EXPECT_EQ(file_.ReadUnless(stamp)->Stamp, FileStamp());
}

TEST_F(PosixRegistryFileTest, AChangeThatWantsNothingSavesNothing) {
  folder_.Write("registry.conf", "one");
  const auto stamp = file_.ReadUnless(std::nullopt)->Stamp;
  EXPECT_TRUE(file_.Update([](std::string_view) { return std::nullopt; }));
  EXPECT_FALSE(file_.ReadUnless(stamp));
}

TEST_F(PosixRegistryFileTest, MakesItsFolderForTheUserAlone) {
  PosixRegistryFile deep(folder_.TextPath() + u"a/b/registry.conf");
  EXPECT_TRUE(deep.Update(To("one")));
  EXPECT_EQ(folder_.Read("a/b/registry.conf"), "one");
  EXPECT_EQ(ModeOf("a"), 0700U);
  EXPECT_EQ(ModeOf("a/b"), 0700U);
  EXPECT_EQ(ModeOf("a/b/registry.conf"), 0600U);
}

TEST_F(PosixRegistryFileTest, KeepsThePermissionsOfTheFile) {
  folder_.Write("registry.conf", "one");
  chmod((Folder() + "registry.conf").c_str(), 0644);
  EXPECT_TRUE(file_.Update(To("two")));
  EXPECT_EQ(ModeOf("registry.conf"), 0644U);
}

TEST_F(PosixRegistryFileTest, ALinkLeadsToTheFileThatIsReplaced) {
  folder_.Write("dotfiles/mine", "one");
  std::filesystem::create_symlink("dotfiles/mine", Folder() + "registry.conf");
  EXPECT_TRUE(file_.Update(To("two")));
  EXPECT_EQ(folder_.Read("dotfiles/mine"), "two");
  EXPECT_TRUE(std::filesystem::is_symlink(Folder() + "registry.conf"));
}

TEST_F(PosixRegistryFileTest, WhatACrashLeftIsPassedOver) {
  folder_.Write("registry.conf", "one");
  folder_.Write("registry.conf.new", "half of so");
  folder_.Write("registry.conf.lock");
  EXPECT_TRUE(file_.Update(To("two")));
  EXPECT_EQ(folder_.Read("registry.conf"), "two");
  EXPECT_FALSE(folder_.Exists("registry.conf.new"));
}

TEST_F(PosixRegistryFileTest, SomethingElseOfItsNameIsLeftAlone) {
  folder_.MakeFolder("registry.conf");
  bool ran = false;
  EXPECT_FALSE(file_.Update([&](std::string_view) {
    ran = true;
    return std::string("one");
  }));
  EXPECT_FALSE(ran);
  EXPECT_EQ(file_.ReadUnless(std::nullopt)->Bytes, "");
}

TEST_F(PosixRegistryFileTest, AnImpossiblePathHoldsNothing) {
  for (const Text& path : {Text(), Text(u"/x\0y", 4), Text(u"/proc/none/registry.conf")}) {
    PosixRegistryFile file(path);
    EXPECT_EQ(file.ReadUnless(std::nullopt)->Bytes, "");
    EXPECT_FALSE(file.Update(To("one")));
  }
}

TEST_F(PosixRegistryFileTest, WhatMayNotBeReadOrWrittenIsNeverReplaced) {
  chmod(Folder().c_str(), 0777);
  folder_.Write("registry.conf", "one");
  for (const mode_t mode : {0000, 0444, 0222}) {
    chmod((Folder() + "registry.conf").c_str(), mode);
    AsOrdinaryUser([&] {
      EXPECT_FALSE(file_.Update(To("two"))) << mode;
      const auto read = file_.ReadUnless(std::nullopt);
      EXPECT_EQ(read->Bytes, mode == 0444 ? "one" : "");
    });
  }
  EXPECT_EQ(folder_.Read("registry.conf"), "one");
}

TEST_F(PosixRegistryFileTest, AFolderThatTakesNothingRefuses) {
  folder_.Write("registry.conf", "one");
  chmod((Folder() + "registry.conf").c_str(), 0666);
  folder_.Write("registry.conf.lock");
  chmod((Folder() + "registry.conf.lock").c_str(), 0666);
  chmod(Folder().c_str(), 0555);
  AsOrdinaryUser([&] { EXPECT_FALSE(file_.Update(To("two"))); });
  chmod(Folder().c_str(), 0700);
  EXPECT_EQ(folder_.Read("registry.conf"), "one");
}

TEST_F(PosixRegistryFileTest, GivesUpWhereTheLockIsHeld) {
  folder_.Write("registry.conf", "one");
  const std::string lock = Folder() + "registry.conf.lock";
  folder_.Write("registry.conf.lock");
  const OtherProcess holder([&] { return flock(open(lock.c_str(), O_RDWR), LOCK_EX) == 0; });
  PosixRegistryFile impatient(folder_.TextPath() + u"registry.conf", std::chrono::milliseconds(20));
  EXPECT_FALSE(impatient.Update(To("two")));
  EXPECT_EQ(folder_.Read("registry.conf"), "one");
}

// Programs that count up side by side lose no step, and nobody ever reads a part of a number.
TEST_F(PosixRegistryFileTest, ChangesOfTwoProgramsDontGetLost) {
  constexpr int steps = 50;
  const auto countUp = [&] {
    for (int i = 0; i < steps; ++i) {
      if (!file_.Update([](std::string_view bytes) {
            return std::to_string(bytes.empty() ? 1 : std::stoi(std::string(bytes)) + 1);
          })) {
        return false;
      }
    }
    return true;
  };
  const pid_t other = fork();
  if (other == 0) {
    _exit(countUp() ? 0 : 1);
  }
  EXPECT_TRUE(countUp());
  int status = -1;
  waitpid(other, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(folder_.Read("registry.conf"), std::to_string(2 * steps));
}

}  // namespace
}  // namespace vorlane
