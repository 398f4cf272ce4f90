// vorlane-cli exif: the EXIF entries of image files.
#include <cmath>
#include <iostream>
#include <memory>
#include <vector>

#include "cli/command.h"
#include "cli/command_world.h"
#include "cli/error_json.h"
#include "cli/file_argument.h"
#include "cli/message.h"
#include "cli/remaining_arguments.h"
#include "metadata/exif.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

namespace {

struct ExifCommandArguments {
  std::vector<std::string> Files;
  bool AsJson = false;
};

// Whole values, as nearly all are, without a point.
Json NumberJson(double value) {
  constexpr double firstInexact = 9007199254740992.0;  // 2^53
  if (std::trunc(value) == value && std::abs(value) < firstInexact) {
    return static_cast<std::int64_t>(value);
  }
  return value;
}

Json TagsJson(const std::vector<ExifTag>& tags) {
  Json list = Json::array();
  for (const ExifTag& tag : tags) {
    list.push_back({{"tag", tag.Tag},
                    {"name", JsonString(tag.Name)},
                    {"format", tag.Format},
                    {"count", tag.Count},
                    {"value", NumberJson(tag.Value)},
                    {"text", JsonString(tag.Text)}});
  }
  return list;
}

Json ImageJson(const clsEXIF& image) {
  const Text date = ImageDateOf([&](std::int32_t tag) { return image.TextOf(tag); });
  return {{"status", static_cast<int>(image.ReadStatus())},
          {"intel", image.IntelByteAlignment()},
          {"tags", TagsJson(image.Tags())},
          {"imageDate", JsonString(date)}};
}

void PrintPlain(const std::string& file, const clsEXIF& image) {
  std::cout << ForOutput(file) << '\n';
  if (image.ReadStatus() != ExifReadStatus::Read) {
    std::cout << "  " << DisplayUtf8(image.ListInfo()) << '\n';
    return;
  }
  for (const ExifTag& tag : image.Tags()) {
    std::cout << "  " << OnOneLine(DisplayUtf8(tag.Name + u": " + tag.Text)) << '\n';
  }
}

// One image; a failure is told of, and with JSON stands in the place of the entries.
void PrintImage(CommandWorld& world, const std::string& file, TextView path, bool asJson) {
  Json object{{"file", JsonString(TextFromBytes(file))}};
  try {
    clsEXIF image(world.Files);
    image.SetImageFile(path);
    object.update(ImageJson(image));
    if (!asJson) {
      PrintPlain(file, image);
    }
  } catch (const RunError& error) {
    object["error"] = ErrorToJson(error);
    world.Report.ReportError(u"", u"SetImageFile", path, error);
  }
  if (asJson) {
    std::cout << WriteJson(object) << '\n';
  }
}

ExitStatus PrintImages(const ExifCommandArguments& arguments) {
  CommandWorld world;
  std::vector<Text> paths;
  for (const std::string& file : arguments.Files) {
    paths.push_back(FileArgument(world.Files, file));
  }
  for (std::size_t i = 0; i < paths.size(); ++i) {
    PrintImage(world, arguments.Files[i], paths[i], arguments.AsJson);
  }
  return world.Status();
}

}  // namespace

void AddExifCommand(CLI::App& app, ExitStatus& status) {
  auto arguments = std::make_shared<ExifCommandArguments>();
  CLI::App* command = app.add_subcommand("exif", "Print the EXIF entries of image files");
  AddRemainingArguments(*command, "FILE", arguments->Files, "Image files");
  command->add_flag("--json", arguments->AsJson, "Print JSON, one object a line");
  command->callback([arguments, &status] { status = PrintImages(*arguments); });
}

}  // namespace vorlane
