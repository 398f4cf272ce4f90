#include "shell/start_up.h"

#include "platform/interface_texts.h"
#include "shell/stored_values.h"
#include "shell/verb_keys.h"

namespace vorlane {

namespace {

Text RootedFolder(TextView path, TextView workingFolder, PathStyle style) {
  const Text rooted = IsRooted(path, style) ? Text(path) : Text(workingFolder).append(path);
  return EnsureTrailingSeparator(WithoutDotPieces(rooted, style), style);
}

}  // namespace

Text CommandLineOf(const std::vector<Text>& arguments) {
  Text line;
  for (const Text& argument : arguments) {
    line.append(&argument == &arguments.front() ? u"" : u" ").append(argument);
  }
  return line;
}

bool IsUninstall(TextView commandLine) {
  return commandLine == u"/Uninstall" || commandLine == u"--uninstall";
}

void Uninstall(Registry& registry, Prompter& prompts) {
  RemoveVerb(registry);
  const auto answer = prompts.AskYesNo(BoxIcon::Question, ApplicationTitle,
                                       InterfaceText(TextNumber::AskDeleteSettings), BoxAnswer::No);
  if (answer == BoxAnswer::Yes) {
    DeleteAllSettings(registry);
  }
}

Text FullProgramPath(FileSystem& files, TextView programFile) {
  return files.PresenceOf(programFile).Kind == EntryKind::File ? Text(programFile) : Text();
}

Text FolderOf(TextView path, PathStyle style) {
  return Text(path.substr(0, path.size() - FileNameOf(path, style).size()));
}

Text ChooseStartFolder(FileSystem& files, Settings& settings, TextView commandLine,
                       const StartPlaces& places, PathStyle style) {
  const Text stored = settings.GetSetting(SettingsSection, SettingKey::StartPath, u"");
  for (const TextView candidate : {commandLine, TextView(stored)}) {
    Text folder = RootedFolder(candidate, places.WorkingFolder, style);
    if (!candidate.empty() && FolderExists(files, folder)) {
      return folder;
    }
  }
  return EnsureTrailingSeparator(places.ProgramFolder, style);
}

}  // namespace vorlane
