// The example in docs/file-formats.md is a file that works.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "catalogue/operation_keys.h"
#include "catalogue/operations_tree.h"
#include "catalogue/text_file.h"
#include "engine/operation_steps.h"

namespace vorlane {
namespace {

Text Example() {
  std::ifstream file(VORLANE_SOURCE_DIR "/docs/file-formats.md", std::ios::binary);
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  const auto start = page.find("```\n") + 4;
  Text example = DecodeTextFile(page.substr(start, page.find("```\n", start) - start));
  ReplaceAll(example, u"\u2192", u"\t");
  return example;
}

TEST(DocumentedExample, LoadsAsItSays) {
  const auto tree = LoadOperationsTree(Example());
  EXPECT_FALSE(tree.Failure.has_value());
  EXPECT_EQ(tree.Nodes, (std::vector<OperationNode>{{1, 1, u"My operations", 0, true},
                                                    {2, 2, u"Upper case", 1, false},
                                                    {3, 2, u"Date and text in front", 1, false}}));
  EXPECT_EQ(tree.OperationCodes.at(1), u"");
  std::size_t position = 0;
  EXPECT_EQ(NextStep(tree.OperationCodes.at(3), position), u"<BOX1> <BOX2><FILENAME>");

  const auto keys = ReadOperationKeys(tree.OperationCodes.at(3));
  EXPECT_FALSE(keys.Failure.has_value());
  EXPECT_TRUE(keys.ReachedListing);
  EXPECT_EQ(keys.Wildcard, u"*.jpg");
  EXPECT_EQ(keys.Boxes, (std::vector<OptionBoxKeys>{
                            {u"Date", u"<REPLACE><LOCALDATE>|/|-|</REPLACE>", std::nullopt,
                             u"Tick for a text of your own", u"Own text"},
                            {u"Text", u"Registry(FrontText|New )",
                             RegistryBox{u"FrontText", u"New "}, u"May hold keywords", u""},
                        }));
}

}  // namespace
}  // namespace vorlane
