// What every file system has to do: all that file_system.h promises, on each kind of disk.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "platform/failure.h"
#include "platform/file_system.h"
#include "support/test_disk.h"

namespace vorlane {
namespace {

struct DiskKind {
  const char* Name;
  std::unique_ptr<TestDisk> (*Make)();
};

class FileSystemContract : public testing::TestWithParam<DiskKind> {
 protected:
  std::unique_ptr<TestDisk> disk_ = GetParam().Make();
  FileSystem& files_ = disk_->Files();

  Text P(TextView name) const { return disk_->Path(name); }
  EntryKind KindOf(TextView name) { return files_.StatusOf(P(name)).Kind; }

  RenameOutcome Rename(TextView from, TextView to) {
    return files_.RenameNoReplace(P(from), P(to));
  }

  // One of each kind: "file", "folder/", "full/", "link", "dangling", "other", ".hidden".
  void MakeOneOfEach() {
    disk_->Write(u"file", "content");
    disk_->MakeFolder(u"folder");
    disk_->MakeFolder(u"full");
    disk_->Write(u"full/inner", "more");
    disk_->MakeLink(u"link", u"file");
    disk_->MakeLink(u"dangling", u"nowhere");
    disk_->MakeOther(u"other");
    disk_->Write(u".hidden", "secret");
  }
};

const Text EachKind[] = {u"file", u"folder", u"full", u"link", u"dangling", u"other", u".hidden"};

// Names that no file can have, whatever the disk.
const Text ImpossibleNames[] = {
    Text(u"a\0b", 3),
    Text(1, u'\xD83D') + u"half of a pair",
    Text(256, u'x'),
};

// Legal names that are easily mistaken for something else.
const Text OddNames[] = {
    Text(255, u'x'),
    Text(127, u'\u00E9') + u"x",  // 255 bytes
    u"a|b",
    u"line\r\nbreak",
    u"*",
    u"?.*",
    u"[a-z]",
    u" leading and trailing ",
    u"...",
    u"-rf",
    u"<NAME>",
    u"tab\tbell\a",
    u"\U0001F600",
    Text(u"invalid ") + u'\xDC80' + u'\xDCFF',
    Text(1, u'\xDCC3'),
};

// The number of the failure, 0 if there is none.
int FailureOf(const std::function<void()>& step) {
  try {
    step();
    return 0;
  } catch (const RunError& error) {
    return error.Number();
  }
}

TEST_P(FileSystemContract, StatusOfNothing) {
  disk_->Write(u"file");
  EXPECT_EQ(files_.StatusOf(u"").Kind, EntryKind::None);
  EXPECT_EQ(KindOf(u"missing"), EntryKind::None);
  EXPECT_EQ(KindOf(u"missing/deeper"), EntryKind::None);
  EXPECT_EQ(KindOf(u"file/deeper"), EntryKind::None);
  EXPECT_EQ(KindOf(u"file/"), EntryKind::None);
  EXPECT_EQ(KindOf(u"*"), EntryKind::None);
  for (const Text& name : ImpossibleNames) {
    EXPECT_EQ(KindOf(name), EntryKind::None);
    EXPECT_FALSE(files_.NameExists(P(name)));
    EXPECT_EQ(files_.IdentityOf(P(name)), std::nullopt);
  }
}

TEST_P(FileSystemContract, StatusOfAFile) {
  disk_->Write(u"file", "12345");
  const auto status = files_.StatusOf(P(u"file"));
  EXPECT_EQ(status.Kind, EntryKind::File);
  EXPECT_EQ(status.Size, 5U);
  EXPECT_FALSE(status.Hidden);
  EXPECT_FALSE(status.ReadOnly);
}

TEST_P(FileSystemContract, StatusOfAFolderWithAndWithoutItsSeparator) {
  disk_->MakeFolder(u"folder");
  for (const TextView name : {u"folder", u"folder/", u"folder/.", u"folder/..", u"."}) {
    const auto status = files_.StatusOf(P(name));
    EXPECT_EQ(status.Kind, EntryKind::Folder);
    EXPECT_EQ(status.Size, 0U);
    EXPECT_FALSE(status.Hidden);
    EXPECT_FALSE(status.ReadOnly);
  }
}

TEST_P(FileSystemContract, HiddenGoesByTheName) {
  const std::pair<TextView, bool> names[] = {
      {u".a", true},          {u"..a", true},
      {u"...", true},         {u"a.b", false},
      {u"a.", false},         {u"UNDORENAME.TXT", true},
      {u"UNDORENAME", false}, {u"XUNDORENAME.TXT", false},
  };
  for (const auto& [name, hidden] : names) {
    disk_->Write(name);
    EXPECT_EQ(files_.StatusOf(P(name)).Hidden, hidden) << testing::PrintToString(name);
  }
  for (const auto& entry : files_.ListFolder(P(u""))) {
    const auto expected =
        std::find_if(std::begin(names), std::end(names),
                     [&entry](const auto& each) { return each.first == entry.Name; });
    ASSERT_NE(expected, std::end(names));
    EXPECT_EQ(entry.Status.Hidden, expected->second) << testing::PrintToString(entry.Name);
  }
}

TEST_P(FileSystemContract, TheJournalsNameHidesInItsExactSpellingOnly) {
  disk_->Write(u"UndoRename.txt");
  EXPECT_FALSE(files_.StatusOf(P(u"UndoRename.txt")).Hidden);
}

TEST_P(FileSystemContract, OnlyTheLastNameHides) {
  disk_->MakeFolder(u".git");
  disk_->Write(u".git/config");
  EXPECT_TRUE(files_.StatusOf(P(u".git")).Hidden);
  EXPECT_TRUE(files_.StatusOf(P(u".git/")).Hidden);
  EXPECT_FALSE(files_.StatusOf(P(u".git/.")).Hidden);
  EXPECT_FALSE(files_.StatusOf(P(u".git/config")).Hidden);
}

TEST_P(FileSystemContract, ReadOnly) {
  disk_->Write(u"file");
  disk_->MakeFolder(u"folder");
  disk_->SetReadOnly(u"file");
  disk_->SetReadOnly(u"folder");
  EXPECT_TRUE(files_.StatusOf(P(u"file")).ReadOnly);
  EXPECT_TRUE(files_.StatusOf(P(u"folder")).ReadOnly);
  for (const auto& entry : files_.ListFolder(P(u""))) {
    EXPECT_TRUE(entry.Status.ReadOnly);
  }
}

TEST_P(FileSystemContract, StatusFollowsLinks) {
  MakeOneOfEach();
  disk_->MakeLink(u".to folder", u"folder");
  disk_->MakeLink(u"to .hidden", u".hidden");
  disk_->MakeLink(u"to link", u"link");
  disk_->MakeLink(u"loop", u"loop");
  EXPECT_EQ(KindOf(u"link"), EntryKind::File);
  EXPECT_EQ(files_.StatusOf(P(u"link")).Size, 7U);
  EXPECT_EQ(KindOf(u"to link"), EntryKind::File);
  EXPECT_EQ(KindOf(u"loop"), EntryKind::None);
  EXPECT_EQ(KindOf(u"dangling"), EntryKind::None);
  EXPECT_EQ(KindOf(u"other"), EntryKind::Other);
  EXPECT_EQ(KindOf(u".to folder"), EntryKind::Folder);
  EXPECT_EQ(KindOf(u".to folder/"), EntryKind::Folder);
  EXPECT_TRUE(files_.StatusOf(P(u".to folder")).Hidden);
  EXPECT_FALSE(files_.StatusOf(P(u"to .hidden")).Hidden);
}

TEST_P(FileSystemContract, PresenceIsStatusButForReadOnly) {
  MakeOneOfEach();
  std::vector<Text> names(std::begin(EachKind), std::end(EachKind));
  names.insert(names.end(), std::begin(ImpossibleNames), std::end(ImpossibleNames));
  names.insert(names.end(), {u"missing", u"file/", u"folder/", u".", u".."});
  for (const Text& name : names) {
    SCOPED_TRACE(testing::PrintToString(name));
    const auto presence = files_.PresenceOf(P(name));
    const auto status = files_.StatusOf(P(name));
    EXPECT_EQ(presence.Kind, status.Kind);
    EXPECT_EQ(presence.Hidden, status.Hidden);
    EXPECT_EQ(presence.Size, status.Size);
  }
  EXPECT_EQ(files_.PresenceOf(u"").Kind, EntryKind::None);
}

TEST_P(FileSystemContract, EveryKindTakesItsName) {
  MakeOneOfEach();
  for (const Text& name : EachKind) {
    EXPECT_TRUE(files_.NameExists(P(name))) << testing::PrintToString(name);
    EXPECT_TRUE(files_.IdentityOf(P(name)).has_value());
  }
  EXPECT_FALSE(files_.NameExists(P(u"missing")));
  EXPECT_EQ(files_.IdentityOf(P(u"missing")), std::nullopt);
  EXPECT_TRUE(files_.NameExists(P(u".")));
  EXPECT_TRUE(files_.NameExists(P(u"..")));
}

TEST_P(FileSystemContract, IdentityIsTheEntrysOwn) {
  MakeOneOfEach();
  disk_->MakeHardLink(u"twin", u"file");
  const auto identity = files_.IdentityOf(P(u"file"));
  EXPECT_EQ(files_.IdentityOf(P(u"folder/../file")), identity);
  EXPECT_EQ(files_.IdentityOf(P(u"twin")), identity);
  EXPECT_NE(files_.IdentityOf(P(u"link")), identity);
  EXPECT_NE(files_.IdentityOf(P(u".hidden")), identity);
  ASSERT_EQ(Rename(u"file", u"folder/moved"), RenameOutcome::Done);
  EXPECT_EQ(files_.IdentityOf(P(u"folder/moved")), identity);
}

TEST_P(FileSystemContract, AListingTellsAllOfEachEntry) {
  MakeOneOfEach();
  auto entries = files_.ListFolder(P(u""));
  std::sort(entries.begin(), entries.end(),
            [](const auto& a, const auto& b) { return a.Name < b.Name; });
  ASSERT_EQ(entries.size(), 7U);
  const struct {
    TextView Name;
    EntryKind Kind;
    std::uint64_t Size;
    bool Hidden;
    bool IsLink;
    TextView LeadsTo;
  } expected[] = {
      {u".hidden", EntryKind::File, 6, true, false, u".hidden"},
      {u"dangling", EntryKind::None, 0, false, true, u""},
      {u"file", EntryKind::File, 7, false, false, u"file"},
      {u"folder", EntryKind::Folder, 0, false, false, u"folder"},
      {u"full", EntryKind::Folder, 0, false, false, u"full"},
      {u"link", EntryKind::File, 7, false, true, u"file"},
      {u"other", EntryKind::Other, 0, false, false, u"other"},
  };
  for (std::size_t i = 0; i < entries.size(); ++i) {
    SCOPED_TRACE(testing::PrintToString(expected[i].Name));
    EXPECT_EQ(entries[i].Name, expected[i].Name);
    EXPECT_EQ(entries[i].Status.Kind, expected[i].Kind);
    EXPECT_EQ(entries[i].Status.Size, expected[i].Size);
    EXPECT_EQ(entries[i].Status.Hidden, expected[i].Hidden);
    EXPECT_EQ(entries[i].IsLink, expected[i].IsLink);
    EXPECT_EQ(entries[i].Identity, expected[i].LeadsTo.empty()
                                       ? FileIdentity()
                                       : files_.IdentityOf(P(expected[i].LeadsTo)));
  }
}

TEST_P(FileSystemContract, NamesAloneAreTheSameNames) {
  MakeOneOfEach();
  std::vector<Text> expected(std::begin(EachKind), std::end(EachKind));
  std::sort(expected.begin(), expected.end());
  auto names = files_.ListNames(P(u""));
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, expected);
}

TEST_P(FileSystemContract, ListingAnEmptyFolderAndThroughALink) {
  MakeOneOfEach();
  disk_->MakeLink(u"to full", u"full");
  EXPECT_TRUE(files_.ListFolder(P(u"folder")).empty());
  EXPECT_TRUE(files_.ListFolder(P(u"folder/")).empty());
  EXPECT_TRUE(files_.ListNames(P(u"folder/")).empty());
  EXPECT_EQ(files_.ListNames(P(u"to full/")), std::vector<Text>{u"inner"});
  EXPECT_EQ(files_.ListFolder(P(u"to full/")).size(), 1U);
}

TEST_P(FileSystemContract, WhatIsNoFolderCantBeListed) {
  MakeOneOfEach();
  std::vector<Text> paths = {u"", P(u"missing"), P(u"file"), P(u"dangling"), P(u"other")};
  for (const Text& name : ImpossibleNames) {
    paths.push_back(P(name));
  }
  for (const Text& path : paths) {
    EXPECT_EQ(FailureOf([&] { files_.ListFolder(path); }), 76) << testing::PrintToString(path);
    EXPECT_EQ(FailureOf([&] { files_.ListNames(path); }), 76) << testing::PrintToString(path);
  }
}

TEST_P(FileSystemContract, OddNamesAreNamesLikeAnyOther) {
  disk_->MakeFolder(u"folder");
  for (const Text& name : OddNames) {
    SCOPED_TRACE(testing::PrintToString(name));
    files_.CreateFile(P(u"folder/") + name, "bytes");
    EXPECT_EQ(KindOf(u"folder/" + name), EntryKind::File);
    EXPECT_EQ(files_.ListNames(P(u"folder/")), std::vector<Text>{name});
    ASSERT_EQ(files_.ListFolder(P(u"folder/")).size(), 1U);
    EXPECT_EQ(files_.ListFolder(P(u"folder/"))[0].Name, name);
    ASSERT_EQ(Rename(u"folder/" + name, u"plain"), RenameOutcome::Done);
    EXPECT_EQ(Rename(u"plain", u"folder/" + name), RenameOutcome::Done);
    EXPECT_EQ(files_.ReadFileBytes(P(u"folder/" + name)), "bytes");
    EXPECT_TRUE(files_.RemoveFile(P(u"folder/" + name)));
    EXPECT_TRUE(files_.CreateFolder(P(u"folder/" + name)));
    EXPECT_TRUE(files_.RemoveFolder(P(u"folder/" + name)));
  }
}

TEST_P(FileSystemContract, OnlyFilesHaveTimes) {
  MakeOneOfEach();
  EXPECT_TRUE(files_.TimesOf(P(u"file")).has_value());
  EXPECT_TRUE(files_.TimesOf(P(u"link")).has_value());
  for (const TextView name : {u"folder", u"dangling", u"other", u"missing", u""}) {
    EXPECT_FALSE(files_.TimesOf(P(name)).has_value());
  }
  for (const Text& name : ImpossibleNames) {
    EXPECT_FALSE(files_.TimesOf(P(name)).has_value());
  }
}

TEST_P(FileSystemContract, WhoeverWritesHoldsTheFile) {
  disk_->Write(u"file", "content");
  EXPECT_FALSE(files_.UseOf(P(u"file")).InUse);
  {
    const auto reader = files_.Open(P(u"file"), OpenMode::Read);
    EXPECT_FALSE(files_.UseOf(P(u"file")).InUse);
    const auto writer = files_.Open(P(u"file"), OpenMode::ReadWrite);
    EXPECT_TRUE(files_.UseOf(P(u"file")).InUse);
  }
  EXPECT_FALSE(files_.UseOf(P(u"file")).InUse);
}

TEST_P(FileSystemContract, UseTellsTheStatusToo) {
  MakeOneOfEach();
  disk_->Write(u"read-only");
  disk_->MakeFolder(u"read-only folder");
  disk_->SetReadOnly(u"read-only");
  disk_->SetReadOnly(u"read-only folder");
  std::vector<Text> names(std::begin(EachKind), std::end(EachKind));
  names.insert(names.end(), std::begin(ImpossibleNames), std::end(ImpossibleNames));
  names.insert(names.end(), {u"read-only", u"read-only folder", u"missing", u"file/", u".", u".."});
  for (const Text& name : names) {
    SCOPED_TRACE(testing::PrintToString(name));
    const auto use = files_.UseOf(P(name));
    const auto status = files_.StatusOf(P(name));
    EXPECT_EQ(use.Status.Kind, status.Kind);
    EXPECT_EQ(use.Status.Hidden, status.Hidden);
    EXPECT_EQ(use.Status.ReadOnly, status.ReadOnly);
    EXPECT_EQ(use.Status.Size, status.Size);
    EXPECT_FALSE(use.InUse);
  }
  EXPECT_EQ(files_.UseOf(u"").Status.Kind, EntryKind::None);
}

TEST_P(FileSystemContract, AFileThatNobodyHoldsStaysOpenIfThatIsAskedFor) {
  MakeOneOfEach();
  disk_->Write(u"held", "content");
  disk_->Write(u"read-only", "content");
  disk_->SetReadOnly(u"read-only");
  const auto holder = files_.Open(P(u"held"), OpenMode::ReadWrite);
  std::vector<Text> names(std::begin(EachKind), std::end(EachKind));
  names.insert(names.end(), std::begin(ImpossibleNames), std::end(ImpossibleNames));
  names.insert(names.end(), {u"held", u"read-only", u"missing", u"file/", u".", u".."});
  for (const Text& name : names) {
    SCOPED_TRACE(testing::PrintToString(name));
    const auto use = files_.UseAndOpen(P(name));
    const auto known = files_.UseOf(P(name));
    EXPECT_EQ(use.Status.Kind, known.Status.Kind);
    EXPECT_EQ(use.Status.ReadOnly, known.Status.ReadOnly);
    EXPECT_EQ(use.InUse, known.InUse);
    EXPECT_EQ(known.File, nullptr);
    ASSERT_EQ(use.File != nullptr, name == u"file" || name == u"link");
    if (use.File) {
      EXPECT_EQ(use.File->Size(), 7U);
      EXPECT_EQ(use.File->ReadAt(1, 3), "ont");
      EXPECT_NE(FailureOf([&] { use.File->WriteAt(0, "x"); }), 0);
    }
  }
}

TEST_P(FileSystemContract, UseIsntLookedForInHiddenAndReadOnlyFiles) {
  disk_->Write(u".hidden");
  disk_->Write(u"read-only");
  const auto hidden = files_.Open(P(u".hidden"), OpenMode::ReadWrite);
  const auto readOnly = files_.Open(P(u"read-only"), OpenMode::ReadWrite);
  disk_->SetReadOnly(u"read-only");
  EXPECT_FALSE(files_.UseOf(P(u".hidden")).InUse);
  EXPECT_FALSE(files_.UseOf(P(u"read-only")).InUse);
}

TEST_P(FileSystemContract, ReadsAllBytes) {
  std::string bytes;
  for (int i = 0; i < 100'000; ++i) {
    bytes.push_back(static_cast<char>(i % 256));
  }
  disk_->Write(u"file", bytes);
  disk_->Write(u"empty");
  disk_->MakeLink(u"link", u"file");
  EXPECT_EQ(files_.ReadFileBytes(P(u"file")), bytes);
  EXPECT_EQ(files_.ReadFileBytes(P(u"link")), bytes);
  EXPECT_EQ(files_.ReadFileBytes(P(u"empty")), "");
}

TEST_P(FileSystemContract, OnlyAnExistingFileIsOpened) {
  MakeOneOfEach();
  const auto before = disk_->Contents();
  const std::pair<Text, int> failures[] = {
      {u"missing", 53}, {u"dangling", 53},        {u"missing/deeper", 53},  {u"folder", 75},
      {u"other", 75},   {ImpossibleNames[0], 53}, {ImpossibleNames[1], 53},
  };
  for (const auto& [name, number] : failures) {
    SCOPED_TRACE(testing::PrintToString(name));
    const Text path = P(name);
    EXPECT_EQ(FailureOf([&] { files_.ReadFileBytes(path); }), number);
    EXPECT_EQ(FailureOf([&] { files_.Open(path, OpenMode::Read); }), number);
    EXPECT_EQ(FailureOf([&] { files_.Open(path, OpenMode::ReadWrite); }), number);
  }
  EXPECT_NE(FailureOf([&] { files_.Open(P(Text(256, u'x')), OpenMode::ReadWrite); }), 0);
  EXPECT_EQ(disk_->Contents(), before);
}

TEST_P(FileSystemContract, APlainFileIsOpenedAndNothingElse) {
  MakeOneOfEach();
  disk_->Write(u"UNDORENAME.TXT");
  for (const TextView name : {u"file", u"link"}) {
    const auto file = files_.OpenPlainFile(P(name));
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->ReadAt(0, 10), "content");
    EXPECT_NE(FailureOf([&] { file->WriteAt(0, "x"); }), 0);
  }
  for (const TextView name : {u"folder", u"dangling", u"other", u".hidden", u"UNDORENAME.TXT",
                              u"missing", u"missing/deeper", u"file/"}) {
    EXPECT_EQ(files_.OpenPlainFile(P(name)), nullptr) << testing::PrintToString(name);
  }
  EXPECT_EQ(files_.OpenPlainFile(u""), nullptr);
  for (const Text& name : ImpossibleNames) {
    EXPECT_EQ(files_.OpenPlainFile(P(name)), nullptr);
  }
}

TEST_P(FileSystemContract, AReadOnlyFileIsReadButNotWritten) {
  disk_->Write(u"file", "content");
  disk_->MakeLink(u"link", u"file");
  disk_->SetReadOnly(u"file");
  const auto before = disk_->Contents();
  for (const TextView name : {u"file", u"link"}) {
    EXPECT_EQ(files_.Open(P(name), OpenMode::Read)->ReadAt(0, 7), "content");
    EXPECT_EQ(FailureOf([&] { files_.Open(P(name), OpenMode::ReadWrite); }), 70);
  }
  EXPECT_EQ(FailureOf([&] { files_.AppendToFile(P(u"file"), "x"); }), 70);
  EXPECT_EQ(disk_->Contents(), before);
}

TEST_P(FileSystemContract, ReadsAtAnyPosition) {
  disk_->Write(u"file", "0123456789");
  const auto file = files_.Open(P(u"file"), OpenMode::Read);
  EXPECT_EQ(file->Size(), 10U);
  const struct {
    std::uint64_t Position;
    std::size_t Length;
    const char* Bytes;
  } reads[] = {
      {0, 10, "0123456789"}, {0, 3, "012"},  {7, 3, "789"},
      {7, 4, "789"},         {3, 0, ""},     {10, 1, ""},
      {11, 5, ""},           {~0ULL, 1, ""}, {9, ~std::size_t{0}, "9"},
  };
  for (const auto& [position, length, bytes] : reads) {
    EXPECT_EQ(file->ReadAt(position, length), bytes) << position << " " << length;
  }
}

TEST_P(FileSystemContract, WritesInPlace) {
  disk_->Write(u"file", "0123456789");
  disk_->MakeLink(u"link", u"file");
  const auto identity = files_.IdentityOf(P(u"file"));
  const auto file = files_.Open(P(u"link"), OpenMode::ReadWrite);
  file->WriteAt(2, "ab");
  EXPECT_EQ(files_.ReadFileBytes(P(u"file")), "01ab456789");
  file->WriteAt(9, "cde");
  EXPECT_EQ(files_.ReadFileBytes(P(u"file")), "01ab45678cde");
  file->WriteAt(14, "f");
  EXPECT_EQ(files_.ReadFileBytes(P(u"file")), std::string("01ab45678cde\0\0f", 15));
  file->WriteAt(20, "");
  EXPECT_EQ(file->Size(), 15U);
  file->SetSize(3);
  EXPECT_EQ(file->ReadAt(0, 10), "01a");
  file->SetSize(5);
  EXPECT_EQ(file->ReadAt(0, 10), std::string("01a\0\0", 5));
  EXPECT_EQ(files_.IdentityOf(P(u"file")), identity);
  EXPECT_EQ(disk_->Contents().count("link@"), 1U);
}

TEST_P(FileSystemContract, AClosedFileIsNobodysAnyMore) {
  disk_->Write(u"file", "content");
  const auto file = files_.Open(P(u"file"), OpenMode::ReadWrite);
  file->WriteAt(0, "C");
  EXPECT_TRUE(files_.UseOf(P(u"file")).InUse);
  file->Close();
  EXPECT_FALSE(files_.UseOf(P(u"file")).InUse);
  EXPECT_NE(FailureOf([&] { file->WriteAt(0, "x"); }), 0);
  EXPECT_NE(FailureOf([&] { file->SetSize(0); }), 0);
  EXPECT_EQ(files_.ReadFileBytes(P(u"file")), "Content");
}

TEST_P(FileSystemContract, AFileOpenedForReadingIsntWritten) {
  disk_->Write(u"file", "content");
  const auto file = files_.Open(P(u"file"), OpenMode::Read);
  EXPECT_NE(FailureOf([&] { file->WriteAt(0, "x"); }), 0);
  EXPECT_NE(FailureOf([&] { file->SetSize(0); }), 0);
  EXPECT_EQ(files_.ReadFileBytes(P(u"file")), "content");
}

TEST_P(FileSystemContract, RenamesEachKindAsItIs) {
  MakeOneOfEach();
  EXPECT_EQ(Rename(u"file", u"folder/file 2"), RenameOutcome::Done);
  EXPECT_EQ(Rename(u"full/", u"full 2"), RenameOutcome::Done);
  EXPECT_EQ(Rename(u"link", u"link 2"), RenameOutcome::Done);
  EXPECT_EQ(Rename(u"dangling", u"dangling 2"), RenameOutcome::Done);
  EXPECT_EQ(Rename(u"other", u"other 2"), RenameOutcome::Done);
  EXPECT_EQ(Rename(u"folder", u"full 2/folder 2"), RenameOutcome::Done);
  EXPECT_EQ(disk_->Contents(), (std::map<std::string, std::string>{
                                   {".hidden", "secret"},
                                   {"dangling 2@", "nowhere"},
                                   {"full 2/", ""},
                                   {"full 2/folder 2/", ""},
                                   {"full 2/folder 2/file 2", "content"},
                                   {"full 2/inner", "more"},
                                   {"link 2@", "file"},
                                   {"other 2|", ""},
                               }));
}

TEST_P(FileSystemContract, NothingIsEverReplaced) {
  MakeOneOfEach();
  disk_->MakeFolder(u"folder 2");
  disk_->Write(u"UNDORENAME.TXT", "journal");
  const auto before = disk_->Contents();
  std::vector<Text> targets(std::begin(EachKind), std::end(EachKind));
  targets.insert(targets.end(), {u"folder 2", u"UNDORENAME.TXT", u".", u"..", u"full/inner"});
  for (const Text& from : EachKind) {
    for (const Text& to : targets) {
      // Itself included: a name that is taken is taken.
      EXPECT_EQ(Rename(from, to), RenameOutcome::TargetExists)
          << testing::PrintToString(from) << " to " << testing::PrintToString(to);
    }
  }
  EXPECT_EQ(disk_->Contents(), before);
}

TEST_P(FileSystemContract, HardLinksOfOneFileArentReplacedEither) {
  disk_->Write(u"file", "content");
  disk_->MakeHardLink(u"twin", u"file");
  EXPECT_EQ(Rename(u"file", u"twin"), RenameOutcome::TargetExists);
  EXPECT_EQ(disk_->Contents().size(), 2U);
}

TEST_P(FileSystemContract, RefusedRenamesChangeNothing) {
  MakeOneOfEach();
  const auto before = disk_->Contents();
  const std::pair<Text, Text> renames[] = {
      {u"missing", u"new"},   {u"missing", u"file"}, {u"file", u"missing/new"},
      {u"file", u"file/new"}, {u"file/", u"new"},    {u"file", u"new/"},
      {u"full", u"full/new"}, {u".", u"new"},        {u"full/..", u"new"},
  };
  for (const auto& [from, to] : renames) {
    EXPECT_EQ(Rename(from, to), RenameOutcome::Refused)
        << testing::PrintToString(from) << " to " << testing::PrintToString(to);
  }
  for (const Text& name : ImpossibleNames) {
    EXPECT_EQ(Rename(u"file", name), RenameOutcome::Refused);
    EXPECT_EQ(Rename(u"folder", name), RenameOutcome::Refused);
    EXPECT_EQ(Rename(name, u"new"), RenameOutcome::Refused);
  }
  EXPECT_EQ(files_.RenameNoReplace(P(u"file"), u""), RenameOutcome::Refused);
  EXPECT_EQ(files_.RenameNoReplace(u"", P(u"new")), RenameOutcome::Refused);
  EXPECT_EQ(disk_->Contents(), before);
}

TEST_P(FileSystemContract, MakesFolders) {
  EXPECT_TRUE(files_.CreateFolder(P(u"one")));
  EXPECT_TRUE(files_.CreateFolder(P(u"two/")));
  EXPECT_TRUE(files_.CreateFolder(P(u"two/.deeper")));
  EXPECT_EQ(disk_->Contents(),
            (std::map<std::string, std::string>{{"one/", ""}, {"two/", ""}, {"two/.deeper/", ""}}));
}

TEST_P(FileSystemContract, MakesNoFolderWhereItCant) {
  MakeOneOfEach();
  const auto before = disk_->Contents();
  std::vector<Text> names(std::begin(EachKind), std::end(EachKind));
  names.insert(names.end(), std::begin(ImpossibleNames), std::end(ImpossibleNames));
  names.insert(names.end(), {u"missing/deeper", u"file/deeper", u".", u".."});
  for (const Text& name : names) {
    EXPECT_FALSE(files_.CreateFolder(P(name))) << testing::PrintToString(name);
  }
  EXPECT_FALSE(files_.CreateFolder(u""));
  EXPECT_EQ(disk_->Contents(), before);
}

TEST_P(FileSystemContract, RemovesEmptyFoldersOnly) {
  MakeOneOfEach();
  disk_->MakeLink(u"to folder", u"folder");
  disk_->MakeFolder(u"holds hidden");
  disk_->Write(u"holds hidden/.a");
  const auto before = disk_->Contents();
  for (const TextView name : {u"file", u"full", u"full/", u"link", u"dangling", u"other",
                              u"to folder", u"holds hidden", u"missing", u"folder/."}) {
    EXPECT_FALSE(files_.RemoveFolder(P(name))) << testing::PrintToString(name);
  }
  for (const Text& name : ImpossibleNames) {
    EXPECT_FALSE(files_.RemoveFolder(P(name)));
  }
  EXPECT_EQ(disk_->Contents(), before);
  EXPECT_TRUE(files_.RemoveFolder(P(u"folder")));
  EXPECT_TRUE(files_.RemoveFile(P(u"full/inner")));
  EXPECT_TRUE(files_.RemoveFolder(P(u"full/")));
  EXPECT_FALSE(files_.NameExists(P(u"folder")));
  EXPECT_FALSE(files_.NameExists(P(u"full")));
}

TEST_P(FileSystemContract, CreatesOnlyWhatIsNotThere) {
  MakeOneOfEach();
  const auto before = disk_->Contents();
  for (const Text& name : EachKind) {
    EXPECT_EQ(FailureOf([&] { files_.CreateFile(P(name), "new"); }), 58)
        << testing::PrintToString(name);
  }
  EXPECT_EQ(FailureOf([&] { files_.CreateFile(P(u"missing/new"), "new"); }), 76);
  EXPECT_EQ(FailureOf([&] { files_.CreateFile(P(u"file/new"), "new"); }), 76);
  for (const Text& name : ImpossibleNames) {
    EXPECT_NE(FailureOf([&] { files_.CreateFile(P(name), "new"); }), 0);
  }
  EXPECT_EQ(disk_->Contents(), before);
  files_.CreateFile(P(u"new"), std::string("a\0b", 3));
  EXPECT_EQ(files_.ReadFileBytes(P(u"new")), std::string("a\0b", 3));
}

TEST_P(FileSystemContract, AppendsToAFileThatIsThere) {
  MakeOneOfEach();
  const auto identity = files_.IdentityOf(P(u"file"));
  files_.AppendToFile(P(u"file"), " and");
  files_.AppendToFile(P(u"file"), std::string("\0\r\n", 3));
  files_.AppendToFile(P(u"file"), "");
  EXPECT_EQ(files_.ReadFileBytes(P(u"file")), std::string("content and\0\r\n", 14));
  EXPECT_EQ(files_.IdentityOf(P(u"file")), identity);

  const auto before = disk_->Contents();
  const std::pair<TextView, int> failures[] = {
      {u"missing", 53}, {u"folder", 75}, {u"link", 75}, {u"dangling", 75}, {u"other", 75},
  };
  for (const auto& [name, number] : failures) {
    const Text path = P(name);
    EXPECT_EQ(FailureOf([&] { files_.AppendToFile(path, "x"); }), number)
        << testing::PrintToString(name);
  }
  for (const Text& name : ImpossibleNames) {
    EXPECT_NE(FailureOf([&] { files_.AppendToFile(P(name), "x"); }), 0);
  }
  EXPECT_EQ(disk_->Contents(), before);
}

TEST_P(FileSystemContract, RemovesFilesAndLinksNeverFolders) {
  MakeOneOfEach();
  for (const TextView name : {u"folder", u"folder/", u"full", u"file/", u"missing", u"."}) {
    EXPECT_FALSE(files_.RemoveFile(P(name))) << testing::PrintToString(name);
  }
  for (const Text& name : ImpossibleNames) {
    EXPECT_FALSE(files_.RemoveFile(P(name)));
  }
  EXPECT_TRUE(files_.RemoveFile(P(u"link")));
  EXPECT_TRUE(files_.RemoveFile(P(u"dangling")));
  EXPECT_TRUE(files_.RemoveFile(P(u".hidden")));
  EXPECT_EQ(disk_->Contents(), (std::map<std::string, std::string>{{"file", "content"},
                                                                   {"folder/", ""},
                                                                   {"full/", ""},
                                                                   {"full/inner", "more"},
                                                                   {"other|", ""}}));
  EXPECT_TRUE(files_.RemoveFile(P(u"file")));
  EXPECT_FALSE(files_.RemoveFile(P(u"file")));
}

TEST_P(FileSystemContract, OnlyFilesBecomePrograms) {
  MakeOneOfEach();
  for (const TextView name : {u"file", u"link", u".hidden"}) {
    EXPECT_TRUE(files_.MakeExecutable(P(name)));
  }
  for (const TextView name : {u"folder", u"dangling", u"other", u"missing"}) {
    EXPECT_FALSE(files_.MakeExecutable(P(name)));
  }
  EXPECT_EQ(files_.ReadFileBytes(P(u"file")), "content");
}

TEST_P(FileSystemContract, CaseMattersOrItDoesnt) {
  disk_->Write(u"Name", "content");
  const bool ignoresCase = disk_->IgnoresCase();
  EXPECT_EQ(files_.NameExists(P(u"nAME")), ignoresCase);
  EXPECT_EQ(files_.IdentityOf(P(u"nAME")) == files_.IdentityOf(P(u"Name")), ignoresCase);
  EXPECT_EQ(FailureOf([&] { files_.CreateFile(P(u"nAME"), "other"); }), ignoresCase ? 58 : 0);
  EXPECT_EQ(Rename(u"Name", u"nAME"), RenameOutcome::TargetExists);
  EXPECT_EQ(files_.ReadFileBytes(P(u"Name")), "content");
  EXPECT_EQ(disk_->Contents().size(), ignoresCase ? 1U : 2U);
  EXPECT_EQ(disk_->Contents().count("Name"), 1U);
}

INSTANTIATE_TEST_SUITE_P(EachDisk, FileSystemContract,
                         testing::Values(DiskKind{"Real", MakeRealDisk},
                                         DiskKind{"RealWithoutAtomicRename",
                                                  MakeRealDiskWithoutAtomicRename},
                                         DiskKind{"RealWithoutLinks", MakeRealDiskWithoutLinks},
                                         DiskKind{"Memory", MakeMemoryDisk},
                                         DiskKind{"MemoryIgnoringCase", MakeMemoryDiskIgnoringCase},
                                         DiskKind{"WindowsMemory", MakeWindowsMemoryDisk}),
                         [](const auto& each) { return each.param.Name; });

}  // namespace
}  // namespace vorlane
