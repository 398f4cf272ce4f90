#include "ui/folder_tree_view.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>

#include "ui/qt_text.h"

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

FolderTreeView::FolderTreeView(QWidget* parent) : QTreeView(parent) {
  folders_.setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
  folders_.setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
  folders_.setRootPath(QStringLiteral("/"));
  setModel(&folders_);
  for (int column = 1; column < folders_.columnCount(); ++column) {
    hideColumn(column);
  }
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setIndentation(14);
  setEditTriggers(NoEditTriggers);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  connect(&folders_, &QFileSystemModel::directoryLoaded, this, [this] { ScrollToShown(); });
}

void FolderTreeView::ShowFolder(const Text& path) {
  const QString folder = ToQString(path);
  if (folder.contains(QLatin1String("/."))) {
    folders_.setFilter(folders_.filter() | QDir::Hidden);
  }
  const QModelIndex index = folders_.index(folder);
  if (!index.isValid()) {
    return;
  }
  setCurrentIndex(index);
  expand(index);
  shown_ = folder;
  ScrollToShown();
}

// Folders come in the background, and those above push the shown one out of view.
void FolderTreeView::ScrollToShown() {
  if (!shown_.isEmpty()) {
    const QModelIndex index = folders_.index(shown_);
    scrollTo(index, PositionAtCenter);
    // Its name in view, not the end of a longer name's line.
    constexpr int LevelsToTheLeft = 4;
    horizontalScrollBar()->setValue((LevelOf(index) - LevelsToTheLeft) * indentation());
  }
}

void FolderTreeView::mousePressEvent(QMouseEvent* event) {
  const QScopedValueRollback acting(userActs_, true);
  shown_.clear();  // from here on the user says what is in view
  QTreeView::mousePressEvent(event);
}

void FolderTreeView::keyPressEvent(QKeyEvent* event) {
  const QScopedValueRollback acting(userActs_, true);
  shown_.clear();
  QTreeView::keyPressEvent(event);
}

void FolderTreeView::wheelEvent(QWheelEvent* event) {
  shown_.clear();
  QTreeView::wheelEvent(event);
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
      OnFolderSelected(ToText(folders_.filePath(currentIndex())));
    }
  });
}

}  // namespace vorlane
