// What the user does to the list and to the buttons that say what it shows. While a job is at work
// these start nothing of their own.
#pragma once

#include "filelist/file_list.h"
#include "form/form.h"
#include "preview/preview.h"

namespace vorlane {

class ListEvents {
 public:
  ListEvents(Form& form, Services& services, FileList& list, Preview& preview)
      : form_(form), services_(services), list_(list), preview_(preview) {}

  // Sorts by that column. The order turns round at each click, also at the first one on another
  // column. A failure is reported.
  void lstFileList_ColumnClick(Column column);

  // A click on a row, or the keyboard's move to it.
  void lstFileList_ItemClick();

  // Previews every row on demand.
  void lblFileStatus_DblClick();

  // The visible button of a pair names the mode in force; a click brings the other mode.
  void cmdDoAllOrOne_Click();
  void cmdListFilesOrFolders_Click();
  void cmdSubFoldersOrNot_Click();

 private:
  Form& form_;
  Services& services_;
  FileList& list_;
  Preview& preview_;
};

}  // namespace vorlane
