// The desktop's clipboard. One that the desktop refuses is only logged: under X11 the toolkit
// itself writes a line to the standard error. Under Wayland a compositor may drop a text that comes
// without a recent press or key, which nobody can notice.
#pragma once

#include "platform/clipboard.h"

namespace vorlane {

class QtClipboard final : public Clipboard {
 public:
  void Clear() override;
  void SetText(TextView text) override;
};

}  // namespace vorlane
