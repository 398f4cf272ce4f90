#include "catalogue/operation_keys.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

int FailureOf(const OperationKeys& keys) {
  return keys.Failure ? keys.Failure->Number() : 0;
}

// A code text of these lines, as the operations file stores it.
Text CodeOf(const std::vector<Text>& lines) {
  Text code = u"\r\n";
  for (const auto& line : lines) {
    code += line + u"\r\n";
  }
  return code + u"\r";
}

std::vector<Text> CaptionsOf(const OperationKeys& keys) {
  std::vector<Text> captions;
  for (const auto& box : keys.Boxes) {
    captions.push_back(box.Caption);
  }
  return captions;
}

std::vector<Text> BoxCodesOf(const OperationKeys& keys) {
  std::vector<Text> codes;
  for (const auto& box : keys.Boxes) {
    codes.push_back(box.BoxCode);
  }
  return codes;
}

std::vector<Text> ToolTipsOf(const OperationKeys& keys) {
  std::vector<Text> tips;
  for (const auto& box : keys.Boxes) {
    tips.push_back(box.ToolTip);
  }
  return tips;
}

std::vector<Text> ChecksOf(const OperationKeys& keys) {
  std::vector<Text> checks;
  for (const auto& box : keys.Boxes) {
    checks.push_back(box.CheckCaption);
  }
  return checks;
}

TEST(OperationKeys, AreAllReadFromAWholeCode) {
  const auto keys = ReadOperationKeys(CodeOf({
      u"Step: <BOX1> <BOX2><EXTONLY>",
      u"Help Message:  Date and text in front. ",
      u"Wildcard: *.jp*g",
      u"Available Boxes: 2",
      u"Box Name: Date",
      u"Box Name: Text",
      u"Box Display: <LOCALDATE><PREFERBOX_ALL>",
      u"Box Display: Registry(Front|New )",
      u"Box ToolTip: Tick for a text of your own",
      u"Box ToolTip:",
      u"Box Check: Own text",
      u"Box Check:",
  }));
  EXPECT_EQ(keys.HelpMessage, u"Date and text in front.");
  EXPECT_EQ(keys.Wildcard, u"*.jp*g");
  EXPECT_EQ(keys.Boxes,
            (std::vector<OptionBoxKeys>{
                {u"Date", u"<LOCALDATE><PREFERBOX_ALL>", std::nullopt,
                 u"Tick for a text of your own", u"Own text"},
                {u"Text", u"Registry(Front|New )", RegistryBox{u"Front", u"New "}, u"", u""},
            }));
  EXPECT_TRUE(keys.ReachedListing);
  EXPECT_EQ(FailureOf(keys), 0);
}

TEST(OperationKeys, AHeadingHasNone) {
  const auto keys = ReadOperationKeys(u"");
  EXPECT_EQ(keys.HelpMessage, std::nullopt);
  EXPECT_EQ(keys.Wildcard, std::nullopt);
  EXPECT_TRUE(keys.Boxes.empty());
  EXPECT_FALSE(keys.ReachedListing);
  EXPECT_EQ(FailureOf(keys), 0);
}

TEST(OperationKeys, WithoutAHelpMessageNothingIsRead) {
  for (const Text& code :
       {Text(u"\r\n\r\n\r"), Text(u"\r\nWildcard: *.mp3\r\nAvailable Boxes: 1\r\n\r"),
        Text(u"\r\nhelp message: a\r\nWildcard: *.mp3\r\n\r"),
        Text(u"\r\nWildcard: *.mp3\r\nHelp Message: no line end")}) {
    const auto keys = ReadOperationKeys(code);
    EXPECT_EQ(keys.HelpMessage, std::nullopt);
    EXPECT_EQ(keys.Wildcard, std::nullopt);
    EXPECT_TRUE(keys.Boxes.empty());
    EXPECT_FALSE(keys.ReachedListing);
    EXPECT_EQ(FailureOf(keys), 0);
  }
}

TEST(OperationKeys, TheHelpMessageMayBeEmpty) {
  EXPECT_EQ(ReadOperationKeys(CodeOf({u"Help Message:"})).HelpMessage, u"");
  EXPECT_EQ(ReadOperationKeys(CodeOf({u"Help Message:   "})).HelpMessage, u"");
}

TEST(OperationKeys, TheWildcardIsSetResetOrLeft) {
  const struct {
    std::vector<Text> lines;
    std::optional<Text> wildcard;
  } cases[] = {
      {{u"Help Message: a", u"Wildcard: *.mp3"}, u"*.mp3"},
      {{u"Help Message: a", u"Wildcard:*.mp3  "}, u"*.mp3"},
      // Found from the start of the code, in front of the help message too.
      {{u"Wildcard: *.mp3", u"Help Message: a"}, u"*.mp3"},
      {{u"Step: Wildcard: *.x", u"Help Message: a", u"Wildcard: *.mp3"}, u"*.x"},
      {{u"Help Message: a"}, u"*.*"},
      {{u"Help Message: a", u"wildcard: *.mp3"}, u"*.*"},
      {{u"Help Message: a", u"Wildcard:"}, std::nullopt},
      // Something stands behind the key, and it comes to nothing.
      {{u"Help Message: a", u"Wildcard:  "}, u""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ReadOperationKeys(CodeOf(c.lines)).Wildcard, c.wildcard);
  }
}

TEST(OperationKeys, AWildcardOnTheLastLineFails) {
  const auto keys = ReadOperationKeys(u"\r\nHelp Message: a\r\nWildcard: *.mp3\r");
  EXPECT_EQ(keys.HelpMessage, u"a");
  EXPECT_EQ(keys.Wildcard, std::nullopt);
  EXPECT_TRUE(keys.Boxes.empty());
  EXPECT_FALSE(keys.ReachedListing);
  EXPECT_EQ(FailureOf(keys), 5);
  // One more line behind it is enough.
  EXPECT_EQ(ReadOperationKeys(u"\r\nHelp Message: a\r\nWildcard: *.mp3\r\n\r").Wildcard, u"*.mp3");
}

TEST(OperationKeys, WithoutABoxCountAChangedWildcardDoesNotList) {
  for (const auto& lines : {std::vector<Text>{u"Help Message: a", u"Wildcard: *.mp3"},
                            std::vector<Text>{u"Help Message: a", u"Wildcard: *.mp3",
                                              u"Box Name: b", u"Box Display: c"}}) {
    const auto keys = ReadOperationKeys(CodeOf(lines));
    EXPECT_EQ(keys.Wildcard, u"*.mp3");
    EXPECT_TRUE(keys.Boxes.empty());
    EXPECT_FALSE(keys.ReachedListing);
    EXPECT_EQ(FailureOf(keys), 0);
  }
  EXPECT_FALSE(ReadOperationKeys(u"\r\nHelp Message: a\r\nAvailable Boxes: 0\r").ReachedListing);
}

TEST(OperationKeys, TheBoxCountIsSearchedBehindTheWildcard) {
  // Without a wildcard, behind the help message.
  EXPECT_FALSE(
      ReadOperationKeys(CodeOf({u"Available Boxes: 0", u"Help Message: a"})).ReachedListing);
  EXPECT_TRUE(
      ReadOperationKeys(CodeOf({u"Help Message: a", u"Available Boxes: 0"})).ReachedListing);
  EXPECT_FALSE(
      ReadOperationKeys(CodeOf({u"Help Message: a", u"Available Boxes: 0", u"Wildcard: x"}))
          .ReachedListing);
  // A wildcard in front of the help message takes the search back there.
  EXPECT_TRUE(ReadOperationKeys(CodeOf({u"Wildcard: x", u"Available Boxes: 0", u"Help Message: a"}))
                  .ReachedListing);
}

TEST(OperationKeys, TheBoxCountIsRoundedAndAtMostSix) {
  const struct {
    Text count;
    std::size_t boxes;
  } cases[] = {
      {u"0", 0},     {u"1", 1},    {u"6", 6},     {u"7", 6},      {u"4711", 6},
      {u"99999", 6}, {u"1E99", 6}, {u"-1", 0},    {u"-99999", 0}, {u"0.4", 0},
      {u"0.5", 1},   {u"0.6", 1},  {u"1.5", 1},   {u"1.6", 2},    {u"2.5", 3},
      {u"3.5", 3},   {u"4.5", 5},  {u"  2  ", 2}, {u"&H3", 3},    {u"$4", 4},
  };
  for (const auto& c : cases) {
    std::vector<Text> lines = {u"Help Message: a", u"Available Boxes: " + c.count};
    lines.resize(10, u"Box Name: b");
    const auto keys = ReadOperationKeys(CodeOf(lines));
    EXPECT_EQ(keys.Boxes.size(), c.boxes) << "case " << &c - cases;
    EXPECT_TRUE(keys.ReachedListing);
    EXPECT_EQ(FailureOf(keys), 0);
  }
}

TEST(OperationKeys, ABoxCountThatIsNoNumberFails) {
  for (const Text& count : {Text(), Text(u"two"), Text(u"2 boxes"), Text(u"(2)")}) {
    const auto keys = ReadOperationKeys(
        CodeOf({u"Help Message: a", u"Wildcard: *.mp3", u"Available Boxes: " + count,
                u"Box Name: b", u"Box Display: c"}));
    EXPECT_EQ(FailureOf(keys), 13);
    EXPECT_EQ(keys.HelpMessage, u"a");
    EXPECT_EQ(keys.Wildcard, u"*.mp3");
    EXPECT_TRUE(keys.Boxes.empty());
    EXPECT_FALSE(keys.ReachedListing);
  }
}

TEST(OperationKeys, AMissingBoxNameEndsTheReading) {
  const auto keys = ReadOperationKeys(CodeOf({
      u"Help Message: a",
      u"Wildcard: *.mp3",
      u"Available Boxes: 3",
      u"Box Name: One",
      u"Box Display: <ARTIST>",
      u"Box ToolTip: tip",
      u"Box Check: check",
  }));
  // The second box is shown without a caption, the third isn't.
  EXPECT_EQ(CaptionsOf(keys), (std::vector<Text>{u"One", u""}));
  EXPECT_EQ(BoxCodesOf(keys), (std::vector<Text>{u"", u""}));
  EXPECT_EQ(ToolTipsOf(keys), (std::vector<Text>{u"", u""}));
  EXPECT_EQ(ChecksOf(keys), (std::vector<Text>{u"", u""}));
  EXPECT_FALSE(keys.ReachedListing);
  EXPECT_EQ(FailureOf(keys), 0);
}

TEST(OperationKeys, FewerDisplayLinesLeaveTheRestPlain) {
  const auto keys = ReadOperationKeys(CodeOf({
      u"Help Message: a",
      u"Available Boxes: 3",
      u"Box Name: One",
      u"Box Name: Two",
      u"Box Name: Three",
      u"Box Display: <ARTIST>",
      u"Box ToolTip: tip 1",
      u"Box ToolTip: tip 2",
      u"Box Check:",
      u"Box Check: check 2",
  }));
  EXPECT_EQ(BoxCodesOf(keys), (std::vector<Text>{u"<ARTIST>", u"", u""}));
  // The lines that follow are looked for behind the last line found.
  EXPECT_EQ(ToolTipsOf(keys), (std::vector<Text>{u"tip 1", u"tip 2", u""}));
  EXPECT_EQ(ChecksOf(keys), (std::vector<Text>{u"", u"check 2", u""}));
  EXPECT_TRUE(keys.ReachedListing);
}

TEST(OperationKeys, MoreLinesThanBoxesAreIgnored) {
  const auto keys = ReadOperationKeys(
      CodeOf({u"Help Message: a", u"Available Boxes: 1", u"Box Name: One", u"Box Name: Two",
              u"Box Display: 1", u"Box Display: 2", u"Box ToolTip: 1", u"Box ToolTip: 2",
              u"Box Check: 1", u"Box Check: 2"}));
  EXPECT_EQ(keys.Boxes, (std::vector<OptionBoxKeys>{{u"One", u"1", std::nullopt, u"1", u"1"}}));
}

TEST(OperationKeys, LinesOutOfOrderAreNotFound) {
  const auto keys = ReadOperationKeys(CodeOf({
      u"Help Message: a",
      u"Available Boxes: 2",
      u"Box Name: One",
      u"Box Display: code 1",
      u"Box ToolTip: tip 1",
      u"Box Check: check 1",
      u"Box Name: Two",
      u"Box Display: code 2",
      u"Box ToolTip: tip 2",
      u"Box Check: check 2",
  }));
  // Written box by box, only the second one's lines stand behind all the names.
  EXPECT_EQ(CaptionsOf(keys), (std::vector<Text>{u"One", u"Two"}));
  EXPECT_EQ(BoxCodesOf(keys), (std::vector<Text>{u"code 2", u""}));
  EXPECT_EQ(ToolTipsOf(keys), (std::vector<Text>{u"tip 2", u""}));
  EXPECT_EQ(ChecksOf(keys), (std::vector<Text>{u"check 2", u""}));
}

TEST(OperationKeys, AKeyWithoutALineEndCountsAsMissing) {
  const Text upToCount = u"\r\nHelp Message: a\r\nAvailable Boxes: 1\r\n";
  const auto noName = ReadOperationKeys(upToCount + u"Box Name: b\r");
  EXPECT_EQ(CaptionsOf(noName), (std::vector<Text>{u""}));
  EXPECT_FALSE(noName.ReachedListing);

  const Text upToName = upToCount + u"Box Name: b\r\n";
  const auto noDisplay = ReadOperationKeys(upToName + u"Box Display: c\r");
  EXPECT_EQ(BoxCodesOf(noDisplay), (std::vector<Text>{u""}));
  EXPECT_TRUE(noDisplay.ReachedListing);

  const Text upToDisplay = upToName + u"Box Display: c\r\n";
  EXPECT_EQ(ToolTipsOf(ReadOperationKeys(upToDisplay + u"Box ToolTip: d\r")),
            (std::vector<Text>{u""}));
  EXPECT_EQ(ChecksOf(ReadOperationKeys(upToDisplay + u"Box Check: e\r")), (std::vector<Text>{u""}));
  // With their line ends they count.
  const auto whole = ReadOperationKeys(upToDisplay + u"Box ToolTip: d\r\nBox Check: e\r\n");
  EXPECT_EQ(ToolTipsOf(whole), (std::vector<Text>{u"d"}));
  EXPECT_EQ(ChecksOf(whole), (std::vector<Text>{u"e"}));
}

TEST(OperationKeys, AreFoundInsideALineToo) {
  const auto keys = ReadOperationKeys(
      CodeOf({u"Help Message: say Wildcard: *.x", u"Available Boxes: 1", u"My Box Name: b",
              u"Box Display: Box ToolTip: c", u"Box ToolTip: d"}));
  EXPECT_EQ(keys.HelpMessage, u"say Wildcard: *.x");
  EXPECT_EQ(keys.Wildcard, u"*.x");
  EXPECT_EQ(CaptionsOf(keys), (std::vector<Text>{u"b"}));
  EXPECT_EQ(BoxCodesOf(keys), (std::vector<Text>{u"Box ToolTip: c"}));
  EXPECT_EQ(ToolTipsOf(keys), (std::vector<Text>{u"d"}));
}

TEST(RegistryBox, IsTakenApartAtItsFirstBar) {
  const struct {
    Text code;
    std::optional<RegistryBox> box;
  } cases[] = {
      {u"Registry(Find|x)", RegistryBox{u"Find", u"x"}},
      {u"Registry(Find)", RegistryBox{u"Find", u""}},
      {u"Registry(Find|)", RegistryBox{u"Find", u""}},
      {u"Registry(Between| - )", RegistryBox{u"Between", u" - "}},
      {u"Registry( Find |x)", RegistryBox{u" Find ", u"x"}},
      {u"Registry(a|b|c)", RegistryBox{u"a", u"b|c"}},
      {u"Registry(a|(b))", RegistryBox{u"a", u"(b)"}},
      // A bar at the very start is part of the key.
      {u"Registry(|x)", RegistryBox{u"|x", u""}},
      {u"Registry(||x)", RegistryBox{u"|", u"x"}},
      {u"Registry(|)", RegistryBox{u"|", u""}},
      {u"Registry()", RegistryBox{u"", u""}},
      // The last character goes, whatever it is.
      {u"Registry(Find|xy", RegistryBox{u"Find", u"x"}},
      {u"Registry(Find|", RegistryBox{u"Find", u""}},
      {u"Registry(F", RegistryBox{u"", u""}},
      {u"Registry(Find|x) ", RegistryBox{u"Find", u"x)"}},
      {u"", std::nullopt},
      {u"Registry", std::nullopt},
      {u"registry(Find|x)", std::nullopt},
      {u"<BOX1>Registry(Find|x)", std::nullopt},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ReadRegistryBox(c.code), c.box) << "case " << &c - cases;
  }
}

TEST(RegistryBox, WithoutAnythingBehindTheParenthesisFails) {
  EXPECT_THROW(ReadRegistryBox(u"Registry("), RunError);

  const auto keys = ReadOperationKeys(CodeOf({
      u"Help Message: a",
      u"Wildcard: *.mp3",
      u"Available Boxes: 3",
      u"Box Name: One",
      u"Box Name: Two",
      u"Box Name: Three",
      u"Box Display: <ARTIST>",
      u"Box Display: Registry(",
      u"Box Display: <TITLE>",
      u"Box ToolTip: tip",
  }));
  // What was read before it counts, the box's own code too.
  EXPECT_EQ(FailureOf(keys), 5);
  EXPECT_EQ(keys.Wildcard, u"*.mp3");
  EXPECT_EQ(CaptionsOf(keys), (std::vector<Text>{u"One", u"Two", u"Three"}));
  EXPECT_EQ(BoxCodesOf(keys), (std::vector<Text>{u"<ARTIST>", u"Registry(", u""}));
  EXPECT_EQ(ToolTipsOf(keys), (std::vector<Text>{u"", u"", u""}));
  EXPECT_FALSE(keys.ReachedListing);
}

}  // namespace
}  // namespace vorlane
