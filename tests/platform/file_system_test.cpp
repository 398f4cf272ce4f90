#include "platform/file_system.h"

#include <gtest/gtest.h>

#include "support/memory_file_system.h"

namespace vorlane {
namespace {

TEST(FileSystem, TheExistenceTestsDifferOnPurpose) {
  MemoryFileSystem files;
  files.Write(u"/m/file");
  files.Write(u"/m/read-only");
  files.SetReadOnly(u"/m/read-only");
  files.Write(u"/m/.hidden");
  files.Write(u"/m/UNDORENAME.TXT");
  files.MakeFolder(u"/m/folder");
  files.MakeFolder(u"/m/.git");
  files.MakeLink(u"/m/to file", u"file");
  files.MakeLink(u"/m/to folder", u"folder");
  files.MakeLink(u"/m/dangling", u"nowhere");
  files.MakeOther(u"/m/pipe");

  const struct {
    TextView Path;
    bool Plain;
    bool Entry;
    bool Folder;
    bool Hidden;
  } expected[] = {
      {u"/m/file", true, true, false, true},
      {u"/m/read-only", true, true, false, true},
      {u"/m/.hidden", false, false, false, true},
      {u"/m/UNDORENAME.TXT", false, false, false, true},
      {u"/m/folder", false, true, true, false},
      {u"/m/folder/", false, true, true, false},
      {u"/m/.git", false, false, true, false},
      {u"/m/.git/", false, false, true, false},
      {u"/m/.", false, true, true, false},
      {u"/m/..", false, true, true, false},
      {u"/", false, true, true, false},
      {u"/m/to file", true, true, false, true},
      {u"/m/to folder", false, true, true, false},
      {u"/m/to folder/", false, true, true, false},
      {u"/m/dangling", false, false, false, false},
      {u"/m/pipe", false, false, false, false},
      {u"/m/missing", false, false, false, false},
      {u"/m/file/", false, false, false, false},
      {u"/m/*", false, false, false, false},
      {u"", false, false, false, false},
  };
  for (const auto& each : expected) {
    SCOPED_TRACE(testing::PrintToString(each.Path));
    EXPECT_EQ(PlainFileExists(files, each.Path), each.Plain);
    EXPECT_EQ(EntryExists(files, each.Path), each.Entry);
    EXPECT_EQ(FolderExists(files, each.Path), each.Folder);
    EXPECT_EQ(HiddenFileExists(files, each.Path), each.Hidden);
  }
}

}  // namespace
}  // namespace vorlane
