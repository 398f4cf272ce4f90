// The window's timers, each with the interval that its rule needs.
#pragma once

#include <QTimer>

#include "form/form_view.h"

namespace vorlane {

// In milliseconds.
struct TimerIntervals {
  int FileCounter = 5000;
  int HideAllLabels = 3000;
  int ProgramStatus = 1000;
  int FileStatus = 100;
  int ListScroll = 500;
  int UpdateList = 1000;
  int AutoPreview = 1000;
};

class WindowTimers {
 public:
  explicit WindowTimers(const TimerIntervals& intervals);

  void Start(FormTimer timer) { Of(timer).start(); }
  void Stop(FormTimer timer) { Of(timer).stop(); }

  QTimer tmrFileCounter;
  QTimer tmrHideAllLabels;
  QTimer tmrProgramStatus;
  QTimer tmrFileStatus;
  QTimer tmrListScroll;
  QTimer tmrUpdateList;
  QTimer tmrAutoPreview;

 private:
  QTimer& Of(FormTimer timer);
};

}  // namespace vorlane
