// The selection of an operation: its help goes to the status line, its wildcard to the wildcard
// box, and its option boxes appear with what they are to hold.
#pragma once

#include "catalogue/box_memory.h"
#include "catalogue/operation_keys.h"
#include "filelist/file_list.h"
#include "filelist/wildcard_box.h"
#include "form/form.h"

namespace vorlane {

class OperationSelection {
 public:
  OperationSelection(Form& form, Services& services, FileList& list, WildcardBox& wildcard,
                     BoxMemory& memory)
      : form_(form), services_(services), list_(list), wildcard_(wildcard), memory_(memory) {}

  // The form's selected operation is the one that was clicked. A heading hides all boxes and leaves
  // status line and wildcard alone. A changed wildcard lists the folder anew, anything else takes
  // the click on the selected row again; both preview. A failure is reported and leaves the boxes
  // as far as they were read.
  void lstRenamingOperations_NodeClick();

 private:
  void ClearBoxes();
  void ShowBoxes(const OperationKeys& keys);
  void ShowTipsAndChecks(const OperationKeys& keys);

  Form& form_;
  Services& services_;
  FileList& list_;
  WildcardBox& wildcard_;
  BoxMemory& memory_;
};

}  // namespace vorlane
