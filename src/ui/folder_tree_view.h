// The tree of folders inside picBrowse.
#pragma once

#include <QTreeView>
#include <functional>

#include "shell/folder_browser.h"
#include "ui/folder_tree_model.h"

namespace vorlane {

class FolderTreeView final : public QTreeView, public FolderTree {
 public:
  FolderTreeView(QWidget* parent, FileSystem& files);

  void ShowFolder(const Text& path) override;

  // Folders may have come or gone in that folder.
  void Refresh(const Text& path);

  // The user has selected the folder.
  std::function<void(const Text& path)> OnFolderSelected;

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ScrollToCurrent();

  FolderTreeModel folders_;
  bool userActs_ = false;  // only what the user does counts as a selection
  bool noticeWaits_ = false;
};

}  // namespace vorlane
