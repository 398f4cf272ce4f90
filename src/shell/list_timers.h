// The timers around the list: what each does when its time has come. The window owns the clocks;
// none of these reports a failure.
#pragma once

#include <cstdint>

#include "filelist/file_list.h"
#include "form/form.h"
#include "preview/preview.h"

namespace vorlane {

class ListTimers {
 public:
  ListTimers(Form& form, Services& services, FileList& list, Preview& preview)
      : form_(form), services_(services), list_(list), preview_(preview) {}

  // Show the held texts.
  void tmrFileStatus_Timer();
  void tmrProgramStatus_Timer();

  // List anew, or preview, once the typing has paused. While a job is at work the listing waits for
  // another interval; a preview is left out.
  void tmrUpdateList_Timer();
  void tmrAutoPreview_Timer();

  // Previews the rows that have come into view since it last acted. The status line keeps its text.
  // While the left mouse button is down a scroll bar may be on its way.
  void tmrListScroll_Timer(bool leftButtonDown);

  // Lists anew if files have come or gone. Not with sub-folders, not over 200 rows, and not while
  // a journal could still take the last run back.
  void tmrFileCounter_Timer();

  // The window is up for the first time: from now on tmrFileCounter runs.
  void FirstActivation();

 private:
  std::int32_t CountListedFiles();

  Form& form_;
  Services& services_;
  FileList& list_;
  Preview& preview_;
  std::int32_t lastTopRow_ = 0;
  bool counting_ = false;
  bool activated_ = false;
};

}  // namespace vorlane
