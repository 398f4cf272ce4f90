// vorlane-cli tag-write: writes one tag into a file.
#include <memory>
#include <optional>

#include "cli/command.h"
#include "cli/json_fields.h"
#include "cli/tag_change.h"
#include "cli/tag_json.h"
#include "cli/whole_number.h"
#include "metadata/tag_reading.h"
#include "metadata/tag_writing.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

namespace {

struct TagWriteCommandArguments {
  std::string File;
  bool V1 = false;
  bool V2 = false;
  std::optional<std::string> Artist;
  std::optional<std::string> Title;
  std::optional<std::string> Album;
  std::optional<std::string> Track;
  std::optional<std::string> Comment;
  std::optional<std::string> Year;
  std::optional<std::int16_t> Genre;
  std::optional<std::string> Record;
  bool RemoveV1 = false;
  bool AsJson = false;
};

// A record that doesn't say whether its tag is present is meant to be written.
ID3Tag TagOfRecord(const std::string& record) {
  try {
    const Json object = ReadJsonObject(record);
    ID3Tag tag = TagOfJson(object);
    tag.Present = FlagField(object, "present").value_or(true);
    return tag;
  } catch (const CommandError& error) {
    throw CommandError(error.Status(), std::string("--record: ") + error.what());
  }
}

void Fill(Text& field, const std::optional<std::string>& given) {
  if (given) {
    field = TextFromBytes(*given);
  }
}

void FillGivenFields(ID3Tag& tag, const TagWriteCommandArguments& arguments) {
  Fill(tag.Artist, arguments.Artist);
  Fill(tag.Title, arguments.Title);
  Fill(tag.Album, arguments.Album);
  Fill(tag.Track, arguments.Track);
  Fill(tag.Comment, arguments.Comment);
  Fill(tag.Year, arguments.Year);
  tag.Genre = arguments.Genre.value_or(tag.Genre);
  tag.Present = true;
}

ExitStatus Write(const TagWriteCommandArguments& arguments) {
  if (!arguments.V1 && !arguments.V2) {
    throw CommandError(ExitStatus::Usage, "--v1 or --v2 is required");
  }
  std::optional<ID3Tag> record;
  if (arguments.Record) {
    record = TagOfRecord(*arguments.Record);
  }
  const auto change = [&](CommandWorld& world, FailureReport& report, TextView path) {
    ID3Tag tag;
    if (record) {
      tag = *record;
    } else {
      tag = arguments.V1 ? ReadID3v1(world.Files, report, path)
                         : ReadID3v2(world.Files, report, path);
      FillGivenFields(tag, arguments);
    }
    if (arguments.V1) {
      WriteID3v1(world.Files, report, path, tag);
    } else {
      WriteID3v2OrFail(world.Files, report, world.State, path, tag, arguments.RemoveV1);
    }
  };
  return ChangeTags(arguments.File, arguments.AsJson, change);
}

}  // namespace

void AddTagWriteCommand(CLI::App& app, ExitStatus& status) {
  auto arguments = std::make_shared<TagWriteCommandArguments>();
  CLI::App* command = app.add_subcommand("tag-write", "Write one tag into a file");
  command->add_option("FILE", arguments->File, "The file to change")->type_name("")->required();
  CLI::Option* v1 = command->add_flag("--v1", arguments->V1, "Write the ID3v1 tag");
  CLI::Option* v2 = command->add_flag("--v2", arguments->V2, "Write the ID3v2 tag")->excludes(v1);
  CLI::Option* record =
      command->add_option("--record", arguments->Record, "All fields, as tags --json prints them")
          ->type_name("JSON");
  const std::string kept = "What isn't given stays as it is in the tag";
  const auto addField = [&](const char* name, std::optional<std::string>& field) {
    command->add_option(name, field, kept)->type_name("T")->excludes(record);
  };
  addField("--artist", arguments->Artist);
  addField("--title", arguments->Title);
  addField("--album", arguments->Album);
  addField("--track", arguments->Track);
  addField("--comment", arguments->Comment);
  addField("--year", arguments->Year);
  command->add_option("--genre", arguments->Genre, kept)
      ->type_name("N")
      ->transform(WholeNumber())
      ->excludes(record);
  command->add_flag("--remove-v1", arguments->RemoveV1, "Take the ID3v1 tag off as well")
      ->needs(v2);
  command->add_flag("--json", arguments->AsJson, "Print JSON");
  command->callback([arguments, &status] { status = Write(*arguments); });
}

}  // namespace vorlane
