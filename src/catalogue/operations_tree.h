// The operations file as a tree of operations, each with its code text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/failure.h"
#include "platform/text.h"

namespace vorlane {

struct OperationNode {
  std::int32_t Index = 0;   // by order in the file, from 1
  std::int32_t Depth = 0;   // 1 for a top-level node
  Text Title;               // not trimmed
  std::int32_t Parent = 0;  // index of the parent, 0 for a top-level node
  bool Expanded = false;    // its children are visible after loading

  bool operator==(const OperationNode&) const = default;
};

// What a file gave, up to its end or to the failure that stopped the reading.
struct OperationsTree {
  std::vector<OperationNode> Nodes;

  // By node index: slot 0 is empty, and one empty slot follows the last operation; no slots at all
  // if there are no nodes. A node whose code is empty is a heading.
  std::vector<Text> OperationCodes;

  // 9 for a header that has no parent to go under (no tab, or deeper than the nodes before it
  // allow), 6 for a header whose title doesn't begin within the first 32,767 characters.
  std::optional<RunError> Failure;

  // The line of the header at which the reading stopped, counted from 1; 0 if there was none.
  std::size_t FailureLine = 0;
};

// Reads the blocks of an operations file; docs/file-formats.md tells the format. Takes any text.
// Nodes of the first two levels are visible in the result, deeper ones aren't.
OperationsTree LoadOperationsTree(TextView text);

}  // namespace vorlane
