// vorlane-cli tags: what MP3 files say about themselves.
#include <iostream>
#include <memory>
#include <vector>

#include "cli/command.h"
#include "cli/command_world.h"
#include "cli/file_argument.h"
#include "cli/file_tags.h"
#include "cli/message.h"
#include "cli/remaining_arguments.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

namespace {

struct TagsCommandArguments {
  std::vector<std::string> Files;
  bool AsJson = false;
};

void PrintField(const char* version, const char* name, TextView value) {
  if (!value.empty()) {
    std::cout << "  " << version << ' ' << name << ": " << OnOneLine(DisplayUtf8(value)) << '\n';
  }
}

void PrintTag(const char* version, const ID3Tag& tag) {
  if (!tag.Present) {
    std::cout << "  " << version << ": none\n";
    return;
  }
  PrintField(version, "artist", tag.Artist);
  PrintField(version, "title", tag.Title);
  PrintField(version, "album", tag.Album);
  PrintField(version, "track", tag.Track);
  PrintField(version, "comment", tag.Comment);
  PrintField(version, "year", tag.Year);
  PrintField(version, "genre", DecimalText(tag.Genre));
}

ExitStatus PrintTags(const TagsCommandArguments& arguments) {
  CommandWorld world;
  std::vector<Text> paths;
  for (const std::string& file : arguments.Files) {
    paths.push_back(FileArgument(world.Files, file));
  }
  for (std::size_t i = 0; i < paths.size(); ++i) {
    const FileTags tags = ReadFileTags(world.Files, world.Report, paths[i]);
    if (arguments.AsJson) {
      std::cout << WriteJson(FileTagsToJson(arguments.Files[i], tags)) << '\n';
    } else {
      std::cout << ForOutput(arguments.Files[i]) << ": " << tags.Kbit << " kbit/s\n";
      PrintTag("ID3v1", tags.V1);
      PrintTag("ID3v2", tags.V2);
    }
  }
  return world.Status();
}

}  // namespace

void AddTagsCommand(CLI::App& app, ExitStatus& status) {
  auto arguments = std::make_shared<TagsCommandArguments>();
  CLI::App* command = app.add_subcommand("tags", "Print the ID3 tags and bit rate of files");
  AddRemainingArguments(*command, "FILE", arguments->Files, "MP3 files");
  command->add_flag("--json", arguments->AsJson, "Print JSON, one object a line");
  command->callback([arguments, &status] { status = PrintTags(*arguments); });
}

}  // namespace vorlane
