// The folder tree's part in the program: what a selection in it does.
#pragma once

#include <vector>

#include "filelist/file_list.h"
#include "form/form.h"

namespace vorlane {

// The tree of folders that the user sees.
class FolderTree {
 public:
  virtual ~FolderTree() = default;

  // Selects the folder and brings it into view, without a notice of a selection. A folder that
  // isn't there changes nothing.
  virtual void ShowFolder(const Text& path) = 0;
};

class FolderBrowser {
 public:
  FolderBrowser(Form& form, Services& services, FileList& list, FolderTree& tree)
      : form_(form), services_(services), list_(list), tree_(tree) {}

  // The start: the folder becomes the current one and is selected.
  void ShowFolderBrowser(TextView folder);

  // Selects a folder from code; it needs no trailing separator.
  void SelectBrowserFolder(TextView path);

  // The user has selected a folder; an empty path stands for a node without one and changes
  // nothing. A journal in the folder that is left goes, a folder that has vanished gives way to the
  // root, sub-folders are left out from here on, and the folder is listed. During a run or an undo
  // the tree goes back to the current folder: the journal is theirs.
  void SelectionChanged(TextView path);

  // Files or folders were dropped on the list: exactly one folder is selected, anything else is
  // ignored, and so is a drop during a run or an undo. Here the current folder changes before it is
  // selected: it is the journal of the dropped folder that goes.
  void FolderDropped(const std::vector<Text>& paths);

 private:
  Form& form_;
  Services& services_;
  FileList& list_;
  FolderTree& tree_;
};

}  // namespace vorlane
