#include "platform/posix_desktop_tools.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/environment_variable.h"
#include "support/temporary_folder.h"

namespace vorlane {
namespace {

// The tools are scripts of the test's own.
class PosixDesktopToolsTest : public testing::Test {
 protected:
  void MakeTool(const std::string& name, const std::string& body) {
    folder_.Write(name, "#!/bin/sh\n" + body + "\n");
    std::filesystem::permissions(folder_.Path() + name, std::filesystem::perms::owner_all);
  }

  TemporaryFolder folder_;
  EnvironmentVariable path_{"PATH", folder_.Path() + ":/usr/bin:/bin"};
  PosixDesktopTools tools_{std::chrono::seconds(20)};
  PosixDesktopTools impatient_{std::chrono::milliseconds(50)};
};

TEST_F(PosixDesktopToolsTest, AsksForWhatOpensFolders) {
  MakeTool("xdg-mime", "[ \"$*\" = 'query default inode/directory' ] && echo caf\xC3\xA9.desktop");
  EXPECT_EQ(tools_.DefaultFolderHandler(), u"caf\u00E9.desktop");
}

TEST_F(PosixDesktopToolsTest, NobodyMayBeThereToAsk) {
  const EnvironmentVariable none("PATH", folder_.Path());
  EXPECT_EQ(tools_.DefaultFolderHandler(), u"");
  tools_.UpdateDesktopDatabase(u"/x/");
}

TEST_F(PosixDesktopToolsTest, AnAnswerOfAFailureDoesntCount) {
  MakeTool("xdg-mime", "echo vorlane-folder.desktop; exit 3");
  EXPECT_EQ(tools_.DefaultFolderHandler(), u"");
}

TEST_F(PosixDesktopToolsTest, ASilentToolAnswersNothing) {
  MakeTool("xdg-mime", "echo to nobody >&2");
  EXPECT_EQ(tools_.DefaultFolderHandler(), u"");
}

TEST_F(PosixDesktopToolsTest, OneThatHangsIsGivenUp) {
  MakeTool("xdg-mime", "echo first.desktop; sleep 1000");
  EXPECT_EQ(impatient_.DefaultFolderHandler(), u"");
  MakeTool("xdg-mime", "echo first.desktop; exec >&-; sleep 1000");
  EXPECT_EQ(impatient_.DefaultFolderHandler(), u"");
}

TEST_F(PosixDesktopToolsTest, TellsOfTheFolderThatChanged) {
  MakeTool("update-desktop-database", "printf '%s' \"$*\" >'" + folder_.Path() + "told'");
  tools_.UpdateDesktopDatabase(u"/a b/\u00E9/");
  EXPECT_EQ(folder_.Read("told"), "/a b/\xC3\xA9/");
}

}  // namespace
}  // namespace vorlane
