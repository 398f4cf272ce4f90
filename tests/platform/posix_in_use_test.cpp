#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "platform/posix_file_system.h"
#include "support/other_process.h"
#include "support/temporary_folder.h"

namespace vorlane {
namespace {

class PosixInUse : public testing::Test {
 protected:
  PosixInUse() { folder_.Write("file", "content"); }

  bool IsInUse(const std::string& name = "file") {
    return files_.UseOf(AsciiText(folder_.Path() + name)).InUse;
  }

  TemporaryFolder folder_;
  std::string path_ = folder_.Path() + "file";
  PosixFileSystem files_;
};

bool SetLock(int descriptor, short type, int command) {
  struct flock lock {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  lock.l_len = 1;
  return fcntl(descriptor, command, &lock) == 0;
}

TEST_F(PosixInUse, OpenForWritingElsewhere) {
  for (const int flags : {O_WRONLY, O_RDWR, O_WRONLY | O_APPEND}) {
    const OtherProcess writer([&] { return open(path_.c_str(), flags) >= 0; });
    EXPECT_TRUE(IsInUse());
  }
  EXPECT_FALSE(IsInUse());
}

// Whoever reads on must not stand in the way of others meanwhile.
TEST_F(PosixInUse, AFileThatStaysOpenIsHeldByNobody) {
  const auto use = files_.UseAndOpen(AsciiText(path_));
  ASSERT_NE(use.File, nullptr);
  EXPECT_FALSE(IsInUse());
  const OtherProcess other([&] {
    const int descriptor = open(path_.c_str(), O_RDWR | O_NONBLOCK);
    return descriptor >= 0 && flock(descriptor, LOCK_EX | LOCK_NB) == 0;
  });
  EXPECT_TRUE(IsInUse());
}

TEST_F(PosixInUse, OpenForReadingElsewhere) {
  const OtherProcess reader([&] { return open(path_.c_str(), O_RDONLY) >= 0; });
  EXPECT_FALSE(IsInUse());
}

TEST_F(PosixInUse, LockedByFlockElsewhere) {
  for (const int kind : {LOCK_EX, LOCK_SH}) {
    const OtherProcess holder([&] { return flock(open(path_.c_str(), O_RDONLY), kind) == 0; });
    EXPECT_TRUE(IsInUse());
  }
  EXPECT_FALSE(IsInUse());
}

// A read lock, since it needs no descriptor that writes, which alone would do.
TEST_F(PosixInUse, LockedByFcntlElsewhere) {
  for (const int command : {F_SETLK, F_OFD_SETLK}) {
    const OtherProcess holder(
        [&] { return SetLock(open(path_.c_str(), O_RDONLY), F_RDLCK, command); });
    EXPECT_TRUE(IsInUse());
  }
  EXPECT_FALSE(IsInUse());
}

TEST_F(PosixInUse, LockedForWritingByFcntlElsewhere) {
  const OtherProcess holder([&] { return SetLock(open(path_.c_str(), O_RDWR), F_WRLCK, F_SETLK); });
  EXPECT_TRUE(IsInUse());
}

TEST_F(PosixInUse, OnlyFilesAre) {
  folder_.MakeFolder("folder");
  ASSERT_EQ(mkfifo((folder_.Path() + "pipe").c_str(), 0600), 0);
  const OtherProcess holder([&] {
    const auto isLocked = [this](const char* name) {
      return flock(open((folder_.Path() + name).c_str(), O_RDONLY | O_NONBLOCK), LOCK_EX) == 0;
    };
    return isLocked("folder") && isLocked("pipe");
  });
  EXPECT_FALSE(IsInUse("folder"));
  EXPECT_FALSE(IsInUse("pipe"));
}

TEST_F(PosixInUse, SeenThroughALink) {
  ASSERT_EQ(symlink("file", (folder_.Path() + "link").c_str()), 0);
  const OtherProcess writer([&] { return open(path_.c_str(), O_WRONLY) >= 0; });
  EXPECT_TRUE(IsInUse("link"));
}

// Asking must leave nothing behind: no lock, no lease that would stall a writer.
TEST_F(PosixInUse, AskingLeavesTheFileFree) {
  EXPECT_FALSE(IsInUse());
  const OtherProcess next([&] {
    const int descriptor = open(path_.c_str(), O_WRONLY | O_NONBLOCK);
    return descriptor >= 0 && flock(descriptor, LOCK_EX | LOCK_NB) == 0;
  });
  EXPECT_TRUE(IsInUse());
}

TEST_F(PosixInUse, AWriterWhoComesMeanwhileDoesntEndTheProcess) {
  struct sigaction action {};
  ASSERT_EQ(sigaction(SIGIO, nullptr, &action), 0);
  EXPECT_EQ(action.sa_handler, SIG_IGN);
}

TEST_F(PosixInUse, AFileThatCantBeOpenedIsnt) {
  AsOrdinaryUser([] {
    const TemporaryFolder folder;
    folder.Write("file", "content");
    const std::string path = folder.Path() + "file";
    const int writer = open(path.c_str(), O_WRONLY);
    ASSERT_EQ(chmod(path.c_str(), 0200), 0);
    const auto use = PosixFileSystem().UseOf(AsciiText(path));
    EXPECT_EQ(use.Status.Kind, EntryKind::File);
    EXPECT_FALSE(use.Status.ReadOnly);
    EXPECT_FALSE(use.InUse);
    close(writer);
  });
}

// The system grants leases to a file's owner only; locks are seen by everybody.
TEST_F(PosixInUse, InAnothersFileOnlyLocksAreSeen) {
  if (geteuid() != 0) {
    GTEST_SKIP() << "needs files of two users";
  }
  ASSERT_EQ(chmod(folder_.Path().c_str(), 0755), 0);
  ASSERT_EQ(chmod(path_.c_str(), 0666), 0);
  const OtherProcess writer([&] { return open(path_.c_str(), O_WRONLY) >= 0; });
  AsOrdinaryUser([&] { EXPECT_FALSE(IsInUse()); });
  const OtherProcess holder([&] { return flock(open(path_.c_str(), O_RDONLY), LOCK_EX) == 0; });
  AsOrdinaryUser([&] { EXPECT_TRUE(IsInUse()); });
}

}  // namespace
}  // namespace vorlane
