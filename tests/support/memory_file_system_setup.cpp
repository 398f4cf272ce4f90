// What a test does to the disk in memory behind the program's back.
#include <stdexcept>

#include "platform/file_name_bytes.h"
#include "support/memory_file_system.h"

namespace vorlane {

MemoryNode& MemoryFileSystem::Existing(TextView path) const {
  const auto node = tree_.Lookup(path);
  if (!node) {
    throw std::logic_error("no such entry");
  }
  return *node;
}

MemorySpot MemoryFileSystem::EmptySpot(TextView path) {
  auto spot = tree_.MakeWay(path);
  if (spot.Node) {
    throw std::logic_error("the name is taken");
  }
  return spot;
}

void MemoryFileSystem::Write(TextView path, std::string_view bytes) {
  const auto spot = tree_.MakeWay(path);
  const auto node = spot.Node ? spot.Node : tree_.Put(spot, MemoryKind::File);
  if (node->Kind != MemoryKind::File) {
    throw std::logic_error("not a file");
  }
  node->Bytes = bytes;
}

void MemoryFileSystem::MakeFolder(TextView path) {
  const auto spot = tree_.MakeWay(path);
  if (!spot.Node) {
    tree_.Put(spot, MemoryKind::Folder);
  }
}

void MemoryFileSystem::MakeVolume(TextView path) {
  tree_.Put(EmptySpot(path), MemoryKind::Folder)->Identity.Device = tree_.NewDevice();
}

void MemoryFileSystem::MakeLink(TextView path, TextView target) {
  tree_.Put(EmptySpot(path), MemoryKind::Link)->LinkTarget = target;
}

void MemoryFileSystem::MakeHardLink(TextView path, TextView existing) {
  const auto node = tree_.Lookup(existing);
  if (!node || node->Kind == MemoryKind::Folder) {
    throw std::logic_error("nothing to link to");
  }
  tree_.Put(EmptySpot(path), node);
}

void MemoryFileSystem::MakeOther(TextView path) {
  tree_.Put(EmptySpot(path), MemoryKind::Other);
}

void MemoryFileSystem::Remove(TextView path) {
  const auto spot = tree_.Locate(path);
  if (!spot || !spot->Node || spot->Name.empty()) {
    throw std::logic_error("no such entry");
  }
  tree_.Take(*spot);
}

void MemoryFileSystem::SetReadOnly(TextView path, bool readOnly) {
  Existing(path).ReadOnly = readOnly;
}

void MemoryFileSystem::SetUnreadable(TextView path, bool unreadable) {
  Existing(path).Unreadable = unreadable;
}

void MemoryFileSystem::SetInUse(TextView path, bool inUse) {
  Existing(path).InUse = inUse;
}

bool MemoryFileSystem::IsExecutable(TextView path) const {
  return Existing(path).Executable;
}

void MemoryFileSystem::SetTimes(TextView path, const FileTimes& times) {
  Existing(path).Times = times;
}

void MemoryFileSystem::SetReportedSize(TextView path, std::uint64_t size) {
  Existing(path).ReportedSize = size;
}

bool MemoryFileSystem::Exists(TextView path) const {
  return tree_.Lookup(path) != nullptr;
}

std::string MemoryFileSystem::Read(TextView path) const {
  const auto node = tree_.Resolve(path);
  if (!node || node->Kind != MemoryKind::File) {
    throw std::logic_error("not a file");
  }
  return node->Bytes;
}

std::map<std::string, std::string> MemoryFileSystem::Contents(TextView folder) const {
  const auto node = tree_.Resolve(folder);
  if (!node) {
    throw std::logic_error("no such folder");
  }
  std::map<std::string, std::string> contents;
  AddContents(*node, {}, contents);
  return contents;
}

void MemoryFileSystem::AddContents(const MemoryNode& folder, const Text& prefix,
                                   std::map<std::string, std::string>& contents) const {
  for (const auto& [key, child] : folder.Children) {
    const Text path = prefix + child.Name;
    const std::string bytes = *BytesFromText(path);
    switch (child.Node->Kind) {
      case MemoryKind::File:
        contents[bytes] = child.Node->Bytes;
        break;
      case MemoryKind::Link:
        contents[bytes + "@"] = *BytesFromText(child.Node->LinkTarget);
        break;
      case MemoryKind::Other:
        contents[bytes + "|"] = "";
        break;
      case MemoryKind::Folder:
        contents[bytes + static_cast<char>(Separator(style_))] = "";
        AddContents(*child.Node, path + Separator(style_), contents);
        break;
    }
  }
}

}  // namespace vorlane
