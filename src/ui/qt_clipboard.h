// The desktop's clipboard. One that the desktop refuses is only logged: under X11 the toolkit
// writes a line to the standard error and still calls the clipboard its own, so that nobody else
// can notice it. Under Wayland a text that comes without a recent press or key may be dropped
// without a word.
#pragma once

#include "platform/clipboard.h"

namespace vorlane {

class QtClipboard final : public Clipboard {
 public:
  void Clear() override;
  void SetText(TextView text) override;
};

}  // namespace vorlane
