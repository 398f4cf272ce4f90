// Collects what a status line shows: "33 Loading...".
#pragma once

#include <functional>
#include <vector>

#include "platform/status_line.h"

namespace vorlane {

class RecordingStatusLine final : public StatusLine {
 public:
  void SetStatus(TextView text, int percent) override {
    Stages.push_back(DecimalText(percent) + u" " + Text(text));
    if (OnStatus) {
      OnStatus(percent);
    }
  }

  std::vector<Text> Stages;
  std::function<void(int percent)> OnStatus;
};

}  // namespace vorlane
