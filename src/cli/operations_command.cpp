// vorlane-cli operations: the tree of the catalogue.
#include <iostream>
#include <memory>
#include <optional>

#include "catalogue/operation_keys.h"
#include "cli/command.h"
#include "cli/command_world.h"
#include "cli/json_text.h"
#include "cli/message.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

namespace {

struct OperationsCommandArguments {
  std::optional<std::string> Catalogue;
  bool AsJson = false;
};

Json BoxJson(const OptionBoxKeys& box) {
  return {{"name", JsonString(box.Caption)},
          {"display", JsonString(box.BoxCode)},
          {"toolTip", JsonString(box.ToolTip)},
          {"check", JsonString(box.CheckCaption)}};
}

Json NodeJson(const OperationNode& node, const Text& code) {
  const OperationKeys keys = ReadOperationKeys(code);
  Json boxes = Json::array();
  for (const OptionBoxKeys& box : keys.Boxes) {
    boxes.push_back(BoxJson(box));
  }
  return {{"index", node.Index},
          {"depth", node.Depth},
          {"title", JsonString(node.Title)},
          {"heading", code.empty()},
          {"help", JsonString(keys.HelpMessage.value_or(Text()))},
          {"wildcard", JsonString(keys.Wildcard.value_or(Text()))},
          {"boxes", boxes}};
}

ExitStatus ListOperations(const OperationsCommandArguments& arguments) {
  PosixFileSystem files;
  const OperationsTree tree = CatalogueArgument(files, arguments.Catalogue);
  Json document = Json::array();
  for (const OperationNode& node : tree.Nodes) {
    const Text& code = tree.OperationCodes[static_cast<std::size_t>(node.Index)];
    if (arguments.AsJson) {
      document.push_back(NodeJson(node, code));
    } else {
      const auto indent = 2 * static_cast<std::size_t>(node.Depth - 1);
      std::cout << node.Index << '\t' << std::string(indent, ' ')
                << ForOutput(DisplayUtf8(node.Title)) << (code.empty() ? ":" : "") << '\n';
    }
  }
  if (arguments.AsJson) {
    std::cout << WriteJson(document) << '\n';
  }
  if (tree.Failure) {
    PrintMessage(DescribeFailure(tree));
    return ExitStatus::Refused;
  }
  return ExitStatus::Done;
}

}  // namespace

void AddOperationsCommand(CLI::App& app, ExitStatus& status) {
  auto arguments = std::make_shared<OperationsCommandArguments>();
  CLI::App* command = app.add_subcommand("operations", "Print the tree of operations");
  command->add_option("--catalogue", arguments->Catalogue, "Read this operations file")
      ->type_name("FILE");
  command->add_flag("--json", arguments->AsJson, "Print JSON");
  command->callback([arguments, &status] { status = ListOperations(*arguments); });
}

}  // namespace vorlane
