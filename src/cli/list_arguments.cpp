#include "cli/list_arguments.h"

#include "platform/file_name_bytes.h"

namespace vorlane {

void ListArguments::AddTo(CLI::App& command) {
  command.add_option("FOLDER", Folder, "The folder to work on")->type_name("")->required();
  command.add_option("--wildcard", Wildcard, "List only names that match, such as *.mp3")
      ->type_name("W");
  command.add_flag("--recursive", Recursive, "Include sub-folders");
  command.add_flag("--folders", Folders, "List folders instead of files");
}

void ListArguments::List(CommandWorld& world, TextView defaultWildcard) const {
  Form& form = world.State;
  form.CurrentPath = FolderArgument(world.Files, Folder);
  form.WildCard = Wildcard ? TextFromBytes(*Wildcard) : Text(defaultWildcard);
  if (form.WildCard.empty()) {
    form.WildCard = u"*.*";
  }
  form.IncludeSubFolders = Recursive;
  form.ListFolders = Folders;
  form.SelectedOperation = 0;
  world.List.PathChangedEvent();
  world.Progress.Clear();
}

}  // namespace vorlane
