// The list of entries: how it is filled from a folder, and what a click on a row does.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "filelist/folder_walk.h"
#include "form/form.h"
#include "preview/preview.h"

namespace vorlane {

class FileList {
 public:
  FileList(Form& form, Services& services, Preview& preview)
      : form_(form), services_(services), preview_(preview) {}

  // Rebuilds the list for the form's CurrentPath, wildcard and list modes, then selects the first
  // row and previews what is visible. Every change of folder, wildcard or mode, every undo and the
  // automatic refresh come through here. A failure is reported; the form is tidied up all the same.
  // When it is called again from a yield inside it, the older listing ends and the newer one
  // counts.
  void PathChangedEvent();

  // The click on a row: reads its tags, works out its box values and previews the visible rows. If
  // the selected row's entry has vanished, the list is rebuilt instead.
  void lstFileListItemClick();

  // How many plain visible files of one folder the system's own matcher finds for a pattern, a
  // folder and wildcard joined. 0 for an empty pattern, no match or an unreadable folder.
  std::int32_t CountFiles(TextView pattern);

 private:
  // What a listing goes by: taken from the form once, so that a change in the middle doesn't show.
  struct ListingInputs {
    Text Folder;
    Text WildCard;
    bool IncludeSubFolders;
    bool ListFolders;
  };

  void RebuildList(std::uint64_t listing, std::optional<QuietBoxes>& quiet);
  void ListFolderContents(std::uint64_t listing, const ListingInputs& inputs);
  void AddRows(std::uint64_t listing, std::vector<FoundEntry>& found, const Text& wildcard);
  void EmptyFormulaBoxes();
  void FinishListing();
  bool IsStopped(std::uint64_t listing) const;

  Form& form_;
  Services& services_;
  Preview& preview_;
  std::uint64_t listing_ = 0;  // counts listings, so that an older one sees that a newer one began
  int selectingFirstRow_ = 0;  // depth of listings that are selecting their first row
};

}  // namespace vorlane
