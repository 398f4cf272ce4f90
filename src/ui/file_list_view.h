// lstFileList on the screen: one selected row, whole-row selection, a header that sorts, and a
// place to drop a folder on.
#pragma once

#include <QTreeView>
#include <functional>

#include "form/file_rows.h"

namespace vorlane {

class FileListView final : public QTreeView {
 public:
  explicit FileListView(QWidget* parent);

  void ShowModel(QAbstractItemModel& model);

  // Whole rows that fit, and the first visible row, from 1.
  int GetCountPerPage() const;
  int FirstVisibleRow() const;

  // Selects from code, without a notice; 0 for no row.
  void ShowSelected(int row);
  void ShowRow(int row);
  void ShowSorting(Column key, SortOrder order);

  // The user has selected that row; the click itself follows when the view is done with it.
  std::function<void(int row)> OnRowSelected;
  std::function<void()> OnRowClicked;

  // A click is told of as soon as the view has done its own work; this tells of it now, before
  // something that depends on it begins.
  void DeliverWaitingClick();
  std::function<void(Column)> OnColumnClicked;
  std::function<void(const Text& folder)> OnFolderDropped;

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void TakeSelection(const QModelIndex& index);
  void ClickLater();

  bool showing_ = false;  // the program itself is selecting
  bool keyActs_ = false;
  bool clickWaits_ = false;
};

}  // namespace vorlane
