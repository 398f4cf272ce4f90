#include "catalogue/operations_file.h"

#include <gtest/gtest.h>

#include "platform/posix_file_system.h"
#include "support/memory_file_system.h"
#include "support/temporary_folder.h"

namespace vorlane {
namespace {

constexpr std::string_view oneOperation =
    "Operation Name:\tGr\xFC\xDF"
    "e\r\nStep: <NAMEONLY>\r\n\r\n";

TEST(OperationsFile, IsReadFromTheFolder) {
  MemoryFileSystem files;
  files.Write(u"/app/Operations.ini", oneOperation);
  const auto tree = LoadOperationsFile(files, u"/app/");
  ASSERT_TRUE(tree.has_value());
  EXPECT_FALSE(tree->Failure.has_value());
  EXPECT_EQ(tree->Nodes, (std::vector<OperationNode>{{1, 1, u"Gr\u00FC\u00DFe", 0, false}}));
  EXPECT_EQ(tree->OperationCodes, (std::vector<Text>{u"", u"\r\nStep: <NAMEONLY>\r\n\r", u""}));
}

TEST(OperationsFile, MayBeMissing) {
  MemoryFileSystem files;
  files.MakeFolder(u"/app");
  EXPECT_FALSE(LoadOperationsFile(files, u"/app/").has_value());
}

TEST(OperationsFile, MayBeEmpty) {
  MemoryFileSystem files;
  files.Write(u"/app/Operations.ini");
  const auto tree = LoadOperationsFile(files, u"/app/");
  ASSERT_TRUE(tree.has_value());
  EXPECT_TRUE(tree->Nodes.empty());
  EXPECT_TRUE(tree->OperationCodes.empty());
  EXPECT_FALSE(tree->Failure.has_value());
}

TEST(OperationsFile, IsFoundByAnyCaseAndReadByItsOwnName) {
  MemoryFileSystem files;
  files.Write(u"/app/operations.INI", oneOperation);
  EXPECT_EQ(LoadOperationsFile(files, u"/app/")->Nodes.size(), 1u);
  files.Write(u"/home/mine.txt", oneOperation);
  EXPECT_EQ(LoadOperationsFileAt(files, u"/home/mine.txt").Nodes.size(), 1u);
}

TEST(OperationsFile, ThatCannotBeReadGivesTheFailure) {
  MemoryFileSystem files;
  files.Write(u"/app/Operations.ini", oneOperation);
  files.SetUnreadable(u"/app/Operations.ini");
  const auto tree = LoadOperationsFile(files, u"/app/");
  ASSERT_TRUE(tree.has_value());
  EXPECT_TRUE(tree->Nodes.empty());
  EXPECT_TRUE(tree->Failure.has_value());
  EXPECT_EQ(tree->FailureLine, 0u);
}

TEST(OperationsFile, IsReadFromDisk) {
  TemporaryFolder folder;
  folder.Write("operations.ini", std::string(oneOperation));
  PosixFileSystem files;
  const auto tree = LoadOperationsFile(files, folder.TextPath());
  ASSERT_TRUE(tree.has_value());
  EXPECT_EQ(tree->Nodes.size(), 1u);
}

}  // namespace
}  // namespace vorlane
