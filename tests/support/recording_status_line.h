// Collects what a status line shows: "33 Loading...".
#pragma once

#include <vector>

#include "platform/status_line.h"

namespace vorlane {

class RecordingStatusLine final : public StatusLine {
 public:
  void SetStatus(TextView text, int percent) override {
    Stages.push_back(DecimalText(percent) + u" " + Text(text));
  }

  std::vector<Text> Stages;
};

}  // namespace vorlane
