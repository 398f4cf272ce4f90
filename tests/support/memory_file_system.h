// A disk in memory for tests: either path style, with or without regard to case, with a log of all
// calls and calls that fail on request.
//
// It behaves like the disk of an ordinary Linux user: a folder that is read-only refuses changes
// to its entries, a file that is read-only isn't opened for writing. A listing comes in descending
// order of names, so that a forgotten sort shows.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/failure.h"
#include "platform/file_system.h"
#include "platform/path_style.h"
#include "support/memory_tree.h"

namespace vorlane {

enum class LetterCase { Matters, Ignored };

struct CallInfo {
  Text Method;  // as in FileSystem, or "Size", "ReadAt", "WriteAt", "SetSize", "Close" of an open
                // file
  Text Path;
  Text Target;                     // of a rename
  bool Mutating = false;           // the call is meant to change something
  std::size_t Number = 0;          // among all calls, from 1
  std::size_t MutationNumber = 0;  // among the mutating calls, from 1; 0 for any other
};

struct FailurePlan {
  std::size_t At = 1;  // number of the first call that fails
  bool FromThenOn = false;
  bool OnlyMutating = false;  // `At` counts mutating calls, and no other call fails
  // What a failing call throws if it is one that throws; a listing throws 76 whatever stands here.
  ErrorNumber Error = ErrorNumber::DeviceError;
};

class MemoryFileSystem final : public FileSystem {
 public:
  explicit MemoryFileSystem(PathStyle style = PathStyle::Posix,
                            LetterCase letterCase = LetterCase::Matters);
  MemoryFileSystem(const MemoryFileSystem&) = delete;
  MemoryFileSystem& operator=(const MemoryFileSystem&) = delete;

  // Setting up and looking; nothing of this counts as a call. Paths are rooted; what can't be done
  // throws std::logic_error. Missing folders above a new entry are made.

  // Makes a file, or gives an existing one these bytes.
  void Write(TextView path, std::string_view bytes = {});
  void MakeFolder(TextView path);
  // A folder with a disk of its own behind it. (Each Windows drive is one anyway.)
  void MakeVolume(TextView path);
  // The target may be rooted or start at the link's folder, and needn't exist.
  void MakeLink(TextView path, TextView target);
  void MakeHardLink(TextView path, TextView existing);
  // Neither file nor folder: a pipe, say.
  void MakeOther(TextView path);
  // With all that is below.
  void Remove(TextView path);

  void SetReadOnly(TextView path, bool readOnly = true);
  // A file can't be opened, a folder can't be listed.
  void SetUnreadable(TextView path, bool unreadable = true);
  void SetInUse(TextView path, bool inUse = true);
  bool IsExecutable(TextView path) const;
  void SetTimes(TextView path, const FileTimes& times);
  // What StatusOf and listings tell of a file that is larger than its bytes.
  void SetReportedSize(TextView path, std::uint64_t size);

  bool Exists(TextView path) const;  // by the name itself; a link isn't followed
  std::string Read(TextView path) const;
  // Every entry below `folder` (given with its separator) by the rest of its path, as bytes, with
  // its bytes. A folder ends in the separator and has none; a link ends in "@" and has its target;
  // any other kind ends in "|".
  std::map<std::string, std::string> Contents(TextView folder) const;

  // Every call as a line: "RenameNoReplace /a -> /b".
  std::vector<Text> Calls;
  std::size_t CallCount = 0;
  std::size_t MutationCount = 0;
  void ForgetCalls();

  // The planned call does nothing and answers as if the system had refused: "not there", false,
  // Refused, or a failure. Only WriteAt leaves a trace: half of its bytes.
  std::optional<FailurePlan> Failure;

  // Runs before each call does its work, and may change the disk or throw.
  std::function<void(const CallInfo&)> BeforeCall;

  // Whether IdentityOf claims that an entry has no second name. It doesn't look.
  bool TellsOfOneName = false;

  // Room for new bytes; nothing means endless. Where it doesn't suffice a write throws 61.
  std::optional<std::uint64_t> FreeBytes;

  EntryStatus StatusOf(TextView path) override;
  bool NameExists(TextView path) override;
  std::optional<FileIdentity> IdentityOf(TextView path) override;
  std::vector<FolderEntry> ListFolder(TextView folder) override;
  std::vector<Text> ListNames(TextView folder) override;
  std::optional<FileTimes> TimesOf(TextView path) override;
  EntryUse UseOf(TextView path) override;
  EntryUse UseAndOpen(TextView path) override;
  std::string ReadFileBytes(TextView path) override;
  std::unique_ptr<OpenFile> Open(TextView path, OpenMode mode) override;
  RenameOutcome RenameNoReplace(TextView from, TextView to) override;
  bool CreateFolder(TextView path) override;
  bool RemoveFolder(TextView path) override;
  void CreateFile(TextView path, std::string_view bytes) override;
  void AppendToFile(TextView path, std::string_view bytes) override;
  bool MakeExecutable(TextView path) override;
  bool RemoveFile(TextView path) override;

 private:
  class Handle;

  MemoryNode& Existing(TextView path) const;
  MemorySpot EmptySpot(TextView path);

  // Counts and logs a call. False if it is planned to fail.
  bool Query(TextView method, TextView path);
  bool Action(TextView method, TextView path, TextView target = {});
  bool Begin(CallInfo call);
  [[noreturn]] void ThrowPlanned() const;

  MemoryNodePointer ReadableFolder(TextView folder) const;
  MemoryNodePointer ReadableFile(TextView path) const;
  EntryStatus StatusFor(const MemoryNode* node, TextView name) const;
  std::optional<MemorySpot> RemovableSpot(TextView path) const;
  // How many of that many new bytes there is room for; takes that room.
  std::size_t TakeRoom(std::size_t bytes);
  void AddContents(const MemoryNode& folder, const Text& prefix,
                   std::map<std::string, std::string>& contents) const;

  PathStyle style_;
  MemoryTree tree_;
};

}  // namespace vorlane
