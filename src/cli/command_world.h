// The form and its services as one command of the script tool uses them: the same logic as the
// window's, on the real disk, with nobody at the controls.
#pragma once

#include <optional>
#include <string>

#include "catalogue/operations_file.h"
#include "cli/console_form.h"
#include "cli/exit_status.h"
#include "engine/disk_facts.h"
#include "filelist/file_list.h"
#include "form/form.h"
#include "platform/posix_file_system.h"
#include "preview/preview.h"

namespace vorlane {

struct CommandWorld {
  CommandWorld();

  SystemClock Time;
  PosixFileSystem Files;
  TroubleLog Troubles;
  ConsoleReport Report;
  ConsolePrompter Prompts;
  ConsoleLoop Loop;
  ConsoleProgress Progress;
  Services Outside;
  Form State;
  DiskFacts Facts;
  Preview Previews;
  FileList List;

  // Done unless there was trouble.
  ExitStatus Status() const;
};

// The folder's absolute path as text, with its trailing separator. Throws CommandError (NotFound)
// if it isn't a folder.
Text FolderArgument(FileSystem& files, const std::string& folder);

// A catalogue file's tree, that of the shipped one if none is named. Throws CommandError (NotFound)
// if there is no such file.
OperationsTree CatalogueArgument(FileSystem& files, const std::optional<std::string>& file);

// What is wrong with a catalogue, in one line.
Text DescribeFailure(const OperationsTree& tree);

}  // namespace vorlane
