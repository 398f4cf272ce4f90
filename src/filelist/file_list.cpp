#include "filelist/file_list.h"

#include "filelist/wildcard.h"
#include "form/status_texts.h"
#include "platform/interface_texts.h"
#include "preview/row_tags.h"

namespace vorlane {

namespace {

// A list with a higher index than this is hidden while rows are added: repainting would cost more
// than the rows.
constexpr std::int32_t HighestIndexShown = 500;

class HiddenList {
 public:
  explicit HiddenList(FormView& view) : view_(view) { view_.ListHidden(true); }
  ~HiddenList() { view_.ListHidden(false); }
  HiddenList(const HiddenList&) = delete;
  HiddenList& operator=(const HiddenList&) = delete;

 private:
  FormView& view_;
};

// Counts itself in while it lives.
class CountedIn {
 public:
  explicit CountedIn(int& count) : count_(count) { ++count_; }
  ~CountedIn() { --count_; }
  CountedIn(const CountedIn&) = delete;
  CountedIn& operator=(const CountedIn&) = delete;

 private:
  int& count_;
};

std::int32_t SecondsSince(std::uint64_t start, Clock& clock) {
  return static_cast<std::int32_t>((clock.Milliseconds() - start) / 1000);
}

}  // namespace

void FileList::PathChangedEvent() {
  const std::uint64_t listing = ++listing_;
  std::optional<QuietBoxes> quiet;
  ReportingFailures(services_.Report, FormName, u"PathChangedEvent", u"", [&] {
    try {
      RebuildList(listing, quiet);
    } catch (const RunError&) {
      form_.SetPointer(MousePointer::Default);  // before a report that may wait for the user
      throw;
    }
  });
  if (listing == listing_) {
    FinishListing();
  }
}

void FileList::RebuildList(std::uint64_t listing, std::optional<QuietBoxes>& quiet) {
  form_.LockControls();
  form_.Jobs.ListingState = JobState::Running;
  form_.SetPointer(MousePointer::ArrowHourglass);
  const ListingInputs inputs{form_.CurrentPath, form_.WildCard, form_.IncludeSubFolders,
                             form_.ListFolders};
  form_.View.ControlEnabled(FormControl::FileList, false);
  WaitForStop(form_.Jobs.PreviewState, 3, services_.Time, services_.Loop);
  form_.View.ControlEnabled(FormControl::FileList, true);
  // From each yield on, a newer listing may have run inside this one; its list then stands.
  if (listing != listing_) {
    return;
  }
  form_.SetSorted(false);
  ListFolderContents(listing, inputs);
  if (listing != listing_) {
    return;
  }
  if (form_.Rows.Selected() != 0) {
    form_.DeselectRow();
  }
  form_.SetSorted(true);
  quiet.emplace(form_);
  EmptyFormulaBoxes();
  if (form_.Jobs.ListingState == JobState::Running && form_.Rows.Count() > 0) {
    form_.SelectRow(1);
    const CountedIn selecting(selectingFirstRow_);
    lstFileListItemClick();
  }
}

void FileList::FinishListing() {
  form_.SetListCounter(form_.Rows.Count());
  form_.LastFileCount = form_.Rows.Count();
  form_.SetPointer(MousePointer::Default);
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

void FileList::ListFolderContents(std::uint64_t listing, const ListingInputs& inputs) {
  form_.Rows.Clear();
  form_.View.RowsCleared();
  if (!PlainFileExists(services_.Files, inputs.Folder) &&
      !FolderExists(services_.Files, inputs.Folder)) {
    return;
  }
  form_.CurrentNames.Assign({Text()});
  Attempt([&] { form_.SetStatus(InterfaceText(TextNumber::CollectingFiles), 33); });
  if (listing != listing_) {
    return;
  }
  form_.SetListCounter(0);
  const auto start = services_.Time.Milliseconds();

  FolderWalk walk(form_, services_, inputs.IncludeSubFolders, inputs.ListFolders);
  Attempt([&] {
    if (!IsStopped(listing) && FolderExists(services_.Files, inputs.Folder)) {
      walk.SearchFolders(inputs.Folder, [&] { return IsStopped(listing); });
    }
  });
  if (listing != listing_) {
    return;
  }
  Attempt([&] { AddRows(listing, walk.Found(), inputs.WildCard); });
  if (listing != listing_) {
    return;
  }
  form_.SetStatus(ReadyAfterText(SecondsSince(start, services_.Time)), 100);
}

void FileList::AddRows(std::uint64_t listing, std::vector<FoundEntry>& found,
                       const Text& wildcard) {
  const auto count = static_cast<std::int32_t>(found.size());
  std::vector<Text> names(found.empty() ? 1 : found.size());
  for (std::size_t place = 0; place < found.size(); ++place) {
    names[place] = found[place].Name;
  }
  form_.ProposedNames.Assign(std::vector<Text>(names.size()));
  form_.CurrentNames.Assign(std::move(names));
  std::optional<HiddenList> hidden;
  if (count - 1 > HighestIndexShown) {
    hidden.emplace(form_.View);
  }
  for (std::int32_t i = 0; i < count && !IsStopped(listing); ++i) {
    FoundEntry& entry = found[static_cast<std::size_t>(i)];
    if (MatchesWildcard(entry.Name, wildcard)) {
      form_.Rows.Add({.Name = std::move(entry.Name),
                      .ReadOnly = entry.ReadOnly ? YesNo::Yes : YesNo::No,
                      .Folder = entry.Folder});
      form_.View.RowAdded(form_.Rows.Count());
      form_.SetListCounter(i + 1);
    } else {
      form_.CurrentNames.Set(i, u"");
    }
    form_.SetStatus(InterfaceText(TextNumber::AddingFiles),
                    static_cast<int>(std::int64_t{i + 1} * 100 / count));
  }
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
        const std::uint64_t listed = form_.Rows.Generation();
        ID3Tags tags;
        if (HasMp3Extension(form_.Rows.At(row).Name)) {
          tags = ReadRowTags(form_, services_, row);
        }
        if (form_.Rows.Generation() != listed) {
          return;
        }
        form_.BoxEdited = false;
        preview_.UpdateBoxValues(row, tags.V1, tags.V2, true, true);
      });
  if (!done) {
    form_.BoxEdited = false;
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
