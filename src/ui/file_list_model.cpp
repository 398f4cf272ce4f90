#include "ui/file_list_model.h"

#include <algorithm>

#include "platform/interface_texts.h"
#include "ui/qt_text.h"

namespace vorlane {

namespace {

constexpr int HeadingTexts[ColumnCount] = {TextNumber::CurrentName,    TextNumber::ProposedName,
                                           TextNumber::ExistingArtist, TextNumber::ExistingTitle,
                                           TextNumber::ID3v1,          TextNumber::ID3v2,
                                           TextNumber::ReadOnly,       TextNumber::Path};

}  // namespace

int FileListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shownCount_;
}

int FileListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant FileListModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || index.row() >= rows_.Count()) {
    return {};
  }
  return ToLine(rows_.CellText(index.row() + 1, static_cast<Column>(index.column())));
}

QVariant FileListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section >= ColumnCount) {
    return {};
  }
  return ToQString(InterfaceText(HeadingTexts[section]));
}

void FileListModel::ShowNewList() {
  beginResetModel();
  shownCount_ = rows_.Count();
  endResetModel();
}

void FileListModel::ShowAddedRows() {
  if (rows_.Count() > shownCount_) {
    beginInsertRows({}, shownCount_, rows_.Count() - 1);
    shownCount_ = rows_.Count();
    endInsertRows();
  }
}

void FileListModel::ShowMovedRows() {
  emit layoutAboutToBeChanged();
  emit layoutChanged();
}

void FileListModel::ShowChangedRows(int first, int last) {
  last = std::min(last, shownCount_ - 1);
  if (first <= last) {
    emit dataChanged(index(first, 0), index(last, ColumnCount - 1));
  }
}

}  // namespace vorlane
