// lstFileList without its window: one row for each listed entry. The list is the data store of a
// batch: what column 1 shows is what a run renames to, and column 7 is the only record of a row's
// folder.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "platform/text.h"

namespace vorlane {

enum class Column : std::uint8_t {
  CurrentName,
  ProposedName,
  Artist,
  Title,
  ID3v1,
  ID3v2,
  ReadOnly,
  Path,
};

// "Yes", "No", or nothing yet.
enum class YesNo : std::uint8_t { Unknown, No, Yes };

TextView TextOf(YesNo answer);

// What column 1 shows in the place of a name: "<Read Only>" and "<File in Use>".
Text ReadOnlyMarker();
Text FileInUseMarker();

// Stands for one folder text of a list; equal ids mean equal texts.
using FolderId = std::uint32_t;

struct FileRow {
  Text Name{};
  Text Proposed{};  // a name, a marker in angle brackets, or empty
  Text Artist{};
  Text Title{};
  YesNo ID3v1 = YesNo::Unknown;
  YesNo ID3v2 = YesNo::Unknown;
  YesNo ReadOnly = YesNo::Unknown;
  FolderId Folder = 0;
};

enum class SortOrder : std::uint8_t { Ascending = 0, Descending = 1 };

// Rows are numbered from 1. A row number that isn't in the list is a failure (RunError 9).
class FileRows {
 public:
  std::int32_t Count() const { return static_cast<std::int32_t>(rows_.size()); }
  FileRow& At(std::int32_t row);
  const FileRow& At(std::int32_t row) const;

  // The row's folder, with its trailing separator.
  const Text& PathOf(std::int32_t row) const { return folders_[At(row).Folder]; }
  const Text& FolderText(FolderId folder) const { return folders_[folder]; }

  // The id of a folder text, new or known. Ids stay valid until Clear.
  FolderId IdOf(TextView folder);

  // What a column shows.
  Text CellText(std::int32_t row, Column column) const;

  void Clear();
  void Add(FileRow row);

  // The selected row, 0 for none; selecting a row deselects the one before. The selection mark is
  // the row of the last selection as an index from 0; it outlives the selection. -1 in a new list.
  std::int32_t Selected() const { return selected_; }
  std::int32_t SelectionMark() const { return selectionMark_; }
  void Select(std::int32_t row);
  void Deselect() { selected_ = 0; }

  // Sorting goes by one column's text without regard to case, code unit by code unit; rows that
  // compare equal stay in the order in which they were found. While it is off, rows stay where
  // they are; turning it on sorts once, and so does a new key. A changed cell moves no row.
  // The selection follows its row. Cost: n log n comparisons of keys that are folded once.
  Column SortKey() const { return sortKey_; }
  SortOrder Order() const { return order_; }
  bool Sorted() const { return sorted_; }
  void SetSort(Column key, SortOrder order);
  void SetSorted(bool sorted);

  // Changes whenever rows may have moved, come or gone.
  std::uint64_t Generation() const { return generation_; }

 private:
  void Sort();

  struct StoredRow {
    FileRow Row;
    std::uint32_t Found = 0;  // place in finding order
  };

  std::vector<StoredRow> rows_;
  std::vector<Text> folders_;
  std::unordered_map<Text, FolderId> folderIds_;
  std::int32_t selected_ = 0;
  std::int32_t selectionMark_ = -1;
  Column sortKey_ = Column::CurrentName;
  SortOrder order_ = SortOrder::Ascending;
  bool sorted_ = false;
  std::uint64_t generation_ = 0;
};

}  // namespace vorlane
