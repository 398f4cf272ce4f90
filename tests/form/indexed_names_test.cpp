#include "form/indexed_names.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "platform/failure.h"
#include "platform/letter_case.h"

namespace vorlane {
namespace {

std::set<std::int32_t> SlotsOf(const IndexedNames& names, TextView name, FolderId folder) {
  std::set<std::int32_t> slots;
  names.AnySlot(IndexedNames::KeyOf(name, folder), name, folder, [&](std::int32_t slot) {
    EXPECT_TRUE(slots.insert(slot).second);
    return false;
  });
  return slots;
}

FileRows RowsIn(const std::vector<TextView>& folders) {
  FileRows rows;
  for (const TextView folder : folders) {
    rows.Add({.Folder = rows.IdOf(folder)});
  }
  return rows;
}

TEST(IndexedNames, FindsByNameAndFolderWithoutRegardToCase) {
  FileRows rows = RowsIn({u"/a/", u"/a/", u"/b/", u"/a/"});
  IndexedNames names;
  names.Assign({u"x", u"X", u"x", u""});
  names.Refresh(rows);
  EXPECT_EQ(SlotsOf(names, u"x", rows.IdOf(u"/a/")), (std::set<std::int32_t>{0, 1}));
  EXPECT_EQ(SlotsOf(names, u"X", rows.IdOf(u"/b/")), (std::set<std::int32_t>{2}));
  EXPECT_EQ(SlotsOf(names, u"", rows.IdOf(u"/a/")), (std::set<std::int32_t>{}));
}

TEST(IndexedNames, ASearchEndsWhereTheVisitSaysSo) {
  FileRows rows = RowsIn({u"/a/", u"/a/"});
  IndexedNames names;
  names.Assign({u"x", u"x"});
  names.Refresh(rows);
  int visits = 0;
  const auto visit = [&](std::int32_t) { return ++visits == 1; };
  EXPECT_TRUE(names.AnySlot(IndexedNames::KeyOf(u"x", 0), u"x", 0, visit));
  EXPECT_EQ(visits, 1);
}

TEST(IndexedNames, NothingIsFoundBeforeARefresh) {
  IndexedNames names;
  EXPECT_EQ(SlotsOf(names, u"x", 0), (std::set<std::int32_t>{}));
  names.Assign({u"x"});
  names.Set(0, u"y");
  EXPECT_EQ(SlotsOf(names, u"y", 0), (std::set<std::int32_t>{}));
  names.Refresh(RowsIn({u"/a/"}));
  EXPECT_EQ(SlotsOf(names, u"y", 0), (std::set<std::int32_t>{0}));
}

TEST(IndexedNames, ASlotWithoutARowIsNeverFound) {
  IndexedNames names;
  names.Assign({u"x", u"x"});
  names.Refresh(RowsIn({u"/a/"}));
  EXPECT_EQ(SlotsOf(names, u"x", 0), (std::set<std::int32_t>{0}));
  names.Set(1, u"y");
  EXPECT_EQ(names[1], u"y");
  EXPECT_EQ(SlotsOf(names, u"y", 0), (std::set<std::int32_t>{}));
  EXPECT_THROW(names.Set(2, u"z"), RunError);
  EXPECT_THROW(names.Set(-1, u"z"), RunError);
}

// Random changes; what is found has to be what a look at every slot finds.
TEST(IndexedNames, AgreesWithASearchThroughAllSlots) {
  const TextView pool[] = {u"", u"a", u"A", u"b", u"(1)a", u"\u00E4", u"\u00C4", u"song.mp3"};
  const TextView folders[] = {u"/a/", u"/b/"};
  for (unsigned seed = 1; seed <= 200; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto pick = [&](std::size_t count) { return random() % count; };
    IndexedNames names;
    std::vector<Text> model(1 + pick(12));
    std::vector<FolderId> folderOf;
    FileRows rows;
    names.Assign(model);
    for (int step = 0; step < 60; ++step) {
      if (step % 20 == 0) {
        rows.Clear();
        folderOf.clear();
        for (std::size_t row = pick(14); row > 0; --row) {
          folderOf.push_back(rows.IdOf(folders[pick(2)]));
          rows.Add({.Folder = folderOf.back()});
        }
        names.Refresh(rows);
      }
      const std::size_t slot = pick(model.size());
      model[slot] = pool[pick(std::size(pool))];
      names.Set(static_cast<std::int32_t>(slot), model[slot]);

      const TextView wanted = pool[1 + pick(std::size(pool) - 1)];
      const auto folder = static_cast<FolderId>(pick(2));
      std::set<std::int32_t> expected;
      for (std::size_t i = 0; i < std::min(model.size(), folderOf.size()); ++i) {
        if (folderOf[i] == folder && EqualIgnoringCase(model[i], wanted)) {
          expected.insert(static_cast<std::int32_t>(i));
        }
      }
      ASSERT_EQ(SlotsOf(names, wanted, folder), expected);
    }
  }
}

}  // namespace
}  // namespace vorlane
