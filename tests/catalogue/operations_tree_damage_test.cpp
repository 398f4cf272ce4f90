// Operations files of any content: cut off anywhere, of random pieces, of random bytes. The result
// is compared with a second, plain version of the rules that counts positions from 1.
#include <gtest/gtest.h>

#include <map>
#include <random>

#include "catalogue/operations_tree.h"
#include "catalogue/text_file.h"

namespace vorlane {
namespace {

struct PlainTree {
  std::vector<std::tuple<int, Text, int>> Nodes;  // depth, title, parent
  std::vector<int> Opened;
  std::vector<Text> Codes;
  int Failure = 0;
};

// Position of the first occurrence at or after `from`, 0 if there is none.
int Find(const Text& text, const Text& what, int from) {
  return static_cast<int>(text.find(what, from - 1) + 1);
}

PlainTree LoadPlainly(const Text& text) {
  const Text key = u"Operation Name:";
  const int length = static_cast<int>(text.size());
  PlainTree tree;
  std::map<int, int> nodeAtDepth;
  for (int p = Find(text, key, 1); p != 0;) {
    const int s = p + 15;
    if (p > 32767 || s > 32767) {
      tree.Failure = 6;
      return tree;
    }
    int e = Find(text, u"\r\n", s);
    e = e == 0 ? length + 1 : e;
    Text title = text.substr(s - 1, e - s);
    int next = Find(text, key, e);
    next = next == 0 ? length + 1 : next;
    Text code = next - 1 - e < 0 ? Text() : text.substr(e - 1, next - 1 - e);
    if (code == u"\r\n\r") {
      code = u"";
    }
    int depth = 0;
    for (; !title.empty() && title[0] == u'\t'; title.erase(0, 1)) {
      ++depth;
    }
    if (depth != 1 && nodeAtDepth[depth - 1] == 0) {
      tree.Failure = 9;
      return tree;
    }
    tree.Nodes.emplace_back(depth, title, depth == 1 ? 0 : nodeAtDepth[depth - 1]);
    nodeAtDepth[depth] = static_cast<int>(tree.Nodes.size());
    if (depth == 2) {
      tree.Opened.push_back(nodeAtDepth[1]);
    }
    tree.Codes.resize(tree.Nodes.size() + 2);
    tree.Codes[tree.Nodes.size()] = code;
    p = Find(text, key, e);
  }
  return tree;
}

void ExpectPlainResult(const Text& text) {
  const auto tree = LoadOperationsTree(text);
  const auto plain = LoadPlainly(text);
  ASSERT_EQ(tree.Nodes.size(), plain.Nodes.size());
  for (std::size_t i = 0; i < tree.Nodes.size(); ++i) {
    const auto& node = tree.Nodes[i];
    const auto& [depth, title, parent] = plain.Nodes[i];
    EXPECT_EQ(node.Index, static_cast<int>(i) + 1);
    EXPECT_EQ(node.Depth, depth);
    EXPECT_EQ(node.Title, title);
    EXPECT_EQ(node.Parent, parent);
    EXPECT_EQ(node.Expanded, std::count(plain.Opened.begin(), plain.Opened.end(), node.Index) > 0);
  }
  EXPECT_EQ(tree.OperationCodes, plain.Codes);
  EXPECT_EQ(tree.Failure ? tree.Failure->Number() : 0, plain.Failure);
  EXPECT_EQ(tree.FailureLine == 0, plain.Failure == 0);
}

// A small file, built block by block so that a test knows where each one stands.
struct BuiltBlock {
  std::string Tabs, Title, Body;
};

const std::vector<BuiltBlock> builtFile = {
    {"\t", "Names", "\r\n"},
    {"\t\t",
     "Gr\xFC\xDF"
     "e ",
     "Step: <BOX1>\r\nHelp Message: \x80.\r\n\r\n"},
    {"\t\t\t", "Deep", "Step: <NAMEONLY>\r\nStep: <EXTONLY>\r\n\r\n"},
    {"\t", "Dates", "\r\n"},
    {"\t\t", "Today", "\r\n\r\n"},
};

TEST(OperationsTreeDamage, AFileCutAnywhereGivesWhatStandsBeforeTheCut) {
  const std::string key = "Operation Name:";
  std::string bytes;
  std::vector<std::size_t> titleStarts, titleEnds, blockEnds;
  for (const auto& block : builtFile) {
    bytes += key;
    titleStarts.push_back(bytes.size());
    bytes += block.Tabs + block.Title;
    titleEnds.push_back(bytes.size());
    bytes += "\r\n" + block.Body;
    blockEnds.push_back(bytes.size());
  }
  for (std::size_t cut = 0; cut <= bytes.size(); ++cut) {
    SCOPED_TRACE(cut);
    const auto tree = LoadOperationsTree(DecodeTextFile(bytes.substr(0, cut)));
    std::size_t headers = 0;
    while (headers < builtFile.size() && titleStarts[headers] <= cut) {
      ++headers;
    }
    if (headers == 0) {
      EXPECT_TRUE(tree.Nodes.empty());
      continue;
    }
    // The last header may have lost some of its tabs, down to none at all.
    const auto& lastBlock = builtFile[headers - 1];
    const std::size_t tabs = std::min(cut - titleStarts[headers - 1], lastBlock.Tabs.size());
    EXPECT_EQ(tree.Failure ? tree.Failure->Number() : 0, tabs == 0 ? 9 : 0);
    ASSERT_EQ(tree.Nodes.size(), tabs == 0 ? headers - 1 : headers);
    for (std::size_t i = 0; i < tree.Nodes.size(); ++i) {
      const bool isLast = i + 1 == headers;
      EXPECT_EQ(tree.Nodes[i].Depth, isLast ? tabs : builtFile[i].Tabs.size());
      const Text title = DecodeTextFile(builtFile[i].Title);
      EXPECT_TRUE(cut < titleEnds[i]
                      ? title.starts_with(tree.Nodes[i].Title.substr(0, tree.Nodes[i].Title.size()))
                      : tree.Nodes[i].Title.starts_with(title));
      if (blockEnds[i] + key.size() <= cut) {
        EXPECT_EQ(tree.Nodes[i].Title, title);
        const Text code = u"\r\n" + DecodeTextFile(builtFile[i].Body);
        EXPECT_EQ(tree.OperationCodes[i + 1],
                  code == u"\r\n\r\n" ? Text() : code.substr(0, code.size() - 1));
      }
    }
    ExpectPlainResult(DecodeTextFile(bytes.substr(0, cut)));
  }
}

TEST(OperationsTreeDamage, AnyPiecesInAnyOrderGiveThePlainResult) {
  const Text pieces[] = {u"Operation Name:",
                         u"Operation Name:",
                         u"Operation Name:\t",
                         u"\t",
                         u"\t",
                         u"\r\n",
                         u"\r\n",
                         u"\r",
                         u"\n",
                         u" ",
                         u"x",
                         u"Step: x",
                         u"Operation Na",
                         u"me:"};
  std::mt19937 random(20060131);
  for (int round = 0; round < 20'000; ++round) {
    Text text;
    for (auto left = random() % 40; left > 0; --left) {
      text += pieces[random() % std::size(pieces)];
    }
    ExpectPlainResult(text);
    if (HasFailure()) {
      FAIL() << "round " << round;
    }
  }
}

TEST(OperationsTreeDamage, LongFilesGiveThePlainResult) {
  std::mt19937 random(42);
  for (int round = 0; round < 200; ++round) {
    Text text;
    while (text.size() < 34'000) {
      text += u"Operation Name:" + Text(1 + random() % 3, u'\t') + u"x\r\n";
      text += Text(random() % 3000, u'y') + u"\r\n";
    }
    ExpectPlainResult(text);
  }
}

TEST(OperationsTreeDamage, AnyBytesGiveThePlainResult) {
  std::mt19937 random(1252);
  std::string good;
  for (const auto& block : builtFile) {
    good += "Operation Name:" + block.Tabs + block.Title + "\r\n" + block.Body;
  }
  for (int round = 0; round < 5'000; ++round) {
    std::string bytes = good;
    for (auto left = 1 + random() % 8; left > 0; --left) {
      const auto at = random() % bytes.size();
      switch (random() % 3) {
        case 0:
          bytes[at] = static_cast<char>(random());
          break;
        case 1:
          bytes.erase(at, 1 + random() % 20);
          break;
        default:
          bytes.insert(at, bytes.substr(random() % bytes.size(), random() % 40));
      }
    }
    ExpectPlainResult(DecodeTextFile(bytes));
  }
}

}  // namespace
}  // namespace vorlane
