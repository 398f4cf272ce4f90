#include "catalogue/operations_tree.h"

#include <algorithm>

namespace vorlane {
namespace {

constexpr TextView headerKey = u"Operation Name:";
constexpr TextView emptyLineCode = u"\r\n\r";

// Titles have to begin within the first 32,767 characters of the file.
constexpr std::size_t lastPosition = 32767;

struct Block {
  TextView Header;  // with its tabs, without the key
  TextView Code;
  std::size_t HeaderEnd = 0;  // where the search for the next header begins
};

Block BlockAt(TextView text, std::size_t key) {
  const auto start = key + headerKey.size();
  if (start + 1 > lastPosition) {
    throw RunError(ErrorNumber::Overflow);
  }
  const auto end = std::min(text.find(LineEnd, start), text.size());
  const auto next = std::min(text.find(headerKey, end), text.size());
  // The last character goes: it is the LF in front of the next header or at the end of the file.
  // There is none to go if the file ends with the header.
  auto code = text.substr(end, next > end ? next - 1 - end : 0);
  if (code == emptyLineCode) {
    code = {};
  }
  return {text.substr(start, end - start), code, end};
}

class TreeBuilder {
 public:
  explicit TreeBuilder(OperationsTree& tree) : tree_(tree) {}

  // Throws RunError 9 if the block has no parent; then nothing was added.
  void Add(const Block& block) {
    const auto depth = std::min(block.Header.find_first_not_of(u'\t'), block.Header.size());
    if (depth == 0 || depth > nodeAtDepth_.size()) {
      throw RunError(ErrorNumber::SubscriptOutOfRange);
    }
    const auto parent = nodeAtDepth_[depth - 1];
    const auto index = static_cast<std::int32_t>(tree_.Nodes.size()) + 1;
    nodeAtDepth_.resize(std::max(nodeAtDepth_.size(), depth + 1));
    nodeAtDepth_[depth] = index;
    tree_.Nodes.push_back(
        {index, static_cast<std::int32_t>(depth), Text(block.Header.substr(depth)), parent, false});
    if (depth == 2) {
      tree_.Nodes[parent - 1].Expanded = true;
    }
    tree_.OperationCodes.resize(index + 2);
    tree_.OperationCodes[index] = block.Code;
  }

 private:
  OperationsTree& tree_;

  // The index of the last node of each depth, with 0 as the parent of the top-level nodes. A node
  // from further up in the file stays a possible parent: depths 1, 2, 1, 3 put the last node under
  // the second.
  std::vector<std::int32_t> nodeAtDepth_ = {0};
};

}  // namespace

OperationsTree LoadOperationsTree(TextView text) {
  OperationsTree tree;
  TreeBuilder builder(tree);
  auto key = text.find(headerKey);
  try {
    while (key != TextView::npos) {
      const Block block = BlockAt(text, key);
      builder.Add(block);
      key = text.find(headerKey, block.HeaderEnd);
    }
  } catch (const RunError& failure) {
    tree.Failure = failure;
    tree.FailureLine = Split(text.substr(0, key), LineEnd).size();
  }
  return tree;
}

}  // namespace vorlane
