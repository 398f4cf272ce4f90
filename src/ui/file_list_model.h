// The rows of the list for the toolkit's view. It holds nothing of them but their number, so that a
// long list costs nothing here; what it says of its rows is brought up to date by its owner.
#pragma once

#include <QAbstractTableModel>

#include "form/file_rows.h"

namespace vorlane {

inline constexpr int ColumnCount = 8;

class FileListModel final : public QAbstractTableModel {
 public:
  explicit FileListModel(const FileRows& rows) : rows_(rows) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  // Tells the view of a new list, of rows behind the last one, of rows in another order, and of
  // cells in the rows from `first` to `last` (from 0).
  void ShowNewList();
  void ShowAddedRows();
  void ShowMovedRows();
  void ShowChangedRows(int first, int last);

 private:
  const FileRows& rows_;
  int shownCount_ = 0;
};

}  // namespace vorlane
