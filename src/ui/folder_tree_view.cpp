#include "ui/folder_tree_view.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>

namespace vorlane {

namespace {

int LevelOf(QModelIndex index) {
  int level = 0;
  for (; index.isValid(); index = index.parent()) {
    ++level;
  }
  return level;
}

}  // namespace

FolderTreeView::FolderTreeView(QWidget* parent, FileSystem& files)
    : QTreeView(parent), folders_(files) {
  setModel(&folders_);
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setIndentation(14);
  setEditTriggers(NoEditTriggers);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  // What was read at the last opening may be long ago.
  connect(this, &QTreeView::expanded, &folders_,
          [this](const QModelIndex& folder) { folders_.Refresh(folder); });
}

void FolderTreeView::ShowFolder(const Text& path) {
  const QModelIndex index = folders_.Find(path);
  if (index.isValid()) {
    setCurrentIndex(index);
    ScrollToCurrent();
  }
}

void FolderTreeView::Refresh(const Text& path) {
  const QModelIndex index = folders_.Find(path);
  if (index.isValid()) {
    folders_.Refresh(index);
  }
}

// The name in view rather than the lines that lead to it.
void FolderTreeView::ScrollToCurrent() {
  constexpr int LevelsToTheLeft = 4;
  scrollTo(currentIndex(), PositionAtCenter);
  horizontalScrollBar()->setValue((LevelOf(currentIndex()) - LevelsToTheLeft) * indentation());
}

void FolderTreeView::resizeEvent(QResizeEvent* event) {
  QTreeView::resizeEvent(event);
  ScrollToCurrent();
}

void FolderTreeView::mousePressEvent(QMouseEvent* event) {
  const QScopedValueRollback acting(userActs_, true);
  QTreeView::mousePressEvent(event);
}

void FolderTreeView::keyPressEvent(QKeyEvent* event) {
  const QScopedValueRollback acting(userActs_, true);
  QTreeView::keyPressEvent(event);
}

void FolderTreeView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTreeView::currentChanged(current, previous);
  if (!userActs_ || !current.isValid() || noticeWaits_) {
    return;
  }
  noticeWaits_ = true;
  QTimer::singleShot(0, this, [this] {
    noticeWaits_ = false;
    if (OnFolderSelected) {
      OnFolderSelected(folders_.PathOf(currentIndex()));
    }
  });
}

}  // namespace vorlane
