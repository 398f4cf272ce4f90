#include "catalogue/program_files.h"

#include <gtest/gtest.h>

#include "support/memory_file_system.h"

namespace vorlane {
namespace {

std::optional<Text> Find(FileSystem& files) {
  return FindProgramFile(files, u"/app/", u"Operations.ini");
}

TEST(ProgramFiles, NothingInAnEmptyOrMissingFolder) {
  MemoryFileSystem files;
  EXPECT_EQ(Find(files), std::nullopt);
  files.MakeFolder(u"/app");
  EXPECT_EQ(Find(files), std::nullopt);
}

TEST(ProgramFiles, TheExactNameGoesFirst) {
  MemoryFileSystem files;
  files.Write(u"/app/operations.ini");
  files.Write(u"/app/Operations.ini");
  files.Write(u"/app/OPERATIONS.INI");
  EXPECT_EQ(Find(files), u"/app/Operations.ini");
}

TEST(ProgramFiles, ThenTheOnlyNameThatDiffersByCase) {
  MemoryFileSystem files;
  files.Write(u"/app/OPERATIONS.INI");
  files.Write(u"/app/Operations.ini.bak");
  files.Write(u"/app/Operations");
  EXPECT_EQ(Find(files), u"/app/OPERATIONS.INI");
}

TEST(ProgramFiles, ButNoneOfTwo) {
  MemoryFileSystem files;
  files.Write(u"/app/OPERATIONS.INI");
  files.Write(u"/app/operations.ini");
  EXPECT_EQ(Find(files), std::nullopt);
}

TEST(ProgramFiles, OnlyFilesCountAndLinksToThem) {
  MemoryFileSystem files;
  files.MakeFolder(u"/app/Operations.ini");
  EXPECT_EQ(Find(files), std::nullopt);
  files.MakeFolder(u"/app/OPERATIONS.ini");
  files.MakeLink(u"/app/OPERATIONS.INI", u"nowhere");
  files.Write(u"/app/operations.ini");
  EXPECT_EQ(Find(files), u"/app/operations.ini");

  MemoryFileSystem linked;
  linked.Write(u"/elsewhere/mine.txt");
  linked.MakeLink(u"/app/Operations.ini", u"/elsewhere/mine.txt");
  EXPECT_EQ(Find(linked), u"/app/Operations.ini");
}

TEST(ProgramFiles, AFolderThatCannotBeListedHoldsTheExactNameAlone) {
  MemoryFileSystem files;
  files.Write(u"/app/operations.ini");
  files.SetUnreadable(u"/app");
  EXPECT_EQ(Find(files), std::nullopt);
  files.Write(u"/app/Operations.ini");
  EXPECT_EQ(Find(files), u"/app/Operations.ini");
}

TEST(ProgramFiles, WindowsFindsItByAnyCase) {
  MemoryFileSystem files(PathStyle::Windows, LetterCase::Ignored);
  files.Write(u"C:\\app\\OPERATIONS.INI");
  EXPECT_EQ(FindProgramFile(files, u"C:\\app\\", u"Operations.ini"), u"C:\\app\\Operations.ini");
}

TEST(ProgramFiles, AFolderIsFoundInTheSameWay) {
  MemoryFileSystem files;
  files.Write(u"/app/Skin");
  EXPECT_EQ(FindProgramFolder(files, u"/app/", u"Skin"), std::nullopt);
  files.MakeFolder(u"/app/SKIN");
  EXPECT_EQ(FindProgramFolder(files, u"/app/", u"Skin"), u"/app/SKIN/");
  EXPECT_EQ(FindProgramFolder(files, u"/app/", u"SKIN"), u"/app/SKIN/");
  files.MakeFolder(u"/app/skin");
  EXPECT_EQ(FindProgramFolder(files, u"/app/", u"Skin"), std::nullopt);
  EXPECT_EQ(FindProgramFolder(files, u"/app/", u"skin"), u"/app/skin/");
}

}  // namespace
}  // namespace vorlane
