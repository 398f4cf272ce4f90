// The file system behind one interface: the only way in which the rules reach the disk.
//
// Paths are texts (see file_name_bytes.h) in the host's style. A path that no file can have (empty,
// holding U+0000 or half of a surrogate pair) leads to nothing: queries answer "not there", actions
// are refused. Nothing here ever replaces an existing file but OpenFile for writing, which changes
// a file in place.
//
// Hidden means, on Linux, a name that begins with "." (not "." and ".." themselves) and the exact
// name of the undo journal, "UNDORENAME.TXT". On Windows it means the hidden or system attribute.
// Read-only means, on Linux, that nobody has a write permission or that this process may not write
// to the entry; on Windows the read-only attribute.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dates.h"
#include "platform/text.h"

namespace vorlane {

// The journal of a run; lives in the folder that the run worked on.
inline constexpr TextView JournalName = u"UNDORENAME.TXT";

enum class EntryKind : std::uint8_t {
  None,    // nothing there, or a link that leads nowhere
  File,    // a regular file
  Folder,  // a folder
  Other,   // a pipe, socket or device: never listed, never opened
};

// What a path leads to, links followed.
struct EntryStatus {
  EntryKind Kind = EntryKind::None;
  bool Hidden = false;  // by the name in the path, not by where a link leads
  bool ReadOnly = false;
  std::uint64_t Size = 0;  // bytes; 0 for anything but a regular file
};

// Tells whether two names are the same entry.
struct FileIdentity {
  std::uint64_t Device = 0;
  std::uint64_t Number = 0;
  bool HasOneName = false;  // known to have no second name (hard link); no part of the identity

  bool operator==(const FileIdentity& other) const {
    return Device == other.Device && Number == other.Number;
  }
};

struct FolderEntry {
  Text Name;
  EntryStatus Status;
  FileIdentity Identity;  // of what the entry leads to; zero if that is nothing
  bool IsLink = false;    // a symbolic link; Status tells what it leads to
};

// Local times, whole seconds, truncated. Where the file system keeps no creation time, Created is
// the time of the last write.
struct FileTimes {
  DateTime Created;
  DateTime Written;
  DateTime Accessed;
};

enum class RenameOutcome {
  Done,
  TargetExists,  // the exact target name is taken, by whatever kind of entry
  Refused,       // any other reason; nothing was changed
};

enum class OpenMode {
  Read,
  ReadWrite,  // an existing file, changed in place: same inode
};

// An open regular file. Positions count from 0. Closed by its destructor, if nobody did it before.
class OpenFile {
 public:
  virtual ~OpenFile() = default;

  // Now; of a file that is open for reading alone, when it was opened.
  virtual std::uint64_t Size() = 0;

  // Up to `length` bytes from `position`; fewer at the end of the file. Throws RunError.
  virtual std::string ReadAt(std::uint64_t position, std::size_t length) = 0;

  // Writes all bytes or throws RunError; after a failure some of them may have been written.
  virtual void WriteAt(std::uint64_t position, std::string_view bytes) = 0;

  // Cuts the file, or lengthens it with NULs. Throws RunError.
  virtual void SetSize(std::uint64_t size) = 0;

  // For whoever has written: throws RunError if the system tells only now that it couldn't store
  // what it had taken. Nothing else can be done with the file after this.
  virtual void Close() = 0;
};

// Whether an entry may be renamed now.
struct EntryUse {
  EntryStatus Status;
  bool InUse = false;  // only looked for in a regular file that is neither hidden nor read-only
  std::unique_ptr<OpenFile> File{};  // open for reading, where that was asked for
};

class FileSystem {
 public:
  virtual ~FileSystem() = default;

  virtual EntryStatus StatusOf(TextView path) = 0;

  // The same but for ReadOnly, which takes a further question to the system and stays false where
  // that is saved. The existence tests, asked for row after row, need no more.
  virtual EntryStatus PresenceOf(TextView path) { return StatusOf(path); }

  // True if the exact name exists, whatever it is: a link that leads nowhere too.
  virtual bool NameExists(TextView path) = 0;

  // Of the name itself, a link not followed; nothing if it doesn't exist.
  virtual std::optional<FileIdentity> IdentityOf(TextView path) = 0;

  // All entries but "." and "..", in the order in which the system delivers them, which means
  // nothing. Entries that vanish meanwhile are left out. Throws RunError 76 if the folder can't be
  // read.
  virtual std::vector<FolderEntry> ListFolder(TextView folder) = 0;

  // Names alone, hidden ones too; one pass over the folder without a look at each entry. Throws
  // RunError 76 if the folder can't be read.
  virtual std::vector<Text> ListNames(TextView folder) = 0;

  // Nothing if the entry isn't a regular file or can't be opened for reading. Throws RunError if a
  // time can't be expressed as a local date.
  virtual std::optional<FileTimes> TimesOf(TextView path) = 0;

  // StatusOf, and whether another process holds the file in a way that a rename would hurt. Linux:
  // it is open for writing there (seen by a read lease, for the file's owner), or locked by flock
  // or fcntl. A file that can't be opened isn't in use. One question, since it is asked for each
  // row of a list of files, and the file has to be opened but once to answer both.
  virtual EntryUse UseOf(TextView path) = 0;

  // The same, and the file in which InUse was looked for is left open if nobody holds it, for
  // whoever reads it next. It may be null all the same.
  virtual EntryUse UseAndOpen(TextView path) { return UseOf(path); }

  // The whole file. Throws RunError if it can't be opened or read.
  virtual std::string ReadFileBytes(TextView path) = 0;

  // Throws RunError if it isn't a regular file, can't be opened or is read-only and to be written;
  // never creates one.
  virtual std::unique_ptr<OpenFile> Open(TextView path, OpenMode mode) = 0;

  // For reading, if PlainFileExists; otherwise null. Throws RunError if it can't be opened. The
  // same as the two questions one after the other, for whoever opens row after row.
  virtual std::unique_ptr<OpenFile> OpenPlainFile(TextView path);

  // One step, atomic, for files and folders; a link is renamed as a link. An existing target of any
  // kind is never replaced. Both paths on one volume, otherwise Refused.
  virtual RenameOutcome RenameNoReplace(TextView from, TextView to) = 0;

  // True if the folder was made; false if it couldn't be or exists.
  virtual bool CreateFolder(TextView path) = 0;

  // Removes an empty folder, never more. True if it is gone by this call.
  virtual bool RemoveFolder(TextView path) = 0;

  // Makes a new file with these bytes. Throws RunError 58 if the name is taken by anything.
  virtual void CreateFile(TextView path, std::string_view bytes) = 0;

  // Adds bytes to the end of an existing file that isn't read-only, all or none: what a failed
  // write left is cut off again. Doesn't follow a link. Opens and closes the file. Throws RunError.
  virtual void AppendToFile(TextView path, std::string_view bytes) = 0;

  // Lets everybody who may read the file run it as a program. True if that is so now, as it always
  // is on a system that has no such mark.
  virtual bool MakeExecutable(TextView /*path*/) { return true; }

  // Removes a file or link, never a folder. True if it is gone by this call.
  virtual bool RemoveFile(TextView path) = 0;
};

// The four existence tests. They differ on purpose.

// A regular file that isn't hidden.
bool PlainFileExists(FileSystem& files, TextView path);

// A regular file or folder that isn't hidden.
bool EntryExists(FileSystem& files, TextView path);

// A folder, given with or without its trailing separator; hidden or not.
bool FolderExists(FileSystem& files, TextView path);

// A regular file, hidden or not.
bool HiddenFileExists(FileSystem& files, TextView path);

}  // namespace vorlane
