#include "platform/program_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/file_name_bytes.h"
#include "support/environment_variable.h"

namespace vorlane {
namespace {

TEST(ProgramFile, IsTheRunningBinary) {
  for (const auto& unset : {std::optional<std::string>(), std::optional<std::string>("")}) {
    const EnvironmentVariable image("APPIMAGE", unset);
    EXPECT_EQ(ProgramFile(), TextFromBytes(std::filesystem::canonical("/proc/self/exe").native()));
  }
}

// A program in an image runs from a place that is there only while it runs.
TEST(ProgramFile, IsTheImageThatHoldsIt) {
  const EnvironmentVariable image("APPIMAGE", "/home/u/Vorlane \xC3\xA9.AppImage");
  EXPECT_EQ(ProgramFile(), u"/home/u/Vorlane \u00E9.AppImage");
}

}  // namespace
}  // namespace vorlane
