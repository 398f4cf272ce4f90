#include "platform/user_folders.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/environment_variable.h"
#include "support/temporary_folder.h"

namespace vorlane {
namespace {

struct UserFolder {
  const char* Variable;
  Text (*Folder)();
  Text UsualPlace;
};

const UserFolder Folders[] = {
    {"XDG_CONFIG_HOME", ConfigFolder, u"/home/u/.config/"},
    {"XDG_DATA_HOME", DataFolder, u"/home/u/.local/share/"},
    {"XDG_STATE_HOME", StateFolder, u"/home/u/.local/state/"},
};

TEST(UserFolders, EachHasItsVariable) {
  const EnvironmentVariable home("HOME", "/home/u");
  for (const UserFolder& folder : Folders) {
    for (const char* value : {"/x/\xC3\xA9", "/x/\xC3\xA9/"}) {
      const EnvironmentVariable variable(folder.Variable, value);
      EXPECT_EQ(folder.Folder(), u"/x/\u00E9/") << folder.Variable;
    }
  }
}

TEST(UserFolders, AMissingOrRelativeVariableGivesTheUsualPlace) {
  const EnvironmentVariable home("HOME", "/home/u");
  for (const UserFolder& folder : Folders) {
    for (const auto& value : {std::optional<std::string>(), std::optional<std::string>(""),
                              std::optional<std::string>("relative/x")}) {
      const EnvironmentVariable variable(folder.Variable, value);
      EXPECT_EQ(folder.Folder(), folder.UsualPlace) << folder.Variable;
    }
  }
}

TEST(UserFolders, WithoutAHomeVariableTheUserHasOneAllTheSame) {
  const EnvironmentVariable home("HOME", std::nullopt);
  const EnvironmentVariable variable("XDG_CONFIG_HOME", std::nullopt);
  const Text folder = ConfigFolder();
  EXPECT_TRUE(folder.starts_with(u'/') && folder.ends_with(u"/.config/"));
}

TEST(UserFolders, TheWorkingFolder) {
  const TemporaryFolder folder;
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path());
  const Text working = WorkingFolder();
  std::filesystem::current_path(before);
  EXPECT_EQ(working, folder.TextPath());
}

TEST(UserFolders, AWorkingFolderThatIsGone) {
  const TemporaryFolder folder;
  folder.MakeFolder("gone");
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path() + "gone");
  std::filesystem::remove(folder.Path() + "gone");
  const Text working = WorkingFolder();
  std::filesystem::current_path(before);
  EXPECT_EQ(working, u"/");
}

}  // namespace
}  // namespace vorlane
