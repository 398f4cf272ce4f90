// The status line of a program: one text and a progress bar.
#pragma once

#include "platform/text.h"

namespace vorlane {

class StatusLine {
 public:
  virtual ~StatusLine() = default;

  // Shows the text and sets the progress bar (0 to 100), then lets the user interface run once, so
  // that handlers may be called before this returns.
  virtual void SetStatus(TextView text, int percent) = 0;
};

}  // namespace vorlane
