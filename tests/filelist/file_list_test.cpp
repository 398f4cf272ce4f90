// PathChangedEvent, the click on a row, and the count of files.
#include "filelist/file_list.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/form_world.h"

namespace vorlane {
namespace {

using Names = std::vector<Text>;

TEST(Listing, ShowsNameFolderAndReadOnly) {
  MemoryWorld on;
  on.Disk.Write(u"/R/b");
  on.Disk.Write(u"/R/a");
  on.Disk.SetReadOnly(u"/R/b");
  on.World.ListAll(u"/R/");
  const FileRows& rows = on.World.State.Rows;
  ASSERT_EQ(rows.Count(), 2);
  EXPECT_EQ(rows.CellText(1, Column::CurrentName), u"a");
  EXPECT_EQ(rows.CellText(1, Column::ReadOnly), u"No");
  EXPECT_EQ(rows.CellText(2, Column::ReadOnly), u"Yes");
  EXPECT_EQ(rows.CellText(2, Column::Path), u"/R/");
  for (const Column column :
       {Column::ProposedName, Column::Artist, Column::Title, Column::ID3v1, Column::ID3v2}) {
    EXPECT_EQ(rows.CellText(2, column), u"");
  }
}

TEST(Listing, AWildcardEmptiesTheSlotsOfTheOthers) {
  MemoryWorld on;
  on.World.State.WildCard = u"*.MP3";
  on.ListFiles({u"a.txt", u"b.mp3", u"c"});
  EXPECT_EQ(on.World.Names(), (Names{u"b.mp3"}));
  ASSERT_EQ(on.World.State.CurrentNames.Count(), 3);
  EXPECT_EQ(on.World.State.CurrentNames[0], u"");
  EXPECT_EQ(on.World.State.CurrentNames[1], u"b.mp3");
  EXPECT_EQ(on.World.State.ProposedNames.Count(), 3);
}

TEST(Listing, NoFindsGiveNoRowsAndOneSlot) {
  MemoryWorld on;
  on.ListFiles({});
  EXPECT_EQ(on.World.State.Rows.Count(), 0);
  EXPECT_EQ(on.World.State.CurrentNames.Count(), 1);
  EXPECT_EQ(on.World.State.ProposedNames.Count(), 1);
}

TEST(Listing, FolderModeShowsFoldersWithTheirParent) {
  MemoryWorld on;
  on.Disk.MakeFolder(u"/R/x/y");
  on.Disk.Write(u"/R/file");
  on.Disk.SetReadOnly(u"/R/x/y");
  on.World.State.ListFolders = true;
  on.World.State.IncludeSubFolders = true;
  on.World.ListAll(u"/R/");
  const FileRows& rows = on.World.State.Rows;
  EXPECT_EQ(on.World.Names(), (Names{u"x", u"y"}));
  EXPECT_EQ(rows.PathOf(2), u"/R/x/");
  EXPECT_EQ(rows.CellText(2, Column::ReadOnly), u"Yes");
  EXPECT_EQ(on.World.State.HeldFileStatus, u"2 Folder(s)");
  on.World.State.WildCard = u"y*";  // applies to folder names too
  on.World.ListAll(u"/R/");
  EXPECT_EQ(on.World.Names(), (Names{u"y"}));
}

TEST(Listing, AFolderThatHasGoneGivesAnEmptyListAndNoWord) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.State.SetStatusText(u"as before");
  on.World.ListAll(u"/gone/");
  EXPECT_EQ(on.World.State.Rows.Count(), 0);
  EXPECT_EQ(on.World.State.Status, u"as before");
  on.World.ListAll(u"");
  EXPECT_EQ(on.World.State.Rows.Count(), 0);
  EXPECT_TRUE(on.World.Report.Reports.empty());
}

TEST(Listing, APlainFileInPlaceOfAFolderGivesAnEmptyList) {
  MemoryWorld on;
  on.Disk.Write(u"/R/file");
  on.World.ListAll(u"/R/file");
  EXPECT_EQ(on.World.State.Rows.Count(), 0);
  EXPECT_EQ(on.World.State.Status, u"Ready - Time taken: 00:00");
}

TEST(Listing, TheListIsHiddenFrom502EntriesOn) {
  for (const int count : {501, 502}) {
    MemoryWorld on;
    Names names;
    for (int i = 0; i < count; ++i) {
      names.push_back(DecimalText(i));
    }
    on.ListFiles(names);
    EXPECT_EQ(on.World.View.Has(u"list hidden"), count == 502);
    EXPECT_EQ(on.World.View.Has(u"list shown"), count == 502);
  }
}

TEST(Listing, TellsWhatItDoesAndYieldsForEachEntry) {
  MemoryWorld on;
  on.Disk.MakeFolder(u"/R/");
  on.Disk.Write(u"/R/a");
  on.Disk.Write(u"/R/b");
  on.Disk.Write(u"/R/c");
  on.World.ListAll(u"/R/");
  // Once for each status, and once for the folder that is read.
  EXPECT_EQ(on.World.Loop.Yields, 6U);
  EXPECT_EQ(on.World.View.Statuses,
            (Names{u"Checking attributes and collecting files/folders...",
                   u"Adding files, please wait...", u"Adding files, please wait...",
                   u"Adding files, please wait...", u"Ready - Time taken: 00:00"}));
  EXPECT_EQ(on.World.View.Percents, (std::vector<std::int32_t>{33, 33, 66, 100, 100}));
  EXPECT_EQ(on.World.State.HeldFileStatus, u"3 File(s)");
  EXPECT_EQ(on.World.State.LastFileCount, 3);
}

TEST(Listing, TheTimeTakenIsCutToWholeSeconds) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a");
  on.World.Loop.OnYield = [&] {
    if (on.World.State.Status == u"Adding files, please wait...") {
      on.World.Time.Ms += 61999;
    }
  };
  on.World.ListAll(u"/R/");
  EXPECT_EQ(on.World.State.Status, u"Ready - Time taken: 01:01");
}

TEST(Listing, AStopWhileCollectingAddsNoRows) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a");
  on.Disk.Write(u"/R/x/b");
  on.World.State.IncludeSubFolders = true;
  on.World.Loop.OnYield = [&] { on.World.State.Jobs.RequestStop(); };
  on.World.ListAll(u"/R/");
  EXPECT_EQ(on.World.State.Rows.Count(), 0);
  EXPECT_EQ(on.World.State.Status, u"Ready - Time taken: 00:00");
  EXPECT_EQ(on.World.State.Jobs.ListingState, JobState::Idle);
}

TEST(Listing, AStopWhileAddingKeepsTheRowsSoFarAndSelectsNone) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a");
  on.Disk.Write(u"/R/b");
  on.Disk.Write(u"/R/c");
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.Loop.OnYield = [&] {
    if (on.World.State.Rows.Count() == 2) {
      on.World.State.Jobs.RequestStop();
    }
  };
  on.World.ListAll(u"/R/");
  EXPECT_EQ(on.World.Names(), (Names{u"a", u"b"}));
  EXPECT_EQ(on.World.State.Rows.Selected(), 0);
  EXPECT_EQ(on.World.Proposed(), (Names{u"", u""}));
}

TEST(Listing, SortsByTheColumnAndOrderInForce) {
  MemoryWorld on;
  on.World.State.Rows.SetSort(Column::CurrentName, SortOrder::Descending);
  on.ListFiles({u"a", u"b"});
  EXPECT_EQ(on.World.Names(), (Names{u"b", u"a"}));
  EXPECT_EQ(on.World.State.CurrentNames[0], u"a");  // stays in finding order
}

TEST(Listing, SelectsTheFirstRowAndPreviewsWhatIsVisible) {
  MemoryWorld on;
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.View.CountPerPage = 0;
  on.ListFiles({u"a", u"b", u"c"});
  EXPECT_EQ(on.World.State.Rows.Selected(), 1);
  EXPECT_EQ(on.World.Proposed(), (Names{u"xa", u"", u""}));
}

TEST(Listing, EmptiesTheFormulaBoxesOneToFive) {
  MemoryWorld on;
  for (int number = 1; number <= 6; ++number) {
    on.World.ShowBox(number, u"kept", number == 2 ? u"" : u"<NAMEONLY>");
  }
  on.World.State.Boxes[2].BoxCode = u"Registry(key)";
  on.World.State.Boxes[3].Visible = false;
  on.World.ListAll(u"/gone/");
  const Names contents = [&] {
    Names all;
    for (const OptionBox& box : on.World.State.Boxes) {
      all.push_back(box.Content);
    }
    return all;
  }();
  EXPECT_EQ(contents, (Names{u"", u"kept", u"kept", u"kept", u"", u"kept"}));
}

TEST(Listing, BracketsTheWorkWithLockedControls) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a");
  on.World.State.UndoEnabled = true;
  bool locked = true;
  on.World.Loop.OnYield = [&] {
    locked = locked && on.World.State.StopVisible &&
             on.World.State.Pointer != MousePointer::Default &&
             on.World.State.Jobs.ListingState == JobState::Running;
  };
  on.World.ListAll(u"/R/");
  EXPECT_TRUE(locked);
  EXPECT_FALSE(on.World.State.StopVisible);
  EXPECT_FALSE(on.World.State.UndoEnabled);
  EXPECT_FALSE(on.World.State.SuppressBoxEvents());
  EXPECT_EQ(on.World.State.Pointer, MousePointer::Default);
}

TEST(Listing, AsksARunningPreviewToStop) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.World.SelectSteps({u"x<FILENAME>"});
  bool listed = false;
  on.World.Loop.OnYield = [&] {
    if (!listed && !on.World.State.Rows.At(1).Proposed.empty()) {
      listed = true;
      const auto start = on.World.Time.Ms;
      on.World.List.PathChangedEvent();
      // The listing gives up on it after three seconds; so does the preview of the first row.
      EXPECT_EQ(on.World.Time.Ms - start, 6000U);
    }
  };
  on.World.PreviewAll();
  EXPECT_TRUE(listed);
  EXPECT_EQ(on.World.Proposed(), (Names{u"xa", u"xb"}));
}

TEST(Listing, AListingInsideAListingIsTheOneThatCounts) {
  MemoryWorld on;
  on.Disk.Write(u"/old/a");
  on.Disk.Write(u"/old/b");
  on.Disk.Write(u"/new/c");
  bool changed = false;
  on.World.Loop.OnYield = [&] {
    if (!changed && on.World.State.Rows.Count() == 1) {
      changed = true;
      on.World.ListAll(u"/new/");
    }
  };
  on.World.ListAll(u"/old/");
  EXPECT_EQ(on.World.Names(), (Names{u"c"}));
  EXPECT_EQ(on.World.State.Rows.PathOf(1), u"/new/");
  EXPECT_EQ(on.World.State.Rows.Selected(), 1);
  EXPECT_EQ(on.World.State.LastFileCount, 1);
  EXPECT_EQ(on.World.State.Jobs.ListingState, JobState::Idle);
}

TEST(Listing, AFailureInsideTheListingItselfIsNotReported) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a");
  on.World.Loop.OnYield = [&] {
    if (on.World.State.Rows.Count() == 0) {
      throw RunError(ErrorNumber::DeviceError);
    }
  };
  on.World.ListAll(u"/R/");
  EXPECT_TRUE(on.World.Report.Reports.empty());
  EXPECT_EQ(on.World.Names(), (Names{u"a"}));
}

// A preview lies below the listing and never answers; the wait for it fails.
TEST(Listing, AnyOtherFailureIsReportedWithThePointerBackAndTheTailStillRuns) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a");
  on.World.State.Jobs.PreviewState = JobState::Running;
  on.World.Loop.OnYield = [&] { throw RunError(ErrorNumber::DeviceError); };
  on.World.ListAll(u"/R/");
  EXPECT_EQ(on.World.Report.Reports,
            (std::vector<RecordingReport::Report>{{u"frmMain", u"PathChangedEvent", u"", 57}}));
  EXPECT_EQ(on.World.State.Jobs.ListingState, JobState::Idle);
  EXPECT_EQ(on.World.State.Pointer, MousePointer::Default);
  EXPECT_FALSE(on.World.State.StopVisible);
  EXPECT_FALSE(on.World.State.SuppressBoxEvents());
}

TEST(Listing, GoesByWhatTheFormHeldAtItsStart) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a.txt");
  on.Disk.Write(u"/R/b.mp3");
  on.World.Loop.OnYield = [&] { on.World.State.WildCard = u"*.mp3"; };
  on.World.ListAll(u"/R/");
  EXPECT_EQ(on.World.Names(), (Names{u"a.txt", u"b.mp3"}));
}

TEST(Listing, TheCounterCountsEntriesAndNotRows) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a.txt");
  on.Disk.Write(u"/R/b.mp3");
  on.World.State.WildCard = u"*.mp3";
  Names held;
  on.World.Loop.OnYield = [&] { held.push_back(on.World.State.HeldFileStatus); };
  on.World.ListAll(u"/R/");
  EXPECT_NE(std::find(held.begin(), held.end(), u"0 File(s)"), held.end());
  EXPECT_NE(std::find(held.begin(), held.end(), u"2 File(s)"), held.end());
  EXPECT_EQ(on.World.State.HeldFileStatus, u"1 File(s)");
}

TEST(Listing, ASelectionMadeInTheMiddleDoesNotStay) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a");
  on.Disk.Write(u"/R/b");
  on.World.Loop.OnYield = [&] {
    if (on.World.State.Rows.Count() == 1) {
      on.World.State.SelectRow(1);
      on.World.State.Jobs.RequestStop();
    }
  };
  on.World.ListAll(u"/R/");
  EXPECT_EQ(on.World.State.Rows.Selected(), 0);
}

// A favorite or a drop can list another folder from any yield of a listing. Whenever it comes, the
// newer list stands, whole and in order, and nothing of the older one is left behind.
TEST(Listing, ANewerListingStandsWheneverItComes) {
  bool reachedEnd = false;
  for (std::size_t at = 1; !reachedEnd; ++at) {
    SCOPED_TRACE("yield " + std::to_string(at));
    MemoryWorld on;
    for (int i = 0; i < 510; i += 100) {
      on.Disk.Write(u"/old/x" + DecimalText(i) + u"/f");
    }
    on.Disk.Write(u"/old/a");
    on.Disk.Write(u"/new/b");
    on.Disk.Write(u"/new/a");
    on.World.State.IncludeSubFolders = true;
    on.World.SelectSteps({u"x<FILENAME>"});
    on.World.ShowBox(1, u"", u"<MID><NAMEONLY>|||</MID>");
    if (at % 2 == 0) {
      on.World.State.Jobs.PreviewState = JobState::Running;  // one that never answers lies below
    }
    std::size_t yields = 0;
    bool nested = false;
    on.World.Loop.OnYield = [&] {
      if (++yields == at) {
        nested = true;
        on.World.ListAll(u"/new/");
      }
    };
    on.World.ListAll(u"/old/");
    reachedEnd = !nested;
    const Form& form = on.World.State;
    if (nested) {
      ASSERT_EQ(on.World.Names(), (Names{u"a", u"b"}));
      ASSERT_EQ(form.HeldFileStatus, u"2 File(s)");
      ASSERT_EQ(form.LastFileCount, 2);
    }
    ASSERT_TRUE(form.Rows.Sorted());
    ASSERT_EQ(form.Rows.Selected(), 1);
    ASSERT_EQ(form.Rows.At(1).Proposed, u"x" + form.Rows.At(1).Name);
    ASSERT_FALSE(form.SuppressBoxEvents());
    ASSERT_EQ(form.Jobs.ListingState, JobState::Idle);
    ASSERT_FALSE(form.StopVisible);
    ASSERT_TRUE(on.World.Report.Reports.empty());
    ASSERT_LT(at, 1000U);
  }
}

TEST(Listing, AHiddenListIsShownAgainWhenANewerOneComes) {
  MemoryWorld on;
  for (int i = 0; i < 502; ++i) {
    on.Disk.Write(u"/old/" + DecimalText(i));
  }
  on.Disk.Write(u"/new/a");
  bool nested = false;
  on.World.Loop.OnYield = [&] {
    if (!nested && on.World.State.Rows.Count() == 10) {
      nested = true;
      on.World.ListAll(u"/new/");
    }
  };
  on.World.ListAll(u"/old/");
  EXPECT_TRUE(nested);
  EXPECT_TRUE(on.World.View.Has(u"list hidden"));
  EXPECT_TRUE(on.World.View.Has(u"list shown"));
}

TEST(RowClick, WithoutASelectionDoesNothing) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.State.DeselectRow();
  on.Disk.ForgetCalls();
  on.World.List.lstFileListItemClick();
  EXPECT_EQ(on.Disk.CallCount, 0U);
}

TEST(RowClick, ShowsTheRowsBoxValuesAndForgetsTypedText) {
  MemoryWorld on;
  on.ListFiles({u"a.txt", u"b.txt"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.ShowBox(1, u"typed", u"<NAMEONLY>");
  on.World.State.DoAll = false;
  on.World.State.BoxEdited = true;
  on.World.State.SelectRow(2);
  on.World.List.lstFileListItemClick();
  EXPECT_FALSE(on.World.State.BoxEdited);
  EXPECT_EQ(on.World.State.Boxes[0].Content, u"b");
  EXPECT_EQ(on.World.Proposed(), (Names{u"xa.txt", u"xb.txt"}));
}

TEST(RowClick, OnAVanishedEntryRebuildsTheListWithoutAWord) {
  MemoryWorld on;
  on.ListFiles({u"a", u"b"});
  on.Disk.Remove(u"/R/b");
  on.World.State.SelectRow(2);
  on.World.List.lstFileListItemClick();
  EXPECT_EQ(on.World.Names(), (Names{u"a"}));
  EXPECT_TRUE(on.World.Report.Reports.empty());
}

TEST(RowClick, ARowThatVanishesAsSoonAsItIsListedDoesNotListForEver) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a");
  int listings = 0;
  on.Disk.BeforeCall = [&](const CallInfo& call) {
    if (call.Method == u"ListFolder" && ++listings > 10) {
      throw std::logic_error("lists for ever");
    }
    if (call.Method == u"StatusOf" && call.Path == u"/R/a") {
      throw RunError(ErrorNumber::PathAccess);
    }
  };
  on.World.ListAll(u"/R/");
  EXPECT_EQ(listings, 1);
  on.Disk.BeforeCall = [&](const CallInfo& call) {
    if (call.Method == u"ListFolder" && ++listings > 10) {
      throw std::logic_error("lists for ever");
    }
    if (call.Method == u"ListFolder") {
      on.Disk.Write(u"/R/a");
    } else if (call.Path == u"/R/a" && on.Disk.Exists(u"/R/a")) {
      on.Disk.Remove(u"/R/a");
    }
  };
  listings = 0;
  on.World.ListAll(u"/R/");
  EXPECT_EQ(listings, 2);
}

// The message box about an unreadable file lets timers run.
TEST(RowClick, AListingWhileTheTagsAreReadKeepsItsOwnRows) {
  MemoryWorld on;
  on.ListFiles({u"a.mp3", u"b.mp3"});
  on.World.SelectSteps({u"x<FILENAME>"});
  on.World.ShowBox(1, u"typed", u"<NAMEONLY>");
  on.World.State.DoAll = false;
  on.World.State.SelectRow(2);
  on.Disk.BeforeCall = [&](const CallInfo& call) {
    if (call.Path == u"/R/b.mp3" && call.Method.starts_with(u"Open")) {
      on.Disk.BeforeCall = nullptr;
      on.Disk.Write(u"/R/aa.txt");
      on.World.List.PathChangedEvent();
      on.World.State.Boxes[0].Content = u"of the new list";
    }
  };
  on.World.List.lstFileListItemClick();
  EXPECT_EQ(on.World.Names(), (Names{u"a.mp3", u"aa.txt", u"b.mp3"}));
  EXPECT_EQ(on.World.State.Rows.At(2).ID3v1, YesNo::Unknown);
  EXPECT_EQ(on.World.State.Boxes[0].Content, u"of the new list");
}

TEST(RowClick, AFailureIsReportedAndTypedTextForgotten) {
  MemoryWorld on;
  on.ListFiles({u"a"});
  on.World.State.BoxEdited = true;
  on.Disk.BeforeCall = [](const CallInfo&) { throw RunError(ErrorNumber::PathAccess); };
  on.World.List.lstFileListItemClick();
  EXPECT_EQ(on.World.Report.Reports,
            (std::vector<RecordingReport::Report>{{u"frmMain", u"lstFileListItemClick", u"", 75}}));
  EXPECT_FALSE(on.World.State.BoxEdited);
}

TEST(CountFiles, CountsPlainVisibleFilesOfTheFolderAlone) {
  MemoryWorld on;
  for (const Text name : {u"a.mp3", u"b.MP3", u"c.txt", u".d.mp3", u"UNDORENAME.TXT", u"x/e.mp3"}) {
    on.Disk.Write(u"/R/" + name);
  }
  on.Disk.MakeFolder(u"/R/f.mp3");
  const std::pair<Text, std::int32_t> cases[] = {
      {u"/R/*.mp3", 2}, {u"/R/*.*", 3}, {u"/R/c.txt", 1}, {u"/R/[ab].mp3", 0},
      {u"/R/", 0},      {u"", 0},       {u"/gone/*", 0},  {u"/R/x/*", 1},
  };
  for (const auto& [pattern, count] : cases) {
    EXPECT_EQ(on.World.List.CountFiles(pattern), count) << testing::PrintToString(pattern);
  }
}

TEST(CountFiles, LooksOnlyAtNamesThatMatch) {
  MemoryWorld on;
  on.Disk.Write(u"/R/a.mp3");
  on.Disk.Write(u"/R/b.txt");
  on.Disk.ForgetCalls();
  on.World.List.CountFiles(u"/R/*.mp3");
  EXPECT_EQ(on.Disk.Calls, (Names{u"ListNames /R/", u"StatusOf /R/a.mp3"}));
}

}  // namespace
}  // namespace vorlane
