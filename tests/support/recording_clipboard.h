// A clipboard that notes what is done to it.
#pragma once

#include <vector>

#include "platform/clipboard.h"

namespace vorlane {

class RecordingClipboard final : public Clipboard {
 public:
  void Clear() override { Steps.emplace_back(u"(clear)"); }
  void SetText(TextView text) override { Steps.emplace_back(text); }

  std::vector<Text> Steps;
};

}  // namespace vorlane
