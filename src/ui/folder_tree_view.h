// The tree of folders inside picBrowse.
#pragma once

#include <QFileSystemModel>
#include <QTreeView>
#include <functional>

#include "shell/folder_browser.h"

namespace vorlane {

class FolderTreeView final : public QTreeView, public FolderTree {
 public:
  explicit FolderTreeView(QWidget* parent);

  void ShowFolder(const Text& path) override;

  // The user has selected the folder.
  std::function<void(const Text& path)> OnFolderSelected;

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  bool viewportEvent(QEvent* event) override;

 private:
  void ScrollToShown();

  QFileSystemModel folders_;
  QString shown_;  // to be kept in view until its surroundings have been read
  bool showing_ = false;
  bool noticeWaits_ = false;
};

}  // namespace vorlane
