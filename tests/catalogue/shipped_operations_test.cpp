// The operations file that is shipped: what its readers rely on.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "catalogue/operation_keys.h"
#include "catalogue/operations_tree.h"
#include "engine/operation_steps.h"
#include "support/shipped_catalogue.h"

namespace vorlane {
namespace {

constexpr std::string_view keyNames[] = {
    "Operation Name:",  "Step:",     "Help Message:", "Wildcard:",   "Box Check:",
    "Available Boxes:", "Box Name:", "Box Display:",  "Box ToolTip:"};

class ShippedOperations : public testing::Test {
 protected:
  ShippedOperations() {
    bytes_ = ShippedOperationsBytes();
    tree_ = LoadShippedOperations();
  }

  // Its lines without their ends.
  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (auto end = bytes_.find("\r\n"); end != std::string::npos;
         end = bytes_.find("\r\n", start)) {
      lines.push_back(bytes_.substr(start, end - start));
      start = end + 2;
    }
    return lines;
  }

  const Text& CodeOf(const OperationNode& node) const {
    return tree_.OperationCodes.at(node.Index);
  }

  bool HasChildren(const OperationNode& node) const {
    return std::any_of(tree_.Nodes.begin(), tree_.Nodes.end(),
                       [&](const OperationNode& other) { return other.Parent == node.Index; });
  }

  // "Case/Upper case", for the messages of failed tests.
  std::string PathOf(const OperationNode& node) const {
    const std::string title(node.Title.begin(), node.Title.end());
    return node.Parent == 0 ? title : PathOf(tree_.Nodes.at(node.Parent - 1)) + "/" + title;
  }

  // No box of such an operation has a check box: what is typed serves for the selected row.
  static bool IsForOneFileAtATime(const OperationKeys& keys) {
    return Contains(keys.HelpMessage.value_or(u""), u"one file at a time") &&
           std::all_of(keys.Boxes.begin(), keys.Boxes.end(),
                       [](const OptionBoxKeys& box) { return box.CheckCaption.empty(); });
  }

  template <typename Check>
  void ForEachOperation(Check check) const {
    for (const auto& node : tree_.Nodes) {
      if (!CodeOf(node).empty()) {
        SCOPED_TRACE(PathOf(node));
        check(node, ReadOperationKeys(CodeOf(node)));
      }
    }
  }

  std::string bytes_;
  OperationsTree tree_;
};

TEST_F(ShippedOperations, LoadCompletely) {
  EXPECT_FALSE(tree_.Failure.has_value());
  int operations = 0;
  ForEachOperation([&](const auto&, const auto&) { ++operations; });
  EXPECT_GE(operations, 85);
}

TEST_F(ShippedOperations, LeaveRoomForMore) {
  EXPECT_LT(bytes_.size(), 30'000u);
  EXPECT_LT(bytes_.rfind("Operation Name:"), 32'767u) << "headers from there on aren't read";
}

TEST_F(ShippedOperations, AreAsciiLinesThatEndInCrLf) {
  char before = 0;
  for (const char byte : bytes_) {
    EXPECT_TRUE((byte >= ' ' && byte <= '~') || byte == '\t' || byte == '\r' || byte == '\n')
        << static_cast<int>(byte);
    EXPECT_EQ(byte == '\n', before == '\r');
    before = byte;
  }
  // The last block's empty line is there too.
  EXPECT_TRUE(bytes_.ends_with("\r\n\r\n"));
}

TEST_F(ShippedOperations, EveryBlockEndsWithAnEmptyLine) {
  const auto lines = Lines();
  for (std::size_t i = 1; i < lines.size(); ++i) {
    if (lines[i].starts_with("Operation Name:")) {
      EXPECT_EQ(lines[i - 1], "") << "in front of " << lines[i];
    }
  }
}

TEST_F(ShippedOperations, StandInGroupsAtMostThreeLevelsDeep) {
  EXPECT_TRUE(tree_.OperationCodes.at(1).empty()) << "a new user starts on the first node";
  std::set<std::string> paths;
  for (const auto& node : tree_.Nodes) {
    SCOPED_TRACE(PathOf(node));
    EXPECT_LE(node.Depth, 3);
    EXPECT_EQ(HasChildren(node), CodeOf(node).empty());
    EXPECT_FALSE(node.Title.empty());
    EXPECT_EQ(node.Title, Trim(node.Title));
    EXPECT_FALSE(Contains(node.Title, u"/")) << "it separates the titles of a path";
    EXPECT_TRUE(paths.insert(PathOf(node)).second) << "two of one name";
  }
}

TEST_F(ShippedOperations, ShowWhatMostPeopleLookForWithoutOpeningAGroup) {
  std::set<std::string> shown;
  for (const auto& node : tree_.Nodes) {
    if (node.Depth <= 2 && !CodeOf(node).empty()) {
      shown.insert(PathOf(node));
    }
  }
  for (const char* path :
       {"Case/Title Case", "Case/Lower case", "Replace/Replace text", "Number/Text and number",
        "Remove and trim/Remove first characters", "Insert/Text in front",
        "Photos/Number by date taken", "Music/Artist - Title from tags",
        "Music/Tags from Artist - Title", "Move into folders/Music by artist and album"}) {
    EXPECT_EQ(shown.count(path), 1U) << path;
  }
}

TEST_F(ShippedOperations, HoldKeysAloneEachAtTheStartOfItsLineOnly) {
  for (const auto& line : Lines()) {
    SCOPED_TRACE(line);
    int keys = 0;
    for (const auto key : keyNames) {
      for (auto at = line.find(key); at != std::string::npos; at = line.find(key, at + 1)) {
        EXPECT_EQ(at, 0u);
        ++keys;
      }
    }
    EXPECT_EQ(keys, line.empty() ? 0 : 1);
  }
}

TEST_F(ShippedOperations, HaveStepsThatDoSomething) {
  ForEachOperation([&](const OperationNode& node, const auto&) {
    std::size_t position = 0;
    int steps = 0;
    while (const auto step = NextStep(CodeOf(node), position)) {
      EXPECT_TRUE(Contains(*step, u"<"));
      EXPECT_TRUE(Contains(*step, u">"));
      ++steps;
    }
    EXPECT_GE(steps, 1);
  });
}

TEST_F(ShippedOperations, HaveTheirKeysReadToTheEnd) {
  ForEachOperation([&](const OperationNode& node, const OperationKeys& keys) {
    EXPECT_FALSE(keys.Failure.has_value());
    EXPECT_FALSE(keys.HelpMessage.value_or(u"").empty());
    EXPECT_GE(keys.Wildcard.value_or(u"").size(), 3u);
    // Otherwise a changed wildcard would leave the list as it is.
    EXPECT_TRUE(keys.ReachedListing);
    // As many lines of a kind as the code has are found: one for each box, or none of the optional
    // kinds.
    const auto linesOf = [&](TextView key) { return Split(CodeOf(node), key).size() - 1; };
    const auto boxes = keys.Boxes.size();
    EXPECT_EQ(linesOf(u"\r\nHelp Message:"), 1u);
    EXPECT_LE(linesOf(u"\r\nWildcard:"), 1u);
    EXPECT_EQ(linesOf(u"\r\nAvailable Boxes: " + DecimalText(static_cast<int>(boxes)) + u"\r"), 1u);
    EXPECT_EQ(linesOf(u"\r\nBox Name:"), boxes);
    EXPECT_EQ(linesOf(u"\r\nBox Display:"), boxes);
    EXPECT_TRUE(linesOf(u"\r\nBox ToolTip:") == boxes || linesOf(u"\r\nBox ToolTip:") == 0);
    EXPECT_TRUE(linesOf(u"\r\nBox Check:") == boxes || linesOf(u"\r\nBox Check:") == 0);
  });
}

TEST_F(ShippedOperations, HaveBoxesThatSayWhatTheyAreFor) {
  ForEachOperation([&](const OperationNode& node, const OperationKeys& keys) {
    for (std::size_t i = 0; i < keys.Boxes.size(); ++i) {
      const auto& box = keys.Boxes[i];
      SCOPED_TRACE("box " + std::to_string(i + 1));
      EXPECT_FALSE(box.Caption.empty());
      EXPECT_LE(box.Caption.size(), 22u) << "no more fits beside the box";
      // The box is of use: a step asks for it, or the operation writes its own keyword somewhere.
      EXPECT_TRUE(Contains(CodeOf(node), u"<BOX" + DecimalText(static_cast<int>(i) + 1) + u">"));
      if (box.Remembered) {
        EXPECT_TRUE(box.BoxCode.ends_with(u")"));
        EXPECT_FALSE(box.Remembered->Key.empty());
        EXPECT_EQ(box.Remembered->Key, Trim(box.Remembered->Key));
        EXPECT_TRUE(box.CheckCaption.empty()) << "a remembered box is the user's text anyway";
      } else if (!box.BoxCode.empty()) {
        EXPECT_TRUE(Contains(box.BoxCode, u"<")) << "a formula of plain words gives nothing";
        EXPECT_TRUE(!box.CheckCaption.empty() || IsForOneFileAtATime(keys))
            << "no way to a text of one's own";
      }
    }
  });
}

TEST_F(ShippedOperations, AskForNoBoxThatIsNotShown) {
  ForEachOperation([&](const OperationNode& node, const OperationKeys& keys) {
    for (auto box = keys.Boxes.size() + 1; box <= 9; ++box) {
      EXPECT_FALSE(Contains(CodeOf(node), u"<BOX" + DecimalText(static_cast<int>(box)) + u">"));
    }
  });
}

TEST_F(ShippedOperations, GiveAKeyOneDefaultEverywhere) {
  // Boxes of one key share their text, so a default of one would not hold for the other.
  std::map<Text, Text> defaults;
  ForEachOperation([&](const OperationNode&, const OperationKeys& keys) {
    for (const auto& box : keys.Boxes) {
      if (box.Remembered) {
        const auto known = defaults.emplace(box.Remembered->Key, box.Remembered->Default).first;
        EXPECT_EQ(known->second, box.Remembered->Default);
      }
    }
  });
}

TEST_F(ShippedOperations, HaveBalancedTags) {
  const std::string_view tags[] = {
      "MID",           "TRY",          "PROPERCASE",     "LOWERCASE",      "REPLACE",
      "UPPERCASE",     "LEFTTRIM",     "RIGHTTRIM",      "MOVE",           "ASCII",
      "MAKEEXTENSION", "CREATEFOLDER", "OLDESTDATETIME", "NEWESTDATETIME", "IMAGEEXIFTAG"};
  for (const auto& line : Lines()) {
    for (const auto tag : tags) {
      const auto count = [&](const std::string& what) {
        std::size_t found = 0;
        for (auto at = line.find(what); at != std::string::npos; at = line.find(what, at + 1)) {
          ++found;
        }
        return found;
      };
      EXPECT_EQ(count("<" + std::string(tag) + ">"), count("</" + std::string(tag) + ">")) << line;
    }
  }
}

TEST_F(ShippedOperations, RenameOrMoveOrWriteOneTagButNeverTwoOfThese) {
  // A file that has moved isn't found under its old folder, and a second tag record in one line of
  // the journal can't be undone.
  ForEachOperation([&](const OperationNode& node, const auto&) {
    std::vector<Text> steps;
    std::size_t position = 0;
    while (const auto step = NextStep(CodeOf(node), position)) {
      steps.emplace_back(*step);
    }
    if (steps.size() == 2) {
      EXPECT_TRUE(steps[0].starts_with(u"<CREATEFOLDER>"));
      EXPECT_TRUE(steps[1].starts_with(u"<MOVE>"));
    } else {
      EXPECT_EQ(steps.size(), 1u);
    }
  });
}

}  // namespace
}  // namespace vorlane
