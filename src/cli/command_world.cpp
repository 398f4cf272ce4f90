#include "cli/command_world.h"

#include <algorithm>
#include <filesystem>

#include "platform/file_name_bytes.h"
#include "platform/program_folder.h"

namespace vorlane {

CommandWorld::CommandWorld()
    : Report(Troubles),
      Prompts(Troubles),
      Progress(Time),
      Outside{Files, Time, Loop, Report, Prompts},
      State(Progress, Loop),
      Facts(Outside.Files, Outside.Time, Outside.Report, Outside.Prompts),
      Previews(State, Outside, Facts),
      List(State, Outside, Previews) {
  Progress.Attach(State);
  Loop.Attach(State.Jobs);
}

ExitStatus CommandWorld::Status() const {
  return Troubles.HasAny() ? ExitStatus::Refused : ExitStatus::Done;
}

Text FolderArgument(FileSystem& files, const std::string& folder) {
  namespace fs = std::filesystem;
  std::error_code error;
  fs::path path = fs::absolute(folder, error);
  // "x/.." may lead elsewhere than nowhere if x is a link, so only the disk can tell.
  const bool climbs = std::find(path.begin(), path.end(), "..") != path.end();
  path = climbs ? fs::weakly_canonical(path, error) : path.lexically_normal();
  Text text = EnsureTrailingSeparator(TextFromBytes(path.native()), HostPathStyle);
  if (folder.empty() || !FolderExists(files, text)) {
    throw CommandError(ExitStatus::NotFound, "no such folder: " + folder);
  }
  return text;
}

OperationsTree CatalogueArgument(FileSystem& files, const std::optional<std::string>& file) {
  if (!file) {
    const Text folder = ProgramFolder();
    auto tree = LoadOperationsFile(files, folder);
    if (!tree) {
      throw CommandError(ExitStatus::NotFound,
                         "no " + DisplayUtf8(OperationsFileName) + " in " + DisplayUtf8(folder));
    }
    return *std::move(tree);
  }
  const Text path = TextFromBytes(*file);
  if (files.StatusOf(path).Kind != EntryKind::File) {
    throw CommandError(ExitStatus::NotFound, "no such catalogue: " + *file);
  }
  return LoadOperationsFileAt(files, path);
}

Text DescribeFailure(const OperationsTree& tree) {
  Text message = u"the catalogue was read up to";
  if (tree.FailureLine > 0) {
    message.append(u" line ").append(DecimalText(static_cast<std::int64_t>(tree.FailureLine)));
    message.append(u" only");
  } else {
    message = u"the catalogue can't be read";
  }
  return message.append(u": ").append(tree.Failure->Description());
}

}  // namespace vorlane
