#include "ui/file_list_view.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>
#include <QUrl>
#include <filesystem>
#include <utility>

#include "platform/file_name_bytes.h"

namespace vorlane {

namespace {

// The one local folder that is dragged; empty for anything else.
Text DraggedFolder(const QDropEvent& event) {
  const auto urls = event.mimeData()->urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) {
    return {};
  }
  // By its bytes: a name needn't be valid UTF-8.
  const std::string path =
      QByteArray::fromPercentEncoding(urls.front().path(QUrl::FullyEncoded).toLatin1())
          .toStdString();
  std::error_code error;
  return std::filesystem::is_directory(path, error) ? TextFromBytes(path) : Text();
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
  connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
    TakeSelection(index);
    ClickLater();
  });
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
  const int left = horizontalScrollBar()->value();
  const QModelIndex index = model()->index(row - 1, 0);
  if (index.isValid() &&
      (currentIndex().row() != index.row() || !selectionModel()->isSelected(index))) {
    selectionModel()->setCurrentIndex(
        index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    horizontalScrollBar()->setValue(left);
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

// A button that is pressed selects; the click comes with its release. A key is both.
void FileListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTreeView::currentChanged(current, previous);
  if (showing_ || !current.isValid()) {
    return;
  }
  TakeSelection(current);
  if (keyActs_) {
    ClickLater();
  }
}

void FileListView::keyPressEvent(QKeyEvent* event) {
  const QScopedValueRollback acting(keyActs_, true);
  QTreeView::keyPressEvent(event);
}

// What the rules take for selected is selected on the screen too, whatever else a key that was held
// does to it.
void FileListView::TakeSelection(const QModelIndex& index) {
  if (OnRowSelected) {
    OnRowSelected(index.row() + 1);
    ShowSelected(index.row() + 1);
  }
}

// The handler may fill the list anew, which must not happen inside the view's own handler.
void FileListView::ClickLater() {
  if (clickWaits_) {
    return;
  }
  clickWaits_ = true;
  QTimer::singleShot(0, this, [this] { DeliverWaitingClick(); });
}

void FileListView::DeliverWaitingClick() {
  if (std::exchange(clickWaits_, false) && OnRowClicked) {
    OnRowClicked();
  }
}

void FileListView::dragEnterEvent(QDragEnterEvent* event) {
  if (!DraggedFolder(*event).empty()) {
    event->acceptProposedAction();
  }
}

void FileListView::dragMoveEvent(QDragMoveEvent* event) {
  if (!DraggedFolder(*event).empty()) {
    event->acceptProposedAction();
  }
}

void FileListView::dropEvent(QDropEvent* event) {
  const Text folder = DraggedFolder(*event);
  if (folder.empty()) {
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
