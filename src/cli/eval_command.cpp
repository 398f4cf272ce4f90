// vorlane-cli eval: evaluates one code text for one entry, or many from JSON lines.
#include <iostream>
#include <memory>
#include <optional>

#include "cli/box_argument.h"
#include "cli/command.h"
#include "cli/command_world.h"
#include "cli/given_facts.h"
#include "cli/json_fields.h"
#include "cli/row_output.h"
#include "cli/tag_json.h"
#include "cli/whole_number.h"
#include "engine/process_file_name.h"
#include "metadata/tag_reading.h"
#include "platform/file_name_bytes.h"
#include "platform/user_folders.h"

namespace vorlane {

namespace {

struct EvalCommandArguments {
  std::string Code;
  std::string Name;
  std::optional<std::string> Folder;
  std::int32_t Number = 1;
  std::int32_t Rows = 1;
  std::vector<std::string> Boxes;
  bool TagSteps = false;
  bool FolderSteps = false;
  std::string Paths;
  bool AsJson = false;
  bool AsJsonLines = false;
};

// One evaluation, wherever it was asked for.
struct Question {
  Text Code;
  Text Name;
  Text Folder{};
  std::int32_t Number = 1;
  std::int32_t Rows = 1;
  BoxValues Boxes{};
  bool TagSteps = false;
  bool FolderSteps = false;
  PathStyle Paths = HostPathStyle;
  ID3Tags Tags{};
};

Text Answer(Question& question, EntryFacts& facts, MessageLoop& loop) {
  EvaluationContext context{facts, loop, question.Paths};
  return ProcessFileName({.Code = question.Code,
                          .FileName = question.Name,
                          .Path = question.Folder,
                          .TagV1 = question.Tags.V1,
                          .TagV2 = question.Tags.V2,
                          .AutoNumber = question.Number,
                          .AllowTagSteps = question.TagSteps,
                          .AllowFolderSteps = question.FolderSteps,
                          .Boxes = question.Boxes,
                          .RowCount = question.Rows},
                         context);
}

PathStyle StyleNamed(const std::string& name) {
  if (name.empty()) {
    return HostPathStyle;
  }
  if (name == "windows") {
    return PathStyle::Windows;
  }
  if (name == "posix") {
    return PathStyle::Posix;
  }
  throw CommandError(ExitStatus::Usage, "paths: expected windows or posix, not " + name);
}

// Without a folder the entry is looked for in the working folder; in the other system's style
// there is none.
Text FolderOf(const std::optional<Text>& folder, PathStyle style) {
  if (folder) {
    return EnsureTrailingSeparator(*folder, style);
  }
  if (style != HostPathStyle) {
    return {};
  }
  return WorkingFolder();
}

void ShowBox(Question& question, std::size_t box, const Text& content) {
  question.Boxes.Visible[box] = true;
  question.Boxes.Values[box] = content;
}

ExitStatus EvaluateOne(const EvalCommandArguments& arguments) {
  CommandWorld world;
  Question question{.Code = TextFromBytes(arguments.Code),
                    .Name = TextFromBytes(arguments.Name),
                    .Number = arguments.Number,
                    .Rows = arguments.Rows,
                    .TagSteps = arguments.TagSteps,
                    .FolderSteps = arguments.FolderSteps,
                    .Paths = StyleNamed(arguments.Paths)};
  std::optional<Text> folder;
  if (arguments.Folder) {
    folder = TextFromBytes(*arguments.Folder);
  }
  question.Folder = FolderOf(folder, question.Paths);
  for (const std::string& argument : arguments.Boxes) {
    const BoxArgument box(argument);
    ShowBox(question, box.Index, box.Content);
  }
  if (HasMp3Extension(question.Name)) {
    const Text path = question.Folder + question.Name;
    question.Tags = ReadID3Tags(world.Files, world.Report, path);
  }
  const Text result = Answer(question, world.Facts, world.Loop);
  if (arguments.AsJson) {
    std::cout << WriteJson({{"result", JsonString(result)}}) << '\n';
  } else {
    std::cout << PrintableName(result) << '\n';
  }
  return world.Status();
}

Text RequiredText(const Json& line, const std::string& name) {
  auto text = TextField(line, name);
  if (!text) {
    throw CommandError(ExitStatus::Usage, name + " is required");
  }
  return *std::move(text);
}

Question QuestionOf(const Json& line) {
  Question question{.Code = RequiredText(line, "code"),
                    .Name = RequiredText(line, "name"),
                    .Number = NumberField<std::int32_t>(line, "number").value_or(1),
                    .Rows = NumberField<std::int32_t>(line, "rows").value_or(1),
                    .TagSteps = FlagField(line, "tagSteps").value_or(false),
                    .FolderSteps = FlagField(line, "folderSteps").value_or(false)};
  if (const auto paths = TextField(line, "paths")) {
    question.Paths = StyleNamed(DisplayUtf8(*paths));
  }
  question.Folder = FolderOf(TextField(line, "folder"), question.Paths);
  if (const Json* boxes = ObjectField(line, "boxes")) {
    for (const auto& [number, text] : boxes->items()) {
      const auto box = BoxIndexOf(number);
      if (!box) {
        throw CommandError(ExitStatus::Usage, "boxes: expected a number 1 to 6, not " + number);
      }
      ShowBox(question, *box, TextOfValue(text, "box " + number));
    }
  }
  if (const Json* tag = ObjectField(line, "tagV1")) {
    question.Tags.V1 = TagOfJson(*tag);
  }
  if (const Json* tag = ObjectField(line, "tagV2")) {
    question.Tags.V2 = TagOfJson(*tag);
  }
  return question;
}

Json AnswerTo(const Json& line, CommandWorld& world) {
  Question question = QuestionOf(line);
  const Json* given = ObjectField(line, "facts");
  GivenFacts facts(given == nullptr ? Json::object() : *given, world.Facts);
  const Text result = Answer(question, facts, world.Loop);
  return {{"id", line.value("id", Json())}, {"result", JsonString(result)}};
}

// A line that can't be read is told of by its number; the lines before it have been answered.
ExitStatus EvaluateLines() {
  CommandWorld world;
  std::string line;
  for (std::size_t number = 1; std::getline(std::cin, line); ++number) {
    if (line.find_first_not_of(" \t\r") == std::string::npos) {
      continue;
    }
    try {
      std::cout << WriteJson(AnswerTo(ReadJsonObject(line), world)) << '\n';
    } catch (const CommandError& error) {
      throw CommandError(error.Status(), "line " + std::to_string(number) + ": " + error.what());
    }
  }
  return world.Status();
}

ExitStatus Evaluate(const EvalCommandArguments& arguments, bool hasEntry) {
  if (arguments.AsJsonLines) {
    if (hasEntry) {
      throw CommandError(ExitStatus::Usage, "--jsonl reads its entries from standard input");
    }
    return EvaluateLines();
  }
  if (!hasEntry) {
    throw CommandError(ExitStatus::Usage, "CODE and NAME are required");
  }
  return EvaluateOne(arguments);
}

}  // namespace

void AddEvalCommand(CLI::App& app, ExitStatus& status) {
  auto arguments = std::make_shared<EvalCommandArguments>();
  CLI::App* command = app.add_subcommand("eval", "Evaluate one code text for one entry");
  command->add_option("CODE", arguments->Code, "The code text")->type_name("");
  CLI::Option* name =
      command->add_option("NAME", arguments->Name, "The entry's name")->type_name("");
  command->add_option("--folder", arguments->Folder, "The entry's folder")->type_name("F");
  command->add_option("--number", arguments->Number, "What <AUTONUMBER> stands for")
      ->type_name("N")
      ->transform(WholeNumber());
  command->add_option("--rows", arguments->Rows, "Rows of the list, for the number's width")
      ->type_name("N")
      ->transform(WholeNumber());
  command->add_option("--box", arguments->Boxes, "Box N is shown and holds TEXT")
      ->type_name("N=TEXT")
      ->allow_extra_args(false);
  command->add_flag("--tag-steps", arguments->TagSteps, "Evaluate steps that write tags");
  command->add_flag("--folder-steps", arguments->FolderSteps, "Evaluate steps that make folders");
  command->add_option("--paths", arguments->Paths, "windows or posix; this system's by default")
      ->type_name("STYLE");
  command->add_flag("--json", arguments->AsJson, "Print JSON");
  command->add_flag("--jsonl", arguments->AsJsonLines, "Read JSON lines, print JSON lines");
  command->callback(
      [arguments, name, &status] { status = Evaluate(*arguments, name->count() > 0); });
}

}  // namespace vorlane
