#include "form/file_rows.h"

#include <algorithm>

#include "platform/failure.h"
#include "platform/interface_texts.h"
#include "platform/letter_case.h"

namespace vorlane {

TextView TextOf(YesNo answer) {
  switch (answer) {
    case YesNo::Yes:
      return InterfaceText(TextNumber::Yes);
    case YesNo::No:
      return InterfaceText(TextNumber::No);
    case YesNo::Unknown:
      break;
  }
  return u"";
}

namespace {

Text MarkerOf(int textNumber) {
  return Text(u"<").append(InterfaceText(textNumber)).append(u">");
}

}  // namespace

Text ReadOnlyMarker() {
  return MarkerOf(TextNumber::ReadOnly);
}

Text FileInUseMarker() {
  return MarkerOf(TextNumber::FileInUse);
}

FileRow& FileRows::At(std::int32_t row) {
  if (row < 1 || row > Count()) {
    throw RunError(ErrorNumber::SubscriptOutOfRange);
  }
  return rows_[static_cast<std::size_t>(row) - 1].Row;
}

const FileRow& FileRows::At(std::int32_t row) const {
  return const_cast<FileRows*>(this)->At(row);
}

FolderId FileRows::IdOf(TextView folder) {
  const auto [place, isNew] =
      folderIds_.try_emplace(Text(folder), static_cast<FolderId>(folders_.size()));
  if (isNew) {
    folders_.emplace_back(folder);
  }
  return place->second;
}

Text FileRows::CellText(std::int32_t row, Column column) const {
  const FileRow& cells = At(row);
  switch (column) {
    case Column::CurrentName:
      return cells.Name;
    case Column::ProposedName:
      return cells.Proposed;
    case Column::Artist:
      return cells.Artist;
    case Column::Title:
      return cells.Title;
    case Column::ID3v1:
      return Text(TextOf(cells.ID3v1));
    case Column::ID3v2:
      return Text(TextOf(cells.ID3v2));
    case Column::ReadOnly:
      return Text(TextOf(cells.ReadOnly));
    case Column::Path:
      return folders_[cells.Folder];
  }
  return {};
}

void FileRows::Clear() {
  rows_.clear();
  folders_.clear();
  folderIds_.clear();
  Deselect();
  selectionMark_ = -1;
  ++generation_;
}

void FileRows::Add(FileRow row) {
  rows_.push_back({std::move(row), static_cast<std::uint32_t>(rows_.size())});
  ++generation_;
}

void FileRows::Select(std::int32_t row) {
  At(row);
  selected_ = row;
  selectionMark_ = row - 1;
}

void FileRows::SetSort(Column key, SortOrder order) {
  sortKey_ = key;
  order_ = order;
  if (sorted_) {
    Sort();
  }
}

void FileRows::SetSorted(bool sorted) {
  sorted_ = sorted;
  if (sorted_) {
    Sort();
  }
}

void FileRows::Sort() {
  struct Keyed {
    Text Key;
    std::uint32_t Found;
    std::uint32_t Place;
  };
  std::vector<Keyed> order(rows_.size());
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    order[i] = {FoldCase(CellText(static_cast<std::int32_t>(i) + 1, sortKey_)), rows_[i].Found,
                static_cast<std::uint32_t>(i)};
  }
  const bool descending = order_ == SortOrder::Descending;
  std::sort(order.begin(), order.end(), [&](const Keyed& a, const Keyed& b) {
    const int compared = a.Key.compare(b.Key);
    return compared == 0 ? a.Found < b.Found : (descending ? compared > 0 : compared < 0);
  });

  std::vector<StoredRow> sorted;
  sorted.reserve(rows_.size());
  std::int32_t selected = 0;
  for (const Keyed& keyed : order) {
    if (static_cast<std::int32_t>(keyed.Place) + 1 == selected_) {
      selected = static_cast<std::int32_t>(sorted.size()) + 1;
    }
    sorted.push_back(std::move(rows_[keyed.Place]));
  }
  rows_ = std::move(sorted);
  if (selected != 0) {
    Select(selected);
  }
  ++generation_;
}

}  // namespace vorlane
