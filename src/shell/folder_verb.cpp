#include "shell/folder_verb.h"

#include "batch/file_routines.h"
#include "platform/failure.h"
#include "platform/file_name_bytes.h"
#include "platform/interface_texts.h"
#include "shell/desktop_texts.h"

namespace vorlane {

FolderVerb::VerbFile FolderVerb::At(TextView folder, TextView name) const {
  const Text path = Text(dataFolder_).append(folder);
  return {path, Text(path).append(name)};
}

FolderVerb::VerbFile FolderVerb::Entry() const {
  return At(DesktopEntryFolder, DesktopEntryName);
}

FolderVerb::VerbFile FolderVerb::NautilusScript() const {
  return At(NautilusScriptFolder, InterfaceText(TextNumber::OpenWithVorlane));
}

FolderVerb::VerbFile FolderVerb::NemoAction() const {
  return At(NemoActionFolder, NemoActionName);
}

FolderVerb::VerbFile FolderVerb::ServiceMenu() const {
  return At(ServiceMenuFolder, ServiceMenuName);
}

bool FolderVerb::IsPresent() {
  return files_.NameExists(Entry().Path) || files_.NameExists(NautilusScript().Path) ||
         files_.NameExists(NemoAction().Path) || files_.NameExists(ServiceMenu().Path);
}

bool FolderVerb::Write(TextView programPath) {
  const auto program = BytesFromText(programPath);
  if (!program) {
    return false;
  }
  WriteFile(NautilusScript(), NautilusScriptText(*program), true);
  WriteFile(NemoAction(), NemoActionText(*program), false);
  WriteFile(ServiceMenu(), ServiceMenuText(*program), true);
  WriteEntry(DesktopEntryText(*program));
  return IsPresent();
}

void FolderVerb::WriteEntry(std::string_view bytes) {
  const VerbFile entry = Entry();
  if (!HasBytes(entry, bytes)) {
    WriteFile(entry, bytes, false);
    tools_.UpdateDesktopDatabase(entry.Folder);
  }
  if (tools_.DefaultFolderHandler() == DesktopEntryName) {
    RemoveEntry();
  }
}

void FolderVerb::WriteFile(const VerbFile& file, std::string_view bytes, bool executable) {
  Attempt([&] {
    if (!HasBytes(file, bytes)) {
      Text folder = file.Folder;
      CreatePath(files_, folder, PathStyle::Posix);
      files_.RemoveFile(file.Path);
      files_.CreateFile(file.Path, bytes);
    }
    if (executable) {
      files_.MakeExecutable(file.Path);
    }
  });
}

bool FolderVerb::HasBytes(const VerbFile& file, std::string_view bytes) {
  bool has = false;
  Attempt([&] { has = files_.ReadFileBytes(file.Path) == bytes; });
  return has;
}

bool FolderVerb::RemoveEntry() {
  const VerbFile entry = Entry();
  const bool removed = files_.RemoveFile(entry.Path);
  if (removed) {
    tools_.UpdateDesktopDatabase(entry.Folder);
  }
  return removed;
}

bool FolderVerb::Remove() {
  bool removed = RemoveEntry();
  for (const VerbFile& file : {NautilusScript(), NemoAction(), ServiceMenu()}) {
    removed = files_.RemoveFile(file.Path) || removed;
  }
  return removed && !IsPresent();
}

}  // namespace vorlane
