#include "support/memory_tree.h"

#include <stdexcept>
#include <utility>

#include "platform/file_name_bytes.h"
#include "platform/letter_case.h"

namespace vorlane {

namespace {

constexpr int MostLinks = 40;

bool IsPossibleName(TextView name) {
  const auto bytes = BytesFromText(name);
  return bytes && bytes->size() <= 255;
}

std::vector<TextView> NamesOf(TextView path, char16_t separator) {
  std::vector<TextView> names;
  std::size_t start = 0;
  while (start < path.size()) {
    const auto end = std::min(path.find(separator, start), path.size());
    if (end > start) {
      names.push_back(path.substr(start, end - start));
    }
    start = end + 1;
  }
  return names;
}

bool IsDots(TextView name) {
  return name == u"." || name == u"..";
}

}  // namespace

MemoryTree::MemoryTree(PathStyle style, bool ignoresCase)
    : style_(style), ignoresCase_(ignoresCase), root_(std::make_shared<MemoryNode>()) {
  root_->Kind = MemoryKind::Folder;
  root_->Identity = {NewDevice(), ++lastNumber_};
}

bool MemoryTree::IsRooted(TextView path) const {
  return style_ == PathStyle::Posix ? path.starts_with(u'/') : path.size() > 1 && path[1] == u':';
}

Text MemoryTree::KeyOf(TextView name) const {
  return ignoresCase_ ? FoldCase(name) : Text(name);
}

MemoryNodePointer MemoryTree::Find(const MemoryNode& folder, TextView name) const {
  const auto child = folder.Children.find(KeyOf(name));
  return child == folder.Children.end() ? nullptr : child->second.Node;
}

// The folder of that name in a folder; null if there is none.
MemoryNodePointer MemoryTree::Enter(const MemoryNodePointer& folder, TextView name,
                                    int depth) const {
  if (name == u".") {
    return folder;
  }
  if (name == u"..") {
    const auto parent = folder->Parent.lock();
    return parent ? parent : folder;
  }
  const auto node = FollowAt(folder, Find(*folder, name), depth);
  return node && node->Kind == MemoryKind::Folder ? node : nullptr;
}

std::optional<MemorySpot> MemoryTree::Walk(MemoryNodePointer folder, TextView path,
                                           int depth) const {
  const auto names = NamesOf(path, Separator(style_));
  MemorySpot spot;
  spot.EndsInSeparator = path.ends_with(Separator(style_));
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (!IsPossibleName(names[i])) {
      return std::nullopt;
    }
    if (i + 1 == names.size() && !IsDots(names[i])) {
      spot.Name = names[i];
    } else {
      folder = Enter(folder, names[i], depth);
      if (!folder) {
        return std::nullopt;
      }
    }
  }
  spot.Node = spot.Name.empty() ? folder : Find(*folder, spot.Name);
  spot.Folder = std::move(folder);
  return spot;
}

MemoryNodePointer MemoryTree::Follow(MemoryNodePointer folder, MemoryNodePointer node) const {
  return FollowAt(std::move(folder), std::move(node), 0);
}

MemoryNodePointer MemoryTree::FollowAt(MemoryNodePointer folder, MemoryNodePointer node,
                                       int depth) const {
  for (; node && node->Kind == MemoryKind::Link; ++depth) {
    const Text& target = node->LinkTarget;
    const auto spot = depth < MostLinks ? Walk(IsRooted(target) ? root_ : folder, target, depth + 1)
                                        : std::nullopt;
    folder = spot ? spot->Folder : nullptr;
    node = spot ? spot->Node : nullptr;
  }
  return node;
}

std::optional<MemorySpot> MemoryTree::Locate(TextView path) const {
  return IsRooted(path) ? Walk(root_, path, 0) : std::nullopt;
}

MemoryNodePointer MemoryTree::Lookup(TextView path) const {
  const auto spot = Locate(path);
  if (!spot) {
    return nullptr;
  }
  return spot->EndsInSeparator ? Resolve(path) : spot->Node;
}

MemoryNodePointer MemoryTree::Resolve(TextView path) const {
  const auto spot = Locate(path);
  const auto node = spot ? Follow(spot->Folder, spot->Node) : nullptr;
  return node && spot->EndsInSeparator && node->Kind != MemoryKind::Folder ? nullptr : node;
}

MemorySpot MemoryTree::MakeWay(TextView path) {
  if (!IsRooted(path)) {
    throw std::logic_error("not a rooted path");
  }
  for (std::size_t end = path.find(Separator(style_), 1); end < path.size();
       end = path.find(Separator(style_), end + 1)) {
    const auto spot = Locate(path.substr(0, end));
    if (spot && !spot->Node) {
      Put(*spot, MemoryKind::Folder);
    }
  }
  auto spot = Locate(path);
  if (!spot) {
    throw std::logic_error("no entry can have this path");
  }
  return *spot;
}

MemoryNodePointer MemoryTree::Put(const MemorySpot& spot, MemoryKind kind) {
  auto node = std::make_shared<MemoryNode>();
  node->Kind = kind;
  // Each drive is a volume.
  const bool isDrive = style_ == PathStyle::Windows && spot.Folder == root_;
  node->Identity = {isDrive ? NewDevice() : spot.Folder->Identity.Device, ++lastNumber_};
  Put(spot, node);
  return node;
}

void MemoryTree::Put(const MemorySpot& spot, MemoryNodePointer node) {
  if (node->Kind == MemoryKind::Folder) {
    node->Parent = spot.Folder;
  }
  spot.Folder->Children[KeyOf(spot.Name)] = {spot.Name, std::move(node)};
}

void MemoryTree::Take(const MemorySpot& spot) {
  spot.Folder->Children.erase(KeyOf(spot.Name));
}

}  // namespace vorlane
