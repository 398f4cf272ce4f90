#include "ui/file_list_view.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>
#include <QUrl>

namespace vorlane {

namespace {

// The one local folder that is dragged; empty for anything else.
QString DraggedFolder(const QDropEvent& event) {
  const auto urls = event.mimeData()->urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) {
    return {};
  }
  const QString path = urls.front().toLocalFile();
  return QFileInfo(path).isDir() ? path : QString();
}

}  // namespace

FileListView::FileListView(QWidget* parent) : QTreeView(parent) {
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setAcceptDrops(true);
  setDragDropMode(DropOnly);
  setTabKeyNavigation(false);
  header()->setSectionsMovable(false);
  header()->setSectionsClickable(true);
  header()->setSortIndicatorShown(true);
  header()->setStretchLastSection(false);
  connect(header(), &QHeaderView::sectionClicked, this, [this](int section) {
    if (OnColumnClicked) {
      OnColumnClicked(static_cast<Column>(section));
    }
  });
  connect(this, &QAbstractItemView::clicked, this, &FileListView::TakeClick);
}

void FileListView::ShowModel(QAbstractItemModel& model) {
  setModel(&model);
}

int FileListView::GetCountPerPage() const {
  const int rowHeight = model() != nullptr && model()->rowCount() > 0
                            ? visualRect(model()->index(FirstVisibleRow() - 1, 0)).height()
                            : fontMetrics().height();
  return rowHeight > 0 ? viewport()->height() / rowHeight : 0;
}

int FileListView::FirstVisibleRow() const {
  const QModelIndex first = indexAt({0, 1});
  return first.isValid() ? first.row() + 1 : 1;
}

void FileListView::ShowSelected(int row) {
  const QScopedValueRollback showing(showing_, true);
  if (row == 0) {
    clearSelection();
    return;
  }
  const QModelIndex index = model()->index(row - 1, 0);
  if (index.isValid() &&
      (currentIndex().row() != index.row() || !selectionModel()->isSelected(index))) {
    selectionModel()->setCurrentIndex(
        index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }
}

void FileListView::ShowRow(int row) {
  const QModelIndex index = model()->index(row - 1, 0);
  const int left = horizontalOffset();
  scrollTo(index, EnsureVisible);
  horizontalScrollBar()->setValue(left);
}

void FileListView::ShowSorting(Column key, SortOrder order) {
  header()->setSortIndicator(static_cast<int>(key), order == SortOrder::Ascending
                                                        ? Qt::AscendingOrder
                                                        : Qt::DescendingOrder);
}

// Keys and clicks of the user arrive here alike.
void FileListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTreeView::currentChanged(current, previous);
  if (!showing_ && current.isValid()) {
    TakeClick(current);
  }
}

void FileListView::TakeClick(const QModelIndex& index) {
  if (OnRowSelected) {
    OnRowSelected(index.row() + 1);
  }
  ClickLater();
}

// The handler may fill the list anew, which must not happen inside the view's own handler.
void FileListView::ClickLater() {
  if (clickWaits_) {
    return;
  }
  clickWaits_ = true;
  QTimer::singleShot(0, this, [this] {
    clickWaits_ = false;
    if (OnRowClicked) {
      OnRowClicked();
    }
  });
}

void FileListView::dragEnterEvent(QDragEnterEvent* event) {
  if (!DraggedFolder(*event).isEmpty()) {
    event->acceptProposedAction();
  }
}

void FileListView::dragMoveEvent(QDragMoveEvent* event) {
  if (!DraggedFolder(*event).isEmpty()) {
    event->acceptProposedAction();
  }
}

void FileListView::dropEvent(QDropEvent* event) {
  const QString folder = DraggedFolder(*event);
  if (folder.isEmpty()) {
    return;
  }
  event->acceptProposedAction();
  QTimer::singleShot(0, this, [this, folder] {
    if (OnFolderDropped) {
      OnFolderDropped(folder);
    }
  });
}

}  // namespace vorlane
