#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "platform/file_name_bytes.h"
#include "platform/path_style.h"
#include "platform/user_folders.h"

namespace vorlane {

namespace {

Text FolderText(const std::string& folder) {
  return EnsureTrailingSeparator(TextFromBytes(folder), PathStyle::Posix);
}

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

std::string HomeFolder() {
  std::string home = Variable("HOME");
  if (home.starts_with('/')) {
    return home;
  }
  const passwd* user = getpwuid(getuid());
  return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "/";
}

Text UserFolder(const char* variable, const char* usualPlace) {
  const std::string folder = Variable(variable);
  return FolderText(folder.starts_with('/') ? folder : HomeFolder().append(usualPlace));
}

}  // namespace

Text ConfigFolder() {
  return UserFolder("XDG_CONFIG_HOME", "/.config");
}

Text DataFolder() {
  return UserFolder("XDG_DATA_HOME", "/.local/share");
}

Text StateFolder() {
  return UserFolder("XDG_STATE_HOME", "/.local/state");
}

Text WorkingFolder() {
  std::error_code error;
  const auto folder = std::filesystem::current_path(error);
  return FolderText(error ? "/" : folder.native());
}

}  // namespace vorlane
