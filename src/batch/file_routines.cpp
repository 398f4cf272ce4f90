#include "batch/file_routines.h"

#include "platform/letter_case.h"

namespace vorlane {

namespace {

Text Join(TextView folder, TextView name) {
  return Text(folder).append(name);
}

// Anything at all under a name that isn't hidden, a link that leads nowhere too. A hidden target is
// left to the rename itself, which never replaces.
bool IsTargetTaken(FileSystem& files, TextView path) {
  return files.NameExists(path) && !files.PresenceOf(path).Hidden;
}

bool SourceExists(FileSystem& files, TextView path, RenameFor purpose) {
  return EntryExists(files, path) || (purpose == RenameFor::Undo && files.NameExists(path));
}

}  // namespace

std::int16_t CreatePath(FileSystem& files, Text& path, PathStyle style) {
  path = EnsureTrailingSeparator(path, style);
  std::int16_t created = 0;
  for (auto end = path.find(Separator(style)); end != Text::npos;
       end = path.find(Separator(style), end + 1)) {
    const TextView built = TextView(path).substr(0, end + 1);
    if (!FolderExists(files, built)) {
      files.CreateFolder(built);
      created = static_cast<std::int16_t>(created + (FolderExists(files, built) ? 1 : 0));
    }
  }
  return created;
}

void RemoveFolder(FileSystem& files, TextView path) {
  files.RemoveFolder(path);
}

bool MoveFile(FileSystem& files, TextView folder, TextView name, TextView newFolder,
              TextView newName, RenameFor purpose) {
  if (name.empty() || newName.empty()) {
    return false;
  }
  const Text source = Join(folder, name);
  const Text target = Join(newFolder, newName);
  if (!SourceExists(files, source, purpose) || !FolderExists(files, newFolder) ||
      IsTargetTaken(files, target)) {
    return false;
  }
  return files.RenameNoReplace(source, target) == RenameOutcome::Done;
}

RenameResult RenameFile(FileSystem& files, TextView folder, TextView oldName, TextView newName,
                        RenameFor purpose, UndoJournal* journal, bool tagLineOpen) {
  if (oldName.empty() || newName.empty()) {
    return {};
  }
  const bool caseOnly = EqualIgnoringCase(oldName, newName);
  if (!SourceExists(files, Join(folder, oldName), purpose) ||
      (!caseOnly && IsTargetTaken(files, Join(folder, newName)))) {
    return {};
  }
  RenameResult result{true, RenameWithinFolder(files, folder, oldName, newName)};
  if (caseOnly && result.Outcome == RenameOutcome::TargetExists) {
    return {};  // another entry, whose name differs from this one's by case alone
  }
  if (journal != nullptr) {
    journal->UpdateUndoFile({.Kind = tagLineOpen ? RecordKind::CloseTagWith : RecordKind::Rename,
                             .Folder = Text(folder),
                             .OldName = Text(oldName),
                             .NewName = Text(newName)});
  }
  return result;
}

}  // namespace vorlane
