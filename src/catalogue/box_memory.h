// Where remembered option boxes keep what the user typed: by key, shared by all operations that
// name the same key.
#pragma once

#include <optional>

#include "platform/text.h"

namespace vorlane {

class BoxMemory {
 public:
  virtual ~BoxMemory() = default;

  // Nothing if no text was ever kept under the key; the empty text may be one.
  virtual std::optional<Text> Recall(TextView key) = 0;
  virtual void Keep(TextView key, TextView text) = 0;
};

}  // namespace vorlane
