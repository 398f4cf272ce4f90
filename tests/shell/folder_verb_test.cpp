#include "shell/folder_verb.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/file_name_bytes.h"
#include "platform/posix_file_system.h"
#include "shell/desktop_texts.h"
#include "shell/registry.h"
#include "shell/stored_registry.h"
#include "shell/verb_keys.h"
#include "support/memory_file_system.h"
#include "support/memory_registry_file.h"
#include "support/recording_desktop.h"
#include "support/recording_prompter.h"
#include "support/temporary_folder.h"

namespace vorlane {
namespace {

const Text Entry = u"/data/applications/vorlane-folder.desktop";
const Text Script = u"/data/nautilus/scripts/Open with Vorlane";
const Text Action = u"/data/nemo/actions/vorlane-folder.nemo_action";
const Text Menu = u"/data/kio/servicemenus/vorlane-folder.desktop";

class FolderVerbTest : public testing::Test {
 protected:
  FolderVerbTest() { disk_.MakeFolder(u"/"); }

  MemoryFileSystem disk_;
  RecordingDesktop desktop_;
  FolderVerb verb_{disk_, desktop_, u"/data/"};
};

TEST_F(FolderVerbTest, WritesAllFourFiles) {
  EXPECT_FALSE(verb_.IsPresent());
  EXPECT_TRUE(verb_.Write(u"/opt/\u00E9/vorlane"));
  EXPECT_TRUE(verb_.IsPresent());
  const std::string program = "/opt/\xC3\xA9/vorlane";
  EXPECT_EQ(disk_.Read(Entry), DesktopEntryText(program));
  EXPECT_EQ(disk_.Read(Script), NautilusScriptText(program));
  EXPECT_EQ(disk_.Read(Action), NemoActionText(program));
  EXPECT_EQ(disk_.Read(Menu), ServiceMenuText(program));
  EXPECT_TRUE(disk_.IsExecutable(Script));
  EXPECT_TRUE(disk_.IsExecutable(Menu));
  EXPECT_FALSE(disk_.IsExecutable(Entry));
  EXPECT_FALSE(disk_.IsExecutable(Action));
  EXPECT_EQ(desktop_.Updated, std::vector<Text>{u"/data/applications/"});
}

TEST_F(FolderVerbTest, AnotherProgramReplacesThem) {
  verb_.Write(u"/old/vorlane");
  EXPECT_TRUE(verb_.Write(u"/new/vorlane"));
  EXPECT_EQ(disk_.Read(Entry), DesktopEntryText("/new/vorlane"));
  EXPECT_EQ(disk_.Read(Script), NautilusScriptText("/new/vorlane"));
  EXPECT_TRUE(disk_.IsExecutable(Script));
  EXPECT_EQ(desktop_.Updated.size(), 2U);
}

TEST_F(FolderVerbTest, WhatIsAsItShouldBeIsLeftAlone) {
  verb_.Write(u"/opt/vorlane");
  disk_.ForgetCalls();
  EXPECT_TRUE(verb_.Write(u"/opt/vorlane"));
  for (const Text& call : disk_.Calls) {
    EXPECT_FALSE(call.starts_with(u"CreateFile") || call.starts_with(u"RemoveFile"));
  }
  EXPECT_EQ(desktop_.Updated.size(), 1U);
}

TEST_F(FolderVerbTest, NeverBecomesWhatOpensAllFolders) {
  desktop_.Handler = u"vorlane-folder.desktop";
  EXPECT_TRUE(verb_.Write(u"/opt/vorlane"));
  EXPECT_FALSE(disk_.Exists(Entry));
  EXPECT_TRUE(disk_.Exists(Script) && disk_.Exists(Action) && disk_.Exists(Menu));
  EXPECT_EQ(desktop_.Updated.size(), 2U);  // written, and taken back
  EXPECT_TRUE(verb_.IsPresent());
}

TEST_F(FolderVerbTest, BecomingItLaterIsSeenAtTheNextExit) {
  verb_.Write(u"/opt/vorlane");
  EXPECT_TRUE(disk_.Exists(Entry));
  desktop_.Handler = u"vorlane-folder.desktop";
  verb_.Write(u"/opt/vorlane");
  EXPECT_FALSE(disk_.Exists(Entry));
  desktop_.Handler = u"";
  verb_.Write(u"/opt/vorlane");
  EXPECT_TRUE(disk_.Exists(Entry));
}

TEST_F(FolderVerbTest, TheQuestionComesBehindTheWriting) {
  bool wasThere = false;
  class AskedDesktop final : public DesktopTools {
   public:
    AskedDesktop(MemoryFileSystem& disk, bool& wasThere) : disk_(disk), wasThere_(wasThere) {}
    Text DefaultFolderHandler() override {
      wasThere_ = disk_.Exists(Entry);
      return {};
    }
    void UpdateDesktopDatabase(TextView) override {}

   private:
    MemoryFileSystem& disk_;
    bool& wasThere_;
  };
  AskedDesktop desktop(disk_, wasThere);
  FolderVerb(disk_, desktop, u"/data/").Write(u"/opt/vorlane");
  EXPECT_TRUE(wasThere);
}

TEST_F(FolderVerbTest, RemovesAllFour) {
  disk_.Write(u"/data/applications/other.desktop");
  verb_.Write(u"/opt/vorlane");
  EXPECT_TRUE(verb_.Remove());
  EXPECT_FALSE(verb_.IsPresent());
  EXPECT_EQ(disk_.Contents(u"/data/applications/").size(), 1U);
  EXPECT_TRUE(disk_.Contents(u"/data/nautilus/scripts/").empty());
  EXPECT_EQ(desktop_.Updated.size(), 2U);
  EXPECT_FALSE(verb_.Remove());
  EXPECT_EQ(desktop_.Updated.size(), 2U);
}

TEST_F(FolderVerbTest, EachFileAloneIsTheVerb) {
  for (const Text& path : {Entry, Script, Action, Menu}) {
    disk_.Write(path);
    EXPECT_TRUE(verb_.IsPresent());
    EXPECT_TRUE(verb_.Remove());
    EXPECT_FALSE(verb_.IsPresent());
  }
}

TEST_F(FolderVerbTest, ADiskThatTakesNothingIsQuiet) {
  disk_.MakeFolder(u"/data/");
  disk_.SetReadOnly(u"/data/");
  EXPECT_FALSE(verb_.Write(u"/opt/vorlane"));
  EXPECT_FALSE(verb_.IsPresent());
  EXPECT_FALSE(verb_.Remove());
}

TEST_F(FolderVerbTest, OneThatCantBeWrittenDoesntKeepTheOthers) {
  disk_.MakeFolder(u"/data/nautilus/");
  disk_.SetReadOnly(u"/data/nautilus/");
  EXPECT_TRUE(verb_.Write(u"/opt/vorlane"));
  EXPECT_FALSE(disk_.Exists(Script));
  EXPECT_TRUE(disk_.Exists(Entry) && disk_.Exists(Action) && disk_.Exists(Menu));
}

TEST_F(FolderVerbTest, APathThatNoProgramCanHaveWritesNothing) {
  EXPECT_FALSE(verb_.Write(Text(u"/a\0b", 4)));
  EXPECT_FALSE(verb_.IsPresent());
}

TEST_F(FolderVerbTest, ByTheRegistrysKeys) {
  MemoryRegistryFile file;
  StoredRegistry stored(file);
  VerbRegistry calls(stored, verb_);
  RecordingPrompter boxes;
  Registry registry(calls, boxes);
  constexpr auto User = RegistryRoot::CurrentUser;
  registry.CreateNewKey(User, VerbCommandKey(User));
  registry.SetKeyValue(User, VerbCommandKey(User), u"", VerbCommand(u"/opt/vorlane"),
                       RegistryType::String);
  EXPECT_EQ(disk_.Read(Entry), DesktopEntryText("/opt/vorlane"));
  EXPECT_TRUE(registry.DeleteKey(User, VerbKey(User), true));
  EXPECT_FALSE(verb_.IsPresent());
}

TEST(FolderVerbOnDisk, FilesHaveTheirPermissions) {
  const TemporaryFolder folder;
  PosixFileSystem files;
  RecordingDesktop desktop;
  FolderVerb verb(files, desktop, folder.TextPath() + u"share/");
  EXPECT_TRUE(verb.Write(u"/opt/vorlane"));
  const std::pair<std::string, bool> programs[] = {
      {"applications/vorlane-folder.desktop", false},
      {"nautilus/scripts/Open with Vorlane", true},
      {"nemo/actions/vorlane-folder.nemo_action", false},
      {"kio/servicemenus/vorlane-folder.desktop", true},
  };
  for (const auto& [name, executable] : programs) {
    struct stat status {};
    ASSERT_EQ(stat((folder.Path() + "share/" + name).c_str(), &status), 0) << name;
    EXPECT_EQ((status.st_mode & S_IXUSR) != 0, executable) << name;
  }
  EXPECT_TRUE(verb.Remove());
}

}  // namespace
}  // namespace vorlane
