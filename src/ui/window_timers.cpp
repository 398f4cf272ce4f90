#include "ui/window_timers.h"

namespace vorlane {

WindowTimers::WindowTimers(const TimerIntervals& intervals) {
  tmrFileCounter.setInterval(intervals.FileCounter);
  tmrHideAllLabels.setInterval(intervals.HideAllLabels);
  tmrProgramStatus.setInterval(intervals.ProgramStatus);
  tmrFileStatus.setInterval(intervals.FileStatus);
  tmrListScroll.setInterval(intervals.ListScroll);
  tmrUpdateList.setInterval(intervals.UpdateList);
  tmrAutoPreview.setInterval(intervals.AutoPreview);
  for (QTimer* once :
       {&tmrHideAllLabels, &tmrProgramStatus, &tmrFileStatus, &tmrUpdateList, &tmrAutoPreview}) {
    once->setSingleShot(true);
  }
}

QTimer& WindowTimers::Of(FormTimer timer) {
  switch (timer) {
    case FormTimer::ProgramStatus:
      return tmrProgramStatus;
    case FormTimer::FileStatus:
      return tmrFileStatus;
    case FormTimer::UpdateList:
      return tmrUpdateList;
    case FormTimer::AutoPreview:
      break;
  }
  return tmrAutoPreview;
}

}  // namespace vorlane
