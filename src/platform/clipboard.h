// The system's clipboard. Neither step tells whether it worked.
#pragma once

#include "platform/text.h"

namespace vorlane {

class Clipboard {
 public:
  virtual ~Clipboard() = default;

  virtual void Clear() = 0;
  virtual void SetText(TextView text) = 0;
};

}  // namespace vorlane
