// The folders of the disk for the toolkit's tree. A folder is read when it is opened, its files are
// passed over, and nothing is watched: a folder with a hundred thousand files costs no more than
// any other until somebody opens it, and a run in it costs nothing here.
#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <memory>
#include <vector>

#include "platform/file_system.h"

namespace vorlane {

class FolderTreeModel final : public QAbstractItemModel {
 public:
  explicit FolderTreeModel(FileSystem& files);
  ~FolderTreeModel() override;

  QModelIndex index(int row, int column, const QModelIndex& parent) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  bool hasChildren(const QModelIndex& parent) const override;
  bool canFetchMore(const QModelIndex& parent) const override;
  void fetchMore(const QModelIndex& parent) override;
  QVariant data(const QModelIndex& index, int role) const override;

  // With a trailing separator; empty for no folder.
  Text PathOf(const QModelIndex& index) const;

  // Reads what lies above the folder. A hidden folder is shown as soon as it is asked for. Not
  // valid if there is no such folder.
  QModelIndex Find(const Text& path);

  // Reads a folder again whose folders are shown: those that have gone go, new ones come.
  void Refresh(const QModelIndex& folder);

 private:
  struct Node;

  Node* NodeOf(const QModelIndex& index) const;
  QModelIndex IndexOf(const Node& node) const;
  std::vector<Text> SubfoldersOf(const Node& node, const Text& wanted) const;
  void Load(Node& node, const Text& wanted);

  FileSystem& files_;
  QIcon icon_;
  std::unique_ptr<Node> top_;  // above the root folder, not shown
};

}  // namespace vorlane
