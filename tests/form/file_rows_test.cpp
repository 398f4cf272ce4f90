#include "form/file_rows.h"

#include <gtest/gtest.h>

#include "platform/failure.h"

namespace vorlane {
namespace {

FileRows RowsOf(const std::vector<Text>& names) {
  FileRows rows;
  for (const Text& name : names) {
    rows.Add({.Name = name, .Folder = rows.IdOf(u"/R/")});
  }
  return rows;
}

std::vector<Text> NamesOf(const FileRows& rows) {
  std::vector<Text> names;
  for (std::int32_t row = 1; row <= rows.Count(); ++row) {
    names.push_back(rows.At(row).Name);
  }
  return names;
}

TEST(FileRows, RowsCountFromOne) {
  FileRows rows = RowsOf({u"a", u"b"});
  EXPECT_EQ(rows.At(1).Name, u"a");
  EXPECT_EQ(rows.At(2).Name, u"b");
  EXPECT_THROW(rows.At(0), RunError);
  EXPECT_THROW(rows.At(3), RunError);
}

TEST(FileRows, EqualFolderTextsShareAnId) {
  FileRows rows;
  EXPECT_EQ(rows.IdOf(u"/R/"), rows.IdOf(u"/R/"));
  EXPECT_NE(rows.IdOf(u"/R/"), rows.IdOf(u"/r/"));
}

TEST(FileRows, TextSortPutsTenBeforeNine) {
  FileRows rows = RowsOf({u"9", u"10", u"b", u"A", u"C"});
  rows.SetSorted(true);
  EXPECT_EQ(NamesOf(rows), (std::vector<Text>{u"10", u"9", u"A", u"b", u"C"}));
  rows.SetSort(Column::CurrentName, SortOrder::Descending);
  EXPECT_EQ(NamesOf(rows), (std::vector<Text>{u"C", u"b", u"A", u"9", u"10"}));
}

TEST(FileRows, EqualKeysStayInFindingOrderWhateverTheDirection) {
  FileRows rows = RowsOf({u"x", u"X", u"a"});
  rows.SetSort(Column::CurrentName, SortOrder::Descending);
  rows.SetSorted(true);
  EXPECT_EQ(NamesOf(rows), (std::vector<Text>{u"x", u"X", u"a"}));
  rows.SetSort(Column::CurrentName, SortOrder::Ascending);
  EXPECT_EQ(NamesOf(rows), (std::vector<Text>{u"a", u"x", u"X"}));
}

TEST(FileRows, EveryColumnSortsByItsText) {
  FileRows rows;
  rows.Add({.Name = u"1",
            .Proposed = u"b",
            .Artist = u"c",
            .Title = u"a",
            .ID3v1 = YesNo::Yes,
            .ID3v2 = YesNo::No,
            .ReadOnly = YesNo::Yes,
            .Folder = rows.IdOf(u"/b/")});
  rows.Add({.Name = u"2",
            .Proposed = u"a",
            .Artist = u"b",
            .Title = u"b",
            .ID3v1 = YesNo::No,
            .ID3v2 = YesNo::Yes,
            .ReadOnly = YesNo::No,
            .Folder = rows.IdOf(u"/a/")});
  rows.SetSorted(true);
  const std::pair<Column, const char16_t*> cases[] = {
      {Column::CurrentName, u"1"}, {Column::ProposedName, u"2"}, {Column::Artist, u"2"},
      {Column::Title, u"1"},       {Column::ID3v1, u"2"},        {Column::ID3v2, u"1"},
      {Column::ReadOnly, u"2"},    {Column::Path, u"2"}};
  for (const auto& [column, first] : cases) {
    rows.SetSort(column, SortOrder::Ascending);
    EXPECT_EQ(rows.At(1).Name, first);
  }
}

TEST(FileRows, WhileSortingIsOffRowsStay) {
  FileRows rows = RowsOf({u"b", u"a"});
  rows.SetSort(Column::CurrentName, SortOrder::Ascending);
  EXPECT_EQ(NamesOf(rows), (std::vector<Text>{u"b", u"a"}));
  rows.SetSorted(true);
  rows.At(1).Name = u"z";
  EXPECT_EQ(NamesOf(rows), (std::vector<Text>{u"z", u"b"}));
}

TEST(FileRows, TheSelectionFollowsItsRow) {
  FileRows rows = RowsOf({u"b", u"a", u"c"});
  rows.Select(1);
  EXPECT_EQ(rows.SelectionMark(), 0);
  rows.SetSorted(true);
  EXPECT_EQ(rows.Selected(), 2);
  EXPECT_EQ(rows.SelectionMark(), 1);
  rows.Deselect();
  EXPECT_EQ(rows.Selected(), 0);
  EXPECT_EQ(rows.SelectionMark(), 1);  // outlives the selection
  EXPECT_THROW(rows.Select(4), RunError);
  rows.Clear();
  EXPECT_EQ(rows.SelectionMark(), -1);
}

TEST(FileRows, ClearForgetsRowsFoldersAndSelection) {
  FileRows rows = RowsOf({u"a"});
  rows.Select(1);
  const auto generation = rows.Generation();
  rows.Clear();
  EXPECT_EQ(rows.Count(), 0);
  EXPECT_EQ(rows.Selected(), 0);
  EXPECT_NE(rows.Generation(), generation);
}

}  // namespace
}  // namespace vorlane
