#include "support/shipped_catalogue.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>

#include "catalogue/text_file.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

std::string ShippedOperationsBytes() {
  std::ifstream file(VORLANE_SOURCE_DIR "/data/Operations.ini", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

OperationsTree LoadShippedOperations() {
  return LoadOperationsTree(DecodeTextFile(ShippedOperationsBytes()));
}

std::map<std::string, std::int32_t> OperationsByPath(const OperationsTree& tree) {
  std::map<std::string, std::int32_t> operations;
  std::vector<std::string> paths(1);
  for (const OperationNode& node : tree.Nodes) {
    const std::string& above = paths.at(static_cast<std::size_t>(node.Parent));
    paths.push_back(above + (above.empty() ? "" : "/") + DisplayUtf8(node.Title));
    if (!tree.OperationCodes.at(static_cast<std::size_t>(node.Index)).empty()) {
      operations[paths.back()] = node.Index;
    }
  }
  return operations;
}

std::vector<std::string> ShippedOperationPaths() {
  std::vector<std::string> paths;
  for (const auto& [path, index] : OperationsByPath(LoadShippedOperations())) {
    paths.push_back(path);
  }
  return paths;
}

std::string NameOfPath(const testing::TestParamInfo<std::string>& info) {
  std::string name = info.param;
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
  return name;
}

ShippedCatalogue::ShippedCatalogue(const TemporaryFolder& folder) : folder_(folder) {
  const auto tree = LoadShippedOperations();
  world_.State.OperationCodes = tree.OperationCodes;
  operations_ = OperationsByPath(tree);
}

void ShippedCatalogue::SetToday(const std::string& day) {
  world_.Time.Today = *MakeDateTime(std::stoi(day.substr(0, 4)), std::stoi(day.substr(5, 2)),
                                    std::stoi(day.substr(8)), 12, 0, 0);
}

void ShippedCatalogue::Select(const std::string& operation, const std::string& inside,
                              bool listFolders) {
  world_.State.ListFolders = listFolders;
  world_.ListAll(folder_.TextPath() + TextFromBytes(inside));
  ASSERT_EQ(operations_.count(operation), 1U) << operation;
  world_.State.SelectedOperation = operations_.at(operation);
  selection_.lstRenamingOperations_NodeClick();
}

void ShippedCatalogue::List(const std::string& wildcard) {
  wildcard_.SetText(TextFromBytes(wildcard));
  world_.List.PathChangedEvent();
}

void ShippedCatalogue::PickRow(const std::string& name) {
  const auto names = world_.Names();
  const auto found = std::find(names.begin(), names.end(), TextFromBytes(name));
  ASSERT_NE(found, names.end()) << name;
  world_.State.DoAll = false;
  world_.State.SelectRow(static_cast<std::int32_t>(found - names.begin()) + 1);
  world_.List.lstFileListItemClick();
}

void ShippedCatalogue::Type(int box, const std::string& text) {
  const OptionBox& shown = world_.State.Boxes.at(static_cast<std::size_t>(box) - 1);
  ASSERT_TRUE(shown.Visible);
  if (shown.CheckVisible) {
    world_.State.Boxes.at(static_cast<std::size_t>(box) - 1).Checked = true;
    boxes_.chkRenameOption_Click(box - 1, true);
  }
  world_.State.SetBoxText(box - 1, TextFromBytes(text));
  boxes_.txtRenameOption_Change(box - 1);
}

void ShippedCatalogue::Go() {
  world_.Previews.UpdateFilePreviewAll(false, 0);
  world_.Batch.cmdGo_Click();
}

void ShippedCatalogue::Undo() {
  world_.Undo.cmdUndo_Click();
}

void ShippedCatalogue::ExpectQuiet() const {
  for (const auto& report : world_.Report.Reports) {
    ADD_FAILURE() << "reported: " << DisplayUtf8(report.Procedure) << " " << report.Number << " "
                  << DisplayUtf8(report.Extra);
  }
  for (const auto& box : world_.Boxes.Boxes) {
    ADD_FAILURE() << "shown: " << DisplayUtf8(box.Title) << ": " << DisplayUtf8(box.Message);
  }
}

}  // namespace vorlane
