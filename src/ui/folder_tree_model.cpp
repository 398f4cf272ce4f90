#include "ui/folder_tree_model.h"

#include <QApplication>
#include <QStyle>
#include <algorithm>

#include "platform/failure.h"
#include "platform/letter_case.h"
#include "platform/path_style.h"
#include "ui/qt_text.h"

namespace vorlane {

namespace {

bool ComesBefore(const Text& a, const Text& b) {
  const int order = CompareIgnoringCase(a, b);
  return order != 0 ? order < 0 : a < b;
}

}  // namespace

struct FolderTreeModel::Node {
  Text Name;
  Node* Parent = nullptr;
  bool Loaded = false;
  std::vector<std::unique_ptr<Node>> Children{};  // sorted by name

  Text Path() const {
    if (Parent == nullptr) {
      return {};
    }
    return Parent->Path() + Name + Separator(HostPathStyle);
  }

  std::size_t PlaceOf(const Text& name) const {
    const auto place = std::lower_bound(
        Children.begin(), Children.end(), name,
        [](const auto& child, const Text& wanted) { return ComesBefore(child->Name, wanted); });
    return static_cast<std::size_t>(place - Children.begin());
  }

  Node* Find(const Text& name) const {
    const auto place = PlaceOf(name);
    return place < Children.size() && Children[place]->Name == name ? Children[place].get()
                                                                    : nullptr;
  }
};

FolderTreeModel::FolderTreeModel(FileSystem& files)
    : files_(files),
      icon_(QApplication::style()->standardIcon(QStyle::SP_DirIcon)),
      top_(std::make_unique<Node>()) {
  top_->Loaded = true;
  top_->Children.push_back(std::make_unique<Node>(Node{.Name = {}, .Parent = top_.get()}));
}

FolderTreeModel::~FolderTreeModel() = default;

FolderTreeModel::Node* FolderTreeModel::NodeOf(const QModelIndex& index) const {
  return index.isValid() ? static_cast<Node*>(index.internalPointer()) : top_.get();
}

QModelIndex FolderTreeModel::IndexOf(const Node& node) const {
  if (node.Parent == nullptr) {
    return {};
  }
  return createIndex(static_cast<int>(node.Parent->PlaceOf(node.Name)), 0, &node);
}

QModelIndex FolderTreeModel::index(int row, int column, const QModelIndex& parent) const {
  const Node& above = *NodeOf(parent);
  if (column != 0 || row < 0 || static_cast<std::size_t>(row) >= above.Children.size()) {
    return {};
  }
  return createIndex(row, 0, above.Children[static_cast<std::size_t>(row)].get());
}

QModelIndex FolderTreeModel::parent(const QModelIndex& child) const {
  return child.isValid() ? IndexOf(*NodeOf(child)->Parent) : QModelIndex();
}

int FolderTreeModel::rowCount(const QModelIndex& parent) const {
  return static_cast<int>(NodeOf(parent)->Children.size());
}

int FolderTreeModel::columnCount(const QModelIndex& /*parent*/) const {
  return 1;
}

bool FolderTreeModel::hasChildren(const QModelIndex& parent) const {
  const Node& node = *NodeOf(parent);
  return !node.Loaded || !node.Children.empty();
}

bool FolderTreeModel::canFetchMore(const QModelIndex& parent) const {
  return !NodeOf(parent)->Loaded;
}

void FolderTreeModel::fetchMore(const QModelIndex& parent) {
  Load(*NodeOf(parent), {});
}

QVariant FolderTreeModel::data(const QModelIndex& index, int role) const {
  const Node& node = *NodeOf(index);
  if (role == Qt::DisplayRole) {
    return node.Parent == top_.get() ? ToQString(node.Path()) : ToQString(node.Name);
  }
  return role == Qt::DecorationRole ? QVariant(icon_) : QVariant();
}

Text FolderTreeModel::PathOf(const QModelIndex& index) const {
  return NodeOf(index)->Path();
}

QModelIndex FolderTreeModel::Find(const Text& path) {
  Node* node = top_->Children.front().get();
  for (std::size_t start = 1; start < path.size();) {
    const auto end = std::min(path.find(Separator(HostPathStyle), start), path.size());
    const Text name = path.substr(start, end - start);
    start = end + 1;
    if (name.empty()) {
      continue;
    }
    if (node->Find(name) == nullptr) {
      Load(*node, name);
      node->Loaded = true;
    }
    node = node->Find(name);
    if (node == nullptr) {
      return {};
    }
  }
  return IndexOf(*node);
}

void FolderTreeModel::Refresh(const QModelIndex& folder) {
  Node& node = *NodeOf(folder);
  if (node.Loaded) {
    Load(node, {});
  }
}

// The visible folders, those that are shown already though they are hidden, and the wanted one.
std::vector<Text> FolderTreeModel::SubfoldersOf(const Node& node, const Text& wanted) const {
  std::vector<Text> names;
  Attempt([&] {
    for (const FolderEntry& entry : files_.ListFolder(node.Path())) {
      const bool isShown = !entry.Status.Hidden || entry.Name == wanted || node.Find(entry.Name);
      if (entry.Status.Kind == EntryKind::Folder && isShown) {
        names.push_back(entry.Name);
      }
    }
  });
  std::sort(names.begin(), names.end(), ComesBefore);
  return names;
}

void FolderTreeModel::Load(Node& node, const Text& wanted) {
  const std::vector<Text> names = SubfoldersOf(node, wanted);
  node.Loaded = true;
  const QModelIndex parent = IndexOf(node);
  for (int row = static_cast<int>(node.Children.size()) - 1; row >= 0; --row) {
    const auto child = node.Children.begin() + row;
    if (!std::binary_search(names.begin(), names.end(), (*child)->Name, ComesBefore)) {
      beginRemoveRows(parent, row, row);
      node.Children.erase(child);
      endRemoveRows();
    }
  }
  for (const Text& name : names) {
    if (node.Find(name) == nullptr) {
      const auto place = static_cast<int>(node.PlaceOf(name));
      beginInsertRows(parent, place, place);
      node.Children.insert(node.Children.begin() + place,
                           std::make_unique<Node>(Node{.Name = name, .Parent = &node}));
      endInsertRows();
    }
  }
}

}  // namespace vorlane
