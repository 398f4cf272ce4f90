#include "filelist/list_events.h"

namespace vorlane {

void ListEvents::lstFileList_ColumnClick(Column column) {
  if (!form_.IsIdle()) {
    return;
  }
  ReportingFailures(services_.Report, FormName, u"lstFileList_ColumnClick", u"", [&] {
    const bool ascending = form_.Rows.Order() == SortOrder::Ascending;
    form_.Rows.SetSort(column, ascending ? SortOrder::Descending : SortOrder::Ascending);
    form_.SetSorted(true);
  });
}

void ListEvents::lstFileList_ItemClick() {
  if (form_.IsIdle()) {
    list_.lstFileListItemClick();
  }
}

void ListEvents::lblFileStatus_DblClick() {
  if (!form_.RunOrListingIsAtWork()) {
    preview_.UpdateFilePreviewAll(true, 0);
  }
}

void ListEvents::cmdDoAllOrOne_Click() {
  if (form_.RunOrListingIsAtWork()) {
    return;
  }
  form_.DoAll = !form_.DoAll;
  form_.View.ModesChanged();
  preview_.UpdateFilePreviewAll(false, 0);
}

void ListEvents::cmdListFilesOrFolders_Click() {
  if (form_.RunOrListingIsAtWork()) {
    return;
  }
  form_.ListFolders = !form_.ListFolders;
  form_.View.ModesChanged();
  list_.PathChangedEvent();
}

void ListEvents::cmdSubFoldersOrNot_Click() {
  if (form_.RunOrListingIsAtWork()) {
    return;
  }
  form_.IncludeSubFolders = !form_.IncludeSubFolders;
  form_.View.ModesChanged();
  list_.PathChangedEvent();
}

}  // namespace vorlane
