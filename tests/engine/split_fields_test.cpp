#include "engine/split_fields.h"

#include <gtest/gtest.h>

#include "platform/failure.h"

namespace vorlane {
namespace {

using Fields = std::vector<Text>;

TEST(SplitFields, LessThanTwoFieldsAreNone) {
  EXPECT_EQ(SplitFields(u"a|b", 1), Fields());
  EXPECT_EQ(SplitFields(u"a|b", 0), Fields());
  EXPECT_EQ(SplitFields(u"a|b", -1), Fields());
}

TEST(SplitFields, OfTwo) {
  const struct {
    Text text;
    Fields fields;
  } cases[] = {
      {u"", {u"", u"", u""}},        {u"a|b", {u"a", u"b", u""}}, {u"a|b|", {u"a", u"b", u""}},
      {u"a|b|c", {u"a", u"b", u""}},  // what is beyond is dropped
      {u"a|", {u"a", u"", u""}},     {u"|b", {u"", u"b", u""}},   {u"|", {u"", u"", u""}},
      {u"||", {u"", u"", u""}},      {u"abc", {u"ab", u"", u""}},  // the last but one needs its bar
      {u"a", {u"", u"", u""}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(SplitFields(c.text, 2), c.fields) << c.text.size();
  }
}

TEST(SplitFields, OfFour) {
  const struct {
    Text text;
    Fields fields;
  } cases[] = {
      {u"", {u"", u"", u"", u"", u""}},
      {u"a|b|c|d", {u"a", u"b", u"c", u"d", u""}},
      {u"a|b|c|d|e|f", {u"a", u"b", u"c", u"d", u""}},
      {u"a|b|c|", {u"a", u"b", u"c", u"", u""}},
      {u"text|mark|3|", {u"text", u"mark", u"3", u"", u""}},
      {u"text|mark|12", {u"text", u"mark", u"1", u"", u""}},
      {u"text|mark|3", {u"text", u"mark", u"", u"", u""}},
      {u"text|mark|", {u"text", u"mark", u"", u"", u""}},
      {u"abc", {u"", u"", u"", u"", u""}},  // an earlier field without its bar is lost
      {u"a|b", {u"a", u"", u"", u"", u""}},
      {u"a|", {u"a", u"", u"", u"", u""}},
      {u"|||d", {u"", u"", u"", u"d", u""}},
      {u" a | b ", {u" a ", u"", u"", u"", u""}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(SplitFields(c.text, 4), c.fields) << c.text.size();
  }
}

TEST(SplitFields, FailsWhereTheEndIsNoPosition) {
  EXPECT_EQ(SplitFields(u"|" + Text(32'764, u'a'), 2)[1].size(), 32'764U);
  EXPECT_THROW(SplitFields(u"|" + Text(32'765, u'a'), 2), RunError);
  EXPECT_THROW(SplitFields(Text(32'767, u'a') + u"|", 2), RunError);
  EXPECT_THROW(SplitFields(Text(32'768, u'a'), 2), RunError);
}

}  // namespace
}  // namespace vorlane
