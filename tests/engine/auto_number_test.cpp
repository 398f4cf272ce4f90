#include "engine/auto_number.h"

#include <gtest/gtest.h>

#include <limits>

namespace vorlane {
namespace {

TEST(FormatAutoNumber, IsAsWideAsTheNumberOfRows) {
  const struct {
    std::int32_t number, rows;
    Text text;
  } cases[] = {
      {7, 0, u"7"},
      {7, 9, u"7"},
      {7, 10, u"07"},
      {7, 99, u"07"},
      {7, 120, u"007"},
      {42, 120, u"042"},
      {120, 120, u"120"},
      {1234, 120, u"1234"},
      {0, 120, u"000"},
      {12, 9, u"12"},
      {-7, 9, u"-7"},
      {-7, 10, u"-7"},
      {-7, 120, u"0-7"},
      {7, 1'000'000, u"0000007"},
      {std::numeric_limits<std::int32_t>::max(), 10, u"2147483647"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FormatAutoNumber(c.number, c.rows), c.text) << c.number << " of " << c.rows;
  }
}

}  // namespace
}  // namespace vorlane
