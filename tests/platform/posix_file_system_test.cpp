#include "platform/posix_file_system.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <functional>

#include "platform/clock.h"
#include "platform/failure.h"
#include "platform/posix_handle.h"
#include "support/other_process.h"
#include "support/temporary_folder.h"

namespace vorlane {
namespace {

class WithoutAtomicRename final : public PosixFileSystem {
  int AtomicRename(const char*, const char*) override { return ENOSYS; }
};

class SystemCalls final : public PosixFileSystem {
 public:
  using PosixFileSystem::AtomicRename;
  using PosixFileSystem::HardLink;
};

int FailureOf(const std::function<void()>& step) {
  try {
    step();
    return 0;
  } catch (const RunError& error) {
    return error.Number();
  }
}

TEST(PosixFileSystem, EachErrnoHasItsNumber) {
  const std::pair<int, int> numbers[] = {
      {ENOENT, 53}, {ENOTDIR, 76}, {EACCES, 70}, {EPERM, 70},  {EROFS, 70},
      {EEXIST, 58}, {ENOSPC, 61},  {EDQUOT, 61}, {EIO, 57},    {EMFILE, 67},
      {ENFILE, 67}, {EISDIR, 75},  {ELOOP, 75},  {EINVAL, 75}, {ENAMETOOLONG, 75},
  };
  for (const auto& [error, number] : numbers) {
    EXPECT_EQ(FailureOf([error = error] { ThrowErrno(error); }), number) << error;
  }
}

TEST(PosixFileSystem, EverythingIsWrittenOrThereIsAReason) {
  // What each call is told to answer, the last one over and over; an errno as a negative number.
  struct Case {
    std::vector<int> Answers;
    int Error;
    std::string Written;
  };
  const Case cases[] = {
      {{6}, 0, "5:012345 "},
      {{2}, 0, "5:012345 7:2345 9:45 "},
      {{-EINTR, 4, -EINTR, 2}, 0, "5:012345 5:012345 9:45 9:45 "},
      {{1, -EIO}, EIO, "5:012345 6:12345 "},
      {{-ENOSPC}, ENOSPC, "5:012345 "},
      {{3, 0}, EIO, "5:012345 8:345 "},
      {{0}, EIO, "5:012345 "},
  };
  for (const Case& c : cases) {
    std::size_t calls = 0;
    std::string written;
    const int error = WriteAll(5, "012345", [&](std::string_view bytes, std::uint64_t position) {
      written.append(std::to_string(position)).append(":").append(bytes).append(" ");
      const int answer = c.Answers[std::min(calls, c.Answers.size() - 1)];
      ++calls;
      errno = answer < 0 ? -answer : 0;
      return answer < 0 ? ssize_t{-1} : ssize_t{answer};
    });
    EXPECT_EQ(error, c.Error) << written;
    EXPECT_EQ(written, c.Written);
  }
}

TEST(PosixFileSystem, NamesAreTheBytesOnDisk) {
  const TemporaryFolder folder;
  folder.Write("caf\xC3\xA9");
  folder.Write("caf\xE9");
  auto names = PosixFileSystem().ListNames(folder.TextPath());
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<Text>{u"caf\u00E9", Text(u"caf") + u'\xDCE9'}));
}

TEST(PosixFileSystem, TheKernelRenamesWithoutReplacing) {
  const TemporaryFolder folder;
  folder.Write("file", "content");
  folder.Write("other", "more");
  SystemCalls calls;
  const auto rename = [&](const char* from, const char* to) {
    return calls.AtomicRename((folder.Path() + from).c_str(), (folder.Path() + to).c_str());
  };
  EXPECT_EQ(rename("file", "other"), EEXIST);
  EXPECT_EQ(rename("file", "new"), 0);
  EXPECT_EQ(calls.HardLink((folder.Path() + "new").c_str(), (folder.Path() + "twin").c_str()), 0);
  EXPECT_EQ(folder.Contents(), (std::map<std::string, std::string>{
                                   {"new", "content"}, {"other", "more"}, {"twin", "content"}}));
}

TEST(PosixFileSystem, ARenameByLinkIsTakenBackIfTheOldNameStays) {
  AsOrdinaryUser([] {
    const TemporaryFolder folder;
    folder.Write("locked/file", "content");
    folder.MakeFolder("free");
    const auto before = folder.Contents();
    ASSERT_EQ(chmod((folder.Path() + "locked").c_str(), 0555), 0);
    const Text path = folder.TextPath();
    EXPECT_EQ(WithoutAtomicRename().RenameNoReplace(path + u"locked/file", path + u"free/new"),
              RenameOutcome::Refused);
    EXPECT_EQ(folder.Contents(), before);
    EXPECT_EQ(chmod((folder.Path() + "locked").c_str(), 0755), 0);
  });
}

// Linux may forbid hard links to files of others, though they can be renamed.
TEST(PosixFileSystem, AnothersFileIsRenamedWithoutALink) {
  if (geteuid() != 0) {
    GTEST_SKIP() << "needs files of two users";
  }
  const TemporaryFolder folder;
  folder.Write("file", "content");
  ASSERT_EQ(chmod(folder.Path().c_str(), 0777), 0);
  const Text path = folder.TextPath();
  AsOrdinaryUser([&] {
    EXPECT_EQ(WithoutAtomicRename().RenameNoReplace(path + u"file", path + u"new"),
              RenameOutcome::Done);
  });
  EXPECT_EQ(folder.Contents(), (std::map<std::string, std::string>{{"new", "content"}}));
}

TEST(PosixFileSystem, TimesAreLocalWholeSeconds) {
  const TemporaryFolder folder;
  folder.Write("file");
  const std::string path = folder.Path() + "file";
  // A summer and a winter day: the offset from UTC may differ.
  const timespec times[] = {{1'089'892'800, 999'999'999}, {1'073'908'800, 1}};
  ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
  struct statx status {};
  ASSERT_EQ(statx(AT_FDCWD, path.c_str(), 0, STATX_BTIME, &status), 0);

  const auto result = PosixFileSystem().TimesOf(AsciiText(path));
  ASSERT_TRUE(result.has_value());
  EXPECT_EQ(result->Accessed, LocalDateTime(1'089'892'800));
  EXPECT_EQ(result->Written, LocalDateTime(1'073'908'800));
  EXPECT_EQ(result->Created, (status.stx_mask & STATX_BTIME) != 0
                                 ? LocalDateTime(status.stx_btime.tv_sec)
                                 : LocalDateTime(1'073'908'800));
}

TEST(PosixFileSystem, TimesBefore1970AreTruncatedDownwards) {
  const TemporaryFolder folder;
  folder.Write("file");
  const std::string path = folder.Path() + "file";
  const timespec times[] = {{-86'400 * 365, 999'999'999}, {-86'400 * 365, 500'000'000}};
  ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
  const auto result = PosixFileSystem().TimesOf(AsciiText(path));
  ASSERT_TRUE(result.has_value());
  EXPECT_EQ(result->Accessed, LocalDateTime(-86'400 * 365));
  EXPECT_EQ(result->Written, LocalDateTime(-86'400 * 365));
}

// On the memory disk that every Linux has, because few others keep such a time.
TEST(PosixFileSystem, ATimeThatIsNoDateIsAFailure) {
  AsOrdinaryUser([] {
    ASSERT_EQ(setenv("TMPDIR", "/dev/shm", 1), 0);
    const TemporaryFolder folder;
    folder.Write("file");
    const std::string path = folder.Path() + "file";
    constexpr std::time_t Year12000 = 316'516'000'000;
    const timespec times[] = {{0, 0}, {Year12000, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
    EXPECT_EQ(FailureOf([&] { PosixFileSystem().TimesOf(AsciiText(path)); }), 5);
  });
}

TEST(PosixFileSystem, WhatAUserMayNotDo) {
  AsOrdinaryUser([] {
    const TemporaryFolder folder;
    folder.Write("unreadable", "content");
    folder.Write("locked/file", "content");
    folder.Write("read-only", "content");
    ASSERT_EQ(chmod((folder.Path() + "unreadable").c_str(), 0200), 0);
    ASSERT_EQ(chmod((folder.Path() + "read-only").c_str(), 0444), 0);
    ASSERT_EQ(chmod((folder.Path() + "locked").c_str(), 0555), 0);
    const Text path = folder.TextPath();
    PosixFileSystem files;
    EXPECT_EQ(files.StatusOf(path + u"unreadable").Kind, EntryKind::File);
    EXPECT_FALSE(files.TimesOf(path + u"unreadable").has_value());
    EXPECT_EQ(FailureOf([&] { files.ReadFileBytes(path + u"unreadable"); }), 70);
    EXPECT_EQ(FailureOf([&] { files.Open(path + u"read-only", OpenMode::ReadWrite); }), 70);
    EXPECT_EQ(FailureOf([&] { files.AppendToFile(path + u"read-only", "x"); }), 70);
    EXPECT_EQ(FailureOf([&] { files.CreateFile(path + u"locked/new", "x"); }), 70);
    EXPECT_EQ(files.RenameNoReplace(path + u"locked/file", path + u"new"), RenameOutcome::Refused);
    EXPECT_FALSE(files.RemoveFile(path + u"locked/file"));
    EXPECT_FALSE(files.CreateFolder(path + u"locked/new"));
    EXPECT_EQ(chmod((folder.Path() + "locked").c_str(), 0755), 0);
    EXPECT_EQ(folder.Read("locked/file"), "content");
  });
}

TEST(PosixFileSystem, ReadOnlyIsAlsoWhatOnlyOthersMayWrite) {
  AsOrdinaryUser([] {
    struct stat status {};
    ASSERT_EQ(stat("/etc/passwd", &status), 0);
    ASSERT_NE(status.st_mode & S_IWUSR, 0U);
    for (const TextView path : {u"/etc/passwd", u"/etc"}) {
      EXPECT_TRUE(PosixFileSystem().StatusOf(path).ReadOnly);
      EXPECT_TRUE(PosixFileSystem().UseOf(path).Status.ReadOnly);
    }
  });
}

TEST(PosixFileSystem, FoldersThatMayBeReadOrEnteredOnly) {
  AsOrdinaryUser([] {
    const TemporaryFolder folder;
    folder.Write("names only/file");
    folder.Write("no names/file");
    ASSERT_EQ(chmod((folder.Path() + "names only").c_str(), 0444), 0);
    ASSERT_EQ(chmod((folder.Path() + "no names").c_str(), 0111), 0);
    const Text path = folder.TextPath();
    PosixFileSystem files;
    const auto entries = files.ListFolder(path + u"names only/");
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].Name, u"file");
    EXPECT_EQ(entries[0].Status.Kind, EntryKind::None);
    EXPECT_EQ(files.StatusOf(path + u"names only/file").Kind, EntryKind::None);
    EXPECT_EQ(FailureOf([&] { files.ListFolder(path + u"no names/"); }), 76);
    EXPECT_EQ(FailureOf([&] { files.ListNames(path + u"no names/"); }), 76);
    EXPECT_EQ(files.StatusOf(path + u"no names/file").Kind, EntryKind::File);
    EXPECT_EQ(chmod((folder.Path() + "names only").c_str(), 0755), 0);
    EXPECT_EQ(chmod((folder.Path() + "no names").c_str(), 0755), 0);
  });
}

// A limit on the size of files stands in for a full disk: it cuts a write short in the same way.
TEST(PosixFileSystem, AWriteThatDoesntFitIsTakenBack) {
  AsOrdinaryUser([] {
    const TemporaryFolder folder;
    folder.Write("journal", "0123456789");
    folder.Write("file", "0123456789");
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit = {15, 15};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    const Text path = folder.TextPath();
    PosixFileSystem files;

    EXPECT_EQ(FailureOf([&] { files.AppendToFile(path + u"journal", "ten bytes."); }), 61);
    EXPECT_EQ(folder.Read("journal"), "0123456789");
    files.AppendToFile(path + u"journal", "five.");
    EXPECT_EQ(FailureOf([&] { files.AppendToFile(path + u"journal", "no room"); }), 75);
    EXPECT_EQ(folder.Read("journal"), "0123456789five.");

    EXPECT_EQ(FailureOf([&] { files.CreateFile(path + u"new", std::string(16, 'x')); }), 75);
    EXPECT_FALSE(folder.Exists("new"));

    const auto file = files.Open(path + u"file", OpenMode::ReadWrite);
    EXPECT_EQ(FailureOf([&] { file->WriteAt(8, std::string(16, 'x')); }), 75);
    EXPECT_EQ(FailureOf([&] { file->SetSize(16); }), 75);
    EXPECT_EQ(FailureOf([&] { file->SetSize(~0ULL); }), 75);
    EXPECT_EQ(FailureOf([&] { file->WriteAt(~0ULL, "x"); }), 75);
  });
}

TEST(PosixFileSystem, ANewFileIsForItsUserToWriteAndForAllToRead) {
  const TemporaryFolder folder;
  const mode_t before = umask(0);
  PosixFileSystem().CreateFile(folder.TextPath() + u"file", "content");
  PosixFileSystem().CreateFolder(folder.TextPath() + u"folder");
  umask(before);
  struct stat status {};
  ASSERT_EQ(stat((folder.Path() + "file").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0644U);
  ASSERT_EQ(stat((folder.Path() + "folder").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0777U);
}

TEST(PosixFileSystem, WhoMayReadAProgramMayRunIt) {
  const TemporaryFolder folder;
  folder.Write("file");
  const std::string path = folder.Path() + "file";
  PosixFileSystem files;
  for (const auto& [before, after] : {std::pair(0644U, 0755U),
                                      {0600U, 0700U},
                                      {0640U, 0750U},
                                      {0444U, 0555U},
                                      {02604U, 02705U}}) {
    ASSERT_EQ(chmod(path.c_str(), before), 0);
    EXPECT_TRUE(files.MakeExecutable(AsciiText(path)));
    struct stat status {};
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, after);
  }
}

}  // namespace
}  // namespace vorlane
