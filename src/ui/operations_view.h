// lstRenamingOperations: the tree of operations.
#pragma once

#include <QTreeWidget>
#include <functional>
#include <vector>

#include "catalogue/operations_tree.h"

namespace vorlane {

class OperationsView final : public QTreeWidget {
 public:
  explicit OperationsView(QWidget* parent);

  void ShowOperations(const std::vector<OperationNode>& nodes);

  // Selects from code, without a notice.
  void ShowSelected(std::int32_t index);

  // The user has picked the node, by the mouse or by a key.
  std::function<void(std::int32_t index)> OnNodeClicked;

  // A click is told of as soon as the view has done its own work; this tells of it now, before
  // something that depends on it begins.
  void DeliverWaitingClick();

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ClickLater();

  std::vector<QTreeWidgetItem*> items_;  // by index - 1
  bool showing_ = false;
  bool keyActs_ = false;
  bool clickWaits_ = false;
};

}  // namespace vorlane
