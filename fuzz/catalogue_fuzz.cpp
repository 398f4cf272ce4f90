// Any bytes as a text file beside the program: the operations file, and the decoding that the
// keyword list shares with it.
// Seeds: data and fuzz/corpus/catalogue.
#include "catalogue/operation_keys.h"
#include "catalogue/operations_tree.h"
#include "catalogue/text_file.h"
#include "engine/operation_steps.h"
#include "form/option_box.h"
#include "fuzz/input.h"
#include "fuzz/require.h"

using namespace vorlane;

namespace {

void CheckSteps(const Text& code) {
  Attempt([&] {
    std::size_t position = 0;
    std::size_t before = 0;
    while (const auto step = NextStep(code, position)) {
      Require(position > before && position <= code.size());
      before = position;
    }
  });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const OperationsTree tree = LoadOperationsTree(DecodeTextFile(FuzzInput(data, size).Rest()));
  Require(tree.Nodes.empty() ? tree.OperationCodes.empty()
                             : tree.OperationCodes.size() == tree.Nodes.size() + 2);
  for (const OperationNode& node : tree.Nodes) {
    Require(node.Depth >= 1 && node.Parent < node.Index);
    const Text& code = tree.OperationCodes[static_cast<std::size_t>(node.Index)];
    Require(ReadOperationKeys(code).Boxes.size() <= OptionBoxCount);
    CheckSteps(code);
  }
  return 0;
}
