#include "filelist/file_list.h"

#include "filelist/wildcard.h"
#include "metadata/tag_reading.h"

namespace vorlane {

namespace {

// From this index on, adding rows to a visible list would cost more in repainting than in rows.
constexpr std::int32_t HighestIndexShown = 500;

std::int32_t SecondsSince(std::uint64_t start, Clock& clock) {
  return static_cast<std::int32_t>((clock.Milliseconds() - start) / 1000);
}

}  // namespace

void FileList::PathChangedEvent() {
  const std::uint64_t listing = ++listing_;
  const bool listed = ReportingFailures(services_.Report, FormName, u"PathChangedEvent", u"",
                                        [&] { RebuildList(); });
  if (!listed) {
    form_.SetPointer(MousePointer::Default);
  }
  if (listing == listing_) {
    FinishListing();
  }
}

void FileList::RebuildList() {
  const std::uint64_t listing = listing_;
  form_.LockControls();
  form_.Jobs.ListingState = JobState::Running;
  form_.SetPointer(MousePointer::ArrowHourglass);
  form_.View.ControlEnabled(FormControl::FileList, false);
  WaitForStop(form_.Jobs.PreviewState, 3, services_.Time, services_.Loop);
  form_.View.ControlEnabled(FormControl::FileList, true);

  form_.SetSorted(false);
  ListFolderContents();
  if (listing != listing_) {
    return;  // a newer listing ran inside this one; its rows and selection stand
  }
  if (form_.Rows.Selected() != 0) {
    form_.DeselectRow();
  }
  form_.SetSorted(true);
  form_.SuppressBoxEvents = true;
  EmptyFormulaBoxes();
  if (form_.Jobs.ListingState == JobState::Running && form_.Rows.Count() > 0) {
    form_.SelectRow(1);
    ++selectingFirstRow_;
    lstFileListItemClick();
    --selectingFirstRow_;
  }
}

void FileList::FinishListing() {
  form_.SetListCounter(form_.Rows.Count());
  form_.LastFileCount = form_.Rows.Count();
  form_.SetPointer(MousePointer::Default);
  form_.SuppressBoxEvents = false;
  form_.Jobs.ListingState = JobState::Idle;
  form_.UnlockControls();
}

// A formula gives the first five boxes new values with the new rows. The sixth keeps its text until
// the next click on a row.
void FileList::EmptyFormulaBoxes() {
  for (int box = 0; box < OptionBoxCount - 1; ++box) {
    const OptionBox& shown = form_.Boxes[static_cast<std::size_t>(box)];
    if (shown.Visible && shown.HasFormula()) {
      form_.SetBoxText(box, u"");
    }
  }
}

bool FileList::IsStopped(std::uint64_t listing) const {
  return form_.Jobs.ListingState == JobState::StopRequested || listing != listing_;
}

void FileList::ListFolderContents() {
  const std::uint64_t listing = listing_;
  form_.Rows.Clear();
  form_.View.RowsCleared();
  const Text folder = form_.CurrentPath;
  if (!PlainFileExists(services_.Files, folder) && !FolderExists(services_.Files, folder)) {
    return;
  }
  form_.CurrentNames.Assign({Text()});
  form_.SetStatus(u"Checking attributes and collecting files/folders...", 33);
  form_.SetListCounter(0);
  const auto start = services_.Time.Milliseconds();

  FolderWalk walk(form_, services_, form_.IncludeSubFolders, form_.ListFolders);
  if (!IsStopped(listing) && FolderExists(services_.Files, folder)) {
    walk.SearchFolders(folder, [&] { return IsStopped(listing); });
  }
  if (listing != listing_) {
    return;
  }
  AddRows(walk.Found());
  if (listing != listing_) {
    return;
  }
  form_.SetStatus(u"Ready - Time taken: " + FormatElapsed(SecondsSince(start, services_.Time)),
                  100);
}

void FileList::AddRows(std::vector<FoundEntry>& found) {
  const std::uint64_t listing = listing_;
  const auto count = static_cast<std::int32_t>(found.size());
  const bool hide = count - 1 > HighestIndexShown;
  if (hide) {
    form_.View.ListHidden(true);
  }
  std::vector<Text> names(found.empty() ? 1 : found.size());
  for (std::int32_t i = 0; i < count; ++i) {
    const auto place = static_cast<std::size_t>(i);
    names[place] = std::move(found[place].Name);
  }
  for (std::int32_t i = 0; i < count && !IsStopped(listing); ++i) {
    const auto place = static_cast<std::size_t>(i);
    if (MatchesWildcard(names[place], form_.WildCard)) {
      form_.Rows.Add({.Name = names[place],
                      .ReadOnly = found[place].ReadOnly ? YesNo::Yes : YesNo::No,
                      .Folder = found[place].Folder});
      form_.View.RowAdded(form_.Rows.Count());
      form_.SetListCounter(i + 1);
    } else {
      names[place].clear();
    }
    form_.SetStatus(u"Adding files, please wait...",
                    static_cast<int>(std::int64_t{i + 1} * 100 / count));
  }
  if (listing != listing_) {
    return;
  }
  if (hide) {
    form_.View.ListHidden(false);
  }
  form_.ProposedNames.Assign(std::vector<Text>(names.size()));
  form_.CurrentNames.Assign(std::move(names));
}

void FileList::lstFileListItemClick() {
  const bool done =
      ReportingFailures(services_.Report, FormName, u"lstFileListItemClick", u"", [&] {
        const std::int32_t row = form_.Rows.Selected();
        if (row == 0) {
          return;
        }
        const Text fullPath = form_.Rows.PathOf(row) + form_.Rows.At(row).Name;
        if (!FolderExists(services_.Files, fullPath) &&
            !PlainFileExists(services_.Files, fullPath)) {
          // The list is out of date. A row that vanishes as soon as it is listed must not make the
          // program list for ever.
          if (selectingFirstRow_ < 2) {
            PathChangedEvent();
          }
          return;
        }
        ID3Tag tagV1;
        ID3Tag tagV2;
        if (HasMp3Extension(form_.Rows.At(row).Name)) {
          ReadSelectedTags(row, fullPath, tagV1, tagV2);
        }
        form_.BoxEdited = false;
        preview_.UpdateBoxValues(row, tagV1, tagV2, true, true);
      });
  if (!done) {
    form_.BoxEdited = false;
  }
}

void FileList::ReadSelectedTags(std::int32_t row, const Text& fullPath, ID3Tag& tagV1,
                                ID3Tag& tagV2) {
  tagV1 = ReadID3v1(services_.Files, services_.Report, fullPath);
  tagV2 = ReadID3v2(services_.Files, services_.Report, fullPath);
  form_.SetTagCells(row, tagV1, tagV2);
  if (!tagV2.Present) {
    tagV2 = tagV1;
  }
}

std::int32_t FileList::CountFiles(TextView pattern) {
  const auto split = pattern.rfind(Separator(form_.Paths));
  if (split == TextView::npos) {
    return 0;
  }
  const TextView folder = pattern.substr(0, split + 1);
  const TextView wildcard = pattern.substr(split + 1);
  std::vector<Text> names;
  Attempt([&] { names = services_.Files.ListNames(folder); });
  std::int32_t count = 0;
  for (const Text& name : names) {
    if (MatchesSystemWildcard(name, wildcard) &&
        PlainFileExists(services_.Files, Text(folder) + name)) {
      ++count;
    }
  }
  return count;
}

}  // namespace vorlane
