#include "catalogue/operations_tree.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

using Nodes = std::vector<OperationNode>;
using Codes = std::vector<Text>;

int FailureOf(const OperationsTree& tree) {
  return tree.Failure ? tree.Failure->Number() : 0;
}

// Only the titles and parents, where the rest doesn't matter.
std::vector<std::pair<Text, int>> Outline(const OperationsTree& tree) {
  std::vector<std::pair<Text, int>> outline;
  for (const auto& node : tree.Nodes) {
    outline.emplace_back(node.Title, node.Parent);
  }
  return outline;
}

TEST(OperationsTree, ReadsHeadingsAndOperations) {
  const auto tree = LoadOperationsTree(
      u"Operation Name:\tCase\r\n"
      u"\r\n"
      u"Operation Name:\t\tUpper case\r\n"
      u"Step: <UPPERCASE><NAMEONLY></UPPERCASE><EXTONLY>\r\n"
      u"Help Message: All letters in upper case.\r\n"
      u"Wildcard: *.*\r\n"
      u"Available Boxes: 0\r\n"
      u"\r\n");
  EXPECT_EQ(tree.Nodes, (Nodes{{1, 1, u"Case", 0, true}, {2, 2, u"Upper case", 1, false}}));
  EXPECT_EQ(tree.OperationCodes, (Codes{u"", u"",
                                        u"\r\nStep: <UPPERCASE><NAMEONLY></UPPERCASE><EXTONLY>\r\n"
                                        u"Help Message: All letters in upper case.\r\n"
                                        u"Wildcard: *.*\r\n"
                                        u"Available Boxes: 0\r\n"
                                        u"\r",
                                        u""}));
  EXPECT_EQ(FailureOf(tree), 0);
  EXPECT_EQ(tree.FailureLine, 0u);
}

TEST(OperationsTree, HasNoNodesAndNoCodesWithoutAHeader) {
  for (const Text& text : {Text(), Text(u"\r\n"), Text(u"Step: <NAMEONLY>\r\n"),
                           Text(u"operation name:\tCase\r\n"), Text(u"Operation Name"),
                           Text(u"Operation  Name:\tCase\r\n"), Text(u"OPERATION NAME:\tCase")}) {
    const auto tree = LoadOperationsTree(text);
    EXPECT_TRUE(tree.Nodes.empty());
    EXPECT_TRUE(tree.OperationCodes.empty());
    EXPECT_EQ(FailureOf(tree), 0);
  }
}

TEST(OperationsTree, TextInFrontOfTheFirstHeaderIsIgnored) {
  const auto tree = LoadOperationsTree(u"My operations\r\nStep: x\r\nOperation Name:\tA\r\n\r\n");
  EXPECT_EQ(tree.Nodes, (Nodes{{1, 1, u"A", 0, false}}));
  EXPECT_EQ(tree.OperationCodes, (Codes{u"", u"", u""}));
}

TEST(OperationsTree, TheCodeRunsToOneCharacterBeforeTheNextHeader) {
  const struct {
    Text body, code;
  } cases[] = {
      {u"\r\n", u"\r"},                        // no line between the headers
      {u"\r\n\r\n", u""},                      // one empty line: a heading
      {u"\r\n\r\n\r\n", u"\r\n\r\n\r"},        // two of them: a text without keys
      {u"\r\n \r\n", u"\r\n \r"},              // a blank isn't nothing
      {u"\r\nStep: x\r\n", u"\r\nStep: x\r"},  // the LF goes
      {u"\r\nStep: x", u"\r\nStep: "},         // or whatever stands there
  };
  for (const auto& c : cases) {
    for (const Text& next : {Text(), Text(u"Operation Name:\tB")}) {
      const auto tree = LoadOperationsTree(u"Operation Name:\tA" + c.body + next);
      ASSERT_GE(tree.OperationCodes.size(), 3u);
      EXPECT_EQ(tree.Nodes[0].Title, u"A");
      EXPECT_EQ(tree.OperationCodes[1], c.code);
    }
  }
}

TEST(OperationsTree, AHeaderWithoutALineEndHasNoCode) {
  const auto tree = LoadOperationsTree(u"Operation Name:\tA\r\n\r\nOperation Name:\tLast one");
  EXPECT_EQ(tree.Nodes, (Nodes{{1, 1, u"A", 0, false}, {2, 1, u"Last one", 0, false}}));
  EXPECT_EQ(tree.OperationCodes, (Codes{u"", u"", u"", u""}));
  EXPECT_EQ(FailureOf(tree), 0);
}

TEST(OperationsTree, TitlesKeepAllButTheirTabs) {
  const auto tree = LoadOperationsTree(
      u"Operation Name:\t  A b \r\n\r\n"
      u"Operation Name:\t\tB\tc\t\r\n\r\n"
      u"Operation Name:\t\r\n\r\n"
      u"Operation Name:\tOperation Name:\tD\r\n\r\n"
      u"Operation Name:\tE\nf\rg\r\n\r\n");
  EXPECT_EQ(
      Outline(tree),
      (std::vector<std::pair<Text, int>>{
          {u"  A b ", 0}, {u"B\tc\t", 1}, {u"", 0}, {u"Operation Name:\tD", 0}, {u"E\nf\rg", 0}}));
  EXPECT_EQ(FailureOf(tree), 0);
}

TEST(OperationsTree, AHeaderInsideABodyStartsABlock) {
  const auto tree = LoadOperationsTree(
      u"Operation Name:\tA\r\nHelp Message: see Operation Name:\tB\r\nStep: x\r\n");
  EXPECT_EQ(Outline(tree), (std::vector<std::pair<Text, int>>{{u"A", 0}, {u"B", 0}}));
  EXPECT_EQ(tree.OperationCodes, (Codes{u"", u"\r\nHelp Message: see", u"\r\nStep: x\r", u""}));
}

TEST(OperationsTree, TheFirstTwoLevelsAreVisible) {
  const auto tree = LoadOperationsTree(
      u"Operation Name:\tA\r\n\r\n"
      u"Operation Name:\t\tB\r\n\r\n"
      u"Operation Name:\t\t\tC\r\n\r\n"
      u"Operation Name:\t\t\t\tD\r\n\r\n"
      u"Operation Name:\t\tE\r\n\r\n"
      u"Operation Name:\tF\r\n\r\n");
  EXPECT_EQ(tree.Nodes, (Nodes{{1, 1, u"A", 0, true},
                               {2, 2, u"B", 1, false},
                               {3, 3, u"C", 2, false},
                               {4, 4, u"D", 3, false},
                               {5, 2, u"E", 1, false},
                               {6, 1, u"F", 0, false}}));
  EXPECT_EQ(tree.OperationCodes.size(), 8u);
}

TEST(OperationsTree, AnOlderNodeServesAsParentWhenADepthIsLeftOut) {
  const auto tree = LoadOperationsTree(
      u"Operation Name:\tA\r\n\r\n"
      u"Operation Name:\t\tB\r\n\r\n"
      u"Operation Name:\tC\r\n\r\n"
      u"Operation Name:\t\t\tD\r\n\r\n");
  EXPECT_EQ(Outline(tree),
            (std::vector<std::pair<Text, int>>{{u"A", 0}, {u"B", 1}, {u"C", 0}, {u"D", 2}}));
  EXPECT_EQ(FailureOf(tree), 0);
}

TEST(OperationsTree, AHeaderWithoutAParentStopsTheReading) {
  const struct {
    Text bad;  // what follows the key
    std::size_t nodesBefore;
    Text before;
  } cases[] = {
      {u"A", 0, u""},        // no tab at all
      {u"", 0, u""},         //
      {u" \tA", 0, u""},     // a space in front of it
      {u"\t\tA", 0, u""},    // nothing to go under
      {u"\t\t\tA", 0, u""},  //
      {u"Z", 1, u"Operation Name:\tA\r\n\r\n"},
      {u"\t\t\tZ", 1, u"Operation Name:\tA\r\n\r\n"},
      {u"\t\t\t\tZ", 2, u"Operation Name:\tA\r\n\r\nOperation Name:\t\tB\r\n\r\n"},
      {Text(100'000, u'\t') + u"Z", 1, u"Operation Name:\tA\r\n\r\n"},
  };
  for (const auto& c : cases) {
    const auto tree = LoadOperationsTree(c.before + u"Operation Name:" + c.bad +
                                         u"\r\n\r\nOperation Name:\tNot read\r\n\r\n");
    EXPECT_EQ(FailureOf(tree), 9);
    EXPECT_EQ(tree.Nodes.size(), c.nodesBefore);
    EXPECT_EQ(tree.OperationCodes.size(), c.nodesBefore == 0 ? 0 : c.nodesBefore + 2);
    EXPECT_EQ(tree.FailureLine, 1 + 2 * c.nodesBefore);
  }
}

TEST(OperationsTree, ATitleBehind32767CharactersStopsTheReading) {
  const Text first = u"Operation Name:\tA\r\n";
  const Text last = u"Operation Name:\tZ\r\n\r\n";
  const auto withLastHeaderAt = [&](std::size_t position) {  // counted from 1
    return LoadOperationsTree(first + Text(position - 1 - first.size(), u'x') + last);
  };
  // The key takes 15 characters, so its title would begin at 32,767 and 32,768.
  EXPECT_EQ(FailureOf(withLastHeaderAt(32752)), 0);
  EXPECT_EQ(withLastHeaderAt(32752).Nodes.size(), 2u);
  for (const std::size_t position : {32753, 32767, 32768, 70000}) {
    const auto tree = withLastHeaderAt(position);
    EXPECT_EQ(FailureOf(tree), 6);
    EXPECT_EQ(tree.Nodes, (Nodes{{1, 1, u"A", 0, false}}));
    EXPECT_EQ(tree.FailureLine, 2u);
    // The block in front is whole.
    ASSERT_EQ(tree.OperationCodes.size(), 3u);
    EXPECT_EQ(tree.OperationCodes[1].size(), position - first.size());
  }
}

TEST(OperationsTree, TheLastBlockMayReachBeyondTheLimit) {
  const auto tree = LoadOperationsTree(u"Operation Name:\tA\r\n" + Text(70'000, u'x'));
  EXPECT_EQ(FailureOf(tree), 0);
  EXPECT_EQ(tree.OperationCodes[1].size(), 70'001u);
  EXPECT_EQ(LoadOperationsTree(u"Operation Name:\t" + Text(70'000, u'x')).Nodes[0].Title.size(),
            70'000u);
}

}  // namespace
}  // namespace vorlane
