#include "platform/rename.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/memory_file_system.h"
#include "support/test_disk.h"

namespace vorlane {
namespace {

constexpr TextView Folder = u"/m/";

using Contents = std::map<std::string, std::string>;

class RenameOnEachDisk : public testing::TestWithParam<std::unique_ptr<TestDisk> (*)()> {
 protected:
  RenameOutcome Rename(TextView oldName, TextView newName) {
    return RenameWithinFolder(disk_->Files(), disk_->Path(), oldName, newName);
  }

  std::unique_ptr<TestDisk> disk_ = GetParam()();
};

TEST_P(RenameOnEachDisk, GivesANewName) {
  disk_->Write(u"old", "content");
  EXPECT_EQ(Rename(u"old", u"new"), RenameOutcome::Done);
  EXPECT_EQ(disk_->Contents(), (Contents{{"new", "content"}}));
}

TEST_P(RenameOnEachDisk, EqualNamesAreNothingToDo) {
  disk_->Write(u"same", "content");
  EXPECT_EQ(Rename(u"same", u"same"), RenameOutcome::Done);
  EXPECT_EQ(disk_->Contents(), (Contents{{"same", "content"}}));
}

TEST_P(RenameOnEachDisk, ChangesCase) {
  disk_->Write(u"A.txt", "content");
  disk_->MakeFolder(u"Folder");
  disk_->Write(u"Folder/inner", "more");
  disk_->MakeLink(u"Link", u"A.txt");
  EXPECT_EQ(Rename(u"A.txt", u"a.txt"), RenameOutcome::Done);
  EXPECT_EQ(Rename(u"Folder", u"FOLDER"), RenameOutcome::Done);
  EXPECT_EQ(Rename(u"Link", u"LINK"), RenameOutcome::Done);
  EXPECT_EQ(
      disk_->Contents(),
      (Contents{
          {"a.txt", "content"}, {"FOLDER/", ""}, {"FOLDER/inner", "more"}, {"LINK@", "A.txt"}}));
}

TEST_P(RenameOnEachDisk, ChangesCaseOfTheLongestName) {
  disk_->Write(Text(255, u'x'), "content");
  EXPECT_EQ(Rename(Text(255, u'x'), Text(255, u'X')), RenameOutcome::Done);
  EXPECT_EQ(disk_->Contents(), (Contents{{std::string(255, 'X'), "content"}}));
}

TEST_P(RenameOnEachDisk, ReplacesNothing) {
  disk_->Write(u"old", "content");
  disk_->Write(u"file", "more");
  disk_->Write(u".hidden", "secret");
  disk_->MakeFolder(u"folder");
  disk_->MakeLink(u"dangling", u"nowhere");
  const auto before = disk_->Contents();
  for (const TextView name : {u"file", u".hidden", u"folder", u"dangling", u".", u".."}) {
    EXPECT_EQ(Rename(u"old", name), RenameOutcome::TargetExists);
  }
  EXPECT_EQ(Rename(u"missing", u"new"), RenameOutcome::Refused);
  EXPECT_EQ(Rename(u"old", Text(256, u'x')), RenameOutcome::Refused);
  EXPECT_EQ(disk_->Contents(), before);
}

INSTANTIATE_TEST_SUITE_P(EachDisk, RenameOnEachDisk,
                         testing::Values(MakeRealDisk, MakeRealDiskWithoutAtomicRename,
                                         MakeRealDiskWithoutLinks, MakeMemoryDisk,
                                         MakeMemoryDiskIgnoringCase, MakeWindowsMemoryDisk));

class RenameWhereCaseMatters : public testing::TestWithParam<std::unique_ptr<TestDisk> (*)()> {
 protected:
  std::unique_ptr<TestDisk> disk_ = GetParam()();
};

TEST_P(RenameWhereCaseMatters, TheOtherCasesFileStays) {
  disk_->Write(u"A.txt", "upper");
  disk_->Write(u"a.txt", "lower");
  EXPECT_EQ(RenameWithinFolder(disk_->Files(), disk_->Path(), u"A.txt", u"a.txt"),
            RenameOutcome::TargetExists);
  EXPECT_EQ(disk_->Contents(), (Contents{{"A.txt", "upper"}, {"a.txt", "lower"}}));
}

TEST_P(RenameWhereCaseMatters, TwoHardLinksStay) {
  disk_->Write(u"A.txt", "content");
  disk_->MakeHardLink(u"a.txt", u"A.txt");
  EXPECT_EQ(RenameWithinFolder(disk_->Files(), disk_->Path(), u"A.txt", u"a.txt"),
            RenameOutcome::TargetExists);
  EXPECT_EQ(disk_->Contents(), (Contents{{"A.txt", "content"}, {"a.txt", "content"}}));
}

INSTANTIATE_TEST_SUITE_P(EachDisk, RenameWhereCaseMatters,
                         testing::Values(MakeRealDisk, MakeRealDiskWithoutAtomicRename,
                                         MakeRealDiskWithoutLinks, MakeMemoryDisk));

TEST(Rename, HardLinksAreToldApartBeforeAnythingIsTouched) {
  MemoryFileSystem files;
  files.Write(u"/m/A.txt", "content");
  files.MakeHardLink(u"/m/a.txt", u"/m/A.txt");
  EXPECT_EQ(RenameWithinFolder(files, Folder, u"A.txt", u"a.txt"), RenameOutcome::TargetExists);
  EXPECT_EQ(files.MutationCount, 1U);
}

TEST(Rename, ATwinThatGoesMeanwhileIsStillAnotherEntry) {
  MemoryFileSystem files;
  files.Write(u"/m/A.txt", "upper");
  files.Write(u"/m/a.txt", "lower");
  files.BeforeCall = [&files](const CallInfo& call) {
    if (call.Method == u"ListNames") {
      files.Remove(u"/m/a.txt");
    }
  };
  EXPECT_EQ(RenameWithinFolder(files, Folder, u"A.txt", u"a.txt"), RenameOutcome::TargetExists);
  EXPECT_TRUE(files.Exists(u"/m/A.txt"));
  EXPECT_EQ(files.MutationCount, 1U);
}

class RenameIgnoringCase : public testing::Test {
 protected:
  RenameIgnoringCase() { files_.Write(u"/m/A.txt", "content"); }

  RenameOutcome Rename() { return RenameWithinFolder(files_, Folder, u"A.txt", u"a.txt"); }

  MemoryFileSystem files_{PathStyle::Posix, LetterCase::Ignored};
};

TEST_F(RenameIgnoringCase, GoesThroughATemporaryName) {
  EXPECT_EQ(Rename(), RenameOutcome::Done);
  EXPECT_EQ(files_.Calls, (std::vector<Text>{
                              u"RenameNoReplace /m/A.txt -> /m/a.txt",
                              u"IdentityOf /m/A.txt",
                              u"IdentityOf /m/a.txt",
                              u"ListNames /m/",
                              u"RenameNoReplace /m/A.txt -> /m/vorlane-renaming-1 A.txt",
                              u"RenameNoReplace /m/vorlane-renaming-1 A.txt -> /m/a.txt",
                          }));
}

TEST_F(RenameIgnoringCase, TheTemporaryNameIsFresh) {
  files_.Write(u"/m/vorlane-renaming-1 A.txt", "somebody's");
  files_.Write(u"/m/Vorlane-Renaming-2 a.txt", "somebody's");
  EXPECT_EQ(Rename(), RenameOutcome::Done);
  EXPECT_EQ(files_.Contents(Folder), (Contents{{"a.txt", "content"},
                                               {"vorlane-renaming-1 A.txt", "somebody's"},
                                               {"Vorlane-Renaming-2 a.txt", "somebody's"}}));
}

TEST_F(RenameIgnoringCase, ALongNameLeavesNoRoomInTheTemporaryOne) {
  const Text upper = Text(250, u'X');
  const Text lower = Text(250, u'x');
  files_.Write(Text(Folder) + upper, "long");
  EXPECT_EQ(RenameWithinFolder(files_, Folder, upper, lower), RenameOutcome::Done);
  EXPECT_EQ(files_.Read(Text(Folder) + lower), "long");
  EXPECT_EQ(files_.Contents(Folder).count(std::string(250, 'x')), 1U);
}

// Without looking through the folder, which would make a run over all of it quadratic.
TEST_F(RenameIgnoringCase, AFileKnownToHaveOneNameIsNotLookedForInItsFolder) {
  files_.TellsOfOneName = true;
  EXPECT_EQ(Rename(), RenameOutcome::Done);
  EXPECT_EQ(std::count(files_.Calls.begin(), files_.Calls.end(), u"ListNames /m/"), 0);
  EXPECT_EQ(files_.Contents(Folder), (Contents{{"a.txt", "content"}}));
}

TEST_F(RenameIgnoringCase, TwoNamesThatDifferByMoreThanCaseAreTwoEntries) {
  files_.MakeHardLink(u"/m/b.txt", u"/m/A.txt");
  EXPECT_EQ(RenameWithinFolder(files_, Folder, u"A.txt", u"B.TXT"), RenameOutcome::TargetExists);
  EXPECT_EQ(files_.MutationCount, 1U);
  EXPECT_EQ(files_.Contents(Folder), (Contents{{"A.txt", "content"}, {"b.txt", "content"}}));
}

TEST_F(RenameIgnoringCase, ATargetThatAppearsBetweenTheStepsIsKept) {
  files_.BeforeCall = [this](const CallInfo& call) {
    if (call.Path == u"/m/vorlane-renaming-1 A.txt" && call.Target == u"/m/a.txt") {
      files_.Write(u"/m/a.txt", "newcomer");
    }
  };
  EXPECT_EQ(Rename(), RenameOutcome::TargetExists);
  // On this disk the newcomer has taken the old name as well, so the way back is barred too.
  EXPECT_EQ(files_.Contents(Folder),
            (Contents{{"a.txt", "newcomer"}, {"vorlane-renaming-1 A.txt", "content"}}));
}

TEST_F(RenameIgnoringCase, GoesBackIfTheSecondStepFails) {
  files_.Failure = FailurePlan{.At = 3, .OnlyMutating = true};
  EXPECT_EQ(Rename(), RenameOutcome::Refused);
  EXPECT_EQ(files_.Contents(Folder), (Contents{{"A.txt", "content"}}));
}

TEST_F(RenameIgnoringCase, NothingIsLostWhicheverCallFails) {
  for (const bool fromThenOn : {false, true}) {
    for (std::size_t at = 1; at <= 7; ++at) {
      SCOPED_TRACE(testing::Message() << at << (fromThenOn ? " and on" : ""));
      MemoryFileSystem files(PathStyle::Posix, LetterCase::Ignored);
      files.Write(u"/m/A.txt", "content");
      files.Failure = FailurePlan{.At = at, .FromThenOn = fromThenOn};
      const auto outcome = RenameWithinFolder(files, Folder, u"A.txt", u"a.txt");
      const auto contents = files.Contents(Folder);
      ASSERT_EQ(contents.size(), 1U);
      EXPECT_EQ(contents.begin()->second, "content");
      // Six calls do it, and if the fifth fails a shorter temporary name may still do. Only if the
      // sixth and the way back fail is the file stuck between.
      const bool done = at == 7 || (at == 5 && !fromThenOn);
      EXPECT_EQ(outcome == RenameOutcome::Done, done);
      EXPECT_EQ(contents.begin()->first, done                    ? "a.txt"
                                         : at == 6 && fromThenOn ? "vorlane-renaming-1 A.txt"
                                                                 : "A.txt");
    }
  }
}

}  // namespace
}  // namespace vorlane
