// The disk in memory: what it can do for tests beyond what every file system does.
#include "support/memory_file_system.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

namespace vorlane {
namespace {

using Contents = std::map<std::string, std::string>;

int FailureOf(const std::function<void()>& step) {
  try {
    step();
    return 0;
  } catch (const RunError& error) {
    return error.Number();
  }
}

TEST(MemoryFileSystem, SetsUpAndShowsATree) {
  MemoryFileSystem files;
  files.Write(u"/music/rock/a.mp3", "a");
  files.Write(u"/music/rock/a.mp3", "a again");
  files.MakeFolder(u"/music/empty/");
  files.MakeLink(u"/music/link", u"rock/a.mp3");
  files.MakeOther(u"/music/pipe");
  EXPECT_EQ(files.Contents(u"/"), (Contents{{"music/", ""},
                                            {"music/rock/", ""},
                                            {"music/rock/a.mp3", "a again"},
                                            {"music/empty/", ""},
                                            {"music/link@", "rock/a.mp3"},
                                            {"music/pipe|", ""}}));
  EXPECT_EQ(files.Contents(u"/music/rock/"), (Contents{{"a.mp3", "a again"}}));
  EXPECT_EQ(files.Read(u"/music/link"), "a again");
  EXPECT_TRUE(files.Exists(u"/music/rock/"));
  files.Remove(u"/music/rock");
  EXPECT_FALSE(files.Exists(u"/music/rock/a.mp3"));
  EXPECT_TRUE(files.Exists(u"/music/link"));
  EXPECT_EQ(files.CallCount, 0U);
  EXPECT_THROW(files.Write(u"relative"), std::logic_error);
  EXPECT_THROW(files.Write(u"/music/empty"), std::logic_error);
  EXPECT_THROW(files.SetReadOnly(u"/missing"), std::logic_error);
}

TEST(MemoryFileSystem, SpeaksWindowsPaths) {
  MemoryFileSystem files(PathStyle::Windows, LetterCase::Ignored);
  files.Write(u"C:\\Music\\Rock\\a.mp3", "a");
  files.MakeFolder(u"D:\\");
  EXPECT_EQ(files.ReadFileBytes(u"c:\\music\\ROCK\\A.MP3"), "a");
  EXPECT_EQ(files.ListNames(u"C:\\Music\\"), std::vector<Text>{u"Rock"});
  EXPECT_TRUE(FolderExists(files, u"C:\\"));
  EXPECT_FALSE(FolderExists(files, u"E:\\"));
  EXPECT_EQ(files.StatusOf(u"Music\\").Kind, EntryKind::None);
  EXPECT_EQ(files.Contents(u"C:\\Music\\"), (Contents{{"Rock\\", ""}, {"Rock\\a.mp3", "a"}}));
}

TEST(MemoryFileSystem, NothingMovesToAnotherVolume) {
  MemoryFileSystem windows(PathStyle::Windows);
  windows.Write(u"C:\\a");
  windows.MakeFolder(u"D:\\");
  EXPECT_EQ(windows.RenameNoReplace(u"C:\\a", u"D:\\a"), RenameOutcome::Refused);

  MemoryFileSystem posix;
  posix.Write(u"/m/a");
  posix.MakeVolume(u"/m/disk");
  EXPECT_EQ(posix.RenameNoReplace(u"/m/a", u"/m/disk/a"), RenameOutcome::Refused);
  EXPECT_EQ(posix.RenameNoReplace(u"/m/disk", u"/m/new"), RenameOutcome::Refused);
  EXPECT_FALSE(posix.RemoveFolder(u"/m/disk"));
  EXPECT_EQ(posix.Contents(u"/m/"), (Contents{{"a", ""}, {"disk/", ""}}));
}

TEST(MemoryFileSystem, ListsInDescendingOrder) {
  MemoryFileSystem files;
  files.Write(u"/m/a");
  files.Write(u"/m/c");
  files.Write(u"/m/b");
  EXPECT_EQ(files.ListNames(u"/m/"), (std::vector<Text>{u"c", u"b", u"a"}));
  EXPECT_EQ(files.ListFolder(u"/m/").front().Name, u"c");
}

TEST(MemoryFileSystem, SettablePropertiesShow) {
  MemoryFileSystem files;
  files.Write(u"/m/a", "a");
  const FileTimes times = {{1, 2}, {3, 4}, {5, 6}};
  files.SetTimes(u"/m/a", times);
  EXPECT_EQ(files.TimesOf(u"/m/a")->Created, times.Created);
  EXPECT_EQ(files.TimesOf(u"/m/a")->Written, times.Written);
  EXPECT_EQ(files.TimesOf(u"/m/a")->Accessed, times.Accessed);
  files.SetInUse(u"/m/a");
  EXPECT_TRUE(files.UseOf(u"/m/a").InUse);
  files.SetReportedSize(u"/m/a", 1ULL << 40);
  EXPECT_EQ(files.StatusOf(u"/m/a").Size, 1ULL << 40);
  files.SetReadOnly(u"/m/a");
  EXPECT_EQ(FailureOf([&] { files.Open(u"/m/a", OpenMode::ReadWrite); }), 70);
  EXPECT_EQ(FailureOf([&] { files.AppendToFile(u"/m/a", "x"); }), 70);
  EXPECT_NO_THROW(files.Open(u"/m/a", OpenMode::Read));
  files.SetUnreadable(u"/m/a");
  EXPECT_EQ(FailureOf([&] { files.Open(u"/m/a", OpenMode::Read); }), 70);
  EXPECT_EQ(FailureOf([&] { files.ReadFileBytes(u"/m/a"); }), 70);
  EXPECT_FALSE(files.TimesOf(u"/m/a").has_value());
  files.SetReadOnly(u"/m/a", false);
  EXPECT_FALSE(files.UseOf(u"/m/a").InUse);
  files.SetUnreadable(u"/m");
  EXPECT_EQ(FailureOf([&] { files.ListFolder(u"/m/"); }), 76);
}

TEST(MemoryFileSystem, AReadOnlyFolderKeepsItsEntries) {
  MemoryFileSystem files;
  files.Write(u"/m/a", "a");
  files.MakeFolder(u"/m/folder");
  files.MakeFolder(u"/n");
  files.SetReadOnly(u"/m");
  EXPECT_EQ(files.RenameNoReplace(u"/m/a", u"/n/a"), RenameOutcome::Refused);
  EXPECT_FALSE(files.RemoveFile(u"/m/a"));
  EXPECT_FALSE(files.RemoveFolder(u"/m/folder"));
  EXPECT_FALSE(files.CreateFolder(u"/m/new"));
  EXPECT_EQ(FailureOf([&] { files.CreateFile(u"/m/new", ""); }), 70);
  files.AppendToFile(u"/m/a", "b");
  EXPECT_EQ(files.Contents(u"/m/"), (Contents{{"a", "ab"}, {"folder/", ""}}));
}

TEST(MemoryFileSystem, LogsAndCountsCalls) {
  MemoryFileSystem files;
  files.Write(u"/a", "a");
  files.StatusOf(u"/a");
  files.RenameNoReplace(u"/a", u"/b");
  files.Open(u"/b", OpenMode::ReadWrite)->WriteAt(0, "x");
  EXPECT_EQ(files.Calls, (std::vector<Text>{u"StatusOf /a", u"RenameNoReplace /a -> /b", u"Open /b",
                                            u"WriteAt /b"}));
  EXPECT_EQ(files.CallCount, 4U);
  EXPECT_EQ(files.MutationCount, 2U);
  files.ForgetCalls();
  EXPECT_TRUE(files.Calls.empty());
  EXPECT_EQ(files.CallCount + files.MutationCount, 0U);
}

TEST(MemoryFileSystem, TheHookComesBeforeTheCallsWork) {
  MemoryFileSystem files;
  files.Write(u"/a", "a");
  std::vector<std::size_t> mutations;
  files.BeforeCall = [&](const CallInfo& call) {
    mutations.push_back(call.MutationNumber);
    if (call.Method == u"RenameNoReplace") {
      files.Write(call.Target, "newcomer");
    }
  };
  EXPECT_FALSE(files.NameExists(u"/b"));
  EXPECT_EQ(files.RenameNoReplace(u"/a", u"/b"), RenameOutcome::TargetExists);
  EXPECT_EQ(mutations, (std::vector<std::size_t>{0, 1}));
  EXPECT_EQ(files.Contents(u"/"), (Contents{{"a", "a"}, {"b", "newcomer"}}));
}

TEST(MemoryFileSystem, EveryCallCanFailAndThenChangesNothing) {
  MemoryFileSystem files;
  files.Write(u"/a", "0123456789");
  files.MakeFolder(u"/empty");
  const auto before = files.Contents(u"/");
  files.Failure = FailurePlan{.At = 1, .FromThenOn = true, .Error = ErrorNumber::DeviceError};
  EXPECT_EQ(files.StatusOf(u"/a").Kind, EntryKind::None);
  EXPECT_FALSE(files.NameExists(u"/a"));
  EXPECT_FALSE(files.IdentityOf(u"/a").has_value());
  EXPECT_FALSE(files.TimesOf(u"/a").has_value());
  files.SetInUse(u"/a");
  EXPECT_EQ(files.UseOf(u"/a").Status.Kind, EntryKind::None);
  EXPECT_FALSE(files.UseOf(u"/a").InUse);
  EXPECT_EQ(FailureOf([&] { files.ListFolder(u"/"); }), 76);
  EXPECT_EQ(FailureOf([&] { files.ListNames(u"/"); }), 76);
  EXPECT_EQ(FailureOf([&] { files.ReadFileBytes(u"/a"); }), 57);
  EXPECT_EQ(FailureOf([&] { files.Open(u"/a", OpenMode::Read); }), 57);
  EXPECT_EQ(files.RenameNoReplace(u"/a", u"/b"), RenameOutcome::Refused);
  EXPECT_FALSE(files.CreateFolder(u"/new"));
  EXPECT_FALSE(files.RemoveFolder(u"/empty"));
  EXPECT_FALSE(files.RemoveFile(u"/a"));
  EXPECT_EQ(FailureOf([&] { files.CreateFile(u"/new", "x"); }), 57);
  EXPECT_EQ(FailureOf([&] { files.AppendToFile(u"/a", "x"); }), 57);
  EXPECT_EQ(files.Contents(u"/"), before);
}

TEST(MemoryFileSystem, AnOpenFileCanFailToo) {
  MemoryFileSystem files;
  files.Write(u"/a", "0123456789");
  const auto file = files.Open(u"/a", OpenMode::ReadWrite);
  files.Failure = FailurePlan{.At = 1, .FromThenOn = true, .Error = ErrorNumber::DiskFull};
  EXPECT_EQ(FailureOf([&] { file->Size(); }), 61);
  EXPECT_EQ(FailureOf([&] { file->ReadAt(0, 1); }), 61);
  EXPECT_EQ(FailureOf([&] { file->SetSize(0); }), 61);
  EXPECT_EQ(files.Read(u"/a"), "0123456789");
  EXPECT_EQ(FailureOf([&] { file->WriteAt(0, "abcd"); }), 61);
  EXPECT_EQ(files.Read(u"/a"), "ab23456789");
}

TEST(MemoryFileSystem, AFailureOnceIsOverAfterwards) {
  MemoryFileSystem files;
  files.Failure = FailurePlan{.At = 2};
  EXPECT_TRUE(files.CreateFolder(u"/one"));
  EXPECT_FALSE(files.CreateFolder(u"/two"));
  EXPECT_TRUE(files.CreateFolder(u"/three"));
  files.ForgetCalls();
  files.Failure = FailurePlan{.At = 2, .FromThenOn = true, .OnlyMutating = true};
  EXPECT_TRUE(files.CreateFolder(u"/four"));
  EXPECT_TRUE(files.NameExists(u"/four"));
  EXPECT_TRUE(files.NameExists(u"/four"));
  EXPECT_FALSE(files.CreateFolder(u"/five"));
  EXPECT_TRUE(files.NameExists(u"/four"));
  EXPECT_FALSE(files.CreateFolder(u"/six"));
}

TEST(MemoryFileSystem, AFullDisk) {
  MemoryFileSystem files;
  files.Write(u"/a", "0123456789");
  files.FreeBytes = 6;
  EXPECT_EQ(FailureOf([&] { files.CreateFile(u"/b", "1234567"); }), 61);
  EXPECT_FALSE(files.Exists(u"/b"));
  EXPECT_EQ(FailureOf([&] { files.AppendToFile(u"/a", "1234567"); }), 61);
  EXPECT_EQ(files.Read(u"/a"), "0123456789");
  files.AppendToFile(u"/a", "abc");
  EXPECT_EQ(files.FreeBytes, 3U);
  const auto file = files.Open(u"/a", OpenMode::ReadWrite);
  file->WriteAt(0, "XYZ");
  EXPECT_EQ(FailureOf([&] { file->WriteAt(11, "123456"); }), 61);
  EXPECT_EQ(files.Read(u"/a"), "XYZ3456789a12345");
  EXPECT_EQ(files.FreeBytes, 0U);
}

TEST(MemoryFileSystem, FollowsLinksFromWhereTheyStand) {
  MemoryFileSystem files;
  files.Write(u"/real/inner/file", "content");
  files.MakeLink(u"/other/up", u"../real/inner");
  files.MakeLink(u"/other/rooted", u"/real/inner/");
  EXPECT_EQ(files.Read(u"/other/up/file"), "content");
  EXPECT_EQ(files.Read(u"/other/rooted/file"), "content");
  // ".." behind a link is the folder above the place that it leads to.
  EXPECT_EQ(files.Read(u"/other/up/../inner/file"), "content");
  files.MakeLink(u"/loop", u"/loop/x");
  EXPECT_EQ(files.StatusOf(u"/loop").Kind, EntryKind::None);
  EXPECT_EQ(files.StatusOf(u"/loop/y").Kind, EntryKind::None);
}

}  // namespace
}  // namespace vorlane
