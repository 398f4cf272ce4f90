#include "support/corpus.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "support/temporary_folder.h"

namespace vorlane {

FilesByName BytesOf(const std::filesystem::path& folder) {
  FilesByName bytes;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::ifstream file(entry.path(), std::ios::binary);
    bytes[entry.path().filename().string()].assign(std::istreambuf_iterator<char>(file), {});
  }
  return bytes;
}

FilesByName MadeBy(const std::string& script) {
  const TemporaryFolder made;
  const std::string path = VORLANE_SOURCE_DIR "/tools/" + script;
  std::string command = "'";
  command.append(path).append("' '").append(made.Path()).append("'");
  EXPECT_EQ(std::system(command.c_str()), 0) << command;
  return BytesOf(made.Path());
}

}  // namespace vorlane
