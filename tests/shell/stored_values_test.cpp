#include "shell/stored_values.h"

#include <gtest/gtest.h>

#include "support/settings_world.h"

namespace vorlane {
namespace {

class StoredValuesTest : public testing::Test, protected SettingsWorld {};

const std::tuple<Column, Text, Twips> Columns[] = {
    {Column::CurrentName, u"FileNameWidth", 4000}, {Column::ProposedName, u"PreviewWidth", 4000},
    {Column::Artist, u"ArtistWidth", 1000},        {Column::Title, u"TitleWidth", 1000},
    {Column::ID3v1, u"ID3v1Width", 1000},          {Column::ID3v2, u"ID3v2Width", 1000},
    {Column::ReadOnly, u"ReadOnlyWidth", 1000},    {Column::Path, u"PathWidth", 6000},
};

TEST_F(StoredValuesTest, EachColumnHasItsKeyAndDefault) {
  for (const auto& [column, key, width] : Columns) {
    EXPECT_EQ(StoredColumnWidth(Settings, column), width);
    SaveColumnWidth(Settings, column, 1234.5);
    EXPECT_EQ(Get(key), u"1234.5");
    EXPECT_EQ(StoredColumnWidth(Settings, column), 1234.5);
  }
}

TEST_F(StoredValuesTest, AColumnWidthHasLimits) {
  const std::pair<TextView, Twips> widths[] = {
      {u"1", 1},         {u"0.5", 0.5},   {u"99999", 99999}, {u"99999.9", 99999.9},
      {u"100000", 4000}, {u"1E9", 4000},  {u"0", 4000},      {u"-5", 4000},
      {u"", 4000},       {u"wide", 4000}, {u"1,500", 1500},  {u"20 px", 4000},
  };
  for (const auto& [stored, width] : widths) {
    Set(u"FileNameWidth", stored);
    EXPECT_EQ(StoredColumnWidth(Settings, Column::CurrentName), width);
  }
}

TEST_F(StoredValuesTest, TheLastOperationIsA16BitNumber) {
  EXPECT_EQ(StoredLastOperation(Settings), 1);
  const std::pair<TextView, int> numbers[] = {
      {u"7", 7}, {u"32767", 32767}, {u"32768", 1}, {u"", 1}, {u"last", 1}, {u"0", 0},
  };
  for (const auto& [stored, number] : numbers) {
    Set(u"LastOperation", stored);
    EXPECT_EQ(StoredLastOperation(Settings), number);
  }
}

TEST_F(StoredValuesTest, APlaceIsFourNumbers) {
  EXPECT_EQ(StoredPlacement(Settings), WindowPlacement());
  SavePlacement(Settings, {.Left = 150, .Top = -45, .Width = 15360, .Height = 7830});
  EXPECT_EQ(StoredPlacement(Settings),
            (WindowPlacement{.Left = 150, .Top = -45, .Width = 15360, .Height = 7830}));
}

TEST_F(StoredValuesTest, WhatIsNo16BitNumberIsLeftOut) {
  for (const TextView stored : {u"99999", u"", u"wide", u"-32769"}) {
    Set(u"Left", stored);
    Set(u"Top", u"32000");
    EXPECT_EQ(StoredPlacement(Settings), (WindowPlacement{.Top = 32000}));
  }
}

TEST_F(StoredValuesTest, AWindowWithoutAPlaceLeavesTheStoredOne) {
  Set(u"Left", u"77");
  Set(u"Top", u"45");
  SavePlacement(Settings, {.Width = 16000, .Height = 8000});
  EXPECT_EQ(StoredPlacement(Settings),
            (WindowPlacement{.Left = 77, .Top = 45, .Width = 16000, .Height = 8000}));
}

TEST_F(StoredValuesTest, OnlyOneIsMaximized) {
  EXPECT_FALSE(StoredMaximized(Settings));
  for (const TextView stored : {u"0", u"", u"2", u"True", u"01", u" 1"}) {
    Set(u"Maximized", stored);
    EXPECT_FALSE(StoredMaximized(Settings));
  }
  Set(u"Maximized", u"1");
  EXPECT_TRUE(StoredMaximized(Settings));
}

TEST_F(StoredValuesTest, TheVerbIsOnUnlessSaidOtherwise) {
  EXPECT_TRUE(StoredContext(Settings));
  for (const TextView stored : {u"0", u"", u"2", u"off"}) {
    Set(u"Context", stored);
    EXPECT_FALSE(StoredContext(Settings));
  }
  Set(u"Context", u"1");
  EXPECT_TRUE(StoredContext(Settings));
}

}  // namespace
}  // namespace vorlane
