#include "preview/name_collisions.h"

#include <gtest/gtest.h>

#include <random>

#include "support/form_world.h"
#include "support/literal_collisions.h"

namespace vorlane {
namespace {

// A form whose rows are listed and whose preview counts as running.
struct Collisions : MemoryWorld {
  explicit Collisions(const std::vector<Text>& names) : Names(World.State, World.Outside) {
    ListFiles(names);
    World.State.Jobs.PreviewState = JobState::Running;
    Names.StartPass();
  }
  NameCollisions Names;
};

TEST(IsNameTaken, YieldsOnceAndAnswersOnlyWhileAPreviewRuns) {
  Collisions on({u"a", u"b"});
  const auto before = on.World.Loop.Yields;
  EXPECT_TRUE(on.Names.IsNameTaken(u"b", 1));
  EXPECT_EQ(on.World.Loop.Yields, before + 1);
  on.World.State.Jobs.PreviewState = JobState::StopRequested;
  EXPECT_FALSE(on.Names.IsNameTaken(u"b", 1));
}

TEST(IsNameTaken, AnEmptyListTakesNoName) {
  Collisions on({});
  EXPECT_FALSE(on.Names.IsNameTaken(u"a", 1));
}

TEST(IsNameTaken, AnEarlierRowsProposalCountsALaterOnesDoesNot) {
  Collisions on({u"a", u"b", u"c"});
  on.World.State.SetProposedName(2, u"New");
  EXPECT_FALSE(on.Names.IsNameTaken(u"new", 1));
  EXPECT_FALSE(on.Names.IsNameTaken(u"new", 2));
  EXPECT_TRUE(on.Names.IsNameTaken(u"new", 3));
}

TEST(IsNameTaken, ALaterRowStillHasItsName) {
  Collisions on({u"a", u"b"});
  on.World.State.SetProposedName(2, u"moved away");
  EXPECT_TRUE(on.Names.IsNameTaken(u"B", 1));
}

TEST(IsNameTaken, AnEarlierRowThatKeepsItsNameHasIt) {
  Collisions on({u"a", u"b"});
  EXPECT_FALSE(on.Names.IsNameTaken(u"a", 2));  // nothing proposed: it may move away
  on.World.State.SetProposedCell(1, u"A");
  EXPECT_TRUE(on.Names.IsNameTaken(u"a", 2));
  on.World.State.SetProposedCell(1, u"<Read Only>");
  EXPECT_FALSE(on.Names.IsNameTaken(u"a", 2));
}

TEST(IsNameTaken, FoldersCompareExactly) {
  MemoryWorld on;
  on.Disk.Write(u"/R/x/a");
  on.Disk.Write(u"/R/X/b");
  on.World.State.IncludeSubFolders = true;
  on.World.ListAll(u"/R/");
  on.World.State.Jobs.PreviewState = JobState::Running;
  NameCollisions names(on.World.State, on.World.Outside);
  names.StartPass();
  on.World.State.SetProposedName(1, u"same");
  EXPECT_FALSE(names.IsNameTaken(u"same", 2));
}

TEST(IsNameTaken, OnlyAHidingWildcardAsksTheDisk) {
  MemoryWorld on;
  on.Disk.Write(u"/R/other.txt");
  on.Disk.MakeFolder(u"/R/folder");
  on.World.State.WildCard = u"*.mp3";
  on.ListFiles({u"a.mp3"});
  on.World.State.Jobs.PreviewState = JobState::Running;
  NameCollisions names(on.World.State, on.World.Outside);
  names.StartPass();
  EXPECT_TRUE(names.IsNameTaken(u"other.txt", 1));
  EXPECT_FALSE(names.IsNameTaken(u"folder", 1));  // a plain file is looked for
  on.Disk.ForgetCalls();
  on.World.State.WildCard = u"*.*";
  EXPECT_FALSE(names.IsNameTaken(u"other.txt", 1));
  EXPECT_EQ(on.Disk.CallCount, 0U);
}

TEST(IsNameTaken, ASortInTheMiddleOfAPassIsNoticed) {
  Collisions on({u"a", u"b"});
  on.World.State.SetProposedName(1, u"new");
  on.World.State.Rows.SetSort(Column::CurrentName, SortOrder::Descending);
  LiteralCollisions literal(on.World.State, on.Disk);
  for (std::int32_t row : {1, 2}) {
    for (const Text name : {u"a", u"b", u"new"}) {
      EXPECT_EQ(on.Names.IsNameTaken(name, row), literal.IsNameTaken(u"/R/", name, row));
    }
  }
}

TEST(MakeNameUnique, PutsTheLowestFreeNumberInFront) {
  Collisions on({u"!a", u"!b", u"!c", u"(2)song.mp3"});
  EXPECT_EQ(on.Names.MakeNameUnique(u"song.mp3", 1), u"(1)song.mp3");
  on.World.State.SetProposedName(1, u"(1)SONG.mp3");
  EXPECT_EQ(on.Names.MakeNameUnique(u"song.mp3", 2), u"(3)song.mp3");
}

TEST(MakeNameUnique, ANumberThatALaterRowHeldIsFreeBehindThatRow) {
  // Sorted: "(1)x" comes first and moves away, so its name is free for the rows below it.
  Collisions on({u"(1)x", u"(2)x", u"c", u"d"});
  on.World.State.SetProposedName(1, u"gone");
  on.World.State.SetProposedName(2, u"gone too");
  EXPECT_EQ(on.Names.MakeNameUnique(u"x", 2), u"(1)x");
  on.World.State.SetProposedName(3, u"(1)x");
  EXPECT_EQ(on.Names.MakeNameUnique(u"x", 4), u"(2)x");
}

// The cost of names that all collide: a few name tests a row, however many rows there are, also if
// a number is held by a file outside the list or by a row further down.
TEST(MakeNameUnique, AsksAFewTimesARow) {
  constexpr std::size_t Rows = 1000;
  for (const Text held : {u"", u"(1)x", u"z(1)x"}) {
    MemoryWorld on;
    for (std::size_t i = 0; i < Rows; ++i) {
      on.Disk.Write(u"/R/f" + DecimalText(static_cast<std::int64_t>(10'000 + i)));
    }
    if (!held.empty()) {
      on.Disk.Write(u"/R/" + held);
    }
    on.World.State.WildCard = held == u"(1)x" ? u"f*" : u"*.*";
    on.World.ListAll(u"/R/");
    on.World.SelectSteps({u"<MID>x|||</MID>"});
    on.World.Loop.Yields = 0;
    on.World.PreviewAll();
    EXPECT_LT(on.World.Loop.Yields, 8 * Rows) << testing::PrintToString(held);
  }
}

TEST(MakeNameUnique, NamesHeldByManyLaterRowsAreAskedForOnce) {
  constexpr std::size_t Rows = 1000;
  MemoryWorld on;
  for (std::size_t i = 1; i <= Rows; ++i) {
    on.Disk.Write(u"/R/(" + DecimalText(static_cast<std::int64_t>(i)) + u")x");
  }
  on.World.State.Rows.SetSort(Column::CurrentName, SortOrder::Descending);
  on.World.ListAll(u"/R/");
  on.World.SelectSteps({u"<MID>x|||</MID>"});
  on.World.Loop.Yields = 0;
  on.World.PreviewAll();
  EXPECT_LT(on.World.Loop.Yields, 8 * Rows);
}

// Random lists with few different names, so that everything collides with everything; also sorted
// against finding order, with sub-folders and with a wildcard that hides entries.
TEST(NameCollisions, AgreeWithTheSearchThroughAllSlots) {
  const unsigned seed = 20261121;
  SCOPED_TRACE(seed);
  std::mt19937 random(seed);
  const auto anyOf = [&](std::initializer_list<const char16_t*> texts) {
    return Text(*(texts.begin() + random() % texts.size()));
  };
  for (int round = 0; round < 300; ++round) {
    MemoryWorld on;
    for (int file = 0; file < 14; ++file) {
      on.Disk.Write(u"/R/" + anyOf({u"", u"x/", u"X/"}) + anyOf({u"", u"(1)", u"(2)", u"(3)"}) +
                    anyOf({u"a", u"B", u"c.mp3", u"d.mp3"}));
    }
    Form& form = on.World.State;
    form.IncludeSubFolders = true;
    form.WildCard = random() % 2 == 0 ? u"*.*" : u"*.mp3";
    form.Rows.SetSort(random() % 2 == 0 ? Column::Path : Column::CurrentName,
                      random() % 2 == 0 ? SortOrder::Ascending : SortOrder::Descending);
    on.World.ListAll(u"/R/");
    form.Jobs.PreviewState = JobState::Running;
    NameCollisions indexed(form, on.World.Outside);
    LiteralCollisions literal(form, on.Disk);
    for (int pass = 0; pass < 2; ++pass) {
      indexed.StartPass();
      for (std::int32_t row = 1; row <= form.Rows.Count(); ++row) {
        const Text path = form.Rows.PathOf(row);
        const Text name = anyOf({u"a", u"b", u"C.mp3", u"d.mp3", u"(1)a"});
        const bool taken = indexed.IsNameTaken(name, row);
        ASSERT_EQ(taken, literal.IsNameTaken(path, name, row));
        const Text unique = indexed.MakeNameUnique(name, row);
        ASSERT_EQ(unique, literal.MakeNameUnique(path, name, row));
        if (random() % 8 == 0) {
          form.SetProposedCell(row, u"<Read Only>");
        } else {
          form.SetProposedName(row, taken ? unique : name);
        }
      }
    }
  }
}

}  // namespace
}  // namespace vorlane
