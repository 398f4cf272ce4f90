#include "platform/program_version.h"

#include <gtest/gtest.h>

#include <regex>

#include "platform/code_page.h"

namespace vorlane {
namespace {

TEST(ProgramVersion, MinorVersionAndRevisionHaveNothingBetween) {
  EXPECT_TRUE(std::regex_match(CodePageBytes(VersionText()), std::regex(R"(\d+\.\d\d+)")));
}

}  // namespace
}  // namespace vorlane
