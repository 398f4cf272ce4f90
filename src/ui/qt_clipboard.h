// The desktop's clipboard.
#pragma once

#include "platform/clipboard.h"

namespace vorlane {

class QtClipboard final : public Clipboard {
 public:
  void Clear() override;
  void SetText(TextView text) override;
};

}  // namespace vorlane
