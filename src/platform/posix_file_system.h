// The file system of Linux and its relatives.
#pragma once

#include "platform/file_system.h"

namespace vorlane {

// Names are bytes, exact, case-sensitive unless the mounted file system says otherwise. Every file
// is opened O_NONBLOCK, so a pipe can't stall the program, and only after a look at its kind.
// (What was listed as a file and the journal are looked at behind the opening only, by UseOf and
// AppendToFile.)
// RenameNoReplace is renameat2(RENAME_NOREPLACE). Where the file system doesn't offer that: a file
// by link and unlink; a folder, or where there are no hard links, by a look at the target and a
// rename, which leaves a moment in which another program could put a file there.
//
// The constructor makes the whole process ignore SIGIO: that signal comes when somebody opens a
// file for writing just while UseOf looks at it, and by default it ends the process.
class PosixFileSystem : public FileSystem {
 public:
  PosixFileSystem();

  EntryStatus StatusOf(TextView path) override;
  EntryStatus PresenceOf(TextView path) override;
  bool NameExists(TextView path) override;
  std::optional<FileIdentity> IdentityOf(TextView path) override;
  std::vector<FolderEntry> ListFolder(TextView folder) override;
  std::vector<Text> ListNames(TextView folder) override;
  std::optional<FileTimes> TimesOf(TextView path) override;
  EntryUse UseOf(TextView path) override;
  EntryUse UseAndOpen(TextView path) override;
  std::string ReadFileBytes(TextView path) override;
  std::unique_ptr<OpenFile> Open(TextView path, OpenMode mode) override;
  std::unique_ptr<OpenFile> OpenPlainFile(TextView path) override;
  RenameOutcome RenameNoReplace(TextView from, TextView to) override;
  bool CreateFolder(TextView path) override;
  bool RemoveFolder(TextView path) override;
  void CreateFile(TextView path, std::string_view bytes) override;
  void AppendToFile(TextView path, std::string_view bytes) override;
  bool MakeExecutable(TextView path) override;
  bool RemoveFile(TextView path) override;

 protected:
  // The two system calls that not every file system offers, apart so that the ways around them can
  // be tried on any disk. 0 or errno.
  virtual int AtomicRename(const char* from, const char* to);
  virtual int HardLink(const char* from, const char* to);

 private:
  RenameOutcome RenameByLink(const char* from, const char* to);
};

}  // namespace vorlane
