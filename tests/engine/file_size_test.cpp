#include "engine/file_size.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/numbers.h"

namespace vorlane {
namespace {

TEST(FileSizeKB, HasTwoDecimals) {
  const struct {
    std::int32_t bytes;
    Text text;
  } cases[] = {
      {0, u"0"},
      {1, u"0"},
      {5, u"0"},
      {6, u"0.01"},
      {512, u"0.5"},
      {1024, u"1"},
      {1536, u"1.5"},
      {2048, u"2"},
      {1'264'200, u"1234.57"},
      {std::numeric_limits<std::int32_t>::max(), u"2097152"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ShortestDecimal(FileSizeKB(c.bytes)), c.text) << c.bytes;
  }
  EXPECT_EQ(FileSizeKB(1536), 1.5);
}

}  // namespace
}  // namespace vorlane
