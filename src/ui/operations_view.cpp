#include "ui/operations_view.h"

#include <QScopedValueRollback>
#include <QTimer>
#include <utility>

#include "ui/qt_text.h"

namespace vorlane {

namespace {

constexpr int IndexRole = Qt::UserRole;

}  // namespace

OperationsView::OperationsView(QWidget* parent) : QTreeWidget(parent) {
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setSelectionMode(SingleSelection);
  setIndentation(14);
  connect(this, &QTreeWidget::itemClicked, this, [this] { ClickLater(); });
}

void OperationsView::ShowOperations(const std::vector<OperationNode>& nodes) {
  const QScopedValueRollback showing(showing_, true);
  clear();
  items_.clear();
  for (const OperationNode& node : nodes) {
    QTreeWidgetItem* parent =
        node.Parent == 0 ? invisibleRootItem() : items_[static_cast<std::size_t>(node.Parent) - 1];
    auto* item = new QTreeWidgetItem(parent, {ToQString(node.Title)});
    item->setData(0, IndexRole, node.Index);
    items_.push_back(item);
  }
  for (const OperationNode& node : nodes) {
    items_[static_cast<std::size_t>(node.Index) - 1]->setExpanded(node.Expanded);
  }
}

void OperationsView::ShowSelected(std::int32_t index) {
  const QScopedValueRollback showing(showing_, true);
  if (index >= 1 && static_cast<std::size_t>(index) <= items_.size()) {
    setCurrentItem(items_[static_cast<std::size_t>(index) - 1]);
  }
}

void OperationsView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTreeWidget::currentChanged(current, previous);
  if (keyActs_ && !showing_ && current.isValid()) {
    ClickLater();
  }
}

void OperationsView::keyPressEvent(QKeyEvent* event) {
  const QScopedValueRollback acting(keyActs_, true);
  QTreeWidget::keyPressEvent(event);
}

// The handler may fill the tree anew, which must not happen inside the view's own handler.
void OperationsView::ClickLater() {
  if (clickWaits_) {
    return;
  }
  clickWaits_ = true;
  QTimer::singleShot(0, this, [this] { DeliverWaitingClick(); });
}

void OperationsView::DeliverWaitingClick() {
  if (std::exchange(clickWaits_, false) && OnNodeClicked && currentItem() != nullptr) {
    OnNodeClicked(currentItem()->data(0, IndexRole).toInt());
  }
}

}  // namespace vorlane
