#include "engine/box_values.h"

#include <gtest/gtest.h>

#include "engine/replacing.h"
#include "platform/file_name_bytes.h"

namespace vorlane {
namespace {

BoxValues Shown(std::initializer_list<TextView> values) {
  BoxValues boxes;
  std::size_t i = 0;
  for (const TextView value : values) {
    boxes.Visible[i] = true;
    boxes.Values[i++] = value;
  }
  return boxes;
}

TEST(SubstituteBoxes, PutsTheValuesIn) {
  const BoxValues boxes = Shown({u"a", u"b", u"c", u"d", u"e", u"f"});
  EXPECT_EQ(SubstituteBoxes(u"<BOX1><BOX2><BOX3><BOX4><BOX5><BOX6>", boxes), u"abcdef");
  EXPECT_EQ(SubstituteBoxes(u"x<BOX1>y<BOX1>", boxes), u"xaya");
  EXPECT_EQ(SubstituteBoxes(u"", boxes), u"");
}

TEST(SubstituteBoxes, LeavesWhatIsNoVisibleBox) {
  BoxValues boxes = Shown({u"a", u"b"});
  boxes.Values = {u"a", u"b", u"c", u"d", u"e", u"f", u"g"};
  for (const TextView text : {u"<BOX3>", u"<BOX0>", u"<BOX7>", u"<BOX8>", u"<BOX9>", u"<box1>",
                              u"<BOX>", u"<BOX1", u"BOX1>", u"<BOX12>", u"<BOX 1>", u"<BOX"}) {
    EXPECT_EQ(SubstituteBoxes(Text(text), boxes), text) << DisplayUtf8(text);
  }
  EXPECT_EQ(SubstituteBoxes(u"<BOX3><BOX1>", boxes), u"<BOX3>a");
  EXPECT_EQ(SubstituteBoxes(u"<BOX<BOX1>", boxes), u"<BOXa");
}

TEST(SubstituteBoxes, GoesOnTwice) {
  const struct {
    BoxValues boxes;
    Text text, result;
  } cases[] = {
      // A later box at once, an earlier one in the second pass.
      {Shown({u"<BOX2>x", u"a"}), u"<BOX1>", u"ax"},
      {Shown({u"a", u"<BOX1>x"}), u"<BOX2>", u"ax"},
      {Shown({u"<BOX2>", u"<BOX3>", u"<BOX4>", u"<BOX5>", u"<BOX6>", u"z"}), u"<BOX1>", u"z"},
      // Two steps back need three passes.
      {Shown({u"a", u"<BOX1>", u"<BOX2>"}), u"<BOX3>", u"<BOX1>"},
      // One that brings in itself or goes round in a circle leaves a keyword.
      {Shown({u"<BOX1>x"}), u"<BOX1>", u"<BOX1>xx"},
      {Shown({u"<BOX2>", u"<BOX1>"}), u"<BOX1>", u"<BOX1>"},
      {Shown({u"<BOX2>", u"<BOX1>"}), u"<BOX2>", u"<BOX1>"},
      // Values that make a keyword together with the text around them.
      {Shown({u"BOX2", u"b"}), u"<<BOX1>>", u"b"},
      {Shown({u"b", u"BOX1"}), u"<<BOX2>>", u"b"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(SubstituteBoxes(c.text, c.boxes), c.result) << DisplayUtf8(c.text);
  }
}

TEST(SubstituteBoxes, StopsAfterAPassThatLeavesNoBoxOfAnyDigit) {
  // In the first pass box 2 leaves no keyword at all; "<BOX9>" would have called for another pass.
  BoxValues boxes = Shown({u"x", u"<BOX1"});
  EXPECT_EQ(SubstituteBoxes(u"<BOX2>", boxes), u"<BOX1");
}

TEST(SubstituteBoxes, LeavesOutWhatWouldGrowTooLong) {
  Text many;
  for (int i = 0; i < 1'000; ++i) {
    many += u"<BOX2>";
  }
  Text more;
  for (int i = 0; i < 1'000; ++i) {
    more += u"<BOX3>";
  }
  const Text result = SubstituteBoxes(u"<BOX1>", Shown({many, more, u"x"}));
  EXPECT_EQ(result, many);
}

}  // namespace
}  // namespace vorlane
