// The tree of folders inside picBrowse.
#pragma once

#include <QFileSystemModel>
#include <QTreeView>
#include <functional>
#include <memory>

#include "shell/folder_browser.h"

namespace vorlane {

class FolderTreeView final : public QTreeView, public FolderTree {
 public:
  explicit FolderTreeView(QWidget* parent);
  ~FolderTreeView() override;

  void ShowFolder(const Text& path) override;

  // The user has selected the folder.
  std::function<void(const Text& path)> OnFolderSelected;

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void ScrollToShown();

  std::unique_ptr<QAbstractFileIconProvider> icons_;
  QFileSystemModel folders_;
  QString shown_;  // to be kept in view until its surroundings have been read
  // The model moves the current folder by itself while it reads; only what the user does counts.
  bool userActs_ = false;
  bool noticeWaits_ = false;
};

}  // namespace vorlane
