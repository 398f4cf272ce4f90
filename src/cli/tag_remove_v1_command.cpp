// vorlane-cli tag-remove-v1: takes the ID3v1 tag off a file.
#include <memory>

#include "cli/command.h"
#include "cli/tag_change.h"
#include "metadata/tag_writing.h"

namespace vorlane {

namespace {

struct TagRemoveV1CommandArguments {
  std::string File;
  bool AsJson = false;
};

ExitStatus Remove(const TagRemoveV1CommandArguments& arguments) {
  return ChangeTags(arguments.File, arguments.AsJson,
                    [](CommandWorld& world, FailureReport& report, TextView path) {
                      RemoveID3v1(world.Files, report, path);
                    });
}

}  // namespace

void AddTagRemoveV1Command(CLI::App& app, ExitStatus& status) {
  auto arguments = std::make_shared<TagRemoveV1CommandArguments>();
  CLI::App* command = app.add_subcommand("tag-remove-v1", "Take the ID3v1 tag off a file");
  command->add_option("FILE", arguments->File, "The file to change")->type_name("")->required();
  command->add_flag("--json", arguments->AsJson, "Print JSON");
  command->callback([arguments, &status] { status = Remove(*arguments); });
}

}  // namespace vorlane
