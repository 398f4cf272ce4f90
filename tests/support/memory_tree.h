// The entries of a disk in memory and the way from a path to one of them.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/path_style.h"

namespace vorlane {

enum class MemoryKind { File, Folder, Link, Other };

struct MemoryNode;
using MemoryNodePointer = std::shared_ptr<MemoryNode>;

struct MemoryChild {
  Text Name;
  MemoryNodePointer Node;
};

struct MemoryNode {
  MemoryKind Kind = MemoryKind::File;
  FileIdentity Identity;
  std::string Bytes;
  Text LinkTarget;
  FileTimes Times;
  std::optional<std::uint64_t> ReportedSize;
  bool ReadOnly = false;
  bool Unreadable = false;
  bool InUse = false;
  bool Executable = false;
  int Writers = 0;  // open handles that may write
  // Of a folder only: the one that holds it, and what it holds by the key of the name.
  std::weak_ptr<MemoryNode> Parent;
  std::map<Text, MemoryChild> Children;
};

// Where a path ends, its last name not followed.
struct MemorySpot {
  MemoryNodePointer Folder;
  Text Name;               // empty for the root, "." and ".."; then Node is Folder
  MemoryNodePointer Node;  // null if there is no such entry
  bool EndsInSeparator = false;
};

class MemoryTree {
 public:
  MemoryTree(PathStyle style, bool ignoresCase);

  // Nothing if no file can have that path, or a folder on the way is missing.
  std::optional<MemorySpot> Locate(TextView path) const;

  // The entry of that name; null if there is none. A link is followed only if the path goes on
  // behind it with a separator.
  MemoryNodePointer Lookup(TextView path) const;

  // What the path leads to, links followed; null if nothing.
  MemoryNodePointer Resolve(TextView path) const;

  // Like Locate, but makes the missing folders. Throws std::logic_error for an impossible path.
  MemorySpot MakeWay(TextView path);

  MemoryNodePointer Put(const MemorySpot& spot, MemoryKind kind);
  void Put(const MemorySpot& spot, MemoryNodePointer node);
  void Take(const MemorySpot& spot);

  // A number that no volume has yet.
  std::uint64_t NewDevice() { return ++lastDevice_; }

  // What an entry of the folder leads to; null if nothing.
  MemoryNodePointer Follow(MemoryNodePointer folder, MemoryNodePointer node) const;

 private:
  bool IsRooted(TextView path) const;
  Text KeyOf(TextView name) const;
  MemoryNodePointer Find(const MemoryNode& folder, TextView name) const;
  std::optional<MemorySpot> Walk(MemoryNodePointer folder, TextView path, int depth) const;
  MemoryNodePointer Enter(const MemoryNodePointer& folder, TextView name, int depth) const;
  MemoryNodePointer FollowAt(MemoryNodePointer folder, MemoryNodePointer node, int depth) const;

  PathStyle style_;
  bool ignoresCase_;
  std::uint64_t lastNumber_ = 0;
  std::uint64_t lastDevice_ = 0;
  MemoryNodePointer root_;
};

}  // namespace vorlane
