#include "ui/folder_tree_view.h"

#include <QAbstractFileIconProvider>
#include <QApplication>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>
#include <QTimer>

#include "ui/qt_text.h"

namespace vorlane {

namespace {

// One icon for all. The toolkit's own provider would open every file of the folder to find out what
// it is, and again after each change.
class FolderIcons final : public QAbstractFileIconProvider {
 public:
  QIcon icon(const QFileInfo& /*entry*/) const override { return folder_; }
  QIcon icon(IconType /*type*/) const override { return folder_; }
  QString type(const QFileInfo& /*entry*/) const override { return {}; }

 private:
  QIcon folder_ = QApplication::style()->standardIcon(QStyle::SP_DirIcon);
};

int LevelOf(QModelIndex index) {
  int level = 0;
  for (; index.isValid(); index = index.parent()) {
    ++level;
  }
  return level;
}

}  // namespace

FolderTreeView::FolderTreeView(QWidget* parent)
    : QTreeView(parent), icons_(std::make_unique<FolderIcons>()) {
  folders_.setIconProvider(icons_.get());
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

FolderTreeView::~FolderTreeView() = default;

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
