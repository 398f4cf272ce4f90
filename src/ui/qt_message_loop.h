// The toolkit's event loop as the rules' message loop.
#pragma once

#include <QElapsedTimer>

#include "platform/message_loop.h"

namespace vorlane {

class QtMessageLoop final : public MessageLoop {
 public:
  QtMessageLoop() { sinceEvents_.start(); }

  // Serves the waiting events at most every few milliseconds: it is called more often than there is
  // anything to serve.
  void Yield() override;
  void YieldBlocking(int milliseconds) override;

 private:
  QElapsedTimer sinceEvents_;
};

}  // namespace vorlane
