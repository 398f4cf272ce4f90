// The verb "Open with Vorlane" for the file managers of a Linux desktop: a desktop entry for those
// that offer programs by the kind of a file, and an action each for Nautilus, Nemo and Dolphin.
#pragma once

#include "platform/desktop_tools.h"
#include "platform/file_system.h"
#include "platform/path_style.h"
#include "shell/verb_registry.h"

namespace vorlane {

class FolderVerb final : public VerbAdapter {
 public:
  // `dataFolder` is the user's folder of data, with its trailing separator.
  FolderVerb(FileSystem& files, DesktopTools& tools, TextView dataFolder)
      : files_(files), tools_(tools), dataFolder_(dataFolder) {}

  // True if any of the files is there.
  bool IsPresent() override;

  // Writes what isn't there as it should be. A desktop entry that has made the program the one that
  // opens all folders is taken back. True if anything of the verb is there afterwards.
  bool Write(TextView programPath) override;

  bool Remove() override;

 private:
  struct VerbFile {
    Text Folder;
    Text Path;
  };
  VerbFile At(TextView folder, TextView name) const;
  VerbFile Entry() const;
  VerbFile NautilusScript() const;
  VerbFile NemoAction() const;
  VerbFile ServiceMenu() const;

  void WriteFile(const VerbFile& file, std::string_view bytes, bool executable);
  void WriteEntry(std::string_view bytes);
  bool HasBytes(const VerbFile& file, std::string_view bytes);
  bool RemoveEntry();

  FileSystem& files_;
  DesktopTools& tools_;
  Text dataFolder_;
};

}  // namespace vorlane
