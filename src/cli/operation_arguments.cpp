#include "cli/operation_arguments.h"

#include <algorithm>
#include <charconv>

#include "cli/box_argument.h"
#include "cli/whole_number.h"
#include "platform/console.h"
#include "platform/file_name_bytes.h"
#include "platform/letter_case.h"

namespace vorlane {

namespace {

// The titles from the root down to a node, joined by "/".
Text PathOfTitles(const OperationsTree& tree, const OperationNode& node) {
  Text path = node.Title;
  for (std::int32_t parent = node.Parent; parent != 0;) {
    const OperationNode& above = tree.Nodes[static_cast<std::size_t>(parent) - 1];
    path.insert(0, 1, u'/').insert(0, above.Title);
    parent = above.Parent;
  }
  return path;
}

}  // namespace

void OperationArguments::AddTo(CLI::App& command) {
  Entries.AddTo(command);
  CLI::Option* operation =
      command.add_option("--operation", Operation, "Index or path of titles, \"Case/Upper case\"")
          ->type_name("OP");
  command.add_option("--code", Codes, "One step of code; repeat for more steps")
      ->type_name("STEP")
      ->allow_extra_args(false)
      ->excludes(operation);
  command.add_option("--catalogue", Catalogue, "Read this operations file")->type_name("FILE");
  command.add_option("--box", BoxTexts, "The text typed in box N")
      ->type_name("N=TEXT")
      ->allow_extra_args(false);
  command.add_option("--check", Checks, "Tick the check box of box N")
      ->type_name("N")
      ->transform(WholeNumber())
      ->allow_extra_args(false);
  command.add_option("--only", Only, "Do only the row with this name; repeat for more rows")
      ->type_name("NAME")
      ->allow_extra_args(false);
  command.add_flag("--json", AsJson, "Print JSON");
  command.add_flag("--all", All, "Print unchanged rows too");
}

void OperationArguments::Prepare(CommandWorld& world) const {
  if (!Operation && Codes.empty()) {
    throw CommandError(ExitStatus::Usage, "--operation or --code is required");
  }
  Form& form = world.State;
  OperationKeys keys;
  LoadCodes(world, keys);
  FillBoxes(world, keys);  // wrong ones are told of before anything is listed
  form.Boxes = {};         // the listing would put values of its own into them
  const std::int32_t operation = form.SelectedOperation;
  Entries.List(world, keys.Wildcard.value_or(Text(u"*.*")));
  form.SelectedOperation = operation;
  form.DoAll = Only.empty();
  FillBoxes(world, keys);
}

void OperationArguments::FillBoxes(CommandWorld& world, const OperationKeys& keys) const {
  Form& form = world.State;
  ShowBoxes(form, keys);
  const auto unclicked = form.Boxes;
  if (!Checks.empty()) {
    world.List.lstFileListItemClick();  // shows the values for the first row, if there is one
  }
  TickChecks(form);
  for (std::size_t i = 0; i < form.Boxes.size(); ++i) {
    // A ticked box keeps the value that it showed until a text is typed over it; any other one
    // works its own out for each row.
    if (!form.Boxes[i].Checked) {
      form.Boxes[i].Content = unclicked[i].Content;
    }
  }
  TypeBoxTexts(form);
}

void OperationArguments::LoadCodes(CommandWorld& world, OperationKeys& keys) const {
  Form& form = world.State;
  if (!Codes.empty()) {
    Text code;
    for (const std::string& step : Codes) {
      if (step.find("\r\n") != std::string::npos) {
        throw CommandError(ExitStatus::Usage, "--code: a step is one line");
      }
      code.append(u"Step:").append(TextFromBytes(step)).append(u"\r\n");
    }
    form.OperationCodes = {Text(), code};
    form.SelectedOperation = 1;
    return;
  }
  OperationsTree tree = CatalogueArgument(world.Files, Catalogue);
  if (tree.Failure) {
    world.Troubles.Tell(DescribeFailure(tree));
  }
  form.SelectedOperation = FindOperation(tree);
  form.OperationCodes = std::move(tree.OperationCodes);
  keys = ReadOperationKeys(form.SelectedCode());
  if (keys.Failure) {
    world.Report.ReportError(FormName, u"lstRenamingOperations_NodeClick", u"", *keys.Failure);
  }
}

std::int32_t OperationArguments::FindOperation(const OperationsTree& tree) const {
  std::int32_t index = 0;
  const char* end = Operation->data() + Operation->size();
  const auto read = std::from_chars(Operation->data(), end, index);
  const bool isIndex = read.ec == std::errc() && read.ptr == end;
  const Text wanted = TextFromBytes(*Operation);
  const auto find = [&](auto&& fits) {
    const auto found = std::find_if(tree.Nodes.begin(), tree.Nodes.end(), fits);
    return found == tree.Nodes.end() ? 0 : found->Index;
  };
  std::int32_t found = 0;
  if (isIndex) {
    found = find([&](const OperationNode& node) { return node.Index == index; });
  }
  if (found == 0) {
    found = find([&](const OperationNode& node) { return PathOfTitles(tree, node) == wanted; });
  }
  if (found == 0) {
    found = find([&](const OperationNode& node) {
      return EqualIgnoringCase(PathOfTitles(tree, node), wanted);
    });
  }
  if (found == 0) {
    throw CommandError(ExitStatus::NotFound, "no such operation: " + *Operation);
  }
  if (tree.OperationCodes[static_cast<std::size_t>(found)].empty()) {
    throw CommandError(ExitStatus::NotFound, "a heading, not an operation: " + *Operation);
  }
  return found;
}

void OperationArguments::ShowBoxes(Form& form, const OperationKeys& keys) const {
  for (std::size_t i = 0; i < keys.Boxes.size(); ++i) {
    const OptionBoxKeys& from = keys.Boxes[i];
    OptionBox& box = form.Boxes[i];
    box.Visible = true;
    box.Caption = from.Caption;
    box.BoxCode = from.BoxCode;
    box.Content = from.Remembered ? from.Remembered->Default : Text();
    box.CheckVisible = !from.CheckCaption.empty();
    box.Enabled = !box.CheckVisible;
  }
  if (!Codes.empty()) {
    // Steps given by hand have no boxes of their own: each box that is given a text is there.
    for (const std::string& argument : BoxTexts) {
      form.Boxes[BoxArgument(argument).Index].Visible = true;
    }
  }
}

void OperationArguments::TypeBoxTexts(Form& form) const {
  for (const std::string& argument : BoxTexts) {
    const BoxArgument typed(argument);
    OptionBox& box = form.Boxes[typed.Index];
    if (!box.Visible) {
      throw CommandError(ExitStatus::Usage,
                         "--box " + argument + ": the operation has no such box");
    }
    if (box.CheckVisible && !box.Checked) {
      throw CommandError(ExitStatus::Usage, "--box " + argument + ": the box opens by --check " +
                                                std::to_string(typed.Index + 1));
    }
    box.Content = typed.Content;
    // A box can't refer to itself.
    ReplaceAll(box.Content, u"<BOX" + DecimalText(static_cast<int>(typed.Index) + 1) + u">", u"");
    form.BoxEdited = true;
  }
}

void OperationArguments::TickChecks(Form& form) const {
  for (const int number : Checks) {
    const bool known = number >= 1 && number <= OptionBoxCount;
    if (!known || !form.Boxes[static_cast<std::size_t>(number) - 1].CheckVisible) {
      throw CommandError(ExitStatus::Usage,
                         "--check " + std::to_string(number) + ": that box has no check box");
    }
    OptionBox& box = form.Boxes[static_cast<std::size_t>(number) - 1];
    box.Checked = true;
    box.Enabled = true;
  }
}

std::vector<std::int32_t> OperationArguments::OnlyRows(const FileRows& rows) const {
  std::vector<std::int32_t> found;
  for (const std::string& name : Only) {
    const Text wanted = TextFromBytes(name);
    const auto before = found.size();
    for (std::int32_t row = 1; row <= rows.Count(); ++row) {
      if (rows.At(row).Name == wanted) {
        found.push_back(row);
      }
    }
    if (found.size() == before) {
      throw CommandError(ExitStatus::NotFound, "not in the list: " + name);
    }
  }
  std::sort(found.begin(), found.end());
  found.erase(std::unique(found.begin(), found.end()), found.end());
  return found;
}

std::vector<std::int32_t> OperationArguments::PreviewOnly(CommandWorld& world) const {
  auto rows = OnlyRows(world.State.Rows);
  for (const std::int32_t row : rows) {
    if (StopSignalled()) {
      break;
    }
    SelectRow(world, row);
    world.Previews.UpdateFilePreviewAll(false, row);
  }
  return rows;
}

void OperationArguments::SelectRow(CommandWorld& world, std::int32_t row) const {
  world.State.SelectRow(row);
  world.List.lstFileListItemClick();
  TypeBoxTexts(world.State);
}

}  // namespace vorlane
