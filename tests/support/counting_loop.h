// Counts how often a job yields.
#pragma once

#include "platform/message_loop.h"

namespace vorlane {

class CountingLoop final : public MessageLoop {
 public:
  int Yields = 0;

  void Yield() override { ++Yields; }
  void YieldBlocking(int /*milliseconds*/) override { ++Yields; }
};

}  // namespace vorlane
