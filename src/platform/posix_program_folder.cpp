#include <cstdlib>
#include <filesystem>

#include "platform/file_name_bytes.h"
#include "platform/letter_case.h"
#include "platform/path_style.h"
#include "platform/program_folder.h"

namespace vorlane {

namespace {

std::filesystem::path RunningBinary() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error);
}

Text FolderText(const std::filesystem::path& folder) {
  return EnsureTrailingSeparator(TextFromBytes(folder.native()), PathStyle::Posix);
}

// In any case, as the file is looked for afterwards.
bool HoldsOperations(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::directory_iterator entry(folder, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    if (EqualIgnoringCase(TextFromBytes(entry->path().filename().native()), u"Operations.ini")) {
      return true;
    }
  }
  return false;
}

}  // namespace

Text ProgramFolder() {
  if (const char* home = std::getenv("VORLANE_HOME"); home != nullptr && *home != '\0') {
    return FolderText(home);
  }
  const auto binary = RunningBinary().parent_path();
  if (HoldsOperations(binary)) {
    return FolderText(binary);
  }
  return FolderText(binary.parent_path() / "share" / "vorlane");
}

Text ProgramFile() {
  const char* image = std::getenv("APPIMAGE");
  const bool isImage = image != nullptr && *image != '\0';
  return TextFromBytes(isImage ? std::string(image) : RunningBinary().native());
}

}  // namespace vorlane
